#pragma once

#include "platform/jet/catalog.h"
#include "platform/jet/tree.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// One table or query of a FROM clause, as names are looked up in it.
struct ScopeSource
{
    std::string name; ///< the alias, or the table's name
    std::vector<TableColumn> columns;
    std::string table;       ///< the table of the file, empty for a query
    bool givesRowId = false; ///< as a column named %row

    [[nodiscard]] bool isTable() const { return !table.empty(); }
};

/// What the names of one SELECT may mean; the outer SELECT's names lie behind.
struct Scope
{
    Scope *outer = nullptr;
    std::vector<ScopeSource> sources;
    /// The columns of the SELECT list whose aliases can be used.
    const std::vector<SelectItem> *items = nullptr;
    std::size_t visibleItems = 0;
    bool hasAggregate = false;
    /// The columns of this scope that sub-queries have used so far.
    std::vector<const Expression *> borrowed;

    struct Found
    {
        const ScopeSource *source = nullptr;
        const TableColumn *column = nullptr;
    };

    /// Looks in this scope alone. Raises SyntaxError for a name that more than one source has.
    [[nodiscard]] Found find(std::string_view qualifier, std::string_view name) const;
    [[nodiscard]] const ScopeSource *source(std::string_view name) const;
    [[nodiscard]] std::vector<std::string_view> sourceNames() const;
};

} // namespace jet
