#include "base/value.h"

#include "base/oledate.h"

#include <algorithm>
#include <array>
#include <charconv>
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

std::string numberText(double number)
{
    constexpr double exact = 1e15;
    if (std::abs(number) < exact && std::trunc(number) == number)
        return std::to_string(qint64(number));
    constexpr int significantDigits = 15;
    std::array<char, 40> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::general, significantDigits)
                         .ptr;
    std::replace(buffer.data(), end, 'e', 'E');
    return {buffer.data(), end};
}

QString Value::toText() const
{
    return std::visit(Overloaded{
                          [](std::monostate) { return QString(); },
                          [](bool value) { return value ? u"True"_s : u"False"_s; },
                          [](qint64 value) { return QString::number(value); },
                          [](double value) { return QString::fromStdString(numberText(value)); },
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
