#include "sqltest.h"

namespace {

#define INVALID "-2147467259 Invalid procedure call"
#define OVERFLOW_ERROR "-2147467259 Overflow"
#define MISMATCH "-2147217913 Data type mismatch in criteria expression."

using NumberFunctionsTest = SqlTest;

} // namespace

TEST_F(NumberFunctionsTest, Round)
{
    check({{
        {"jet_round(2.5)", "2.0"},
        {"jet_round(3.5)", "4.0"},
        {"jet_round(-2.5)", "-2.0"},
        {"jet_round(2.675, 2)", "2.68"},
        {"jet_round(2.665, 2)", "2.66"},
        {"jet_round(0.125, 2)", "0.12"},
        {"jet_round(99.995, 1)", "100.0"},
        {"jet_round(0.04, 1)", "0.0"},
        {"jet_round(7)", "7"},
        {"jet_round(0.1 + 0.2, 2)", "0.3"},
        {"jet_round(3 * 1.1, 1)", "3.3"},
        {"jet_round(7 * 1.1, 1)", "7.7"},
        {"jet_round(-7 * 1.1, 4)", "-7.7"},
        {"jet_round(1234567890123.125, 2) = 1234567890123.12", "1"},
        {"jet_round(1234567890123.123, 3) = 1234567890123.123", "1"},
        {"jet_round(1e300, 22)", "1.0e+300"},
        {"jet_round(9007199254740992.0) = 9007199254740992", "1"},
        {"jet_round(1.5, -1)", INVALID},
        {"jet_int(-2.5)", "-3.0"},
        {"jet_int(2.5)", "2.0"},
        {"jet_fix(-2.5)", "-2.0"},
        {"jet_int(7)", "7"},
        {"jet_fix(NULL)", "NULL"},
    }});
}

TEST_F(NumberFunctionsTest, Convert)
{
    check({{
        {"jet_cint(2.5)", "2"},
        {"jet_cint('3.5')", "4"},
        {"jet_cint(32767.5)", OVERFLOW_ERROR},
        {"jet_clng(2147483647.4)", "2147483647"},
        {"jet_clng(2147483648)", OVERFLOW_ERROR},
        {"jet_clng('x')", MISMATCH},
        {"jet_clng(NULL)", "NULL"},
        {"jet_cbyte(255)", "255"},
        {"jet_cbyte(256)", OVERFLOW_ERROR},
        {"jet_cbyte(-1)", OVERFLOW_ERROR},
        {"jet_cdbl('1.5')", "1.5"},
        {"jet_csng(0.1)", "0.1"},
        {"jet_csng(1.0 / 3)", "0.33333334"},
        {"jet_csng(1e39)", OVERFLOW_ERROR},
        {"jet_ccur(1.23455)", "1.2346"},
        {"jet_ccur(1e16)", OVERFLOW_ERROR},
        {"jet_cbool('True')", "-1"},
        {"jet_cbool(0)", "0"},
        {"jet_cbool('x')", MISMATCH},
        {"jet_cstr(12.50)", "'12.5'"},
        {"jet_cdate(jet_readdate('38415'))", "38415.0"},
        {"jet_cdate(3e6)", OVERFLOW_ERROR},
        {"jet_readdate('13/13/2005')", MISMATCH},
        {"jet_isnumeric('t', '12.5')", "-1"},
        {"jet_isnumeric('t', '12x')", "0"},
        {"jet_isnumeric('u', NULL)", "0"},
        {"jet_isnumeric('n', 3)", "-1"},
        {"jet_isnumeric('d', 38415)", "0"},
    }});
}

TEST_F(NumberFunctionsTest, ReadAndWriteDigits)
{
    check({{
        {"jet_str(5)", "' 5'"},           {"jet_str(-5)", "'-5'"},
        {"jet_str(0.5)", "' .5'"},        {"jet_str(-0.5)", "'-.5'"},
        {"jet_str(0)", "' 0'"},           {"jet_val(' 12 34abc')", "1234.0"},
        {"jet_val('-1.5e2x')", "-150.0"}, {"jet_val('1.2.3')", "1.2"},
        {"jet_val('1,5')", "1.0"},        {"jet_val('&HFFx')", "255.0"},
        {"jet_val('&HFFFF')", "-1.0"},    {"jet_val('-1e400')", OVERFLOW_ERROR},
        {"jet_val('1e-400x')", "0.0"},    {"jet_val('abc')", "0.0"},
        {"jet_val('inf')", "0.0"},        {"jet_val('')", "0.0"},
        {"jet_hex(255)", "'FF'"},         {"jet_hex(-1)", "'FFFFFFFF'"},
        {"jet_hex(2.5)", "'2'"},          {"jet_hex(3000000000)", OVERFLOW_ERROR},
        {"jet_oct(8)", "'10'"},
    }});
}

TEST_F(NumberFunctionsTest, Calculate)
{
    check({{
        {"jet_abs(-3)", "3"},
        {"jet_abs(-2.5)", "2.5"},
        {"jet_abs(-9223372036854775807 - 1) > 9e18", "1"},
        {"jet_sgn(-2.5)", "-1"},
        {"jet_sgn(0)", "0"},
        {"jet_sqr(9)", "3.0"},
        {"jet_sqr(-1)", INVALID},
        {"jet_exp(0)", "1.0"},
        {"jet_exp(1000)", OVERFLOW_ERROR},
        {"jet_log(1)", "0.0"},
        {"jet_log(0)", INVALID},
        {"jet_atn(1) * 4 - 3.14159265358979 < 1e-12", "1"},
        {"jet_rnd(-7) = jet_rnd(-7)", "1"},
        {"jet_rnd(-7) = jet_rnd(-8)", "0"},
    }});
    EXPECT_EQ(values("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200),"
                     "r(x) AS MATERIALIZED (SELECT jet_rnd() FROM n)"
                     "SELECT count(DISTINCT x) > 150 AND min(x) >= 0 AND max(x) < 1 FROM r"),
              "1");
}

TEST_F(NumberFunctionsTest, Aggregates)
{
    execute("CREATE TABLE t (g, x); INSERT INTO t VALUES ('a', 2), ('a', 4), ('a', NULL), ('a', 4), ('a', "
            "4), ('a', 5),"
            "('a', 5), ('a', 7), ('a', 9), ('b', 1e9 + 1), ('b', 1e9 + 2), ('b', 1e9 + 3), ('c', 3), ('d', "
            "NULL)");
    EXPECT_EQ(values("SELECT quote(jet_stdevp(x)) FROM t GROUP BY g ORDER BY g"),
              "2.0 " + values("SELECT sqrt(2.0 / 3)") + " 0.0 NULL");
    EXPECT_EQ(values("SELECT quote(jet_var(x)) FROM t WHERE g <> 'a' GROUP BY g ORDER BY g"),
              "1.0 NULL NULL");
    EXPECT_EQ(values("SELECT quote(jet_varp(x)) FROM t WHERE g = 'a'"), "4.0");
    EXPECT_EQ(values("SELECT quote(jet_stdev(x)) FROM t WHERE g = 'b'"), "1.0");
    EXPECT_EQ(values("SELECT quote(jet_first(x)) || quote(jet_last(x)) FROM t GROUP BY g ORDER BY g"),
              "29 1000000001.01000000003.0 33 NULLNULL");
    EXPECT_EQ(values("SELECT quote(jet_first(x)) FROM t WHERE g = 'none'"), "NULL");
}
