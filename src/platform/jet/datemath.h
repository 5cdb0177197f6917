#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace jet {

/// Reads a text in UTF-8 as oledate::parse() does.
[[nodiscard]] std::optional<double> dateOf(std::string_view text);

/// The quotient rounded down. The divisor is positive.
[[nodiscard]] std::int64_t floorDivide(std::int64_t number, std::int64_t by);

/// Whether the point in time lies on a day of the calendar.
[[nodiscard]] bool inCalendar(double date);

/// Weeks as people count them: on which weekday they begin, 1 for Sunday to 7, and which is
/// the first of a year, 1 the one with 1 January, 2 the first with four days, 3 the first full one.
struct WeekRule
{
    int firstDay = 1;
    int firstWeek = 1;
};

/// The rule that two arguments name, 0 standing for the default. Nothing for other numbers.
[[nodiscard]] std::optional<WeekRule> weekRule(int firstDay, int firstWeek);

/// 1 for the first day of the week to 7. Days count from the epoch of base/oledate.h.
[[nodiscard]] int dayOfWeek(std::int64_t day, WeekRule rule);
[[nodiscard]] std::int64_t startOfWeek(std::int64_t day, WeekRule rule);
[[nodiscard]] int weekOfYear(std::int64_t day, WeekRule rule);
[[nodiscard]] int dayOfYear(std::int64_t day);

/// The day of any month and day number: the 14th month is February of the next year, day 0 the
/// last of the month before. Nothing outside of the calendar.
[[nodiscard]] std::optional<std::int64_t> normalizedDay(std::int64_t year, std::int64_t month,
                                                        std::int64_t day);

} // namespace jet
