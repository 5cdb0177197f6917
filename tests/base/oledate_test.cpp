#include "base/oledate.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Reading
{
    const char *text;
    const char *iso; // nothing: it is not a date
};

// clang-format off
const Reading readings[] = {
    {"3/4/2005", "2005-03-04 00:00:00"}, {"03/04/2005", "2005-03-04 00:00:00"},
    {"15/1/2005", "2005-01-15 00:00:00"}, {"2005-03-04", "2005-03-04 00:00:00"},
    {"3/4/29", "2029-03-04 00:00:00"}, {"3/4/30", "1930-03-04 00:00:00"},
    {"1/15/2005 14:30:00", "2005-01-15 14:30:00"}, {"1/15/2005 2:30:00 PM", "2005-01-15 14:30:00"},
    {"1/15/2005 2:30 pm", "2005-01-15 14:30:00"}, {"2005-01-15 14:30:07", "2005-01-15 14:30:07"},
    {"12:00:00 AM", "1899-12-30 00:00:00"}, {"12:15:00 PM", "1899-12-30 12:15:00"},
    {"10:15:00 AM", "1899-12-30 10:15:00"}, {"4 March 2005", "2005-03-04 00:00:00"},
    {"Mar 4, 2005", "2005-03-04 00:00:00"}, {" 3/4/2005 ", "2005-03-04 00:00:00"},
    {"2/29/2004", "2004-02-29 00:00:00"}, {"1/1/100", "0100-01-01 00:00:00"},
    {"12/31/9999", "9999-12-31 00:00:00"}, {"3-4-2005", "2005-03-04 00:00:00"},
    {"15.1.2005", "2005-01-15 00:00:00"}, {"2005/3/4", "2005-03-04 00:00:00"},
    {"2005-01-15T14:30:07", "2005-01-15 14:30:07"}, {"2:30 PM 1/15/2005", "2005-01-15 14:30:00"},
    {"2 p", "1899-12-30 14:00:00"}, {"15-Jan-05", "2005-01-15 00:00:00"},
    {"Saturday, January 15, 2005", "2005-01-15 00:00:00"}, {"2005 may 4", "2005-05-04 00:00:00"},
    {"Mar 2005", "2005-03-01 00:00:00"}, {"192.168.1.1", nullptr}, {"1.2.3", nullptr},
    {"3-4/2005", nullptr}, {"3 4 2005", nullptr}, {"Jan 15", nullptr}, {"Jan Mar 2005", nullptr},
    {"Smarch 4, 2005", nullptr}, {"1/1/99999999999", nullptr}, {"1:2:3:4", nullptr},
    {"1/2/2005 3/4/2005", nullptr}, {"2/29/2005", nullptr}, {"2/29/1900", nullptr}, {"13/13/2005", nullptr},
    {"0/1/2005", nullptr}, {"4/31/2005", nullptr}, {"1/1/10000", nullptr}, {"1/15/2005 24:00:00", nullptr},
    {"10:60", nullptr}, {"13:00 PM", nullptr}, {"3/4/2005 x", nullptr}, {"3//2005", nullptr},
    {"tomorrow", nullptr}, {"", nullptr}, {"12", nullptr}, {"3/4", nullptr},
};
// clang-format on

} // namespace

TEST(OleDate, ReadsWhatPeopleType)
{
    for (const Reading &reading : readings) {
        const std::optional<double> date = oledate::parse(QString::fromLatin1(reading.text));
        ASSERT_EQ(date.has_value(), reading.iso != nullptr) << reading.text;
        if (date) {
            EXPECT_EQ(oledate::toIso(*date).toStdString(), reading.iso) << reading.text;
        }
    }
}

TEST(OleDate, CountsDaysFromTheEndOf1899)
{
    const std::pair<oledate::Parts, double> days[] = {
        {{1899, 12, 30, 0, 0, 0}, 0},     {{1900, 1, 1, 0, 0, 0}, 2},      {{2005, 3, 4, 6, 0, 0}, 38415.25},
        {{1899, 12, 29, 6, 0, 0}, -1.25}, {{100, 1, 1, 0, 0, 0}, -657434}, {{9999, 12, 31, 0, 0, 0}, 2958465},
    };
    for (const auto &[parts, date] : days)
        EXPECT_EQ(oledate::fromParts(parts), date) << date;
    EXPECT_EQ(oledate::fromParts({2005, 2, 29, 0, 0, 0}), std::nullopt);
    EXPECT_EQ(oledate::fromParts({2005, 2, 28, 24, 0, 0}), std::nullopt);
    EXPECT_EQ(oledate::fromParts({2005, 0, 1, 0, 0, 0}), std::nullopt);
}

TEST(OleDate, GivesBackEveryDayAndSecondItWasMadeOf)
{
    for (int day = -657434; day <= 2958465; day += 997) {
        const int second = std::abs(day) % 86400;
        const double fraction = second / 86400.0;
        const double date = day < 0 ? day - fraction : day + fraction;
        const oledate::Parts parts = oledate::toParts(date);
        ASSERT_EQ(parts.hour * 3600 + parts.minute * 60 + parts.second, second) << date;
        const std::optional<double> again = oledate::fromParts(parts);
        ASSERT_TRUE(again) << date;
        ASSERT_NEAR(*again, date, 1e-9);
    }
}

TEST(OleDate, WritesTheTimeOnlyWhereThereIsOne)
{
    const std::pair<double, QString> texts[] = {
        {38415, u"3/4/2005"_s},
        {38367 + 14.5 / 24, u"1/15/2005 2:30:00 PM"_s},
        {38367.5, u"1/15/2005 12:00:00 PM"_s},
        {0, u"12:00:00 AM"_s},
        {0.25, u"6:00:00 AM"_s},
        {-1, u"12/29/1899"_s},
        {38415.9999999, u"3/5/2005"_s}, // rounded to whole seconds
    };
    for (const auto &[date, text] : texts)
        EXPECT_EQ(oledate::toText(date), text) << date;
}

TEST(OleDate, ReadsEveryTextItWrites)
{
    for (int day = -657434; day <= 2958465; day += 4999) {
        // Years below 100 would be read as two digits; there are none.
        const double date = oledate::fromMoment({day, (day & 0x7fff) * 2});
        const std::optional<double> text = oledate::parse(oledate::toText(date));
        const std::optional<double> iso = oledate::parse(oledate::toIso(date));
        ASSERT_TRUE(text && iso) << date;
        ASSERT_EQ(*text, date) << oledate::toText(date).toStdString();
        ASSERT_EQ(*iso, date) << oledate::toIso(date).toStdString();
    }
}

TEST(OleDate, StaysWithinTheCalendar)
{
    EXPECT_EQ(oledate::toIso(1e300), u"9999-12-31 23:59:59"_s);
    EXPECT_EQ(oledate::toIso(oledate::largest), u"9999-12-31 23:59:59"_s);
    EXPECT_EQ(oledate::toIso(-1e300), u"0100-01-01 00:00:00"_s);
    EXPECT_EQ(oledate::toIso(std::nan("")), u"1899-12-30 00:00:00"_s);
    EXPECT_EQ(oledate::toIso(-1.9999999), u"1899-12-30 00:00:00"_s); // the midnight after
}
