#include "platform/jet/deleterules.h"

#include "platform/jet/catalog.h"
#include "platform/jet/sqlite.h"
#include "platform/jet/storefile.h"

#include <map>
#include <string>

namespace jet {
namespace {

constexpr std::string_view namePrefix = "jet_delete_";

/// Triggers by name, with the statements that make them.
using Triggers = std::map<std::string, std::string>;

Triggers storedTriggers(sqlite3 *handle)
{
    Triggers triggers;
    const StatementHandle statement =
        prepareSqlite(handle, "SELECT name, sql FROM sqlite_schema WHERE type = 'trigger'");
    forEachRow(handle, statement.get(), [&](sqlite3_stmt *row) {
        if (const std::string_view name = textAt(row, 0); name.starts_with(namePrefix))
            triggers.emplace(name, textAt(row, 1));
    });
    return triggers;
}

bool has(sqlite3 *handle, std::string_view table, std::string_view column)
{
    const int result =
        sqlite3_table_column_metadata(handle, "main", std::string(table).c_str(), std::string(column).c_str(),
                                      nullptr, nullptr, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK && result != SQLITE_ERROR)
        raiseSqlite(handle, result);
    return result == SQLITE_OK;
}

// SQLite keeps the text of a trigger as it stands here.
Triggers wantedTriggers(sqlite3 *handle, std::span<const DeleteRule> rules)
{
    Triggers triggers;
    for (const DeleteRule &rule : rules) {
        if (!has(handle, rule.table, rule.column) || !has(handle, rule.target, rule.id))
            continue;
        const std::string name =
            std::string(namePrefix) + std::string(rule.target) + '.' + std::string(rule.id);
        const std::string is = quotedName(rule.id) + " = OLD." + quotedName(rule.id);
        std::string &trigger = triggers[name];
        if (trigger.empty())
            trigger = "CREATE TRIGGER " + quotedName(name) + " AFTER DELETE ON " + quotedName(rule.target) +
                      " WHEN NOT EXISTS (SELECT 1 FROM " + quotedName(rule.target) + " WHERE " + is +
                      ") BEGIN";
        trigger += " DELETE FROM " + quotedName(rule.table) + " WHERE " + quotedName(rule.column) +
                   " = OLD." + quotedName(rule.id) + ';';
    }
    for (auto &[name, trigger] : triggers)
        trigger += " END";
    return triggers;
}

} // namespace

bool keepDeleteRules(sqlite3 *handle, std::span<const DeleteRule> rules)
{
    // The first reading brings what SQLite knows of the tables up to date.
    const Triggers stored = storedTriggers(handle);
    const Triggers wanted = wantedTriggers(handle, rules);
    std::string changes;
    for (const auto &[name, trigger] : stored) {
        if (const auto same = wanted.find(name); same == wanted.end() || same->second != trigger)
            changes += "DROP TRIGGER " + quotedName(name) + ';';
    }
    for (const auto &[name, trigger] : wanted) {
        if (const auto same = stored.find(name); same == stored.end() || same->second != trigger)
            changes += trigger + ';';
    }
    if (queryNumber(handle, "PRAGMA user_version") < FileVersion)
        changes += "PRAGMA user_version = " + std::to_string(FileVersion);
    if (changes.empty())
        return false;
    runSqlite(handle, changes.c_str());
    return true;
}

} // namespace jet
