#pragma once

#include <gtest/gtest.h>

#include <string>

struct sqlite3;

/// A handle in memory with the functions and the collation of the store.
class SqlTest : public testing::Test
{
protected:
    SqlTest();
    ~SqlTest() override;

    void execute(const std::string &sql);
    /// The literals of the first column of all rows, joined by a blank, or the error.
    std::string values(const std::string &sql);

private:
    sqlite3 *m_handle = nullptr;
};
