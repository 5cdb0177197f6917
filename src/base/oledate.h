#pragma once

#include <QLatin1StringView>
#include <QString>

#include <optional>

/// Dates as the store keeps them: days since 1899-12-30, the time of day in the
/// fraction. Before the epoch the fraction still counts forward from midnight of
/// its day, so -1.25 is 1899-12-29 06:00.
namespace oledate {

struct Parts
{
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// A point in time as whole numbers: the day, counted from the epoch, and the second of that day.
struct Moment
{
    qint64 day = 0;
    int second = 0;
};

inline constexpr qint64 smallestDay = -657434;
inline constexpr qint64 largestDay = 2958465;
inline constexpr int secondsPerDay = 86400;
inline constexpr double smallest = -657434.0;       // 100-01-01
inline constexpr double largest = 2958465.99999999; // 9999-12-31

/// Nothing when the parts name no day of the calendar or no time of the day.
[[nodiscard]] std::optional<double> fromParts(const Parts &parts);
/// Rounded to whole seconds. What lies outside of the calendar becomes its first or last second.
[[nodiscard]] Parts toParts(double date);
[[nodiscard]] Moment toMoment(double date);
/// The inverse of toMoment; the second lies in its day.
[[nodiscard]] double fromMoment(Moment moment);
/// 0 for Sunday to 6 for Saturday.
[[nodiscard]] int weekday(qint64 day);
[[nodiscard]] int daysInMonth(int year, int month);
/// January is 1; Sunday is 0.
[[nodiscard]] QLatin1StringView monthName(int month);
[[nodiscard]] QLatin1StringView weekdayName(int weekday);
/// 00-29 lie in this century, 30-99 in the last; other years stay.
[[nodiscard]] int fullYear(int year);

/// Reads m/d/yyyy (the day first when the first number is over 12), yyyy-mm-dd, month
/// names, two-digit years (00-29 is 20xx), each with or without a time; a time alone
/// is on day 0. Dashes and, with a year of four digits, points separate as slashes do.
/// Nothing when the text is not a date; a date without its year is none.
[[nodiscard]] std::optional<double> parse(QStringView text);

/// 3/4/2005, 1/15/2005 2:30:00 PM, or the time alone on day 0.
[[nodiscard]] QString toText(double date);
/// 2005-03-04 14:30:00, always with the time.
[[nodiscard]] QString toIso(double date);

} // namespace oledate
