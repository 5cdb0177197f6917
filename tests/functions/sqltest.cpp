#include "sqltest.h"

#include "platform/jet/collation.h"
#include "platform/jet/errormark.h"
#include "platform/jet/functions.h"

#include <sqlite3.h>

SqlTest::SqlTest()
{
    sqlite3_open(":memory:", &m_handle);
    jet::registerCollation(m_handle);
    jet::registerFunctions(m_handle);
}

SqlTest::~SqlTest()
{
    EXPECT_EQ(sqlite3_close(m_handle), SQLITE_OK) << "a statement or a value was left behind";
}

void SqlTest::execute(const std::string &sql)
{
    ASSERT_EQ(sqlite3_exec(m_handle, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(m_handle);
}

std::string SqlTest::values(const std::string &sql)
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
