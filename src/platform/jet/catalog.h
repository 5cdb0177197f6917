#pragma once

#include "platform/jet/lastcounter.h"
#include "platform/jet/types.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct sqlite3;

namespace jet {

struct TableColumn
{
    std::string name;
    ColumnType type;
    bool stored = true; ///< false for what a query calculates: nothing holds it within its type
};

struct Table
{
    std::string name; ///< as its definition spells it
    std::vector<TableColumn> columns;

    /// Without regard to case; null when there is none.
    [[nodiscard]] const TableColumn *column(std::string_view column) const;
    [[nodiscard]] std::vector<std::string_view> columnNames() const;
};

/// A name of the row id of SQLite that no column of the table has taken. Raises Failure when all are taken.
[[nodiscard]] std::string_view rowIdName(const Table &table);

/// The tables of one open file. Read when first asked for.
class Catalog final
{
public:
    explicit Catalog(sqlite3 *handle) : m_handle(handle), m_lastCounter(handle) {}

    /// To be told when the tables have changed.
    void forget();
    /// The name that an index of the table has in the file, empty when the table has no such index. Indexes
    /// of two tables may have one name, while SQLite knows every name once: the second is called TABLE.INDEX
    /// there.
    [[nodiscard]] std::string indexName(const Table &table, std::string_view index);
    /// Whether a table or an index has the name.
    [[nodiscard]] bool isTaken(std::string_view name);
    /// What a new index is to be called in the file.
    [[nodiscard]] std::string freeIndexName(const Table &table, std::string_view index);
    /// The tables live until the next forget(). Raises MissingTable with the nearest known name.
    [[nodiscard]] const Table &table(std::string_view name);
    [[nodiscard]] const Table *find(std::string_view name);
    [[nodiscard]] std::vector<std::string> tableNames();
    [[nodiscard]] LastCounter &lastCounter() { return m_lastCounter; }
    /// " Did you mean 'NAME'?" with the nearest of the tables, or nothing when none is near.
    [[nodiscard]] std::string suggestion(std::string_view name);

private:
    sqlite3 *m_handle;
    LastCounter m_lastCounter;
    std::unordered_map<std::string, std::string> m_names; ///< of all tables, by the folded name
    std::unordered_map<std::string, std::unique_ptr<Table>> m_tables;
};

/// "name" for SQLite.
[[nodiscard]] std::string quotedName(std::string_view name);

} // namespace jet
