#pragma once

#include <QString>

/// Texts kept per user by application, section and key, one file an application in
/// the user's configuration folder. Every call reads or writes the file itself, so what
/// another process stored is seen at once.
namespace settings {

/// The stored text, or the default when there is no such key. A file that cannot be read
/// holds no keys.
[[nodiscard]] QString getSetting(const QString &application, const QString &section, const QString &key,
                                 const QString &defaultValue = {});

/// On disk when it returns. Raises FileAccessError with a text that names the file.
void saveSetting(const QString &application, const QString &section, const QString &key,
                 const QString &value);

/// The folder under which the files lie; an empty text restores the user's own.
void setFolder(const QString &folder);
[[nodiscard]] QString fileOf(const QString &application);

} // namespace settings
