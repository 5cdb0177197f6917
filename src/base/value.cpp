#include "base/value.h"

#include "base/oledate.h"

#include <cfenv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
template <typename... Ts>
struct Overloaded : Ts...
{
    using Ts::operator()...;
};
template <typename... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;
} // namespace

QString numberToText(double number)
{
    if (number == 0)
        return u"0"_s;
    QString text = QString::number(number, 'G', 15);
    const qsizetype exponent = text.indexOf(u'E');
    if (exponent >= 0 && text[exponent + 1] == u'+' && text.size() == exponent + 3)
        text.insert(exponent + 2, u'0');
    return text;
}

QString Value::toText() const
{
    return std::visit(Overloaded{
                          [](std::monostate) { return QString(); },
                          [](bool value) { return value ? u"True"_s : u"False"_s; },
                          [](qint64 value) { return QString::number(value); },
                          [](double value) { return numberToText(value); },
                          [](OleDate value) { return oledate::toText(value.days); },
                          [](const QString &value) { return value; },
                      },
                      m_value);
}

double Value::toDouble() const
{
    return std::visit(Overloaded{
                          [](std::monostate) { return 0.0; },
                          [](bool value) { return value ? -1.0 : 0.0; },
                          [](qint64 value) { return double(value); },
                          [](double value) { return value; },
                          [](OleDate value) { return value.days; },
                          [](const QString &value) { return value.trimmed().toDouble(); },
                      },
                      m_value);
}

qint64 Value::toInteger() const
{
    if (const qint64 *whole = std::get_if<qint64>(&m_value))
        return *whole;
    const double rounded = std::nearbyint(toDouble());
    constexpr double limit = 9.2e18;
    return std::abs(rounded) < limit ? qint64(rounded) : 0;
}

bool Value::toBoolean() const
{
    if (const QString *text = std::get_if<QString>(&m_value);
        text && text->compare("true"_L1, Qt::CaseInsensitive) == 0)
        return true;
    return toDouble() != 0;
}
