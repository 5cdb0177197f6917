#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/restored.h"

#include <algorithm>

namespace jet {

Emitter::Rows Emitter::singleColumn(const Expression &source, Scope &scope, bool numbered)
{
    Rows rows = query(*source.query, &scope, numbered);
    if (rows.columns.size() != 1)
        raiseError(SyntaxError,
                   "You have written a subquery that can return more than one field without using the "
                   "EXISTS reserved word in the main query's FROM clause.  Revise the SELECT statement of "
                   "the subquery to request only one field. Near '" +
                       excerpt(source.query->text) + "'.");
    return rows;
}

Emitter::Piece Emitter::subquery(const Expression &source, Scope &scope)
{
    if (source.kind == ExpressionKind::Exists)
        return conditionPiece("EXISTS (" + query(*source.query, &scope).sql + ')');
    const Piece operand = expression(*source.arguments[0], scope);
    const Rows rows = singleColumn(source, scope, false);
    requireComparable(source, operand, {.sql = {}, .type = rows.columns[0].type});
    return conditionPiece('(' + collated(operand) + (source.negated ? " NOT IN (" : " IN (") + rows.sql +
                          "))");
}

// ALL compares with the outermost of the rows; a Null among them leaves open what would be
// true, and no rows make it true. ANY is what ALL of the opposite is not.
Emitter::Piece Emitter::quantified(const Expression &source, Scope &scope)
{
    struct Comparison
    {
        std::string_view name;
        std::string_view opposite;
        const char *outermost; ///< of the rows: null for both of them
    };
    static constexpr Comparison comparisons[] = {
        {"<", ">=", "least"},    {"<=", ">", "least"}, {">", "<=", "greatest"},
        {">=", "<", "greatest"}, {"=", "<>", nullptr}, {"<>", "=", nullptr},
    };
    const Piece operand = [&] {
        const Restored inside(scope.goesInside, true);
        return expression(*source.arguments[0], scope);
    }();
    const Rows rows = singleColumn(source, scope, true);
    const Piece item{.sql = numberedName(0), .type = rows.columns[0].type};
    requireComparable(source, operand, item);
    if (source.name == (source.all ? "<>" : "="))
        return conditionPiece('(' + collated(operand) + (source.all ? " NOT IN (" : " IN (") + rows.sql +
                              "))");
    const auto named = [](std::string_view name) {
        return std::ranges::find(comparisons, name, &Comparison::name);
    };
    const Comparison &comparison = *named(source.all ? source.name : named(source.name)->opposite);
    const auto holds = [&](const char *outermost) {
        return collated(operand) + ' ' + std::string(comparison.name) + ' ' + outermost;
    };
    const std::string test = comparison.outermost != nullptr ? holds(comparison.outermost)
                                                             : holds("least") + " AND " + holds("greatest");
    // Materialized, rows that do not depend on the operand are read once for all operands.
    return conditionPiece(
        std::string(source.all ? "(" : "(NOT ") +
        "(WITH \"%rows\" AS MATERIALIZED (SELECT COUNT(*) AS number, COUNT(\"c0\") AS filled, "
        "MIN(" +
        collated(item) + ") AS least, MAX(" + collated(item) + ") AS greatest FROM (" + rows.sql +
        ")) SELECT number = 0 OR (" + test + " AND NULLIF(number = filled, 0)) FROM \"%rows\"))");
}

Emitter::Piece Emitter::scalar(const Expression &source, Scope &scope)
{
    const Rows rows = singleColumn(source, scope, true);
    std::string sql = "(SELECT CASE WHEN COUNT(*) > 1 THEN jet_raise(";
    sql += std::to_string(Failure);
    sql += ", 'At most one record can be returned by this subquery.') ELSE MAX(\"c0\") END FROM (";
    sql += rows.limited ? "SELECT \"c0\" FROM (" + rows.sql + ')' : rows.sql;
    sql += " LIMIT 2))";
    return {.sql = std::move(sql), .type = rows.columns[0].type};
}

} // namespace jet
