#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"

namespace jet {

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
            entry.columns.push_back({column.name, column.type, false});
        entry.name =
            source.alias.empty() ? "%query" + std::to_string(++m_subqueries) : std::string(source.alias);
        m_derivedTables[&source] = '(' + rows.sql + ") AS " + quotedName(entry.name);
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

std::string Emitter::from(const std::vector<std::unique_ptr<Source>> &sources, Scope &scope)
{
    for (const std::unique_ptr<Source> &source : sources)
        addSources(*source, scope);
    std::string sql;
    for (const std::unique_ptr<Source> &source : sources) {
        const std::string part = joined(*source, scope);
        sql += sql.empty() ? part : source->left ? " CROSS JOIN (" + part + ')' : " CROSS JOIN " + part;
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
    conditions.push_back(conditionOf(*source.on, scope, "JOIN operation"));
}

std::string Emitter::joined(const Source &source, Scope &scope)
{
    if (!source.left) {
        if (source.query)
            return m_derivedTables.at(&source);
        const Table &table = m_catalog.table(source.table);
        std::string sql = quotedName(table.name);
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
           right + " ON " + conditionOf(*source.on, scope, "JOIN operation");
}

} // namespace jet
