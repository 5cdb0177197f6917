#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include "platform/jet/format.h"
#include "platform/jet/numbertext.h"
#include "platform/jet/picture.h"

namespace jet::bodies {

namespace {

enum Argument { Kind, Subject, Picture, FirstDay };

/// The text that a value has without a picture.
std::string plainText(Call &call, char kind)
{
    if (kind == 'd')
        return writtenDate(call.date(Subject));
    if (kind == 'b')
        return std::string(writtenBoolean(call.number(Subject) != 0));
    return std::string(call.text(Subject));
}

std::string formatTextValue(Call &call, std::string_view picture, PictureKinds kinds, WeekRule rule)
{
    const std::string_view text = call.text(Subject);
    if (kinds.forTexts)
        return formatText(text, picture);
    const auto number = parseNumber(text);
    if (kinds.forNumbers)
        return number ? formatNumber(jet::toDouble(*number), picture) : std::string(text);
    if (!kinds.forDates)
        return std::string(text);
    if (const auto date = dateOf(text))
        return formatDate(*date, picture, rule);
    return number ? formatDate(call.dateOrNumber(Subject), picture, rule) : std::string(text);
}

} // namespace

void format(Call &call)
{
    const std::string_view picture = call.text(Picture);
    if (call.isNull(Subject)) {
        if (const std::string_view section = nullSection(picture); !section.empty())
            call.give(formatText({}, section));
        return;
    }
    const std::string_view letter = call.text(Kind);
    const bool unknown = letter.empty() || letter == "u";
    const char kind = call.isText(Subject) ? 't' : unknown ? 'n' : letter.front();
    if (picture.empty()) {
        call.give(plainText(call, kind));
        return;
    }
    const WeekRule rule = ruleOf(call, FirstDay);
    const PictureKinds kinds = kindsOf(picture);
    if (kind == 't')
        call.give(formatTextValue(call, picture, kinds, rule));
    else if (kinds.forDates && (kind == 'd' || !kinds.forNumbers))
        call.give(formatDate(call.date(Subject), picture, rule));
    else if (kinds.forTexts && !kinds.forNumbers)
        call.give(formatText(plainText(call, kind), picture));
    else if (kind == 'd' && !kinds.forNumbers)
        call.give(formatDate(call.date(Subject), picture, rule));
    else
        call.give(formatNumber(call.number(Subject), picture));
}

} // namespace jet::bodies
