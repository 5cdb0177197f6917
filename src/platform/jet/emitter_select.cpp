#include "platform/jet/collation.h"
#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/restored.h"
#include "platform/jet/schemachange.h"

#include <algorithm>

namespace jet {
namespace {

std::string keyName(std::size_t index)
{
    return "\"k" + std::to_string(index) + '"';
}

bool isWholeNumber(const Literal &literal)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return literal.kind == TokenKind::Integer ||
           (literal.kind == TokenKind::Float && std::ranges::all_of(literal.text, isDigit));
}

/// Whether a column of the source stands in the expression; a sub-query may hold any.
bool uses(const Expression &expression, const ScopeSource &source, const Scope &scope)
{
    if (expression.query)
        return true;
    if (expression.kind == ExpressionKind::Column)
        return scope.find(expression.qualifier, expression.name).source == &source;
    return std::ranges::any_of(expression.arguments,
                               [&](const ExpressionPtr &argument) { return uses(*argument, source, scope); });
}

[[noreturn]] void raiseNoSource()
{
    raiseError(SyntaxError, "Query input must contain at least one table or query.");
}

} // namespace

Emitter::Rows Emitter::query(const Query &query, Scope *outer, bool numbered)
{
    const ComplexityGuard guard(*this);
    const Restored aggregates(m_aggregates, Aggregates::Allowed);
    Rows rows = query.arms.size() == 1 ? select(query.arms[0], query.orderBy, outer, numbered)
                                       : unionOf(query, outer, numbered);
    requireBounded(rows.sql);
    return rows;
}

std::vector<OutputColumn> Emitter::unionColumns(const std::vector<Rows> &arms)
{
    std::vector<OutputColumn> columns = arms.front().columns;
    for (const Rows &arm : arms) {
        if (arm.columns.size() != columns.size())
            raiseError(SyntaxError,
                       "The number of columns in the two selected tables or queries of a union query do "
                       "not match.");
        for (std::size_t i = 0; i < columns.size(); ++i) {
            ColumnType &type = columns[i].type;
            const ColumnType other = arm.columns[i].type;
            columns[i].stored = columns[i].stored && arm.columns[i].stored && type.type == other.type;
            type = {commonType(type.type, other.type), std::max(type.width, other.width)};
        }
    }
    return columns;
}

// The rows of an arm as texts where another arm makes the column a text.
std::string Emitter::converted(const Rows &arm, const std::vector<OutputColumn> &columns, bool numbered)
{
    bool same = true;
    std::string list;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string name = numbered ? numberedName(i) : quotedName(arm.columns[i].name);
        const Piece piece{.sql = name, .type = arm.columns[i].type, .column = true};
        const std::string sql = as(columns[i].type.type, piece);
        same = same && sql == name;
        list += (i == 0 ? "" : ", ") + (sql == name ? name : '(' + sql + " COLLATE JET)") + " AS " + name;
    }
    return same ? arm.sql : "SELECT " + list + " FROM (" + arm.sql + ')';
}

Emitter::Rows Emitter::unionOf(const Query &query, Scope *outer, bool numbered)
{
    std::vector<Rows> arms;
    const std::vector<OrderItem> none;
    for (const Select &arm : query.arms) {
        // Only with TOP does a branch's own order tell which rows it gives.
        arms.push_back(select(arm, arm.top ? arm.orderBy : none, outer, numbered));
        if (arm.top)
            arms.back().sql = "SELECT * FROM (" + arms.back().sql + ')';
    }
    Rows result{.sql = {}, .columns = unionColumns(arms)};
    for (std::size_t i = 0; i < arms.size(); ++i) {
        if (i > 0)
            result.sql += query.unionAll[i - 1] ? " UNION ALL " : " UNION ";
        result.sql += converted(arms[i], result.columns, numbered);
    }
    const bool duplicatesDropped =
        std::find(query.unionAll.begin(), query.unionAll.end(), false) != query.unionAll.end();

    std::string order;
    const auto add = [&order](std::size_t position, bool descending) {
        order +=
            (order.empty() ? " ORDER BY " : ", ") + std::to_string(position) + (descending ? " DESC" : "");
    };
    for (const OrderItem &item : query.orderBy) {
        std::size_t position = 0;
        if (isPosition(item)) {
            position = this->position(item, result.columns.size());
        } else if (item.expression->kind == ExpressionKind::Column && item.expression->qualifier.empty()) {
            for (std::size_t i = 0; i < result.columns.size() && position == 0; ++i) {
                if (sameName(result.columns[i].name, item.expression->name))
                    position = i + 1;
            }
        } else
            raiseError(SyntaxError, "The rows of a union query are ordered by the names of its columns or by "
                                    "their positions only, not by '" +
                                        excerpt(item.expression->text) + "'.");
        if (position == 0)
            raiseError(SyntaxError,
                       "The ORDER BY expression (" + excerpt(item.expression->text) +
                           ") includes fields that are not selected by the query.  Only those fields "
                           "requested in the first query can be included in an ORDER BY expression.");
        add(position, item.descending);
    }
    // Dropping duplicates leaves the rows in their order.
    if (query.orderBy.empty() && duplicatesDropped) {
        for (std::size_t position = 1; position <= result.columns.size(); ++position)
            add(position, false);
    }
    result.sql += order;
    return result;
}

std::vector<Emitter::Output> Emitter::outputs(const Select &select, Scope &scope)
{
    std::vector<Output> result;
    const auto add = [&result](Output output) {
        if (result.size() == mostColumns)
            raiseError(SyntaxError, queryTooComplex);
        result.push_back(std::move(output));
    };
    scope.items = &select.items;
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const SelectItem &item = select.items[i];
        scope.visibleItems = i;
        if (item.expression) {
            Output output;
            output.piece = expression(*item.expression, scope);
            output.expression = item.expression.get();
            output.name = item.alias;
            if (item.alias.empty() && output.piece.column) {
                const Expression &column = *item.expression;
                for (Scope *at = &scope; at != nullptr && output.name.empty(); at = at->outer) {
                    if (const Scope::Found found = at->find(column.qualifier, column.name);
                        found.column != nullptr) {
                        output.name = found.column->name;
                        output.table = found.source->name;
                    }
                }
            }
            add(std::move(output));
            continue;
        }
        if (!item.starOf.empty() && scope.source(item.starOf) == nullptr)
            raiseMissingSource(item.starOf, scope.sourceNames());
        if (scope.sources.empty())
            raiseNoSource();
        for (const ScopeSource &source : scope.sources) {
            if (!item.starOf.empty() && !sameName(source.name, item.starOf))
                continue;
            for (const TableColumn &column : source.columns) {
                Output output;
                output.piece = columnPiece(source, column);
                output.name = column.name;
                output.table = source.name;
                add(std::move(output));
            }
        }
    }
    scope.visibleItems = select.items.size();
    nameOutputs(result);
    return result;
}

// Equal names of different tables are told apart by the table; what has no name or one that
// is taken is called Expr1000, Expr1001 ...
void Emitter::nameOutputs(std::vector<Output> &outputs)
{
    struct Tables
    {
        std::string first;
        bool several = false;
    };
    std::map<std::string, Tables> tablesOf;
    std::set<std::string> written;
    for (const Output &output : outputs) {
        const std::string name = foldCase(output.name);
        written.insert(name);
        if (output.table.empty())
            continue;
        const auto [entry, isNew] = tablesOf.try_emplace(name, Tables{output.table});
        entry->second.several = entry->second.several || !sameName(entry->second.first, output.table);
    }
    std::set<std::string> taken;
    int unnamed = 1000;
    for (Output &output : outputs) {
        if (!output.table.empty() && tablesOf.at(foldCase(output.name)).several)
            output.name = output.table + '.' + output.name;
        if (!output.name.empty() && taken.insert(foldCase(output.name)).second)
            continue;
        std::string name;
        do {
            output.name = "Expr" + std::to_string(unnamed++);
            name = foldCase(output.name);
        } while (written.contains(name) || !taken.insert(name).second);
    }
}

std::string Emitter::numberedName(std::size_t index)
{
    return "\"c" + std::to_string(index) + '"';
}

std::string Emitter::outputName(const Output &output, std::size_t index, bool numbered)
{
    return numbered ? numberedName(index) : quotedName(output.name);
}

Emitter::Rows Emitter::select(const Select &select, const std::vector<OrderItem> &order, Scope *outer,
                              bool numbered)
{
    Scope scope;
    scope.outer = outer;
    addSources(select.from, scope);
    const std::string rowGroups = select.distinctRow ? distinctRows(select, scope) : std::string();
    const std::string source = from(select.from, scope);
    scope.borrowed.clear(); // sub-queries before the grouping may use any column
    std::vector<Output> columns = outputs(select, scope);
    const bool listHasAggregate = scope.hasAggregate;
    if (select.from.empty() && select.where)
        raiseNoSource();

    std::string tail;
    if (!source.empty())
        tail += " FROM " + source;
    const std::size_t borrowed = scope.borrowed.size();
    if (select.where)
        tail += " WHERE " + conditionOf(*select.where, scope, "WHERE clause");
    std::string groups = groupsOf(select, scope);
    scope.borrowed.resize(borrowed);
    if (select.having)
        groups += " HAVING " + conditionOf(*select.having, scope, "HAVING clause", Aggregates::Allowed);

    std::vector<std::string> keys;
    for (const OrderItem &item : order)
        keys.push_back(orderKey(item, columns, select, scope));
    checkGrouping(select, columns, order, scope);
    // SQLite makes one group of all rows only where the list itself holds an aggregate.
    if (select.groupBy.empty() && !listHasAggregate && (scope.hasAggregate || select.having)) {
        Piece &first = columns.front().piece;
        first = {.sql = "(CASE WHEN COUNT(*) >= 0 THEN " + value(first) + " END)", .type = first.type};
    }
    tail += groups.empty() && !scope.hasAggregate ? rowGroups : groups;

    const bool ranked = select.top && (select.percent || !order.empty());
    Rows result;
    result.sql = select.distinct ? "SELECT DISTINCT " : "SELECT ";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        ColumnType type = columns[i].piece.type;
        result.columns.push_back({columns[i].name, type, columns[i].piece.stored});
        result.sql += (i == 0 ? "" : ", ") + collated(columns[i].piece) + " AS " +
                      outputName(columns[i], i, numbered || ranked);
    }
    if (ranked) {
        for (std::size_t i = 0; i < keys.size(); ++i)
            result.sql += ", " + keys[i] + " AS " + keyName(i);
        result.sql = withTop(select, result.sql + tail, columns, order, keys.size(), numbered);
        pin(select.topLiteral);
        return result;
    }
    result.sql += tail;
    for (std::size_t i = 0; i < keys.size(); ++i)
        result.sql += (i == 0 ? " ORDER BY " : ", ") + keys[i] + (order[i].descending ? " DESC" : "");
    if (select.top) {
        pin(select.topLiteral);
        result.sql += " LIMIT " + std::to_string(*select.top);
        result.limited = true;
    }
    return result;
}

std::string Emitter::groupsOf(const Select &select, Scope &scope)
{
    std::string groups;
    const Restored aggregates(m_aggregates, Aggregates::Forbidden);
    const Restored clause(m_clause, std::string_view("GROUP BY clause"));
    for (const ExpressionPtr &group : select.groupBy)
        groups += (groups.empty() ? " GROUP BY " : ", ") + collated(expression(*group, scope));
    return groups;
}

// Whether a number is a position shapes the SQL, also when it is none.
bool Emitter::isPosition(const OrderItem &item)
{
    if (item.expression->kind != ExpressionKind::Literal)
        return false;
    pin(item.expression->literal);
    return isWholeNumber(m_literals[std::size_t(item.expression->literal)]);
}

std::size_t Emitter::position(const OrderItem &item, std::size_t columns)
{
    const double position = m_literals[std::size_t(item.expression->literal)].number;
    if (position < 1 || position > double(columns))
        raiseError(SyntaxError, "Syntax error in ORDER BY clause. There is no column " +
                                    excerpt(item.expression->text) + " to order by.");
    return static_cast<std::size_t>(position);
}

std::string Emitter::orderKey(const OrderItem &item, const std::vector<Output> &outputs, const Select &select,
                              Scope &scope)
{
    if (isPosition(item)) {
        return collated(outputs[position(item, outputs.size()) - 1].piece);
    }
    std::string key = collated(expression(*item.expression, scope));
    if (select.distinct) {
        const std::string wanted = fingerprint(*item.expression, scope);
        const bool selected = std::any_of(outputs.begin(), outputs.end(), [&](const Output &output) {
            return (output.expression != nullptr ? fingerprint(*output.expression, scope)
                                                 : output.piece.text()) == wanted;
        });
        if (!selected)
            raiseError(SyntaxError,
                       "ORDER BY clause (" + excerpt(item.expression->text) + ") conflicts with DISTINCT.");
    }
    return key;
}

void Emitter::checkGrouping(const Select &select, const std::vector<Output> &outputs,
                            const std::vector<OrderItem> &order, Scope &scope)
{
    if (select.groupBy.empty() && !scope.hasAggregate && !select.having)
        return;
    const std::vector<const Expression *> borrowed = scope.borrowed;
    std::set<std::string> keys;
    for (const ExpressionPtr &group : select.groupBy)
        keys.insert(fingerprint(*group, scope));
    for (const Expression *column : borrowed)
        checkGrouped(*column, keys, scope);
    for (const Output &output : outputs) {
        if (output.expression != nullptr)
            checkGrouped(*output.expression, keys, scope);
        else if (!keys.contains(output.piece.text()))
            raiseError(SyntaxError, "Cannot group on fields selected with '*'.");
    }
    if (select.having)
        checkGrouped(*select.having, keys, scope);
    for (const OrderItem &item : order) {
        if (!isPosition(item))
            checkGrouped(*item.expression, keys, scope);
    }
}

void Emitter::checkGrouped(const Expression &source, const std::set<std::string> &keys, Scope &scope)
{
    if (source.kind == ExpressionKind::Literal || isAggregate(source))
        return;
    if (!keys.empty() && keys.contains(fingerprint(source, scope)))
        return;
    if (source.kind == ExpressionKind::Column && scope.find(source.qualifier, source.name).column != nullptr)
        raiseError(SyntaxError,
                   "You tried to execute a query that does not include the specified expression '" +
                       excerpt(source.text) + "' as part of an aggregate function.");
    for (const ExpressionPtr &argument : source.arguments)
        checkGrouped(*argument, keys, scope);
}

// Groups by the rows of the sources that are shown in part of the columns; nothing where all are.
std::string Emitter::distinctRows(const Select &select, Scope &scope) const
{
    std::vector<const ScopeSource *> shown;
    for (const ScopeSource &source : scope.sources) {
        const bool selected = std::ranges::any_of(select.items, [&](const SelectItem &item) {
            return item.expression ? uses(*item.expression, source, scope)
                                   : item.starOf.empty() || sameName(item.starOf, source.name);
        });
        if (selected)
            shown.push_back(&source);
    }
    std::string groups;
    for (std::size_t i = 0; i < shown.size() && shown.size() < scope.sources.size(); ++i)
        groups += (i == 0 ? " GROUP BY " : ", ") + rowIdOf(*shown[i], select.from, scope);
    return groups;
}

// TOP takes all rows that tie with the last one, so rows are ranked by their order.
std::string Emitter::withTop(const Select &select, const std::string &rows,
                             const std::vector<Output> &outputs, const std::vector<OrderItem> &order,
                             std::size_t keys, bool numbered) const
{
    std::string window;
    for (std::size_t i = 0; i < keys; ++i)
        window += (i == 0 ? "ORDER BY " : ", ") + keyName(i) + (order[i].descending ? " DESC" : "");
    std::string sql = "SELECT ";
    for (std::size_t i = 0; i < outputs.size(); ++i)
        sql += (i == 0 ? "" : ", ") + numberedName(i) + " AS " + outputName(outputs[i], i, numbered);
    sql += " FROM (SELECT *, " + std::string(keys == 0 ? "ROW_NUMBER" : "RANK") + "() OVER (" + window +
           ") AS \"%rank\", COUNT(*) OVER () AS \"%count\" FROM (" + rows + ")) WHERE \"%rank\" <= ";
    const std::string top = std::to_string(*select.top);
    sql += select.percent ? "(\"%count\" * " + top + " + 99) / 100" : top;
    return sql + " ORDER BY \"%rank\"";
}

} // namespace jet
