#include "platform/jet/catalog.h"

#include "platform/jet/collation.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/sqlite.h"

#include <algorithm>
#include <charconv>

namespace jet {
namespace {

ColumnType declaredType(std::string_view declared, bool primaryKey)
{
    const std::size_t open = declared.find('(');
    ColumnType column;
    column.type = typeByName(declared.substr(0, open));
    if (open != std::string_view::npos && isText(column.type)) {
        column.type = DataType::Text;
        std::from_chars(declared.data() + open + 1, declared.data() + declared.size(), column.width);
    }
    if (primaryKey && sameWord(declared, "INTEGER"))
        column.type = DataType::Counter;
    return column;
}

std::string fullIndexName(const Table &table, std::string_view index)
{
    return table.name + '.' + std::string(index);
}

} // namespace

std::string quotedName(std::string_view name)
{
    std::string quoted = "\"";
    for (const char c : name) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    quoted += '"';
    return quoted;
}

const TableColumn *Table::column(std::string_view column) const
{
    for (const TableColumn &candidate : columns) {
        if (sameName(candidate.name, column))
            return &candidate;
    }
    return nullptr;
}

std::vector<std::string_view> Table::columnNames() const
{
    std::vector<std::string_view> names;
    for (const TableColumn &candidate : columns)
        names.push_back(candidate.name);
    return names;
}

std::string_view rowIdName(const Table &table)
{
    for (const std::string_view name : {"rowid", "oid", "_rowid_"}) {
        if (table.column(name) == nullptr)
            return name;
    }
    raiseError(Failure, "Operation must use an updatable query. The table '" + table.name +
                            "' has columns named RowID, OID and _RowID_.");
}

void Catalog::forget()
{
    m_tables.clear();
    m_names.clear();
}

const Table *Catalog::find(std::string_view name)
{
    const std::string key = foldCase(name);
    if (const auto known = m_tables.find(key); known != m_tables.end())
        return known->second.get();
    if (m_names.empty()) {
        for (std::string &table : tableNames()) {
            std::string folded = foldCase(table);
            m_names.emplace(std::move(folded), std::move(table));
        }
    }
    const auto named = m_names.find(key);
    if (named == m_names.end())
        return nullptr;

    auto table = std::make_unique<Table>();
    table->name = named->second;
    // The pragma itself: as a table of a SELECT it takes as long as all the rest of a small reading.
    const StatementHandle columns =
        prepareSqlite(m_handle, "PRAGMA table_info(" + quotedName(table->name) + ')');
    enum { Name = 1, Type = 2, PrimaryKey = 5 };
    forEachRow(m_handle, columns.get(), [&](sqlite3_stmt *row) {
        TableColumn column;
        column.name = textAt(row, Name);
        column.type = declaredType(textAt(row, Type), sqlite3_column_int(row, PrimaryKey) != 0);
        table->columns.push_back(std::move(column));
    });
    if (table->columns.empty())
        return nullptr;
    const auto counts = [](const TableColumn &column) { return column.type.type == DataType::Counter; };
    m_lastCounter.watch(table->name, std::ranges::any_of(table->columns, counts));
    return m_tables.emplace(key, std::move(table)).first->second.get();
}

std::string Catalog::indexName(const Table &table, std::string_view index)
{
    const StatementHandle statement = prepareSqlite(
        m_handle, "SELECT name FROM sqlite_schema WHERE type = 'index' AND tbl_name = ?1 AND sql NOTNULL");
    sqlite3_bind_text(statement.get(), 1, table.name.data(), int(table.name.size()), SQLITE_STATIC);
    const std::string inFull = fullIndexName(table, index);
    std::string found;
    forEachRow(m_handle, statement.get(), [&](sqlite3_stmt *row) {
        if (const std::string_view name = textAt(row, 0); sameName(name, index) || sameName(name, inFull))
            found = name;
    });
    return found;
}

bool Catalog::isTaken(std::string_view name)
{
    const StatementHandle statement =
        prepareSqlite(m_handle, "SELECT name FROM sqlite_schema WHERE type <> 'trigger'");
    bool taken = false;
    forEachRow(m_handle, statement.get(),
               [&](sqlite3_stmt *row) { taken = taken || sameName(textAt(row, 0), name); });
    return taken;
}

std::string Catalog::freeIndexName(const Table &table, std::string_view index)
{
    return isTaken(index) ? fullIndexName(table, index) : std::string(index);
}

const Table &Catalog::table(std::string_view name)
{
    if (const Table *known = find(name))
        return *known;
    const std::vector<std::string> names = tableNames();
    raiseMissingSource(name, {names.begin(), names.end()});
}

std::string Catalog::suggestion(std::string_view name)
{
    const std::vector<std::string> names = tableNames();
    return jet::suggestion(name, {names.begin(), names.end()});
}

std::vector<std::string> Catalog::tableNames()
{
    const StatementHandle statement = prepareSqlite(
        m_handle, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite!_%' "
                  "ESCAPE '!' ORDER BY name COLLATE JET");
    std::vector<std::string> names;
    forEachRow(m_handle, statement.get(), [&](sqlite3_stmt *row) { names.emplace_back(textAt(row, 0)); });
    return names;
}

} // namespace jet
