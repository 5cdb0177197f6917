#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/schemachange.h"

#include <algorithm>

namespace jet {
namespace {

bool holdsQuery(const Expression &expression)
{
    return expression.query != nullptr ||
           std::ranges::any_of(expression.arguments,
                               [](const ExpressionPtr &argument) { return holdsQuery(*argument); });
}

bool holdsQuery(const Update &update)
{
    return (update.where && holdsQuery(*update.where)) ||
           std::ranges::any_of(update.assignments,
                               [](const Assignment &assignment) { return holdsQuery(*assignment.value); });
}

const TableColumn *requireDestination(const Table &table, std::string_view name)
{
    const TableColumn *column = table.column(name);
    if (column == nullptr)
        raiseError(SyntaxError,
                   "The INSERT INTO statement contains the following unknown field name: '" +
                       std::string(name) +
                       "'.  Make sure you have typed the name correctly, and try the operation again." +
                       suggestion(name, table.columnNames()));
    return column;
}

} // namespace

EmittedStatement Emitter::emit(const Statement &statement)
{
    EmittedStatement result;
    std::visit(
        [&](const auto &kind) {
            if constexpr (requires { write(kind, result); })
                write(kind, result);
            else
                result.sql = schemaChange(m_catalog, kind);
        },
        statement);
    const auto *query = std::get_if<Query>(&statement);
    const bool changesRows = std::holds_alternative<Insert>(statement) ||
                             std::holds_alternative<Update>(statement) ||
                             std::holds_alternative<Delete>(statement);
    const bool reads = query != nullptr && query->arms.front().into.empty();
    result.writes = !reads;
    result.changesSchema = !reads && !changesRows;
    std::sort(m_pinned.begin(), m_pinned.end());
    m_pinned.erase(std::unique(m_pinned.begin(), m_pinned.end()), m_pinned.end());
    result.pinned = m_pinned;
    return result;
}

void Emitter::write(const Query &source, EmittedStatement &result)
{
    const std::string_view into = source.arms.front().into;
    const Rows rows = query(source, nullptr, !into.empty());
    result.sql = rows.sql;
    if (into.empty()) {
        result.columns = rows.columns;
        return;
    }
    requireNewTable(m_catalog, into);
    std::string columns;
    std::string values;
    for (std::size_t i = 0; i < rows.columns.size(); ++i) {
        ColumnType type = rows.columns[i].type;
        // Only a column's text is known to fit the width that it comes with.
        if (type.type == DataType::Unknown || (type.type == DataType::Text && !rows.columns[i].stored))
            type = {DataType::Memo};
        if (type.type == DataType::Wide)
            type = {DataType::Double};
        const bool fits = isText(type.type) || (rows.columns[i].stored && type.type != DataType::Boolean);
        const Piece piece{.sql = numberedName(i), .type = type, .column = true};
        columns += (i == 0 ? "" : ", ") + columnDefinition(rows.columns[i].name, type, false, false);
        values += (i == 0 ? "" : ", ") + (fits ? piece.sql : coerced(piece, {rows.columns[i].name, type}));
    }
    result.before.push_back("CREATE TABLE " + quotedName(into) + " (" + columns + ')');
    result.sql = "INSERT INTO " + quotedName(into) + " SELECT " + values + " FROM (" + rows.sql + ')';
}

// What a column of its type takes of a value; `exact` values are taken as they are.
std::string Emitter::coerced(const Piece &piece, const TableColumn &column)
{
    const DataType from = piece.type.type;
    const DataType to = column.type.type;
    const std::string sql = value(piece);
    const auto through = [&](const char *function) { return std::string(function) + '(' + sql + ')'; };
    switch (to) {
    case DataType::Boolean:
        if (from == DataType::Boolean)
            return "IFNULL(" + sql + ", 0)";
        if (isNumber(from))
            return "IFNULL(-(" + sql + " <> 0), 0)";
        return "IFNULL(" + through("jet_tobool") + ", 0)";
    case DataType::Byte:
        return from == DataType::Byte && piece.stored ? sql : through("jet_tobyte");
    case DataType::Short:
        return (from == DataType::Short || from == DataType::Byte) && piece.stored ? sql
                                                                                   : through("jet_toshort");
    case DataType::Long:
    case DataType::Counter:
        return isWhole(from) && piece.exact ? sql : through("jet_tolong");
    case DataType::Single:
        return from == DataType::Single && piece.stored ? sql : through("jet_tosingle");
    case DataType::Double:
        return isNumber(from) ? sql : through("jet_todouble");
    case DataType::Currency:
        return through("jet_tocurrency");
    case DataType::Date:
        return from == DataType::Date && piece.stored ? sql : through("jet_todate");
    case DataType::Text:
    case DataType::Memo: {
        if (column.type.width == 0)
            return writtenOut(piece);
        return "jet_fit(" + writtenOut(piece) + ", " + std::to_string(column.type.width) + ')';
    }
    case DataType::Wide: // no column is
    case DataType::Unknown:
        break;
    }
    return sql;
}

void Emitter::write(const Insert &insert, EmittedStatement &result)
{
    const Table *table = m_catalog.find(insert.table);
    if (table == nullptr)
        raiseError(MissingTable, "Could not find output table '" + std::string(insert.table) + "'." +
                                     m_catalog.suggestion(insert.table));

    std::vector<const TableColumn *> columns;
    for (const std::string_view name : insert.columns) {
        const TableColumn *column = requireDestination(*table, name);
        if (std::find(columns.begin(), columns.end(), column) != columns.end())
            raiseError(SyntaxError, "Duplicate output destination '" + column->name + "'.");
        columns.push_back(column);
    }
    const std::string rows = insertedRows(insert, columns, *table);
    std::string list;
    for (const TableColumn *column : columns)
        list += (list.empty() ? " (" : ", ") + quotedName(column->name);
    result.sql = "INSERT INTO " + quotedName(table->name) + list + ") " + rows;
}

std::string Emitter::insertedRows(const Insert &insert, std::vector<const TableColumn *> &columns,
                                  const Table &table)
{
    const auto takeAllColumns = [&] {
        for (const TableColumn &column : table.columns)
            columns.push_back(&column);
    };
    const auto requireCount = [&](std::size_t count) {
        if (count != columns.size())
            raiseError(SyntaxError, "Number of query values and destination fields are not the same.");
    };

    std::string sql;
    if (!insert.query) {
        if (columns.empty())
            takeAllColumns();
        requireCount(insert.values.size());
        Scope scope;
        m_clause = "INSERT INTO statement";
        for (std::size_t i = 0; i < columns.size(); ++i)
            sql += (i == 0 ? "VALUES (" : ", ") + coerced(expression(*insert.values[i], scope), *columns[i]);
        return sql + ')';
    }

    const Rows rows = query(*insert.query, nullptr, true);
    const Select &first = insert.query->arms.front();
    const bool byName = columns.empty() && first.items.size() == 1 && !first.items[0].expression;
    if (byName) {
        for (const OutputColumn &output : rows.columns)
            columns.push_back(requireDestination(table, output.name));
    } else if (columns.empty())
        takeAllColumns();
    requireCount(rows.columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Piece piece{.sql = numberedName(i),
                          .type = rows.columns[i].type,
                          .column = true,
                          .stored = rows.columns[i].stored};
        sql += (i == 0 ? "SELECT " : ", ") + coerced(piece, *columns[i]);
    }
    return sql + " FROM (" + rows.sql + ')';
}

void Emitter::write(const Update &update, EmittedStatement &result)
{
    Scope scope;
    addSources(update.sources, scope);
    m_clause = "UPDATE statement";
    const ScopeSource *target = nullptr;
    std::string assignments;
    std::string values;
    std::vector<const TableColumn *> changedColumns;
    // A sub-query may read the rows that change.
    const bool workedOutFirst = scope.sources.size() > 1 || holdsQuery(update);
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        const Assignment &assignment = update.assignments[i];
        const Scope::Found found = scope.find(assignment.column->qualifier, assignment.column->name);
        if (found.column == nullptr)
            raiseUnknown(*assignment.column, scope);
        if (!found.source->isTable())
            raiseError(Failure, "Operation must use an updatable query. '" +
                                    excerpt(assignment.column->text) +
                                    "' is a column of a query, not of a table.");
        if (target != nullptr && target != found.source)
            raiseError(Failure, "Operation must use an updatable query. '" + target->name + "' and '" +
                                    found.source->name + "' cannot be changed at once.");
        if (found.column->type.type == DataType::Counter)
            raiseError(Failure, "Cannot update '" + found.column->name + "'; field not updateable.");
        if (std::find(changedColumns.begin(), changedColumns.end(), found.column) != changedColumns.end())
            raiseError(SyntaxError, "Duplicate output destination '" + found.column->name + "'.");
        changedColumns.push_back(found.column);
        target = found.source;
        const std::string changed = coerced(expression(*assignment.value, scope), *found.column);
        const std::string name = "\"v" + std::to_string(i) + '"';
        assignments += (i == 0 ? "" : ", ") + quotedName(found.column->name) + " = " +
                       (workedOutFirst ? "\"%rows\"." + name : changed);
        values += ", " + changed + " AS " + name;
    }
    const std::string where = this->where(update.where, scope);
    const std::string row = workedOutFirst ? rowIdOf(*target, update.sources, scope) : std::string();
    const std::string source = from(update.sources, scope);
    if (!workedOutFirst) {
        result.sql = "UPDATE " + source + " SET " + assignments + where;
        return;
    }
    // Which rows change, and to what, is worked out before the first of them changes.
    result.sql = "UPDATE " + quotedName(target->table) + " AS \"%target\" SET " + assignments +
                 " FROM (SELECT " + row + " AS \"%row\"" + values + " FROM " + source + where +
                 ") AS \"%rows\" WHERE \"%target\"." +
                 std::string(rowIdName(m_catalog.table(target->table))) + " = \"%rows\".\"%row\"";
}

std::string Emitter::where(const ExpressionPtr &condition, Scope &scope)
{
    return condition ? " WHERE " + conditionOf(*condition, scope, "WHERE clause") : std::string();
}

void Emitter::write(const Delete &statement, EmittedStatement &result)
{
    Scope scope;
    addSources(statement.sources, scope);
    const std::string where = this->where(statement.where, scope);
    const bool joinedTables = scope.sources.size() > 1;
    if (joinedTables && statement.starOf.empty())
        raiseError(Failure, "Specify the table containing the records you want to delete.");
    const ScopeSource *target =
        statement.starOf.empty() ? &scope.sources.front() : scope.source(statement.starOf);
    if (target == nullptr)
        (void)m_catalog.table(statement.starOf);
    if (target == nullptr || !target->isTable())
        raiseError(Failure, "Could not delete from specified tables.");
    if (!joinedTables) {
        result.sql = "DELETE FROM " + from(statement.sources, scope) + where;
        return;
    }
    const std::string row = rowIdOf(*target, statement.sources, scope);
    result.sql = "DELETE FROM " + quotedName(target->table) + " WHERE " +
                 std::string(rowIdName(m_catalog.table(target->table))) + " IN (SELECT " + row + " FROM " +
                 from(statement.sources, scope) + where + ')';
}

} // namespace jet
