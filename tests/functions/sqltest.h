#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>

struct sqlite3;

/// An expression of plain SQLite and the literal of its value: 'text', 3, 2.5, NULL; or an
/// error as "number text".
struct SqlCase
{
    const char *expression;
    const char *expected;
};

/// A handle in memory with the functions and the collation of the store.
class SqlTest : public testing::Test
{
protected:
    SqlTest();
    ~SqlTest() override;

    void execute(const std::string &sql);
    /// The literals of the first column of all rows, joined by a blank, or the error.
    std::string values(const std::string &sql);
    /// The function turns each value into what is expected.
    void check(std::span<const SqlCase> cases, const std::string &shownBy = "quote");

private:
    sqlite3 *m_handle = nullptr;
};
