#include "base/windows1252.h"

#include <algorithm>
#include <array>

namespace windows1252 {
namespace {

constexpr unsigned first = 0x80;
constexpr std::array<char16_t, 32> fromFirst = {
    0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008d, 0x017d, 0x008f, 0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178,
};

} // namespace

char16_t character(uchar byte)
{
    const unsigned place = byte - first;
    return place < fromFirst.size() ? fromFirst[place] : char16_t(byte);
}

std::optional<uchar> byte(char32_t character)
{
    if (const auto *at = std::ranges::find(fromFirst, character); at != fromFirst.end())
        return uchar(first + unsigned(at - fromFirst.begin()));
    return character < 256 ? std::optional(uchar(character)) : std::nullopt;
}

} // namespace windows1252
