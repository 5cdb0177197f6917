#pragma once

#include <QString>

/// The path as the store knows it: with a backslash at its end.
[[nodiscard]] inline QString folderPath(const QString &path)
{
    return path.endsWith(u'\\') ? path : path + u'\\';
}
