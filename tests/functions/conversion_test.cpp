#include "platform/jet/functions.h"

#include "platform/jet/errormark.h"
#include "platform/jet/errortexts.h"
#include "sqltest.h"

namespace {

#define MISMATCH "-2147217913 Data type mismatch in criteria expression."
#define FIELD_OVERFLOW "-2147467259 Numeric field overflow."
#define OVERFLOW_ERROR "-2147467259 Overflow"
#define DIVISION "-2147467259 Division by zero"
#define INVALID "-2147467259 Invalid procedure call"

using ConversionTest = SqlTest;

} // namespace

TEST_F(ConversionTest, JoinsTexts)
{
    check({{
        {"jet_cat('a', 'b')", "'ab'"},
        {"jet_cat('a', NULL)", "'a'"},
        {"jet_cat(NULL, NULL)", "NULL"},
        {"jet_cat('', NULL)", "''"},
        {"jet_cat('n', 12, '/', 2.5, '/', 3.0, '/', -0.125)", "'n12/2.5/3/-0.125'"},
        {"jet_cat(1e20)", "'1E+20'"},
    }});
}

TEST_F(ConversionTest, WritesTexts)
{
    check({{
        {"jet_text(0.1 + 0.2)", "'0.3'"},
        {"jet_text(7)", "'7'"},
        {"jet_datetext(38415)", "'3/4/2005'"},
        {"jet_datetext(38367.604166666664)", "'1/15/2005 2:30:00 PM'"},
        {"jet_datetext(NULL)", "NULL"},
        {"jet_datetext(1e9)", OVERFLOW_ERROR},
        {"jet_booltext(-1)", "'True'"},
        {"jet_booltext(0)", "'False'"},
    }});
}

TEST_F(ConversionTest, ReadsNumbers)
{
    check({{
        {"jet_num('12')", "12"},
        {"jet_num(' -12.50 ')", "-12.5"},
        {"jet_num('+3')", "3"},
        {"jet_num('.5')", "0.5"},
        {"jet_num('5.')", "5.0"},
        {"jet_num('1E3')", "1000.0"},
        {"jet_num('1,234,567.5')", "1234567.5"},
        {"jet_num('&HFF')", "255"},
        {"jet_num('&HFFFF')", "-1"},
        {"jet_num('&O17')", "15"},
        {"jet_num(2.5)", "2.5"},
        {"jet_num(NULL)", "NULL"},
        {"jet_num('1,2')", MISMATCH},
        {"jet_num('1,2345')", MISMATCH},
        {"jet_num('')", MISMATCH},
        {"jet_num('abc')", MISMATCH},
        {"jet_num('12abc')", MISMATCH},
        {"jet_num('1E')", MISMATCH},
        {"jet_num('--1')", MISMATCH},
        {"jet_num('.')", MISMATCH},
        {"jet_num('inf')", MISMATCH},
        {"jet_num('nan')", MISMATCH},
        {"jet_num('0x10')", MISMATCH},
    }});
}

TEST_F(ConversionTest, FillsColumns)
{
    check({{
        {"jet_tolong(2.5)", "2"},
        {"jet_tolong(3.5)", "4"},
        {"jet_tolong('12')", "12"},
        {"jet_tolong('')", MISMATCH},
        {"jet_tolong('abc')", MISMATCH},
        {"jet_tolong(2147483647)", "2147483647"},
        {"jet_tolong(2147483648)", FIELD_OVERFLOW},
        {"jet_tolong(-2147483648.5)", "-2147483648"},
        {"jet_tolong(1e300)", FIELD_OVERFLOW},
        {"jet_tolong(NULL)", "NULL"},
        {"jet_toshort(32768)", FIELD_OVERFLOW},
        {"jet_toshort('-32768')", "-32768"},
        {"jet_tobyte(255)", "255"},
        {"jet_tobyte(-1)", FIELD_OVERFLOW},
        {"jet_todouble('1.5')", "1.5"},
        {"jet_todouble(9e999)", FIELD_OVERFLOW},
        {"jet_tocurrency(1.00005)", "1.0"},
        {"jet_tocurrency(1.23456)", "1.2346"},
        {"jet_tocurrency(1e15)", FIELD_OVERFLOW},
        {"jet_todate('3/4/2005')", "38415.0"},
        {"jet_todate(38415)", "38415.0"},
        {"jet_todate('38415')", MISMATCH},
        {"jet_todate('31/31/2005')", MISMATCH},
        {"jet_todate(2958466)", FIELD_OVERFLOW},
        {"jet_tobool(7)", "-1"},
        {"jet_tobool(0)", "0"},
        {"jet_tobool('Yes')", "-1"},
        {"jet_tobool('false')", "0"},
        {"jet_tobool('0')", "0"},
        {"jet_tobool('maybe')", MISMATCH},
        {"jet_tobool(NULL)", "NULL"},
        {"jet_fit('abc', 3)", "'abc'"},
        {"jet_fit('äöü', 3)", "'äöü'"},
        {"jet_fit('abcd', 3)",
         "-2147217833 The field is too small to accept the amount of data you attempted to add.  "
         "Try inserting or pasting less data."},
        {"jet_fit(NULL, 3)", "NULL"},
    }});
}

TEST_F(ConversionTest, Calculates)
{
    check({{
        {"jet_add('a', 'b')", "'ab'"},
        {"jet_add('2', 3)", "5.0"},
        {"jet_add('a', NULL)", "NULL"},
        {"jet_add('a', 1)", MISMATCH},
        {"jet_div(7, 2)", "3.5"},
        {"jet_div(1, 0)", DIVISION},
        {"jet_div(NULL, 0)", "NULL"},
        {"jet_div(1e300, 1e-300)", OVERFLOW_ERROR},
        {"jet_idiv(7.6, 2)", "4"},
        {"jet_idiv(-7, 2)", "-3"},
        {"jet_idiv(5, 0.4)", DIVISION}, // 0.4 is rounded first
        {"jet_idiv(-9223372036854775807 - 1, -1)", OVERFLOW_ERROR},
        {"jet_mod(-7, 3)", "-1"},
        {"jet_mod(12.6, 5)", "3"},
        {"jet_mod(7, -1)", "0"},
        {"jet_mod(7, 0)", DIVISION},
        {"jet_pow(2, 10)", "1024.0"},
        {"jet_pow(-8, 3)", "-512.0"},
        {"jet_pow(-8, 0.5)", INVALID},
        {"jet_pow(0, -1)", INVALID},
        {"jet_pow(10, 400)", OVERFLOW_ERROR},
    }});
}

TEST_F(ConversionTest, RaisesWhatItIsTold)
{
    check({{
        {"jet_raise(-2147467259, 'At most one record can be returned by this subquery.')",
         "-2147467259 At most one record can be returned by this subquery."},
    }});
    std::string_view foreign = "no such table: x";
    EXPECT_EQ(jet::takeErrorNumber(foreign), 0);
    EXPECT_EQ(foreign, "no such table: x");
}

TEST(FindFunction, KnowsNamesInAnyCaseAndWithTheirDollar)
{
    ASSERT_NE(jet::findFunction("uCASE"), nullptr);
    EXPECT_EQ(jet::findFunction("uCASE"), jet::findFunction("UCase$"));
    EXPECT_EQ(jet::findFunction("Abs$"), nullptr);
    EXPECT_EQ(jet::findFunction("Nz"), nullptr);
    EXPECT_EQ(jet::findFunction("DLookup"), nullptr);
    EXPECT_EQ(jet::findFunction(""), nullptr);
    EXPECT_EQ(jet::suggestion("DateDif", jet::functionNames()), " Did you mean 'DateDiff'?");
    EXPECT_EQ(jet::suggestion("Frobnicate", jet::functionNames()), "");
}
