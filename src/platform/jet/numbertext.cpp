#include "platform/jet/numbertext.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace jet {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view withoutBlanks(std::string_view text)
{
    const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The base that a leading &H or &O names, which is taken off, or 10.
int takeBase(std::string_view &text)
{
    if (text.size() < 2 || text[0] != '&')
        return 10;
    const int base = text[1] == 'H' || text[1] == 'h' ? 16 : text[1] == 'O' || text[1] == 'o' ? 8 : 10;
    if (base != 10)
        text.remove_prefix(2);
    return base;
}

std::optional<std::int64_t> bits(std::string_view digits, int base)
{
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size() || value > 0xFFFFFFFF)
        return {};
    return signedBits(static_cast<std::uint32_t>(value));
}

/// Whether each comma has three digits behind it up to the next one or the end, and some before the first.
bool commasAreThousands(std::string_view digits)
{
    const std::size_t first = digits.find(',');
    if (first == std::string_view::npos)
        return true;
    if (first == 0 || first > 3)
        return false;
    for (std::string_view rest = digits.substr(first); !rest.empty(); rest.remove_prefix(4)) {
        if (rest.size() < 4 || rest[0] != ',' || !std::all_of(rest.begin() + 1, rest.begin() + 4, isDigit))
            return false;
    }
    return true;
}

} // namespace

const char *readDouble(std::string_view digits, double &number)
{
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::result_out_of_range) {
        const bool tiny = digits.find("e-") != digits.npos || digits.find("E-") != digits.npos;
        long double wide = tiny ? 0 : HUGE_VALL; // stays for what not even this type holds
        std::from_chars(digits.data(), end, wide);
        number = wide > 1 ? HUGE_VAL : wide < -1 ? -HUGE_VAL : 0;
    }
    return error == std::errc::invalid_argument ? digits.data() : end;
}

std::int32_t signedBits(std::uint32_t bits)
{
    return bits > 0x7FFF && bits <= 0xFFFF ? static_cast<std::int16_t>(bits)
                                           : static_cast<std::int32_t>(bits);
}

double toDouble(const Number &number)
{
    return std::visit([](auto value) { return double(value); }, number);
}

std::optional<Number> parseNumber(std::string_view text)
{
    text = withoutBlanks(text);
    std::string digits;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        if (text.front() == '-')
            digits.push_back('-');
        text.remove_prefix(1);
    }
    if (const int base = takeBase(text); base != 10) {
        const auto value = bits(text, base);
        return value ? std::optional<Number>(digits.empty() ? *value : -*value) : std::nullopt;
    }
    const auto wholeEnd = std::ranges::find_if_not(text, [](char c) { return isDigit(c) || c == ','; });
    const auto whole = std::string_view(text.begin(), wholeEnd);
    const auto rest = std::string_view(wholeEnd, text.end());
    if (!commasAreThousands(whole))
        return {};
    std::ranges::copy_if(whole, std::back_inserter(digits), isDigit);
    const bool hasFraction = rest.size() > 1 && rest[0] == '.' && isDigit(rest[1]);
    if ((whole.empty() && !hasFraction) ||
        (!rest.empty() && rest[0] != '.' && rest[0] != 'e' && rest[0] != 'E'))
        return {};

    if (rest.empty()) {
        std::int64_t value = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error == std::errc() && end == digits.data() + digits.size())
            return value;
    }
    digits.append(rest);
    double value = 0;
    if (readDouble(digits, value) != digits.data() + digits.size() || std::isinf(value))
        return {};
    return value;
}

double leadingNumber(std::string_view text)
{
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits),
                         [](char c) { return c != ' ' && c != '\t' && c != '\n'; });
    std::string_view rest = digits;
    if (const int base = takeBase(rest); base != 10) {
        const auto isOfBase = [&](char c) {
            return base == 8 ? c >= '0' && c <= '7'
                             : isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
        };
        const auto length = std::size_t(std::ranges::find_if_not(rest, isOfBase) - rest.begin());
        return double(bits(rest.substr(0, length), base).value_or(0));
    }
    if (rest.starts_with('+'))
        rest.remove_prefix(1);
    const std::size_t first = rest.starts_with('-') ? 1 : 0;
    const bool isNumber = rest.size() > first && (isDigit(rest[first]) || rest[first] == '.');
    double value = 0;
    if (isNumber)
        readDouble(rest, value);
    return value;
}

} // namespace jet
