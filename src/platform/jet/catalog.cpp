#include "platform/jet/catalog.h"

#include "platform/jet/errortexts.h"
#include "platform/jet/sqlite.h"

#include <algorithm>
#include <charconv>

namespace jet {
namespace {

std::string_view textOf(sqlite3_stmt *statement, int column)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
    return text == nullptr
               ? std::string_view()
               : std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
}

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
        if (sameWord(candidate.name, column))
            return &candidate;
    }
    return nullptr;
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

void Catalog::refresh()
{
    const long long version = queryNumber(m_handle, "PRAGMA schema_version");
    if (version == m_version)
        return;
    m_version = version;
    m_tables.clear();
}

const Table *Catalog::find(std::string_view name)
{
    const std::string key = loweredWord(name);
    if (const auto known = m_tables.find(key); known != m_tables.end())
        return known->second.get();

    const StatementHandle named = prepareSqlite(
        m_handle, "SELECT name FROM sqlite_schema WHERE type = 'table' AND lower(name) = ?1 AND "
                  "name NOT LIKE 'sqlite!_%' ESCAPE '!'");
    sqlite3_bind_text(named.get(), 1, key.data(), static_cast<int>(key.size()), SQLITE_STATIC);
    int result = sqlite3_step(named.get());
    if (result == SQLITE_DONE)
        return nullptr;
    if (result != SQLITE_ROW)
        raiseSqlite(m_handle, result);
    auto table = std::make_unique<Table>();
    table->name = textOf(named.get(), 0);
    // The pragma itself: as a table of a SELECT it takes as long as all the rest of a small reading.
    const StatementHandle columns =
        prepareSqlite(m_handle, "PRAGMA table_info(" + quotedName(table->name) + ')');
    enum { Name = 1, Type = 2, NotNull = 3, PrimaryKey = 5 };
    while ((result = sqlite3_step(columns.get())) == SQLITE_ROW) {
        TableColumn column;
        column.name = textOf(columns.get(), Name);
        column.type =
            declaredType(textOf(columns.get(), Type), sqlite3_column_int(columns.get(), PrimaryKey) != 0);
        column.notNull = sqlite3_column_int(columns.get(), NotNull) != 0;
        table->columns.push_back(std::move(column));
    }
    if (result != SQLITE_DONE)
        raiseSqlite(m_handle, result);
    if (table->columns.empty())
        return nullptr;
    const auto counts = [](const TableColumn &column) { return column.type.type == DataType::Counter; };
    m_lastCounter.watch(table->name, std::ranges::any_of(table->columns, counts));
    return m_tables.emplace(key, std::move(table)).first->second.get();
}

bool Catalog::hasIndex(const Table &table, std::string_view index)
{
    const StatementHandle statement =
        prepareSqlite(m_handle, "SELECT 1 FROM sqlite_schema WHERE type = 'index' AND tbl_name = ?1 AND "
                                "lower(name) = ?2");
    const std::string key = loweredWord(index);
    sqlite3_bind_text(statement.get(), 1, table.name.data(), int(table.name.size()), SQLITE_STATIC);
    sqlite3_bind_text(statement.get(), 2, key.data(), int(key.size()), SQLITE_STATIC);
    return sqlite3_step(statement.get()) == SQLITE_ROW;
}

const Table &Catalog::table(std::string_view name)
{
    if (const Table *known = find(name))
        return *known;
    const std::vector<std::string> names = tableNames();
    raiseError(MissingTable, "The Microsoft Jet database engine cannot find the input table or query '" +
                                 std::string(name) +
                                 "'.  Make sure it exists and that its name is spelled correctly." +
                                 suggestion(name, {names.begin(), names.end()}));
}

std::vector<std::string> Catalog::tableNames()
{
    const StatementHandle statement = prepareSqlite(
        m_handle, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite!_%' "
                  "ESCAPE '!' ORDER BY name COLLATE JET");
    std::vector<std::string> names;
    int result = SQLITE_ROW;
    while ((result = sqlite3_step(statement.get())) == SQLITE_ROW)
        names.emplace_back(textOf(statement.get(), 0));
    if (result != SQLITE_DONE)
        raiseSqlite(m_handle, result);
    return names;
}

} // namespace jet
