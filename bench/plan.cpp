#include "plan.h"

#include "workbench.h"

#include "platform/jet/connection.h"
#include "platform/jet/sqlite.h"

#include <sqlite3.h>

#include <regex>
#include <string_view>
#include <vector>

namespace {

sqlite3 *newestHandle = nullptr;

int noteHandle(sqlite3 *handle, char **, const void *)
{
    newestHandle = handle;
    return SQLITE_OK;
}

/// Keeps the last query that a handle starts, with its values in it.
int noteStatement(unsigned, void *last, void *statement, void *)
{
    auto *started = static_cast<sqlite3_stmt *>(statement);
    char *sql = sqlite3_expanded_sql(started);
    if (sql && sqlite3_column_count(started) > 0 && !std::string_view(sql).starts_with("PRAGMA"))
        *static_cast<std::string *>(last) = sql;
    sqlite3_free(sql);
    return 0;
}

void add(std::vector<std::string> &parts, const std::string &part)
{
    if (std::find(parts.begin(), parts.end(), part) == parts.end())
        parts.push_back(part);
}

} // namespace

std::string planOf(const Reader &reader, int users)
{
    const QString &path = workbench::sampleStore(users);
    const int subject = subjectOf(reader, path);
    const auto hook = reinterpret_cast<void (*)()>(&noteHandle);
    sqlite3_auto_extension(hook);
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    sqlite3_cancel_auto_extension(hook);

    std::string statement;
    sqlite3_trace_v2(newestHandle, SQLITE_TRACE_STMT, noteStatement, &statement);
    jet::Recordset result;
    reader.read(jet::connectionString(path), result, subject);
    sqlite3_trace_v2(newestHandle, 0, nullptr, nullptr);

    static const std::regex index("USING (?:COVERING )?INDEX (\\w+)");
    static const std::regex key("SEARCH (\\w+) USING INTEGER PRIMARY KEY");
    static const std::regex whole("SCAN (\\w+)$");
    std::vector<std::string> parts;
    bool sorts = false;
    const jet::StatementHandle plan = jet::prepareSqlite(newestHandle, "EXPLAIN QUERY PLAN " + statement);
    while (sqlite3_step(plan.get()) == SQLITE_ROW) {
        const std::string detail = reinterpret_cast<const char *>(sqlite3_column_text(plan.get(), 3));
        std::smatch found;
        if (std::regex_search(detail, found, index))
            add(parts, (detail.starts_with("SCAN") ? "all of " : "") + found.str(1));
        else if (std::regex_search(detail, found, key))
            add(parts, found.str(1) + "'s key");
        else if (std::regex_search(detail, found, whole))
            add(parts, "all of " + found.str(1));
        sorts = sorts || detail.find("TEMP B-TREE FOR") != std::string::npos;
    }
    std::string text;
    for (const std::string &part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text + (sorts ? "; sorted" : "");
}
