#include "platform/jet/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace jet {

namespace {
constexpr int significantDigits = 15;
}

Decimal::Decimal(double number) : m_negative(number < 0)
{
    std::array<char, 40> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(number),
                                            std::chars_format::scientific, significantDigits - 1);
    const char *const exponent = std::find(buffer.data(), end, 'e');
    if (error != std::errc() || exponent == end)
        return; // no finite number
    m_digits.assign(buffer.data(), std::size_t(exponent - buffer.data()));
    std::erase(m_digits, '.');
    const char *from = exponent + 1 + (exponent[1] == '+' ? 1 : 0);
    std::from_chars(from, end, m_point);
    ++m_point;
    clean();
}

void Decimal::clean()
{
    const std::size_t zeros = std::min(m_digits.find_first_not_of('0'), m_digits.size());
    m_digits.erase(0, zeros);
    m_point -= int(zeros);
    m_digits.erase(m_digits.find_last_not_of('0') + 1);
    if (m_digits.empty())
        m_point = 0;
}

bool Decimal::round(int decimals, Halves halves)
{
    const int kept = m_point + decimals;
    if (kept >= int(m_digits.size()))
        return false;
    if (kept < 0) {
        m_digits.clear();
        clean();
        return true;
    }
    const auto keep = std::size_t(kept);
    const bool isHalf = m_digits[keep] == '5' && keep + 1 == m_digits.size();
    const bool lastIsOdd = keep > 0 && (m_digits[keep - 1] - '0') % 2 == 1;
    const bool up = isHalf && halves == Halves::ToEven ? lastIsOdd : m_digits[keep] >= '5';
    m_digits.erase(keep);
    if (up) {
        m_digits.insert(0, 1, '0');
        ++m_point;
        std::size_t place = m_digits.size() - 1;
        for (; m_digits[place] == '9'; --place)
            m_digits[place] = '0';
        ++m_digits[place];
    }
    clean();
    return true;
}

std::string Decimal::wholeDigits() const
{
    if (m_point <= 0)
        return {};
    std::string whole = m_digits.substr(0, std::size_t(m_point));
    whole.resize(std::size_t(m_point), '0');
    return whole;
}

char Decimal::fractionDigit(int place) const
{
    const int index = m_point + place - 1;
    return index >= 0 && index < int(m_digits.size()) ? m_digits[std::size_t(index)] : '0';
}

double Decimal::toDouble() const
{
    if (m_digits.empty())
        return 0;
    const std::string text = (m_negative ? "-0." : "0.") + m_digits + 'e' + std::to_string(m_point);
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

double roundedToEven(double number, int decimals)
{
    Decimal decimal(number);
    if (decimal.round(decimals, Decimal::Halves::ToEven))
        return decimal.toDouble();
    // Whole numbers and what has more than 15 digits before the places asked for are told exactly here.
    constexpr std::size_t digitsOfLargest = 309;
    constexpr std::size_t mostDecimals = 22;
    std::array<char, digitsOfLargest + mostDecimals + 2> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::fixed, decimals);
    double rounded = number;
    if (error == std::errc())
        std::from_chars(buffer.data(), end, rounded);
    return rounded;
}

} // namespace jet
