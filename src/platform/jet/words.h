#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace jet {

[[nodiscard]] constexpr char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Keywords match without regard to the case of ASCII letters.
[[nodiscard]] constexpr bool sameWord(std::string_view left, std::string_view right)
{
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin(),
                                                     [](char a, char b) { return lowered(a) == lowered(b); });
}

/// Words that are no names unless bracketed.
[[nodiscard]] bool isReserved(std::string_view word);

/// The reserved words that are values: an operand stands where they stand.
[[nodiscard]] bool isReservedValue(std::string_view word);

/// Names of tables, columns and indexes match without regard to the case of any letter.
[[nodiscard]] bool sameName(std::string_view left, std::string_view right);

/// How many letters must be changed, added or dropped to make one word of the other.
[[nodiscard]] std::size_t wordDistance(std::string_view left, std::string_view right);

} // namespace jet
