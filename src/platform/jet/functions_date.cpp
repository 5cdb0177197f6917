#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include "base/oledate.h"
#include "platform/jet/clock.h"
#include "platform/jet/collation.h"
#include "platform/jet/datemath.h"

#include <algorithm>
#include <limits>

namespace jet::bodies {

namespace {

using oledate::Moment;
using oledate::Parts;
using oledate::secondsPerDay;

enum class Unit { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

struct Interval
{
    std::string_view name;
    Unit unit;
};

constexpr Interval intervals[] = {
    {"yyyy", Unit::Year}, {"q", Unit::Quarter}, {"m", Unit::Month}, {"y", Unit::DayOfYear},
    {"d", Unit::Day},     {"w", Unit::Weekday}, {"ww", Unit::Week}, {"h", Unit::Hour},
    {"n", Unit::Minute},  {"s", Unit::Second},
};

Unit unitOf(Call &call, int index)
{
    const std::string name = foldCase(call.text(index));
    const auto row = std::ranges::find(intervals, name, &Interval::name);
    if (row == std::end(intervals))
        raiseInvalidCall();
    return row->unit;
}

Parts partsOf(const Call &call)
{
    return oledate::toParts(call.date(0));
}

void giveDay(Call &call, std::optional<std::int64_t> day, int second = 0)
{
    if (!day || *day < oledate::smallestDay || *day > oledate::largestDay)
        raiseInvalidCall();
    call.giveNumber(oledate::fromMoment({*day, second}));
}

void giveSeconds(Call &call, std::int64_t seconds)
{
    const std::int64_t day = floorDivide(seconds, secondsPerDay);
    giveDay(call, day, int(seconds - day * secondsPerDay));
}

std::int64_t totalSeconds(Moment moment)
{
    return moment.day * secondsPerDay + moment.second;
}

void giveClock(Call &call, bool withDay, bool withTime)
{
    const QDateTime now = clockTime();
    const QDate day = now.date();
    const QTime time = now.time();
    const auto date = normalizedDay(day.year(), day.month(), day.day());
    giveDay(call, withDay ? date : 0, withTime ? time.msecsSinceStartOfDay() / 1000 : 0);
}

} // namespace

void today(Call &call)
{
    giveClock(call, true, false);
}

void now(Call &call)
{
    giveClock(call, true, true);
}

void time(Call &call)
{
    giveClock(call, false, true);
}

void timer(Call &call)
{
    call.giveNumber(clockTime().time().msecsSinceStartOfDay() / 1000.0);
}

void year(Call &call)
{
    call.giveWhole(partsOf(call).year);
}

void month(Call &call)
{
    call.giveWhole(partsOf(call).month);
}

void day(Call &call)
{
    call.giveWhole(partsOf(call).day);
}

void hour(Call &call)
{
    call.giveWhole(partsOf(call).hour);
}

void minute(Call &call)
{
    call.giveWhole(partsOf(call).minute);
}

void second(Call &call)
{
    call.giveWhole(partsOf(call).second);
}

void weekday(Call &call)
{
    call.giveWhole(dayOfWeek(oledate::toMoment(call.date(0)).day, ruleOf(call, 1)));
}

void dateValue(Call &call)
{
    giveDay(call, oledate::toMoment(call.date(0)).day);
}

void timeValue(Call &call)
{
    giveDay(call, 0, oledate::toMoment(call.date(0)).second);
}

void dateSerial(Call &call)
{
    giveDay(call, normalizedDay(oledate::fullYear(call.whole(0)), call.whole(1), call.whole(2)));
}

void timeSerial(Call &call)
{
    giveSeconds(call, (std::int64_t(call.whole(0)) * 60 + call.whole(1)) * 60 + call.whole(2));
}

void dateAdd(Call &call)
{
    const Unit unit = unitOf(call, 0);
    const std::int64_t count = call.whole(1);
    const double date = call.date(2);
    const Moment moment = oledate::toMoment(date);
    switch (unit) {
    case Unit::Year:
    case Unit::Quarter:
    case Unit::Month: {
        const Parts parts = oledate::toParts(date);
        const std::int64_t months = unit == Unit::Year ? 12 : unit == Unit::Quarter ? 3 : 1;
        const auto first = normalizedDay(parts.year, parts.month + count * months, 1);
        if (!first)
            raiseInvalidCall();
        const Parts target = oledate::toParts(double(*first));
        const int day = std::min(parts.day, oledate::daysInMonth(target.year, target.month));
        giveDay(call, *first + day - 1, moment.second);
        return;
    }
    case Unit::DayOfYear:
    case Unit::Day:
    case Unit::Weekday:
        giveDay(call, moment.day + count, moment.second);
        return;
    case Unit::Week:
        giveDay(call, moment.day + count * 7, moment.second);
        return;
    case Unit::Hour:
        giveSeconds(call, totalSeconds(moment) + count * 3600);
        return;
    case Unit::Minute:
        giveSeconds(call, totalSeconds(moment) + count * 60);
        return;
    case Unit::Second:
        giveSeconds(call, totalSeconds(moment) + count);
        return;
    }
}

void dateDifference(Call &call)
{
    const Unit unit = unitOf(call, 0);
    const double dates[] = {call.date(1), call.date(2)};
    const WeekRule rule = ruleOf(call, 3);
    // How many boundaries of the unit lie before a date.
    const auto boundaries = [&](double date) -> std::int64_t {
        const Parts parts = oledate::toParts(date);
        const Moment moment = oledate::toMoment(date);
        switch (unit) {
        case Unit::Year:
            return parts.year;
        case Unit::Quarter:
            return parts.year * 4 + (parts.month - 1) / 3;
        case Unit::Month:
            return parts.year * 12 + parts.month;
        case Unit::DayOfYear:
        case Unit::Day:
        case Unit::Weekday:
            return moment.day;
        case Unit::Week:
            return floorDivide(startOfWeek(moment.day, rule), 7);
        case Unit::Hour:
            return floorDivide(totalSeconds(moment), 3600);
        case Unit::Minute:
            return floorDivide(totalSeconds(moment), 60);
        case Unit::Second:
            return totalSeconds(moment);
        }
        return 0;
    };
    std::int64_t difference = boundaries(dates[1]) - boundaries(dates[0]);
    if (unit == Unit::Weekday)
        difference /= 7;
    if (difference < std::numeric_limits<int>::min() || difference > std::numeric_limits<int>::max())
        raiseOverflow();
    call.giveWhole(difference);
}

void datePart(Call &call)
{
    const Unit unit = unitOf(call, 0);
    const Parts parts = oledate::toParts(call.date(1));
    const std::int64_t day = oledate::toMoment(call.date(1)).day;
    const WeekRule rule = ruleOf(call, 2);
    const auto part = [&] {
        switch (unit) {
        case Unit::Year:
            return parts.year;
        case Unit::Quarter:
            return (parts.month + 2) / 3;
        case Unit::Month:
            return parts.month;
        case Unit::DayOfYear:
            return dayOfYear(day);
        case Unit::Day:
            return parts.day;
        case Unit::Weekday:
            return dayOfWeek(day, rule);
        case Unit::Week:
            return weekOfYear(day, rule);
        case Unit::Hour:
            return parts.hour;
        case Unit::Minute:
            return parts.minute;
        case Unit::Second:
            return parts.second;
        }
        return 0;
    };
    call.giveWhole(part());
}

void monthName(Call &call)
{
    const int month = call.whole(0);
    if (month < 1 || month > 12)
        raiseInvalidCall();
    const QLatin1StringView name = oledate::monthName(month);
    call.give({name.data(), std::size_t(call.whole(1, 0) != 0 ? 3 : name.size())});
}

void weekdayName(Call &call)
{
    const int number = call.whole(0);
    const WeekRule rule = ruleOf(call, 2);
    if (number < 1 || number > 7)
        raiseInvalidCall();
    const QLatin1StringView name = oledate::weekdayName((rule.firstDay + number - 2) % 7);
    call.give({name.data(), std::size_t(call.whole(1, 0) != 0 ? 3 : name.size())});
}

void isDate(Call &call)
{
    const std::string_view kind = call.text(0);
    if (call.isNull(1) || (kind != "d" && !call.isText(1))) {
        call.giveBoolean(false);
        return;
    }
    const std::string_view text = call.text(1);
    call.giveBoolean(kind == "d" || dateOf(text).has_value());
}

} // namespace jet::bodies
