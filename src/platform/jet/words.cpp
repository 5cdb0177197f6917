#include "platform/jet/words.h"

#include "platform/jet/collation.h"
#include "platform/jet/utf8.h"

#include <span>
#include <vector>

namespace jet {
namespace {

constexpr std::string_view reservedValues[] = {"NULL", "TRUE", "FALSE"};

constexpr std::string_view reserved[] = {
    "SELECT", "FROM",   "WHERE",  "GROUP",    "HAVING",      "ORDER",   "UNION",  "INNER",  "LEFT",
    "RIGHT",  "JOIN",   "ON",     "AS",       "AND",         "OR",      "NOT",    "XOR",    "EQV",
    "IMP",    "LIKE",   "ALIKE",  "IN",       "IS",          "BETWEEN", "SET",    "VALUES", "INTO",
    "INSERT", "UPDATE", "DELETE", "DISTINCT", "DISTINCTROW", "MOD",     "EXISTS", "BY",     "ASC",
    "DESC",   "BAND",   "BOR",    "BXOR",     "BNOT",        "CREATE",  "TABLE",  "ALL"};

bool isAmong(std::span<const std::string_view> words, std::string_view word)
{
    return std::ranges::any_of(words, [&](std::string_view entry) { return sameWord(entry, word); });
}

} // namespace

bool isReserved(std::string_view word)
{
    return isAmong(reserved, word) || isReservedValue(word);
}

bool isReservedValue(std::string_view word)
{
    return isAmong(reservedValues, word);
}

bool sameName(std::string_view left, std::string_view right)
{
    if (sameWord(left, right))
        return true;
    return !utf8::isAscii(left) && !utf8::isAscii(right) && foldCase(left) == foldCase(right);
}

std::size_t wordDistance(std::string_view left, std::string_view right)
{
    std::vector<std::size_t> row(right.size() + 1);
    for (std::size_t j = 0; j <= right.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= left.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const std::size_t above = row[j];
            const std::size_t change = diagonal + (lowered(left[i - 1]) == lowered(right[j - 1]) ? 0 : 1);
            row[j] = std::min({above + 1, row[j - 1] + 1, change});
            diagonal = above;
        }
    }
    return row[right.size()];
}

} // namespace jet
