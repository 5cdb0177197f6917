#pragma once

#include <string_view>
#include <vector>

struct sqlite3;

namespace jet {

/// What a call of a function gives.
enum class ResultKind {
    Text,
    Short,
    Long,
    Double,
    Currency,
    Date,
    Boolean,
    SameAsFirst, ///< the type of the first argument
    Numeric,     ///< Long for whole numbers, otherwise Double (Abs, Int, Fix, Round)
};

/// One function that people may type. The letters of `arguments` say what the emitter
/// hands over, the last one standing for all further arguments:
///   t  text: a date or yes/no is turned into its text first, a number comes as it is
///   n  number: a text is read as a number first (type mismatch when it is none)
///   d  date: a text is read as a date first; a number is a date already
///   v  any value as it is
///   k  any value, handed over as two arguments: the letter of its static type
///      ('t', 'n', 'd', 'b' for yes/no, 'u' for unknown) and the value
struct FunctionInfo
{
    std::string_view name; ///< as people write it, without regard to case
    int minimum;
    int maximum; ///< -1: any number
    std::string_view arguments;
    ResultKind result;
    const char *sqlite;            ///< the SQL function the call becomes
    bool oncePerStatement = false; ///< gives the same for every row
};

/// The row of a function, or null for an unknown one. A text function is known by its name
/// with $ behind it, too.
[[nodiscard]] const FunctionInfo *findFunction(std::string_view name);
/// As people write them.
[[nodiscard]] std::vector<std::string_view> functionNames();

/// Adds every function of the table, the aggregates and the conversions below to a handle:
///   jet_cat(a, b, ...)   the & operator: Null counts as '', all Null gives Null
///   jet_like(text, pattern) 1, 0 or Null
///   jet_text(x)          number to text; jet_datetext(x), jet_booltext(x) ("True"/"False")
///   jet_num(x)           text to number, raises TypeMismatch; other values as they are
///   jet_readdate(x)      text to date, raises TypeMismatch; numbers as they are
///   jet_tolong(x), jet_toshort(x), jet_tobyte(x), jet_todouble(x), jet_tosingle(x),
///   jet_tocurrency(x), jet_todate(x), jet_tobool(x): what a column of that type takes; a text that is no
///                        such value raises TypeMismatch, a number out of range Failure
///                        with the text "Numeric field overflow."; Null stays Null
///   jet_fit(x, n)        the text, raises FieldTooSmall when longer than n characters
///   jet_add(a, b)        the + of values whose types only running tells: two texts are
///                        joined, otherwise numbers added; Null with anything is Null
///   jet_sub, jet_mul     the same for - and *
///   jet_product('*/', a, b, c)   a * b / c, as many as there are signs
///   jet_div, jet_idiv, jet_mod, jet_pow, jet_bxor   the arithmetic that SQLite lacks
///   jet_band, jet_bor    of values that are not whole numbers of 32 bits
///   jet_raise(number, text)   raises
/// The conversions that people may type are used by the emitter, too: jet_cdate, jet_clng, jet_cdbl; and
/// jet_today.
void registerFunctions(sqlite3 *handle);

} // namespace jet
