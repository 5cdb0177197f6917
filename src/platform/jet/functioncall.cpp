#include "platform/jet/functioncall.h"

#include "base/oledate.h"
#include "base/value.h"
#include "platform/jet/collation.h"
#include "platform/jet/decimal.h"
#include "platform/jet/errormark.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/numbertext.h"
#include "platform/jet/utf8.h"

#include <charconv>
#include <cmath>
#include <new>
#include <sqlite3.h>

namespace jet {

namespace {

void run(sqlite3_context *context, int count, sqlite3_value **values)
{
    const auto &binding = *static_cast<const Binding *>(sqlite3_user_data(context));
    try {
        Call call(context, count, values);
        if (binding.nulls == NullRule::GivesNull)
            for (int i = 0; i < count; ++i)
                if (call.isNull(i))
                    return;
        binding.body(call);
    } catch (const CallError &error) {
        resultError(context, error.number, error.text);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    } catch (...) {
        // No exception may pass through SQLite.
        resultError(context, Failure, "The function failed.");
    }
}

/// Halves go to the even neighbour.
double roundToEven(double number)
{
    return std::nearbyint(number);
}

/// The number as a single holds it: what people see of the single's shortest text.
double shownSingle(double number)
{
    char text[40];
    const auto end = std::to_chars(std::begin(text), std::end(text), static_cast<float>(number)).ptr;
    double shown = 0;
    std::from_chars(text, end, shown);
    return shown;
}

/// Rounded to four decimals. Nothing outside of what a currency holds.
std::optional<double> currency(double number)
{
    constexpr double largest = 922337203685477.5807;
    if (!(std::abs(number) <= largest))
        return {};
    constexpr int decimals = 4;
    return roundedToEven(number, decimals);
}

} // namespace

void raiseMismatch()
{
    throw CallError{TypeMismatch, std::string(dataTypeMismatch)};
}

void raiseMismatch(std::string_view text, std::string_view wanted)
{
    constexpr std::size_t shown = 40;
    const std::size_t end = utf8::offset(text, shown);
    throw CallError{TypeMismatch, std::string(dataTypeMismatch) + " '" + std::string(text.substr(0, end)) +
                                      (end < text.size() ? "..." : "") + "' is not " + std::string(wanted) +
                                      '.'};
}

void raiseOverflow()
{
    throw CallError{Failure, "Overflow"};
}

void raiseInvalidCall()
{
    throw CallError{Failure, "Invalid procedure call"};
}

void raiseDivisionByZero()
{
    throw CallError{Failure, "Division by zero"};
}

void requireRoom(std::size_t bytes)
{
    constexpr std::size_t largest = 100'000'000;
    if (bytes > largest)
        throw CallError{Failure, "Out of string space"};
}

std::string writtenDate(double date)
{
    return oledate::toText(date).toStdString();
}

std::string_view writtenBoolean(bool value)
{
    return value ? "True" : "False";
}

Call::Call(sqlite3_context *context, int count, sqlite3_value **values)
    : m_context(context)
    , m_count(count)
    , m_values(values)
{
}

bool Call::isNull(int index) const
{
    return index >= m_count || sqlite3_value_type(m_values[index]) == SQLITE_NULL;
}

bool Call::isText(int index) const
{
    const int type = index < m_count ? sqlite3_value_type(m_values[index]) : SQLITE_NULL;
    return type == SQLITE_TEXT || type == SQLITE_BLOB;
}

bool Call::isWhole(int index) const
{
    return index < m_count && sqlite3_value_type(m_values[index]) == SQLITE_INTEGER;
}

double Call::number(int index) const
{
    if (isNull(index))
        return 0;
    if (!isText(index))
        return sqlite3_value_double(m_values[index]);
    const auto number = parseNumber(ownText(index));
    if (!number)
        raiseMismatch(ownText(index), "a number");
    return toDouble(*number);
}

int Call::whole(int index) const
{
    const double rounded = roundToEven(number(index));
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
        raiseOverflow();
    return int(rounded);
}

std::int64_t Call::wide(int index) const
{
    if (isWhole(index))
        return sqlite3_value_int64(m_values[index]);
    const double rounded = roundToEven(number(index));
    constexpr double limit = 9223372036854775808.0;
    if (!(rounded >= -limit && rounded < limit))
        raiseOverflow();
    return static_cast<std::int64_t>(rounded);
}

double Call::date(int index) const
{
    double days = 0;
    if (isText(index)) {
        const std::string_view text = ownText(index);
        const auto date = dateOf(text);
        if (!date)
            raiseMismatch(text, "a date");
        days = *date;
    } else {
        days = number(index);
    }
    if (!inCalendar(days))
        raiseOverflow();
    return days;
}

double Call::dateOrNumber(int index) const
{
    const auto serial = isText(index) ? parseNumber(ownText(index)) : std::nullopt;
    return serial ? toDouble(*serial) : date(index);
}

bool Call::boolean(int index)
{
    if (isText(index)) {
        const std::string word = foldCase(ownText(index));
        if (word == "true" || word == "yes" || word == "on")
            return true;
        if (word == "false" || word == "no" || word == "off")
            return false;
        if (!parseNumber(ownText(index)))
            raiseMismatch(ownText(index), "a yes/no value");
    }
    return number(index) != 0;
}

std::string_view Call::ownText(int index) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(m_values[index]));
    if (!text)
        throw std::bad_alloc();
    return {text, std::size_t(sqlite3_value_bytes(m_values[index]))};
}

std::string_view Call::text(int index)
{
    if (isNull(index))
        return {};
    if (!isText(index)) {
        m_texts.push_front(isWhole(index) ? std::to_string(sqlite3_value_int64(m_values[index]))
                                          : numberText(sqlite3_value_double(m_values[index])));
        return m_texts.front();
    }
    return ownText(index);
}

void Call::give(std::string_view text)
{
    sqlite3_result_text64(m_context, text.empty() ? "" : text.data(), text.size(), SQLITE_TRANSIENT,
                          SQLITE_UTF8);
}

void Call::giveNumber(double number)
{
    if (!std::isfinite(number))
        raiseOverflow();
    sqlite3_result_double(m_context, number);
}

void Call::giveWhole(std::int64_t number)
{
    sqlite3_result_int64(m_context, number);
}

void Call::giveDate(double days)
{
    giveNumber(oledate::fromMoment(oledate::toMoment(days)));
}

void Call::giveArgument(int index)
{
    if (index < m_count)
        sqlite3_result_value(m_context, m_values[index]);
}

WeekRule ruleOf(const Call &call, int index)
{
    const auto rule = weekRule(call.whole(index, 1), call.whole(index + 1, 1));
    if (!rule)
        raiseInvalidCall();
    return *rule;
}

void giveWithin(Call &call, std::int64_t least, std::int64_t most, void (*tooLarge)())
{
    const double rounded = roundToEven(call.number(0));
    if (!(rounded >= double(least) && rounded <= double(most)))
        tooLarge();
    call.giveWhole(static_cast<std::int64_t>(rounded));
}

void giveSingle(Call &call, void (*tooLarge)())
{
    const double number = call.number(0);
    if (!std::isfinite(static_cast<float>(number)))
        tooLarge();
    call.giveNumber(shownSingle(number));
}

void giveCurrency(Call &call, void (*tooLarge)())
{
    const auto amount = currency(call.number(0));
    if (!amount)
        tooLarge();
    call.giveNumber(amount.value_or(0));
}

void bindFunction(sqlite3 *handle, const char *name, const Binding &binding)
{
    const int flags = SQLITE_UTF8 | (binding.stability == Stability::SameForSame ? SQLITE_DETERMINISTIC : 0);
    sqlite3_create_function_v2(handle, name, -1, flags, const_cast<Binding *>(&binding), run, nullptr,
                               nullptr, nullptr);
}

void bindFunctions(sqlite3 *handle, std::span<const NamedBinding> functions)
{
    for (const NamedBinding &function : functions)
        bindFunction(handle, function.name, function.binding);
}

} // namespace jet
