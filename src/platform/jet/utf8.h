#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8 as the store holds it. A byte that belongs to no character counts as a
/// character of its own, beyond all of Unicode, so that any bytes can be walked.
namespace jet::utf8 {

inline constexpr char32_t firstBrokenByte = 0x110000;

/// Reads one character and moves the place behind it. The place is not the end.
[[nodiscard]] inline char32_t next(const char *&at, const char *end)
{
    const auto lead = static_cast<unsigned char>(*at++);
    if (lead < 0x80)
        return lead;
    const int more = lead >= 0xC2 && lead < 0xE0   ? 1
                     : lead >= 0xE0 && lead < 0xF0 ? 2
                     : lead >= 0xF0 && lead < 0xF5 ? 3
                                                   : 0;
    if (more == 0 || end - at < more)
        return firstBrokenByte + lead;
    auto code = static_cast<char32_t>(lead & (0x3F >> more));
    for (int i = 0; i < more; ++i) {
        const auto byte = static_cast<unsigned char>(at[i]);
        if ((byte & 0xC0) != 0x80)
            return firstBrokenByte + lead;
        code = code << 6 | static_cast<char32_t>(byte & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    if (code < smallest[more] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        return firstBrokenByte + lead;
    at += more;
    return code;
}

/// Broken bytes are written as they were.
inline void append(std::string &text, char32_t code)
{
    const auto tail = [&](int shift) { text.push_back(static_cast<char>(0x80 | (code >> shift & 0x3F))); };
    if (code < 0x80) {
        text.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        text.push_back(static_cast<char>(0xC0 | code >> 6));
        tail(0);
    } else if (code < 0x10000) {
        text.push_back(static_cast<char>(0xE0 | code >> 12));
        tail(6);
        tail(0);
    } else if (code < firstBrokenByte) {
        text.push_back(static_cast<char>(0xF0 | code >> 18));
        tail(12);
        tail(6);
        tail(0);
    } else {
        text.push_back(static_cast<char>(code - firstBrokenByte));
    }
}

[[nodiscard]] inline std::string encoded(char32_t code)
{
    std::string text;
    append(text, code);
    return text;
}

/// The text with each of its characters changed; broken bytes stay.
template <typename Change>
[[nodiscard]] std::string mapped(std::string_view text, Change change)
{
    std::string result;
    result.reserve(text.size());
    for (const char *at = text.data(), *end = at + text.size(); at != end;) {
        const char32_t code = next(at, end);
        append(result, code >= firstBrokenByte ? code : change(code));
    }
    return result;
}

/// Whether no byte is 0x80 or above.
[[nodiscard]] bool isAscii(std::string_view text);
/// The number of characters.
[[nodiscard]] std::size_t length(std::string_view text);
/// The place of the character of that number, counted from 0, or the end of the text.
[[nodiscard]] std::size_t offset(std::string_view text, std::size_t characters);

} // namespace jet::utf8
