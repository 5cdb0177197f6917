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
    /// Without regard to case; null when there is none.
    [[nodiscard]] const TableColumn *column(std::string_view column) const;
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
    /// What is being emitted goes into a query within this one, where SQLite takes an aggregate that names no
    /// column of this one for its own.
    bool goesInside = false;
    /// The columns of this scope that sub-queries have used so far, and what they have used by its alias.
    std::vector<const Expression *> borrowed;

    struct Found
    {
        const ScopeSource *source = nullptr;
        const TableColumn *column = nullptr;
    };

    /// Looks in this scope alone. Raises SyntaxError for a name that more than one source has.
    [[nodiscard]] Found find(std::string_view qualifier, std::string_view name) const;
    /// The place in the list of a column of this alias, of those that can be used.
    [[nodiscard]] std::optional<std::size_t> itemNamed(std::string_view alias) const;
    /// Whether this scope, or one between the two, has a source of the same name as one of `further`, a scope
    /// behind this one.
    [[nodiscard]] bool hides(const Scope &further) const;
    [[nodiscard]] const ScopeSource *source(std::string_view name) const;
    [[nodiscard]] std::vector<std::string_view> sourceNames() const;
};

} // namespace jet
