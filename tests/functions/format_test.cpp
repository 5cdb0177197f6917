#include "sqltest.h"

namespace {

#define INVALID "-2147467259 Invalid procedure call"

using FormatTest = SqlTest;

// A Saturday.
#define MOMENT "jet_readdate('1/15/2005 14:05:09')"

} // namespace

TEST_F(FormatTest, Dates)
{
    check({{
        {"jet_format('d', " MOMENT ")", "'1/15/2005 2:05:09 PM'"},
        {"jet_format('d', " MOMENT ", 'yyyy-mm-dd hh:nn:ss')", "'2005-01-15 14:05:09'"},
        {"jet_format('d', " MOMENT ", 'YYYYMMDDHhNnSs')", "'20050115140509'"},
        {"jet_format('d', " MOMENT ", 'hh:mm')", "'14:05'"}, // minutes behind the hour
        {"jet_format('d', " MOMENT ", 'mm/hh/mm')", "'01/14/05'"},
        {"jet_format('d', " MOMENT ", 'h:nn AM/PM')", "'2:05 PM'"},
        {"jet_format('d', " MOMENT ", 'h:n:s a/p')", "'2:5:9 p'"},
        {"jet_format('d', " MOMENT ", 'd.m.yy')", "'15.1.05'"},
        {"jet_format('d', " MOMENT ", 'ddd, d mmm')", "'Sat, 15 Jan'"},
        {"jet_format('d', " MOMENT ", 'dddd mmmm')", "'Saturday January'"},
        {"jet_format('d', " MOMENT ", 'ddddd ttttt')", "'1/15/2005 2:05:09 PM'"},
        {"jet_format('d', " MOMENT ", 'q w ww y')", "'1 7 3 15'"},
        {"jet_format('d', " MOMENT ", 'ww', 2, 2)", "'2'"},
        {"jet_format('d', " MOMENT ", '\"day\" d \\d')", "'day 15 d'"},
        {"jet_format('d', " MOMENT ", 'General Date')", "'1/15/2005 2:05:09 PM'"},
        {"jet_format('d', " MOMENT ", 'long date')", "'Saturday, January 15, 2005'"},
        {"jet_format('d', " MOMENT ", 'Medium Date')", "'15-Jan-05'"},
        {"jet_format('d', " MOMENT ", 'Short Date')", "'1/15/2005'"},
        {"jet_format('d', " MOMENT ", 'Long Time')", "'2:05:09 PM'"},
        {"jet_format('d', " MOMENT ", 'Medium Time')", "'02:05 PM'"},
        {"jet_format('d', " MOMENT ", 'Short Time')", "'14:05'"},
        {"jet_format('d', 38367, 'c')", "'1/15/2005'"},
        {"jet_format('d', 38367, '0.0')", "'38367.0'"},
        {"jet_format('n', 38367, 'yyyy')", "'2005'"},
        {"jet_format('t', '1/15/2005', 'yyyy/mm')", "'2005/01'"},
        {"jet_format('d', 38367, 't\"\"t')", "'tt'"},
        {"jet_format('t', 'never', 'yyyy')", "'never'"},
        {"jet_format('d', " MOMENT ", 'ww', 8)", INVALID},
    }});
}

TEST_F(FormatTest, Numbers)
{
    check({{
        {"jet_format('n', 1234.5)", "'1234.5'"},
        {"jet_format('n', 1234.5, '#,##0.00')", "'1,234.50'"},
        {"jet_format('n', 1234567, '#,##0')", "'1,234,567'"},
        {"jet_format('n', 5, '000')", "'005'"},
        {"jet_format('n', 12345, '0')", "'12345'"},
        {"jet_format('n', 0, '#')", "''"},
        {"jet_format('n', 0.5, '#.##')", "'.5'"},
        {"jet_format('n', 5, '#.##')", "'5.'"},
        {"jet_format('n', 12.5, '.00')", "'12.50'"},
        {"jet_format('n', 2.5, '0')", "'3'"}, // away from zero
        {"jet_format('n', -2.5, '0')", "'-3'"},
        {"jet_format('n', 1.005, '0.00')", "'1.01'"},
        {"jet_format('n', 999.995, '0.00')", "'1000.00'"},
        {"jet_format('n', -0.001, '0.00')", "'0.00'"},
        {"jet_format('n', 0.256, '0.0%')", "'25.6%'"},
        {"jet_format('n', 1234567, '0,,.0')", "'1.2'"},
        {"jet_format('n', 5551234, '000-0000')", "'555-1234'"},
        {"jet_format('n', 12345.678, '0.00E+00')", "'1.23E+04'"},
        {"jet_format('n', 0.000999999, '0.00e-0')", "'1.00e-3'"},
        {"jet_format('n', -5, '0;(0);\"none\"')", "'(5)'"},
        {"jet_format('n', 0, '0;(0);\"none\"')", "'none'"},
        {"jet_format('n', -5, '0;;z')", "'-5'"},
        {"jet_format('n', 3, '0 \"of\" \\0')", "'3 of 0'"},
        {"jet_format('n', -1234.5, 'Currency')", "'($1,234.50)'"},
        {"jet_format('n', 1234.5, 'Fixed')", "'1234.50'"},
        {"jet_format('n', 1234.5, 'standard')", "'1,234.50'"},
        {"jet_format('n', 0.256, 'Percent')", "'25.60%'"},
        {"jet_format('n', 1234.5, 'General Number')", "'1234.5'"},
        {"jet_format('n', 3, 'Yes/No')", "'Yes'"},
        {"jet_format('b', 0, 'On/Off')", "'Off'"},
        {"jet_format('b', -1)", "'True'"},
        {"jet_format('n', 10, '000000000000000000000000000000.000000000000000000000000000000')",
         "'000000000000000000000000000010.000000000000000000000000000000'"},
        {"jet_format('t', '12.5', '0.00')", "'12.50'"},
        {"jet_format('t', 'abc', '0.00')", "'abc'"},
        {"jet_format('u', NULL, '0.00')", "NULL"},
        {"jet_format('n', NULL, '0;0;0;\"empty\"')", "'empty'"},
    }});
}

TEST_F(FormatTest, Texts)
{
    check({{
        {"jet_format('t', 'abc', '>')", "'ABC'"},
        {"jet_format('t', 'ÄBC', '<')", "'äbc'"},
        {"jet_format('t', 'ab', '@@@@')", "'  ab'"},
        {"jet_format('t', 'ab', '&&&&')", "'ab'"},
        {"jet_format('t', 'ab', '!@@@@')", "'ab  '"},
        {"jet_format('t', '5551234', '@@@-@@@@')", "'555-1234'"},
        {"jet_format('t', 'abcdef', '@@-@')", "'abcde-f'"},
        {"jet_format('t', 'abcdef', '!@@-@')", "'ab-cdef'"},
        {"jet_format('t', '', '@;\"none\"')", "'none'"},
        {"jet_format('t', NULL, '@;\"none\"')", "'none'"},
        {"jet_format('t', NULL, '@')", "NULL"},
        {"jet_format('n', 12, '@@@')", "' 12'"},
    }});
}
