#include "base/value.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Conversion
{
    const char *name;
    Value value;
    QString text;
    qint64 integer;
    double number;
    bool boolean;
};

const Conversion conversions[] = {
    {"Null", Value(), u""_s, 0, 0, false},
    {"True", true, u"True"_s, -1, -1, true},
    {"False", false, u"False"_s, 0, 0, false},
    {"Whole", -42, u"-42"_s, -42, -42, true},
    {"Large", qint64(9007199254740993), u"9007199254740993"_s, 9007199254740993, 9007199254740993.0, true},
    {"Zero", 0, u"0"_s, 0, 0, false},
    {"HalfToEvenDown", 2.5, u"2.5"_s, 2, 2.5, true},
    {"HalfToEvenUp", 3.5, u"3.5"_s, 4, 3.5, true},
    {"FloatingWhole", 3.0, u"3"_s, 3, 3, true},
    {"TooLargeForAnInteger", 1e300, u"1E+300"_s, 0, 1e300, true},
    {"Date", OleDate{38415.5}, u"3/4/2005 12:00:00 PM"_s, 38416, 38415.5, true},
    {"Text", u"abc"_s, u"abc"_s, 0, 0, false},
    {"TextOfANumber", u" 12.5 "_s, u" 12.5 "_s, 12, 12.5, true},
    {"TextTrue", u"tRUE"_s, u"tRUE"_s, 0, 0, true},
    {"TextFalse", u"False"_s, u"False"_s, 0, 0, false},
    {"EmptyText", u""_s, u""_s, 0, 0, false},
};

class ValueTest : public testing::TestWithParam<Conversion>
{
};

} // namespace

TEST_P(ValueTest, Converts)
{
    const Conversion &expected = GetParam();
    EXPECT_EQ(expected.value.toText(), expected.text);
    EXPECT_EQ(expected.value.toInteger(), expected.integer);
    EXPECT_EQ(expected.value.toDouble(), expected.number);
    EXPECT_EQ(expected.value.toBoolean(), expected.boolean);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ValueTest, testing::ValuesIn(conversions),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(Value, KindsAreNotEqualToEachOther)
{
    EXPECT_NE(Value(), Value(u""_s));
    EXPECT_NE(Value(1), Value(1.0));
    EXPECT_NE(Value(0), Value(false));
    EXPECT_NE(Value(OleDate{1}), Value(1.0));
    EXPECT_EQ(Value(u"a"_s), Value(u"a"_s));
}

TEST(NumberText, WritesWhatAPersonWouldRead)
{
    const std::pair<double, std::string> numbers[] = {
        {0.1 + 0.2, "0.3"},
        {-0.0, "0"},
        {1.0 / 3, "0.333333333333333"},
        {1234567.25, "1234567.25"},
        {1e14, "100000000000000"},
        {999999999999999.0, "999999999999999"},
        {1e15, "1E+15"},
        {1.7976931348623157e308, "1.79769313486232E+308"},
        {1.5e-7, "1.5E-07"},
        {-1e100, "-1E+100"},
    };
    for (const auto &[number, text] : numbers)
        EXPECT_EQ(numberText(number), text);
}
