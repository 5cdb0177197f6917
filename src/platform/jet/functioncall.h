#pragma once

#include "platform/jet/datemath.h"

#include <cstdint>
#include <forward_list>
#include <limits>
#include <span>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_context;
struct sqlite3_value;

namespace jet {

/// Thrown by the body of a function; becomes an Error of that number.
struct CallError
{
    int number;
    std::string text;
};

[[noreturn]] void raiseMismatch();
/// Names the text that is not, say, "a number".
[[noreturn]] void raiseMismatch(std::string_view text, std::string_view wanted);
[[noreturn]] void raiseOverflow();
[[noreturn]] void raiseInvalidCall();
[[noreturn]] void raiseDivisionByZero();

/// Raises Failure "Out of string space" for a text of more bytes than a function may give. What makes a text
/// longer than what it was given asks before it does.
void requireRoom(std::size_t bytes);

/// A date or a yes/no as the dialect writes it.
[[nodiscard]] std::string writtenDate(double date);
[[nodiscard]] std::string_view writtenBoolean(bool value);

/// The arguments of one call, by index from 0, and the place for what it gives. An argument
/// that was left out reads as Null. A body that gives nothing gives Null.
class Call final
{
public:
    Call(sqlite3_context *context, int count, sqlite3_value **values);
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

    [[nodiscard]] int count() const { return m_count; }
    [[nodiscard]] bool isNull(int index) const;
    [[nodiscard]] bool isText(int index) const;
    [[nodiscard]] bool isWhole(int index) const;

    /// A text is read as a number. Raises TypeMismatch when it is none.
    [[nodiscard]] double number(int index) const;
    /// Rounded to a Long. Raises Failure "Overflow".
    [[nodiscard]] int whole(int index) const;
    [[nodiscard]] int whole(int index, int otherwise) const
    {
        return isNull(index) ? otherwise : whole(index);
    }
    [[nodiscard]] std::int64_t wide(int index) const;
    /// A text is read as a date. Raises TypeMismatch when it is none, Failure outside of the calendar.
    [[nodiscard]] double date(int index) const;
    /// As date(), but a text that is a number is the date of that number.
    [[nodiscard]] double dateOrNumber(int index) const;
    /// A number other than 0, or a text that is such a number or one of True, Yes and On. Raises
    /// TypeMismatch for a text that is neither that nor a number, False, No or Off.
    [[nodiscard]] bool boolean(int index);
    /// A number is written as text; Null is empty. Valid as long as the call.
    [[nodiscard]] std::string_view text(int index);

    void give(std::string_view text);
    void giveNumber(double number); ///< raises Failure "Overflow" for what is not finite
    void giveWhole(std::int64_t number);
    void giveDate(double days); ///< in whole seconds
    void giveBoolean(bool value) { giveWhole(value ? -1 : 0); }
    void giveArgument(int index);

    [[nodiscard]] sqlite3_context *context() const { return m_context; }

private:
    [[nodiscard]] std::string_view ownText(int index) const;

    sqlite3_context *m_context;
    int m_count;
    sqlite3_value **m_values;
    std::forward_list<std::string> m_texts;
};

/// The rule of weeks that the argument and the one behind it name; raises "Invalid procedure call".
[[nodiscard]] WeekRule ruleOf(const Call &call, int index);

/// Give the first argument as a whole number between the two, a single or a currency, rounded to what it
/// holds. What does not fit goes to `tooLarge`, which raises.
void giveWithin(Call &call, std::int64_t least, std::int64_t most, void (*tooLarge)());
void giveSingle(Call &call, void (*tooLarge)());
void giveCurrency(Call &call, void (*tooLarge)());

template <typename Whole>
void giveAs(Call &call, void (*tooLarge)())
{
    giveWithin(call, std::numeric_limits<Whole>::min(), std::numeric_limits<Whole>::max(), tooLarge);
}

using Body = void (*)(Call &);

enum class NullRule {
    GivesNull, ///< a Null argument gives Null without running the body
    Handled,
};

enum class Stability { SameForSame, EachCall };

struct Binding
{
    Body body;
    NullRule nulls = NullRule::GivesNull;
    Stability stability = Stability::SameForSame;
};

struct NamedBinding
{
    const char *name; ///< in SQLite
    Binding binding;
};

/// The bindings must live as long as the handle.
void bindFunction(sqlite3 *handle, const char *name, const Binding &binding);
void bindFunctions(sqlite3 *handle, std::span<const NamedBinding> functions);

} // namespace jet
