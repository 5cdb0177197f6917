#include "platform/jet/sqlite.h"

#include "base/error.h"

#include "platform/jet/errormark.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/lockholder.h"

#include <algorithm>
#include <string>

namespace jet {
namespace {

struct ErrorRow
{
    int result;
    int number;
    const char *text;
    bool ofFile = false; ///< the file is named behind the text
};

// The extended result first; a row of the plain result stands for all of its kind.
constexpr ErrorRow errors[] = {
    {SQLITE_CONSTRAINT_UNIQUE, DuplicateValue, nullptr},
    {SQLITE_CONSTRAINT_PRIMARYKEY, DuplicateValue, nullptr},
    {SQLITE_CONSTRAINT_ROWID, DuplicateValue, nullptr},
    // The one check that tables have is the bound of their counter.
    {SQLITE_CONSTRAINT_CHECK, Failure, "Numeric field overflow."},
    {SQLITE_LOCKED, Failure, "Could not update; currently locked."},
    {SQLITE_CANTOPEN, Failure, "The file or its journal could not be opened.", true},
    {SQLITE_FULL, Failure, "There isn't enough disk space.", true},
    {SQLITE_IOERR, Failure, "Disk or network error.", true},
    {SQLITE_CORRUPT, Failure, "The store file is damaged.", true},
    {SQLITE_NOTADB, Failure, "Unrecognized database format.", true},
    {SQLITE_NOMEM, Failure, "Not enough memory."},
    {SQLITE_INTERRUPT, Failure, "The operation was cancelled."},
    {SQLITE_TOOBIG, Failure, "A value is too large."},
};

constexpr const char *duplicateText =
    "The changes you requested to the table were not successful because they would create duplicate values "
    "in the index, primary key, or relationship.  Change the data in the field or fields that contain "
    "duplicate data, remove the index, or redefine the index to permit duplicate entries and try again.";

QString fileOf(sqlite3 *handle)
{
    const char *name = sqlite3_db_filename(handle, "main");
    return QString::fromUtf8(name == nullptr ? "" : name);
}

[[noreturn]] void raiseOfFile(std::string_view text, sqlite3 *handle)
{
    throw StoreFailure(Failure, namingFile(QUtf8StringView(text).toString(), fileOf(handle)));
}

[[noreturn]] void raiseLocked(sqlite3 *handle)
{
    const QString path = fileOf(handle);
    const QString holder = lockHolder(path);
    const QString by = holder.isEmpty() ? QStringLiteral("another program") : holder;
    throw StoreLocked(Failure,
                      namingFile(QStringLiteral("Could not update; currently locked by %1.").arg(by), path));
}

/// Whether the message is SQLite's word for a statement beyond its limits.
bool tellsOfLimit(std::string_view sqliteMessage)
{
    static constexpr std::string_view limits[] = {
        "parser stack overflow",
        "Expression tree is too large",
        "too many",
        "at most ",
        "string or blob too big",
        "statement too long",
        "variable number must be",
    };
    return std::ranges::any_of(limits,
                               [&](std::string_view limit) { return sqliteMessage.starts_with(limit); });
}

} // namespace

QString namingFile(const QString &text, const QString &path)
{
    return QStringLiteral("%1 The file is '%2'.").arg(text, path);
}

void raiseSqlite(sqlite3 *handle, int result)
{
    const int extended = sqlite3_extended_errcode(handle);
    std::string_view message = sqlite3_errmsg(handle);
    if (const int number = takeErrorNumber(message); number != 0)
        raiseError(number, message);
    if (extended == SQLITE_CONSTRAINT_NOTNULL) {
        const std::size_t colon = message.rfind(": ");
        const std::string field(colon == std::string_view::npos ? message : message.substr(colon + 2));
        raiseError(Failure,
                   "The field '" + field +
                       "' cannot contain a Null value because the Required property for this field is set to "
                       "True.  Enter a value in this field.");
    }
    if ((result & 0xff) == SQLITE_BUSY)
        raiseLocked(handle);
    if ((result & 0xff) == SQLITE_READONLY)
        throw StoreFailure(Failure, QUtf8StringView(notUpdatable).toString() +
                                        QStringLiteral(" The file '%1' is read-only.").arg(fileOf(handle)));
    for (const ErrorRow &row : errors) {
        if (row.result != extended && row.result != (result & 0xff))
            continue;
        if (row.ofFile)
            raiseOfFile(row.text, handle);
        raiseError(row.number, row.text != nullptr ? row.text : duplicateText);
    }
    if (tellsOfLimit(message))
        raiseError(SyntaxError, queryTooComplex);
    raiseError(Failure, message);
}

StatementHandle prepareSqlite(sqlite3 *handle, std::string_view sql)
{
    sqlite3_stmt *statement = nullptr;
    const int result = sqlite3_prepare_v3(handle, sql.data(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (result != SQLITE_OK)
        raiseSqlite(handle, result);
    return StatementHandle(statement);
}

void runToEnd(sqlite3 *handle, sqlite3_stmt *statement)
{
    const StatementReset reset(statement);
    forEachRow(handle, statement, [](sqlite3_stmt *) {});
}

std::string_view textAt(sqlite3_stmt *row, int column)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    return text == nullptr ? std::string_view()
                           : std::string_view(text, std::size_t(sqlite3_column_bytes(row, column)));
}

void runSqlite(sqlite3 *handle, const char *sql)
{
    const int result = sqlite3_exec(handle, sql, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        raiseSqlite(handle, result);
}

sqlite3_int64 queryNumber(sqlite3 *handle, std::string_view sql)
{
    const StatementHandle statement = prepareSqlite(handle, sql);
    const int result = sqlite3_step(statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        raiseSqlite(handle, result);
    return result == SQLITE_ROW ? sqlite3_column_int64(statement.get(), 0) : 0;
}

} // namespace jet
