#include "platform/jet/picture.h"

#include "platform/jet/utf8.h"
#include "platform/jet/words.h"

#include <algorithm>
#include <iterator>

namespace jet {

namespace {

struct NamedPicture
{
    std::string_view name;
    std::string_view picture;
    bool forDates;
};

constexpr NamedPicture namedPictures[] = {
    {"General Number", generalNumber, false},
    {"Currency", "$#,##0.00;($#,##0.00)", false},
    {"Fixed", "0.00", false},
    {"Standard", "#,##0.00", false},
    {"Percent", "0.00%", false},
    {"Scientific", "0.00E+00", false},
    {"Yes/No", "\"Yes\";\"Yes\";\"No\"", false},
    {"True/False", "\"True\";\"True\";\"False\"", false},
    {"On/Off", "\"On\";\"On\";\"Off\"", false},
    {"General Date", "c", true},
    {"Long Date", longDate, true},
    {"Medium Date", "dd-mmm-yy", true},
    {"Short Date", shortDate, true},
    {"Long Time", longTime, true},
    {"Medium Time", "hh:nn AM/PM", true},
    {"Short Time", "hh:nn", true},
};

const NamedPicture *findNamed(std::string_view name)
{
    const auto row =
        std::ranges::find_if(namedPictures, [&](const NamedPicture &r) { return sameWord(r.name, name); });
    return row == std::end(namedPictures) ? nullptr : row;
}

} // namespace

std::string_view pictureOf(std::string_view name)
{
    const NamedPicture *named = findNamed(name);
    return named ? named->picture : name;
}

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
    if (const NamedPicture *named = findNamed(picture))
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
