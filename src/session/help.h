#pragma once

#include <QString>

/// The folder of the help pages: Help beside the program, or where the packages of the system put it. Empty
/// when there is none.
[[nodiscard]] QString helpFolder();

/// Opens a page of the help in the program that shows such pages; raises FileAccessError when it is missing
/// or nothing can show it. An anchor may follow the name: "manual.html#rooms".
void openHelp(const QString &page);
