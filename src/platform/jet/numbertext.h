#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace jet {

using Number = std::variant<std::int64_t, double>;

[[nodiscard]] double toDouble(const Number &number);

/// The number that the digits begin with, infinite or 0 beyond what a double holds; returns its end, or the
/// beginning where there is none.
const char *readDouble(std::string_view digits, double &number);

/// Hexadecimal and octal digits stand for the bits of a whole number: of 16 bits where those hold it, else of
/// 32. So FFFF is -1.
[[nodiscard]] std::int32_t signedBits(std::uint32_t bits);

/// Reads a text as a number: blanks around it, a sign, digits with or without commas between
/// the thousands, a point, an exponent, or &H and &O with the digits of their base. Whole
/// numbers stay whole where they fit. Nothing when the text is no number.
[[nodiscard]] std::optional<Number> parseNumber(std::string_view text);

/// Reads as far as the text is a number, blanks left out; 0 when it does not begin with one,
/// infinite when it is too large.
[[nodiscard]] double leadingNumber(std::string_view text);

} // namespace jet
