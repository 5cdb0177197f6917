#include "platform/jet/schemachange.h"

#include "platform/jet/collation.h"
#include "platform/jet/errortexts.h"

#include <algorithm>
#include <set>
#include <vector>

namespace jet {
namespace {

bool isAmong(std::string_view name, const std::vector<std::string_view> &names)
{
    return std::ranges::any_of(names, [&](std::string_view other) { return sameName(other, name); });
}

[[noreturn]] void raiseNoSuchField(std::string_view name, std::string_view table,
                                   const std::vector<std::string_view> &fields)
{
    raiseError(MissingParameter, "No such field '" + std::string(name) + "' in table '" + std::string(table) +
                                     "'." + suggestion(name, fields));
}

const TableColumn &requireColumn(const Table &table, std::string_view name)
{
    const TableColumn *column = table.column(name);
    if (column == nullptr)
        raiseNoSuchField(name, table.name, table.columnNames());
    return *column;
}

// SQLite keeps such names for itself.
void requireOwnName(std::string_view name)
{
    constexpr std::string_view reserved = "sqlite_";
    if (sameWord(name.substr(0, reserved.size()), reserved))
        raiseError(SyntaxError, "'" + std::string(name) + "' is not a valid name. Names do not begin with '" +
                                    std::string(reserved) + "'.");
}

/// The names of one list.
class DifferentNames final
{
public:
    void add(std::string_view name)
    {
        if (!m_taken.insert(foldCase(name)).second)
            raiseError(SyntaxError,
                       "Cannot define field more than once. '" + std::string(name) + "' stands there twice.");
    }

private:
    std::set<std::string> m_taken;
};

void requireSoundColumns(const CreateTable &table)
{
    std::vector<std::string_view> names;
    DifferentNames columns;
    for (const ColumnDefinition &column : table.columns) {
        columns.add(column.name);
        names.push_back(column.name);
    }
    DifferentNames key;
    for (const std::string_view column : table.primaryKey) {
        key.add(column);
        if (!isAmong(column, names))
            raiseNoSuchField(column, table.table, names);
    }
}

const Table &existing(Catalog &catalog, std::string_view name)
{
    const Table *table = catalog.find(name);
    if (table == nullptr)
        raiseError(MissingTable,
                   "Table '" + std::string(name) + "' does not exist." + catalog.suggestion(name));
    return *table;
}

} // namespace

std::string columnDefinition(std::string_view name, ColumnType type, bool notNull, bool counter)
{
    std::string sql = quotedName(name) + ' ';
    if (counter)
        return sql + "INTEGER PRIMARY KEY AUTOINCREMENT CHECK (" + quotedName(name) + " <= 2147483647)";
    sql += declaration(type.type == DataType::Counter ? ColumnType{DataType::Long} : type);
    if (isText(type.type))
        sql += " COLLATE JET";
    if (type.type == DataType::Boolean)
        return sql + " NOT NULL DEFAULT 0";
    return notNull ? sql + " NOT NULL" : sql;
}

void requireNewTable(Catalog &catalog, std::string_view name)
{
    requireOwnName(name);
    if (catalog.find(name) != nullptr)
        raiseError(TableExists, "Table '" + std::string(name) + "' already exists.");
    if (catalog.isTaken(name))
        raiseError(TableExists, "'" + std::string(name) + "' is the name of an index already.");
}

std::string schemaChange(Catalog &catalog, const CreateTable &table)
{
    if (std::max(table.columns.size(), table.primaryKey.size()) > mostColumns)
        raiseError(SyntaxError, queryTooComplex);
    requireNewTable(catalog, table.table);
    requireSoundColumns(table);
    std::string columns;
    std::string counter;
    for (const ColumnDefinition &column : table.columns) {
        // SQLite counts in the primary key only, so a counter is always that.
        const bool counts = column.type.type == DataType::Counter;
        if (counts && !counter.empty())
            raiseError(SyntaxError, "Table '" + std::string(table.table) + "' has more than one counter.");
        if (counts)
            counter = column.name;
        columns += (columns.empty() ? "" : ", ") +
                   columnDefinition(column.name, column.type,
                                    column.notNull || isAmong(column.name, table.primaryKey), counts) +
                   (column.unique && !counts ? " UNIQUE" : "");
    }
    const bool onCounter = table.primaryKey.size() == 1 && sameName(table.primaryKey[0], counter);
    if (!table.primaryKey.empty() && !onCounter) {
        std::string key;
        for (const std::string_view name : table.primaryKey) {
            const auto column = std::ranges::find_if(
                table.columns, [&](const ColumnDefinition &other) { return sameName(other.name, name); });
            key += (key.empty() ? "" : ", ") + quotedName(column->name);
        }
        columns += (counter.empty() ? ", PRIMARY KEY (" : ", UNIQUE (") + key + ')';
    }
    return "CREATE TABLE " + quotedName(table.table) + " (" + columns + ')';
}

std::string schemaChange(Catalog &catalog, const CreateIndex &index)
{
    const Table &table = catalog.table(index.table);
    requireOwnName(index.index);
    if (!catalog.indexName(table, index.index).empty())
        raiseError(Failure, "Table '" + table.name + "' already has an index named '" +
                                std::string(index.index) + "'.");
    std::string columns;
    DifferentNames names;
    for (const auto &[name, descending] : index.columns) {
        names.add(name);
        // SQLite does not fold the case of accented letters: only the name of the definition will do.
        columns += (columns.empty() ? "" : ", ") + quotedName(requireColumn(table, name).name) +
                   (descending ? " DESC" : "");
    }
    return std::string(index.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") +
           quotedName(catalog.freeIndexName(table, index.index)) + " ON " + quotedName(table.name) + " (" +
           columns + ')';
}

std::string schemaChange(Catalog &catalog, const DropTable &table)
{
    return "DROP TABLE " + quotedName(existing(catalog, table.table).name);
}

std::string schemaChange(Catalog &catalog, const DropIndex &index)
{
    const Table &table = existing(catalog, index.table);
    const std::string name = catalog.indexName(table, index.index);
    if (name.empty())
        raiseError(Failure,
                   "No such index '" + std::string(index.index) + "' on table '" + table.name + "'.");
    return "DROP INDEX " + quotedName(name);
}

} // namespace jet
