#include "platform/jet/collation.h"
#include "platform/jet/format.h"

#include "base/oledate.h"
#include "platform/jet/picture.h"
#include "platform/jet/words.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace jet {

namespace {

constexpr std::array<std::string_view, 3> halfMarks{"AM/PM", "AMPM", "A/P"};

/// The mark of the half of the day that the text begins with, as it is written there, or empty.
std::string_view halfMarkAt(std::string_view text)
{
    for (const std::string_view mark : halfMarks)
        if (sameWord(text.substr(0, mark.size()), mark))
            return text.substr(0, mark.size());
    return {};
}

/// A letter and how often it stands in a row, or a text as it is.
struct DateItem
{
    char letter = 0;
    int count = 0;
    std::string_view text;
};

constexpr std::string_view letters = "dmyhnsqwct";

std::vector<DateItem> dateItemsOf(std::string_view picture)
{
    std::vector<DateItem> dateItems;
    const auto items = pictureItems(picture);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const std::string_view text = items[i].text;
        const std::string_view rest(text.data(), std::size_t(picture.data() + picture.size() - text.data()));
        const std::string_view mark = items[i].literal ? std::string_view() : halfMarkAt(rest);
        const char letter = lowered(text.front());
        if (!mark.empty()) {
            dateItems.push_back({'a', int(mark.size()), mark});
            i += mark.size() - 1;
        } else if (items[i].literal || letters.find(letter) == std::string_view::npos) {
            dateItems.push_back({0, 0, text});
        } else {
            std::size_t end = i + 1;
            while (end < items.size() && !items[end].literal && lowered(items[end].text.front()) == letter)
                ++end;
            dateItems.push_back({letter, int(end - i), text});
            i = end - 1;
        }
    }
    return dateItems;
}

std::string padded(int number, int width)
{
    std::string text = std::to_string(number);
    if (int(text.size()) < width)
        text.insert(0, std::size_t(width) - text.size(), '0');
    return text;
}

std::string nameOf(QLatin1StringView name, bool full)
{
    return std::string(name.data(), std::size_t(full ? name.size() : 3));
}

class DateWriter final
{
public:
    DateWriter(double date, WeekRule rule)
        : m_date(date)
        , m_rule(rule)
        , m_parts(oledate::toParts(date))
        , m_day(oledate::toMoment(date).day)
    {
    }

    [[nodiscard]] std::string write(std::string_view picture) const
    {
        const std::vector<DateItem> dateItems = dateItemsOf(picture);
        const bool twelve =
            std::ranges::any_of(dateItems, [](const DateItem &item) { return item.letter == 'a'; });
        std::string text;
        char before = 0;
        for (const DateItem &item : dateItems) {
            // Behind an hour, m is the minute.
            const bool minute =
                item.letter == 'n' || (item.letter == 'm' && before == 'h' && item.count <= 2);
            if (minute)
                text += padded(m_parts.minute, item.count);
            else if (item.letter == 'h')
                text += padded(twelve ? (m_parts.hour + 11) % 12 + 1 : m_parts.hour, item.count);
            else
                text += one(item);
            if (item.letter != 0)
                before = item.letter;
        }
        return text;
    }

private:
    [[nodiscard]] std::string one(const DateItem &item) const
    {
        switch (item.letter) {
        case 'd':
            return dayText(item.count);
        case 'm':
            return item.count <= 2 ? padded(m_parts.month, item.count)
                                   : nameOf(oledate::monthName(m_parts.month), item.count > 3);
        case 'y':
            return item.count == 1   ? std::to_string(dayOfYear(m_day))
                   : item.count == 2 ? padded(m_parts.year % 100, 2)
                                     : padded(m_parts.year, 4);
        case 's':
            return padded(m_parts.second, item.count);
        case 'q':
            return std::to_string((m_parts.month + 2) / 3);
        case 'w':
            return std::to_string(item.count == 1 ? dayOfWeek(m_day, m_rule) : weekOfYear(m_day, m_rule));
        case 'c':
            return oledate::toText(m_date).toStdString();
        case 't':
            return item.count == 5 ? write(longTime) : std::string(std::size_t(item.count), 't');
        case 'a':
            return halfText(item.text);
        default:
            return std::string(item.text);
        }
    }

    [[nodiscard]] std::string dayText(int count) const
    {
        switch (count) {
        case 1:
        case 2:
            return padded(m_parts.day, count);
        case 3:
        case 4:
            return nameOf(oledate::weekdayName(oledate::weekday(m_day)), count == 4);
        case 5:
            return write(shortDate);
        default:
            return write(longDate);
        }
    }

    /// In the case and the length that the mark is written in.
    [[nodiscard]] std::string halfText(std::string_view mark) const
    {
        std::string text = m_parts.hour < 12 ? "AM" : "PM";
        if (mark.size() == 3)
            text.pop_back();
        return mark.front() == 'a' ? foldCase(text) : text;
    }

    double m_date;
    WeekRule m_rule;
    oledate::Parts m_parts;
    std::int64_t m_day;
};

} // namespace

std::string formatDate(double date, std::string_view picture, WeekRule rule)
{
    return DateWriter(date, rule).write(pictureOf(picture));
}

} // namespace jet
