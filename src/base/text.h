#pragma once

#include <QString>
#include <QStringList>

/// Each ' becomes ''.
[[nodiscard]] QString escapeQuotes(const QString &text);

/// An empty text stays empty; any other is read as a date and rebuilt as
/// month/day/year without leading zeros. Raises 13 when the text is not a date.
[[nodiscard]] QString formatSqlDate(const QString &text);

/// Splits at the first backslash: what is behind it goes to the names, what is before
/// it to the servers. A text without a backslash is a name without a server.
void splitAccountName(const QString &account, QStringList &names, QStringList &servers);

/// Puts the value in place of every $ of a message.
[[nodiscard]] QString fillMarker(const QString &message, const QString &value);
