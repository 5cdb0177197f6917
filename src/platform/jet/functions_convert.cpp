#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include "platform/jet/datemath.h"
#include "platform/jet/errormark.h"
#include "platform/jet/errors.h"
#include "platform/jet/numbertext.h"
#include "platform/jet/utf8.h"

#include <algorithm>
#include <cmath>

namespace jet {

namespace {

constexpr const char *tooSmall = "The field is too small to accept the amount of data you attempted to add.  "
                                 "Try inserting or pasting less data.";

[[noreturn]] void raiseFieldOverflow()
{
    throw CallError{Failure, "Numeric field overflow."};
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
        call.give(writtenDate(call.date(0)));
}

void booleanText(Call &call)
{
    if (call.isText(0))
        call.giveArgument(0);
    else
        call.give(writtenBoolean(call.number(0) != 0));
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
    call.giveDate(days);
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

void fail(Call &call)
{
    resultError(call.context(), call.whole(0), call.text(1));
}

constexpr NamedBinding conversions[] = {
    {"jet_text", {text}},
    {"jet_datetext", {dateText}},
    {"jet_booltext", {booleanText}},
    {"jet_num", {number}},
    {"jet_readdate", {readDate}},
    {"jet_tolong", {toWholeColumn<std::int32_t>}},
    {"jet_toshort", {toWholeColumn<std::int16_t>}},
    {"jet_tobyte", {toWholeColumn<std::uint8_t>}},
    {"jet_todouble", {toDoubleColumn}},
    {"jet_tosingle", {toSingleColumn}},
    {"jet_tocurrency", {toCurrencyColumn}},
    {"jet_todate", {toDateColumn}},
    {"jet_tobool", {toBooleanColumn}},
    {"jet_fit", {fit}},
    {"jet_raise", {fail, NullRule::Handled}},
};

} // namespace

namespace bodies {

void toBoolean(Call &call)
{
    call.giveBoolean(call.boolean(0));
}

void toByte(Call &call)
{
    giveAs<std::uint8_t>(call, raiseOverflow);
}

void toInteger(Call &call)
{
    giveAs<std::int16_t>(call, raiseOverflow);
}

void toLong(Call &call)
{
    giveAs<std::int32_t>(call, raiseOverflow);
}

void toDouble(Call &call)
{
    call.giveNumber(call.number(0));
}

void toSingle(Call &call)
{
    giveSingle(call, raiseOverflow);
}

void toCurrency(Call &call)
{
    giveCurrency(call, raiseOverflow);
}

void toDate(Call &call)
{
    call.giveDate(call.date(0));
}

void toText(Call &call)
{
    call.give(call.text(0));
}

} // namespace bodies

void registerConversions(sqlite3 *handle)
{
    bindFunctions(handle, conversions);
}

} // namespace jet
