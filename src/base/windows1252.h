#pragma once

#include <QtGlobal>

#include <optional>

/// Windows-1252: Latin 1 with other characters in place of the control characters from 0x80 to 0x9F. The five
/// bytes there that have none stand for the control character of their number.
namespace windows1252 {

[[nodiscard]] char16_t character(uchar byte);

/// A control character that lost its place still has its number; nothing for what is not in the set.
[[nodiscard]] std::optional<uchar> byte(char32_t character);

} // namespace windows1252
