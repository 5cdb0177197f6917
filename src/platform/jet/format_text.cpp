#include "platform/jet/format.h"

#include "platform/jet/picture.h"
#include "platform/jet/utf8.h"

#include <QChar>

#include <algorithm>

namespace jet {

namespace {

bool isPlace(const PictureItem &item)
{
    return !item.literal && (item.text == "@" || item.text == "&");
}

bool isMark(const PictureItem &item, std::string_view mark)
{
    return !item.literal && item.text == mark;
}

} // namespace

std::string formatText(std::string_view text, std::string_view picture)
{
    const auto sections = pictureSections(picture);
    const auto items = pictureItems(text.empty() && sections.size() > 1 ? sections[1] : sections[0]);
    const bool lower = std::ranges::any_of(items, [](const PictureItem &item) { return isMark(item, "<"); });
    const bool upper = std::ranges::any_of(items, [](const PictureItem &item) { return isMark(item, ">"); });
    const bool fromLeft =
        std::ranges::any_of(items, [](const PictureItem &item) { return isMark(item, "!"); });

    std::vector<std::string> characters;
    for (const char *at = text.data(), *end = at + text.size(); at != end;) {
        const char32_t code = utf8::next(at, end);
        const bool known = code < utf8::firstBrokenByte;
        utf8::append(characters.emplace_back(), known && lower   ? QChar::toLower(code)
                                                : known && upper ? QChar::toUpper(code)
                                                                 : code);
    }

    const auto places = std::ptrdiff_t(std::ranges::count_if(items, isPlace));
    const auto count = std::ptrdiff_t(characters.size());
    // The place of the first character: fewer of them than places leave the first places empty, or with ! the
    // last.
    const std::ptrdiff_t empty = fromLeft ? 0 : std::max<std::ptrdiff_t>(0, places - count);
    std::string result;
    std::ptrdiff_t place = 0;
    std::ptrdiff_t next = 0;
    const auto putUpTo = [&](std::ptrdiff_t end) {
        for (; next < std::min(end, count); ++next)
            result += characters[std::size_t(next)];
    };
    for (const PictureItem &item : items) {
        if (isPlace(item)) {
            ++place;
            // More characters than places: the first place takes what is too much, or with ! the last.
            const std::ptrdiff_t end =
                place - empty + (fromLeft ? 0 : std::max<std::ptrdiff_t>(0, count - places));
            const bool filled = place > empty && next < count;
            putUpTo(end);
            if (!filled && item.text == "@")
                result += ' ';
            if (place == places)
                putUpTo(count);
        } else if (item.literal || (item.text != "<" && item.text != ">" && item.text != "!")) {
            result += item.text;
        }
    }
    if (places == 0)
        putUpTo(count);
    return result;
}

} // namespace jet
