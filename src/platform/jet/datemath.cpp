#include "platform/jet/datemath.h"

#include "base/oledate.h"

namespace jet {

namespace {

std::int64_t firstOfYear(int year)
{
    return normalizedDay(year, 1, 1)
        .value_or(year < 100 ? oledate::smallestDay - 365 : oledate::largestDay + 1);
}

int yearOf(std::int64_t day)
{
    return oledate::toParts(double(day)).year;
}

std::int64_t startOfFirstWeek(int year, WeekRule rule)
{
    const std::int64_t january = firstOfYear(year);
    const std::int64_t start = startOfWeek(january, rule);
    const std::int64_t daysInYear = start + 7 - january;
    const std::int64_t wanted = rule.firstWeek == 1 ? 1 : rule.firstWeek == 2 ? 4 : 7;
    return daysInYear >= wanted ? start : start + 7;
}

} // namespace

std::optional<double> dateOf(std::string_view text)
{
    return oledate::parse(QString::fromUtf8(text.data(), qsizetype(text.size())));
}

std::int64_t floorDivide(std::int64_t number, std::int64_t by)
{
    return number / by - (number % by < 0 ? 1 : 0);
}

bool inCalendar(double date)
{
    return date > double(oledate::smallestDay) - 1 && date < double(oledate::largestDay) + 1;
}

std::optional<WeekRule> weekRule(int firstDay, int firstWeek)
{
    if (firstDay < 0 || firstDay > 7 || firstWeek < 0 || firstWeek > 3)
        return {};
    return WeekRule{firstDay == 0 ? 1 : firstDay, firstWeek == 0 ? 1 : firstWeek};
}

int dayOfWeek(std::int64_t day, WeekRule rule)
{
    return (oledate::weekday(day) + 8 - rule.firstDay) % 7 + 1;
}

std::int64_t startOfWeek(std::int64_t day, WeekRule rule)
{
    return day - dayOfWeek(day, rule) + 1;
}

int weekOfYear(std::int64_t day, WeekRule rule)
{
    int year = yearOf(day);
    // The last days of December go on counting where the week of 1 January is the first.
    if (rule.firstWeek != 1 && day >= startOfFirstWeek(year + 1, rule))
        ++year;
    if (day < startOfFirstWeek(year, rule))
        --year;
    return int((day - startOfFirstWeek(year, rule)) / 7) + 1;
}

int dayOfYear(std::int64_t day)
{
    return int(day - firstOfYear(yearOf(day))) + 1;
}

std::optional<std::int64_t> normalizedDay(std::int64_t year, std::int64_t month, std::int64_t day)
{
    constexpr std::int64_t months = 12;
    const std::int64_t total = year * months + month - 1;
    const std::int64_t wholeYear = floorDivide(total, months);
    // The calendar repeats every 400 years. The month may lie outside of it while the day asked for does not.
    constexpr std::int64_t cycle = 400;
    constexpr std::int64_t daysOfCycle = 146097;
    constexpr std::int64_t knownYear = 2000;
    const std::int64_t cycles = floorDivide(wholeYear - knownYear, cycle);
    const auto first = oledate::fromParts(
        {int(wholeYear - cycles * cycle), int(total - wholeYear * months) + 1, 1, 0, 0, 0});
    const std::int64_t result = std::int64_t(*first) + cycles * daysOfCycle + day - 1;
    if (result < oledate::smallestDay || result > oledate::largestDay)
        return {};
    return result;
}

} // namespace jet
