#include "store/statement.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString joined(QLatin1StringView text, std::span<const Filling> fillings)
{
    qsizetype size = text.size();
    for (const Filling &filling : fillings)
        size += filling.value.size();
    QString sql;
    sql.reserve(size);

    qsizetype from = 0;
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', from)) {
        const qsizetype close = text.indexOf(u'}', open);
        Q_ASSERT(close > open);
        const QLatin1StringView marker = text.sliced(open + 1, close - open - 1);
        const auto filling = std::ranges::find(fillings, marker, &Filling::marker);
        Q_ASSERT_X(filling != fillings.end(), "joined", text.data());
        sql += text.sliced(from, open - from);
        sql += filling->value;
        from = close + 1;
    }
    sql += text.sliced(from);
    return sql;
}

QString joined(QLatin1StringView text, std::initializer_list<Filling> fillings)
{
    return joined(text, std::span(fillings.begin(), fillings.size()));
}

QString withId(QLatin1StringView text, qint64 id)
{
    return joined(text, {{"id"_L1, QString::number(id)}});
}
