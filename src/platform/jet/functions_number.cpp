#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include "base/value.h"
#include "platform/jet/decimal.h"
#include "platform/jet/numbertext.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <sqlite3.h>

namespace jet::bodies {

namespace {

/// Applies the change to a number with a fraction; whole numbers stay as they are.
template <typename Change>
void unlessWhole(Call &call, Change change)
{
    if (call.isWhole(0))
        call.giveArgument(0);
    else
        call.giveNumber(change(call.number(0)));
}

void giveDigits(Call &call, int base)
{
    std::string digits(12, ' ');
    const auto bits = static_cast<std::uint32_t>(call.whole(0));
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), bits, base).ptr;
    digits.resize(std::size_t(end - digits.data()));
    for (char &digit : digits)
        digit = static_cast<char>(digit >= 'a' ? digit - 'a' + 'A' : digit);
    call.give(digits);
}

} // namespace

void absolute(Call &call)
{
    if (call.isWhole(0) && call.wide(0) != std::numeric_limits<std::int64_t>::min())
        call.giveWhole(std::abs(call.wide(0)));
    else
        call.giveNumber(std::abs(call.number(0)));
}

void sign(Call &call)
{
    const double number = call.number(0);
    call.giveWhole(number > 0 ? 1 : number < 0 ? -1 : 0);
}

void squareRoot(Call &call)
{
    if (call.number(0) < 0)
        raiseInvalidCall();
    call.giveNumber(std::sqrt(call.number(0)));
}

void exponential(Call &call)
{
    call.giveNumber(std::exp(call.number(0)));
}

void logarithm(Call &call)
{
    if (call.number(0) <= 0)
        raiseInvalidCall();
    call.giveNumber(std::log(call.number(0)));
}

void sine(Call &call)
{
    call.giveNumber(std::sin(call.number(0)));
}

void cosine(Call &call)
{
    call.giveNumber(std::cos(call.number(0)));
}

void tangent(Call &call)
{
    call.giveNumber(std::tan(call.number(0)));
}

void arcTangent(Call &call)
{
    call.giveNumber(std::atan(call.number(0)));
}

void integer(Call &call)
{
    unlessWhole(call, [](double number) { return std::floor(number); });
}

void fix(Call &call)
{
    unlessWhole(call, [](double number) { return std::trunc(number); });
}

void round(Call &call)
{
    const int decimals = call.whole(1, 0);
    constexpr int mostDecimals = 22;
    if (decimals < 0 || decimals > mostDecimals)
        raiseInvalidCall();
    unlessWhole(call, [decimals](double number) { return roundedToEven(number, decimals); });
}

void randomNumber(Call &call)
{
    constexpr double range = 16777216; // 24 bits
    std::uint32_t bits = 0;
    if (call.count() > 0 && call.number(0) < 0)
        bits = static_cast<std::uint32_t>(std::hash<double>()(call.number(0)) * 2654435761U);
    else
        sqlite3_randomness(sizeof bits, &bits);
    call.giveNumber(double(bits >> 8) / range);
}

void value(Call &call)
{
    call.giveNumber(leadingNumber(call.text(0)));
}

void stringOfNumber(Call &call)
{
    std::string text = call.isWhole(0) ? std::string(call.text(0)) : numberText(call.number(0));
    const bool negative = text.starts_with('-');
    if (std::string_view(text).substr(negative ? 1 : 0).starts_with("0."))
        text.erase(negative ? 1 : 0, 1);
    call.give(negative ? text : ' ' + text);
}

void hexadecimal(Call &call)
{
    giveDigits(call, 16);
}

void octal(Call &call)
{
    giveDigits(call, 8);
}

void isNumeric(Call &call)
{
    const std::string_view kind = call.text(0);
    if (call.isNull(1) || kind == "d")
        call.giveBoolean(false);
    else
        call.giveBoolean(!call.isText(1) || parseNumber(call.text(1)).has_value());
}

} // namespace jet::bodies
