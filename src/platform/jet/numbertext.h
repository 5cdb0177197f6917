#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace jet {

using Number = std::variant<std::int64_t, double>;

[[nodiscard]] double toDouble(const Number &number);

/// Reads a text as a number: blanks around it, a sign, digits with or without commas between
/// the thousands, a point, an exponent, or &H and &O with the digits of their base. Whole
/// numbers stay whole where they fit. Nothing when the text is no number.
[[nodiscard]] std::optional<Number> parseNumber(std::string_view text);

/// Reads as far as the text is a number, blanks left out; 0 when it does not begin with one.
[[nodiscard]] double leadingNumber(std::string_view text);

/// Without blanks, up to 15 significant digits.
[[nodiscard]] std::string numberText(double number);

} // namespace jet
