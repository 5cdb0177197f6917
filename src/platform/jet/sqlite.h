#pragma once

#include <QString>

#include <sqlite3.h>

#include <memory>
#include <string_view>

namespace jet {

struct StatementFinalizer
{
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, StatementFinalizer>;

/// Compiles one SQLite statement; raises the engine's error when SQLite refuses it.
[[nodiscard]] StatementHandle prepareSqlite(sqlite3 *handle, std::string_view sql);

/// Compiles and runs statements that return no rows.
void runSqlite(sqlite3 *handle, const char *sql);

/// The first column of the first row as a whole number, 0 without a row.
[[nodiscard]] sqlite3_int64 queryNumber(sqlite3 *handle, std::string_view sql);

/// The text of a column; of Null nothing. Valid until the statement moves on.
[[nodiscard]] std::string_view textAt(sqlite3_stmt *row, int column);

/// Raises what the last call on the handle reported, as an error of the store engine.
[[noreturn]] void raiseSqlite(sqlite3 *handle, int result);

/// The text of an error with the name of the file behind it.
[[nodiscard]] QString namingFile(const QString &text, const QString &path);

/// Walks the rows of a statement from where it stands; take gets it standing on each. Raises what SQLite
/// reports.
template <typename Take>
void forEachRow(sqlite3 *handle, sqlite3_stmt *statement, Take &&take)
{
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW)
        take(statement);
    if (result != SQLITE_DONE)
        raiseSqlite(handle, result);
}

/// Runs a statement from its beginning to its end and drops the rows it returns.
void runToEnd(sqlite3 *handle, sqlite3_stmt *statement);

/// A statement starts over when its reader is done with it, however that ends.
class StatementReset final
{
public:
    explicit StatementReset(sqlite3_stmt *statement) : m_statement(statement) {}
    ~StatementReset() { sqlite3_reset(m_statement); }
    StatementReset(const StatementReset &) = delete;
    StatementReset &operator=(const StatementReset &) = delete;

private:
    sqlite3_stmt *m_statement;
};

} // namespace jet
