#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include "base/oledate.h"
#include "platform/jet/datemath.h"
#include "platform/jet/errors.h"
#include "platform/jet/like.h"
#include "platform/jet/numbertext.h"
#include "platform/jet/utf8.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <sqlite3.h>

namespace jet {

namespace {

constexpr const char *tooSmall = "The field is too small to accept the amount of data you attempted to add.  "
                                 "Try inserting or pasting less data.";

[[noreturn]] void raiseFieldOverflow()
{
    throw CallError{Failure, "Numeric field overflow."};
}

void concatenate(Call &call)
{
    std::string joined;
    bool any = false;
    for (int i = 0; i < call.count(); ++i) {
        any = any || !call.isNull(i);
        const std::string_view part = call.text(i);
        requireRoom(joined.size() + part.size());
        joined += part;
    }
    if (any)
        call.give(joined);
}

void like(Call &call)
{
    const auto *kept = static_cast<const LikePattern *>(sqlite3_get_auxdata(call.context(), 1));
    if (kept) {
        call.giveWhole(kept->matches(call.text(0)) ? 1 : 0);
        return;
    }
    auto pattern = std::make_unique<LikePattern>(call.text(1));
    call.giveWhole(pattern->matches(call.text(0)) ? 1 : 0);
    // Kept for the next row; dropped at once where the pattern differs from row to row.
    sqlite3_set_auxdata(call.context(), 1, pattern.release(),
                        [](void *old) { delete static_cast<LikePattern *>(old); });
}

void text(Call &call)
{
    call.give(call.text(0));
}

void dateText(Call &call)
{
    if (call.isText(0))
        call.giveArgument(0);
    else
        call.give(oledate::toText(call.date(0)).toStdString());
}

void booleanText(Call &call)
{
    if (call.isText(0))
        call.giveArgument(0);
    else
        call.give(call.number(0) != 0 ? "True" : "False");
}

void number(Call &call)
{
    if (!call.isText(0)) {
        call.giveArgument(0);
        return;
    }
    const auto number = parseNumber(call.text(0));
    if (!number)
        raiseMismatch(call.text(0), "a number");
    if (const auto *whole = std::get_if<std::int64_t>(&*number))
        call.giveWhole(*whole);
    else
        call.giveNumber(std::get<double>(*number));
}

void readDate(Call &call)
{
    if (!call.isText(0)) {
        call.giveArgument(0);
        return;
    }
    call.giveNumber(call.dateOrNumber(0));
}

template <typename Whole>
void toWholeColumn(Call &call)
{
    giveAs<Whole>(call, raiseFieldOverflow);
}

void toDoubleColumn(Call &call)
{
    const double number = call.number(0);
    if (!std::isfinite(number))
        raiseFieldOverflow();
    call.giveNumber(number);
}

void toSingleColumn(Call &call)
{
    giveSingle(call, raiseFieldOverflow);
}

void toCurrencyColumn(Call &call)
{
    giveCurrency(call, raiseFieldOverflow);
}

void toDateColumn(Call &call)
{
    const double days = call.isText(0) ? call.date(0) : call.number(0);
    if (!inCalendar(days))
        raiseFieldOverflow();
    call.giveNumber(days);
}

void toBooleanColumn(Call &call)
{
    call.giveBoolean(call.boolean(0));
}

void fit(Call &call)
{
    const std::string_view text = call.text(0);
    const auto width = std::size_t(std::max(0, call.whole(1)));
    if (text.size() > width && utf8::length(text) > width)
        throw CallError{FieldTooSmall, tooSmall};
    call.give(text);
}

void add(Call &call)
{
    if (call.isText(0) && call.isText(1)) {
        requireRoom(call.text(0).size() + call.text(1).size());
        call.give(std::string(call.text(0)).append(call.text(1)));
    } else
        call.giveNumber(call.number(0) + call.number(1));
}

void subtract(Call &call)
{
    call.giveNumber(call.number(0) - call.number(1));
}

void multiply(Call &call)
{
    call.giveNumber(call.number(0) * call.number(1));
}

template <typename Operation>
void combineBits(Call &call)
{
    call.giveWhole(Operation()(call.whole(0), call.whole(1)));
}

void divide(Call &call)
{
    if (call.number(1) == 0)
        raiseDivisionByZero();
    call.giveNumber(call.number(0) / call.number(1));
}

struct WholePair
{
    std::int64_t left;
    std::int64_t right;
};

WholePair wholeOperands(Call &call)
{
    const WholePair operands{call.wide(0), call.wide(1)};
    if (operands.right == 0)
        raiseDivisionByZero();
    return operands;
}

void divideWhole(Call &call)
{
    const auto [left, right] = wholeOperands(call);
    if (right == -1 && left == std::numeric_limits<std::int64_t>::min())
        raiseOverflow();
    call.giveWhole(left / right);
}

void modulo(Call &call)
{
    const auto [left, right] = wholeOperands(call);
    call.giveWhole(right == -1 ? 0 : left % right);
}

void power(Call &call)
{
    const double base = call.number(0);
    const double exponent = call.number(1);
    if ((base < 0 && std::trunc(exponent) != exponent) || (base == 0 && exponent < 0))
        raiseInvalidCall();
    call.giveNumber(std::pow(base, exponent));
}

void raiseError(Call &call)
{
    resultError(call.context(), call.whole(0), call.text(1));
}

struct Conversion
{
    const char *name;
    Binding binding;
};

const Conversion conversions[] = {
    {"jet_cat", {concatenate, NullRule::Handled}},
    {"jet_like", {like}},
    {"jet_text", {text}},
    {"jet_datetext", {dateText}},
    {"jet_booltext", {booleanText}},
    {"jet_num", {number}},
    {"jet_cdate", {readDate}},
    {"jet_tolong", {toWholeColumn<std::int32_t>}},
    {"jet_toshort", {toWholeColumn<std::int16_t>}},
    {"jet_tobyte", {toWholeColumn<std::uint8_t>}},
    {"jet_todouble", {toDoubleColumn}},
    {"jet_tosingle", {toSingleColumn}},
    {"jet_tocurrency", {toCurrencyColumn}},
    {"jet_todate", {toDateColumn}},
    {"jet_tobool", {toBooleanColumn}},
    {"jet_fit", {fit}},
    {"jet_add", {add}},
    {"jet_sub", {subtract}},
    {"jet_mul", {multiply}},
    {"jet_band", {combineBits<std::bit_and<>>}},
    {"jet_bor", {combineBits<std::bit_or<>>}},
    {"jet_product", {bodies::product}},
    {"jet_bxor", {combineBits<std::bit_xor<>>}},
    {"jet_div", {divide}},
    {"jet_idiv", {divideWhole}},
    {"jet_mod", {modulo}},
    {"jet_pow", {power}},
    {"jet_raise", {raiseError, NullRule::Handled}},
};

} // namespace

void registerConversions(sqlite3 *handle)
{
    for (const Conversion &conversion : conversions)
        bindFunction(handle, conversion.name, conversion.binding);
}

} // namespace jet
