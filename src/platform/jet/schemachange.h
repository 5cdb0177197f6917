#pragma once

#include "platform/jet/catalog.h"
#include "platform/jet/tree.h"

#include <string>
#include <string_view>

namespace jet {

/// SQLite's bound for the columns of tables and results; asked before it, as it finds out late.
inline constexpr std::size_t mostColumns = 2000;

/// The statement in SQLite's words. Raises for tables, columns and indexes that are missing or exist already.
[[nodiscard]] std::string schemaChange(Catalog &catalog, const CreateTable &table);
[[nodiscard]] std::string schemaChange(Catalog &catalog, const CreateIndex &index);
[[nodiscard]] std::string schemaChange(Catalog &catalog, const DropTable &table);
[[nodiscard]] std::string schemaChange(Catalog &catalog, const DropIndex &index);

/// Raises when no table can be made of that name.
void requireNewTable(Catalog &catalog, std::string_view name);

/// A column as CREATE TABLE of SQLite defines it.
[[nodiscard]] std::string columnDefinition(std::string_view name, ColumnType type, bool notNull,
                                           bool counter);

} // namespace jet
