#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"

#include <algorithm>

namespace jet {
namespace {

constexpr std::string_view unnamedQuery = "%query";

bool hasJoin(const std::unique_ptr<Source> &source)
{
    return source->left != nullptr;
}

bool hasOuterJoin(const std::unique_ptr<Source> &source)
{
    return hasJoin(source) &&
           (source->join != JoinKind::Inner || hasOuterJoin(source->left) || hasOuterJoin(source->right));
}

void collectColumns(const Expression &expression, std::vector<const Expression *> &columns)
{
    if (expression.kind == ExpressionKind::Column)
        columns.push_back(&expression);
    for (const ExpressionPtr &argument : expression.arguments)
        collectColumns(*argument, columns);
}

/// Whether the table or query of that name is one of those joined.
bool joins(const Source &source, const ScopeSource &sought)
{
    if (source.left)
        return joins(*source.left, sought) || joins(*source.right, sought);
    if (source.query && source.alias.empty())
        return sought.name.starts_with(unnamedQuery);
    return sameName(source.alias.empty() ? source.table : source.alias, sought.name);
}

} // namespace

void Emitter::addSources(const Source &source, Scope &scope)
{
    if (source.left) {
        addSources(*source.left, scope);
        addSources(*source.right, scope);
        return;
    }
    ScopeSource entry;
    if (source.query) {
        const Rows rows = query(*source.query, scope.outer);
        for (const OutputColumn &column : rows.columns)
            entry.columns.push_back({column.name, column.type, column.stored});
        entry.name = source.alias.empty() ? std::string(unnamedQuery) + std::to_string(++m_subqueries)
                                          : std::string(source.alias);
        m_derivedTables[&source] = {.rows = rows.sql, .name = entry.name};
    } else {
        const Table &table = m_catalog.table(source.table);
        entry.name = source.alias.empty() ? table.name : std::string(source.alias);
        entry.columns = table.columns;
        entry.table = table.name;
    }
    if (scope.source(entry.name) != nullptr)
        raiseError(SyntaxError, "Syntax error in FROM clause. The name '" + entry.name +
                                    "' stands there twice; give one of the two an alias.");
    scope.sources.push_back(std::move(entry));
}

void Emitter::addSources(const std::vector<std::unique_ptr<Source>> &sources, Scope &scope)
{
    for (const std::unique_ptr<Source> &source : sources)
        addSources(*source, scope);
}

std::string Emitter::from(const std::vector<std::unique_ptr<Source>> &sources, Scope &scope)
{
    std::string sql;
    for (const std::unique_ptr<Source> &source : sources) {
        const std::string part = joined(*source, scope);
        sql += sql.empty() ? part : source->left ? " CROSS JOIN (" + part + ')' : " CROSS JOIN " + part;
    }
    return sql;
}

std::string Emitter::rowIdOf(const ScopeSource &source, const std::vector<std::unique_ptr<Source>> &sources,
                             Scope &scope) const
{
    // SQLite knows no row ids of the tables of a join in parentheses, and none of a query.
    const bool nested = sources.size() > 1 ? std::ranges::any_of(sources, hasJoin) : hasOuterJoin(sources[0]);
    const bool given = nested || !source.isTable();
    scope.sources[std::size_t(&source - scope.sources.data())].givesRowId = given;
    return quotedName(source.name) + '.' +
           (given ? "\"%row\"" : std::string(rowIdName(m_catalog.table(source.table))));
}

// What stands outside of a join is not known in its condition.
std::string Emitter::joinCondition(const Source &join, Scope &scope)
{
    const std::size_t before = scope.borrowed.size();
    std::string sql = conditionOf(*join.on, scope, "JOIN operation");
    std::vector<const Expression *> columns;
    for (std::size_t i = before; i < scope.borrowed.size(); ++i)
        collectColumns(*scope.borrowed[i], columns);
    collectColumns(*join.on, columns);
    for (const Expression *column : columns) {
        const Scope::Found found = scope.find(column->qualifier, column->name);
        if (found.source != nullptr && !joins(join, *found.source))
            raiseError(SyntaxError, "Join expression not supported. '" + excerpt(column->text) +
                                        "' is not a field of the tables that are joined here.");
    }
    return sql;
}

// A join of inner joins only is written flat, with all conditions at its end: SQLite would
// work a nested one out on its own, without the indexes of its tables.
void Emitter::innerParts(const Source &source, Scope &scope, std::vector<std::string> &tables,
                         std::vector<std::string> &conditions)
{
    if (!source.left || source.join != JoinKind::Inner) {
        tables.push_back(source.left && !tables.empty() ? '(' + joined(source, scope) + ')'
                                                        : joined(source, scope));
        return;
    }
    innerParts(*source.left, scope, tables, conditions);
    innerParts(*source.right, scope, tables, conditions);
    conditions.push_back(joinCondition(source, scope));
}

std::string Emitter::joined(const Source &source, Scope &scope)
{
    if (!source.left) {
        if (source.query) {
            const DerivedTable &derived = m_derivedTables.at(&source);
            const bool givesRowId = scope.source(derived.name)->givesRowId;
            return (givesRowId ? "(SELECT ROW_NUMBER() OVER () AS \"%row\", * FROM (" : "(") + derived.rows +
                   (givesRowId ? ")) AS " : ") AS ") + quotedName(derived.name);
        }
        const Table &table = m_catalog.table(source.table);
        const ScopeSource &entry = *scope.source(source.alias.empty() ? table.name : source.alias);
        std::string sql = quotedName(table.name);
        if (entry.givesRowId)
            return "(SELECT " + std::string(rowIdName(table)) + " AS \"%row\", * FROM " + sql + ") AS " +
                   quotedName(entry.name);
        if (!source.alias.empty())
            sql += " AS " + quotedName(source.alias);
        return sql;
    }
    if (source.join == JoinKind::Inner) {
        std::vector<std::string> tables;
        std::vector<std::string> conditions;
        innerParts(source, scope, tables, conditions);
        std::string sql;
        for (const std::string &table : tables)
            sql += (sql.empty() ? "" : " INNER JOIN ") + table;
        sql += " ON ";
        for (std::size_t i = 0; i < conditions.size(); ++i)
            sql += (i == 0 ? "(" : " AND (") + conditions[i] + ')';
        return sql;
    }
    std::string right = joined(*source.right, scope);
    if (source.right->left)
        right = '(' + right + ')';
    return joined(*source.left, scope) + (source.join == JoinKind::Left ? " LEFT JOIN " : " RIGHT JOIN ") +
           right + " ON " + joinCondition(source, scope);
}

} // namespace jet
