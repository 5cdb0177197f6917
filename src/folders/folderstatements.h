#pragma once

#include <QString>

// What the record class of folders shares with the sample company. Nothing is escaped.

/// The path as the store knows it: with a backslash at its end.
[[nodiscard]] QString folderPath(const QString &path);

/// The path goes in as it stands.
[[nodiscard]] QString insertFolder(const QString &path, const QString &description);
[[nodiscard]] QString insertDefaultFolderPermission(const QString &account, const QString &permission);
