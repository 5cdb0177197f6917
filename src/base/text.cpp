#include "base/text.h"

#include "base/error.h"
#include "base/oledate.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int TypeMismatch = 13;
}

QString escapeQuotes(const QString &text)
{
    QString escaped = text;
    return escaped.replace(u'\'', "''"_L1);
}

QString formatSqlDate(const QString &text)
{
    if (text.isEmpty())
        return text;
    const std::optional<double> date = oledate::parse(text);
    if (!date)
        throwError(TypeMismatch, "Type mismatch: '"_L1 + text + "' is not a date."_L1);
    const oledate::Parts parts = oledate::toParts(*date);
    return u"%1/%2/%3"_s.arg(parts.month).arg(parts.day).arg(parts.year);
}

void splitAccountName(const QString &account, QStringList &names, QStringList &servers)
{
    const qsizetype backslash = account.indexOf(u'\\');
    names.append(account.mid(backslash + 1));
    servers.append(backslash < 0 ? u""_s : account.left(backslash));
}

QString fillMarker(const QString &message, const QString &value)
{
    QString filled = message;
    return filled.replace(u'$', value);
}
