#include "platform/jet/picture.h"

#include "platform/jet/format.h"
#include "platform/jet/utf8.h"
#include "platform/jet/words.h"

#include <algorithm>
#include <array>

namespace jet {

namespace {

struct NamedKind
{
    std::string_view name;
    bool forDates;
};

constexpr std::array namedKinds{
    NamedKind{"General Number", false}, NamedKind{"Currency", false},   NamedKind{"Fixed", false},
    NamedKind{"Standard", false},       NamedKind{"Percent", false},    NamedKind{"Scientific", false},
    NamedKind{"Yes/No", false},         NamedKind{"True/False", false}, NamedKind{"On/Off", false},
    NamedKind{"General Date", true},    NamedKind{"Long Date", true},   NamedKind{"Medium Date", true},
    NamedKind{"Short Date", true},      NamedKind{"Long Time", true},   NamedKind{"Medium Time", true},
    NamedKind{"Short Time", true},
};

} // namespace

std::vector<PictureItem> pictureItems(std::string_view picture)
{
    std::vector<PictureItem> items;
    bool quoted = false;
    while (!picture.empty()) {
        const bool escaped = !quoted && picture.front() == '\\' && picture.size() > 1;
        if (picture.front() == '"') {
            quoted = !quoted;
            picture.remove_prefix(1);
            continue;
        }
        if (escaped)
            picture.remove_prefix(1);
        const std::size_t size = utf8::offset(picture, 1);
        items.push_back({picture.substr(0, size), quoted || escaped});
        picture.remove_prefix(size);
    }
    return items;
}

std::vector<std::string_view> pictureSections(std::string_view picture)
{
    std::vector<std::string_view> sections;
    const char *from = picture.data();
    for (const PictureItem &item : pictureItems(picture)) {
        if (item.literal || item.text != ";")
            continue;
        sections.emplace_back(from, std::size_t(item.text.data() - from));
        from = item.text.data() + 1;
    }
    sections.emplace_back(from, std::size_t(picture.data() + picture.size() - from));
    return sections;
}

PictureKinds kindsOf(std::string_view picture)
{
    const auto named =
        std::ranges::find_if(namedKinds, [&](const NamedKind &row) { return sameWord(row.name, picture); });
    if (named != namedKinds.end())
        return {.forNumbers = !named->forDates, .forDates = named->forDates};
    constexpr std::string_view dateLetters = "dmyhnsqwcDMYHNSQWC:/";
    PictureKinds kinds;
    for (const PictureItem &item : pictureItems(picture)) {
        if (item.literal || item.text.size() != 1)
            continue;
        const char c = item.text.front();
        kinds.forNumbers = kinds.forNumbers || c == '0' || c == '#';
        kinds.forTexts = kinds.forTexts || c == '@' || c == '&' || c == '<' || c == '>' || c == '!';
        kinds.forDates = kinds.forDates || dateLetters.find(c) != std::string_view::npos;
    }
    kinds.forDates = kinds.forDates || sameWord(picture, "ttttt");
    return kinds;
}

std::string_view nullSection(std::string_view picture)
{
    const PictureKinds kinds = kindsOf(picture);
    const auto sections = pictureSections(picture);
    if (kinds.forNumbers)
        return sections.size() > 3 ? sections[3] : std::string_view();
    return kinds.forTexts && sections.size() > 1 ? sections[1] : std::string_view();
}

} // namespace jet
