#pragma once

#include <QString>

/// The seven settings of the program. A reader reads the settings file at each call; a
/// key that is not there has its default, and a text that is no boolean reads as false.
/// A writer raises when the file cannot be written.
namespace modRegistry {

[[nodiscard]] QString getDataBase();
[[nodiscard]] QString getDefaultDC();
[[nodiscard]] bool getAlwaysAskServer();
[[nodiscard]] bool getShowGridLines();
[[nodiscard]] bool getShowNTIcon();
[[nodiscard]] bool getMaximizeWindows();
[[nodiscard]] bool getShowSideBar();

void saveDataBase(const QString &path);
void saveDefaultDC(const QString &server);
void saveAlwaysAskServer(bool value);
void saveShowGridLines(bool value);
void saveShowNTIcon(bool value);
void saveMaximizeWindows(bool value);
void saveShowSideBar(bool value);

} // namespace modRegistry
