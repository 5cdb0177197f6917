#include "platform/jet/functions.h"

#include "base/value.h"
#include "platform/jet/clock.h"
#include "platform/jet/collation.h"
#include "platform/jet/errormark.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/numbertext.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <random>
#include <sstream>

namespace {

/// A handle in memory with the functions and the collation of the store.
class FunctionsTest : public testing::Test
{
protected:
    FunctionsTest()
    {
        sqlite3_open(":memory:", &m_handle);
        jet::registerCollation(m_handle);
        jet::registerFunctions(m_handle);
    }
    ~FunctionsTest() override
    {
        EXPECT_EQ(sqlite3_close(m_handle), SQLITE_OK) << "a statement or a value was left behind";
    }

    /// The first column of all rows, joined by a blank, or the error.
    std::string values(const std::string &sql)
    {
        sqlite3_stmt *statement = nullptr;
        std::string result;
        int code = sqlite3_prepare_v2(m_handle, sql.c_str(), -1, &statement, nullptr);
        while (code == SQLITE_OK || code == SQLITE_ROW) {
            code = sqlite3_step(statement);
            if (code != SQLITE_ROW)
                break;
            result += result.empty() ? "" : " ";
            result += reinterpret_cast<const char *>(sqlite3_column_text(statement, 0));
        }
        if (code != SQLITE_DONE) {
            std::string_view message = sqlite3_errmsg(m_handle);
            const int number = jet::takeErrorNumber(message);
            result = std::to_string(number) + ' ' + std::string(message);
        }
        sqlite3_finalize(statement);
        return result;
    }

private:
    sqlite3 *m_handle = nullptr;
};

// clang-format off
const char *const arguments[] = {
    "NULL", "''", "' '", "'abc'", "'ÄÖ Ü'", "'12.5'", "'1/15/2005 2:30 PM'", "'2005-'",
    "CAST(x'ff61c3' AS TEXT)", "CAST(x'610062' AS TEXT)", "x'00ff'", "0", "1", "-1", "3", "7", "300",
    "2147483648", "-9223372036854775807 - 1", "0.5", "-2.5", "38415.604166666664", "-657434.5",
    "2958465.99999999", "1e300", "9e999", "-9e999", "'yyyy'", "'ww'", "'#,##0.00;(0);z;n'", "'@@&<!;x'",
    "'dddd mmmm hh:nn:ss a/p \"q'", "'0.0E+00%\\'", "'[!a-z]%[_'",
};
// clang-format on

} // namespace

// Whatever stands in an argument, a function gives a value or an error that carries its number.
TEST_F(FunctionsTest, EveryFunctionAnswersAnyArguments)
{
    std::istringstream names(
        values("SELECT name FROM pragma_function_list "
               "WHERE name GLOB 'jet_*' AND type = 's' AND name <> 'jet_raise' ORDER BY name"));
    std::mt19937 random(1973);
    int functions = 0;
    for (std::string name; names >> name; ++functions) {
        for (int round = 0; round < 200; ++round) {
            std::string list;
            for (auto count = random() % 6; count > 0; --count)
                list += (list.empty() ? "" : ", ") + std::string(arguments[random() % std::size(arguments)]);
            const std::string call = name + '(' + list + ')';
            const std::string result = values("SELECT quote(" + call + ")");
            EXPECT_FALSE(result.starts_with("0 ")) << call << ": " << result;
        }
    }
    EXPECT_GT(functions, 70);
}

TEST_F(FunctionsTest, ReadTheClock)
{
    jet::setClock([] { return QDateTime(QDate(2005, 3, 4), QTime(14, 30, 15, 750)); });
    EXPECT_EQ(values("SELECT jet_datetext(jet_now()) || ', ' || jet_datetext(jet_today()) || ', ' || "
                     "jet_datetext(jet_time()) || ', ' || jet_timer()"),
              "3/4/2005 2:30:15 PM, 3/4/2005, 2:30:15 PM, 52215.75");
    jet::setClock({});
}

TEST_F(FunctionsTest, RandomNumbersSpread)
{
    EXPECT_EQ(values("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200),"
                     "r(x) AS MATERIALIZED (SELECT jet_rnd() FROM n)"
                     "SELECT count(DISTINCT x) > 150 AND min(x) >= 0 AND max(x) < 1 FROM r"),
              "1");
}

TEST_F(FunctionsTest, RaiseWhatNoStatementCanReach)
{
    EXPECT_EQ(values("SELECT jet_raise(-2147467259, 'At most one.')"), "-2147467259 At most one.");
    EXPECT_EQ(values("SELECT jet_todouble(9e999)"), "-2147467259 Numeric field overflow.");
    EXPECT_EQ(values("SELECT jet_datetext(1e9)"), "-2147467259 Overflow");
    EXPECT_EQ(values("SELECT jet_idiv(-9223372036854775807 - 1, -1)"), "-2147467259 Overflow");
    EXPECT_EQ(values("SELECT jet_abs(-9223372036854775807 - 1) > 9e18"), "1");
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
