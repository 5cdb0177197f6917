#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"

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
        return {.sql = "EXISTS (" + query(*source.query, &scope).sql + ')',
                .type = {DataType::Short},
                .condition = true};
    const Piece operand = expression(*source.arguments[0], scope);
    const Rows rows = singleColumn(source, scope, false);
    requireComparable(source, operand, {.sql = {}, .type = rows.columns[0].type});
    return {.sql = '(' + collated(operand) + (source.negated ? " NOT IN (" : " IN (") + rows.sql + "))",
            .type = {DataType::Short},
            .condition = true};
}

// Null comes out when no row decides and one of them compares with Null.
Emitter::Piece Emitter::quantified(const Expression &source, Scope &scope)
{
    const Piece operand = expression(*source.arguments[0], scope);
    const Rows rows = singleColumn(source, scope, true);
    requireComparable(source, operand, {.sql = {}, .type = rows.columns[0].type});
    if (source.name == (source.all ? "<>" : "="))
        return {.sql = '(' + collated(operand) + (source.all ? " NOT IN (" : " IN (") + rows.sql + "))",
                .type = {DataType::Short},
                .condition = true};
    const std::string name = quotedName("%any" + std::to_string(++m_subqueries));
    const std::string test =
        '(' + collated(operand) + ' ' + std::string(source.name) + ' ' + name + ".\"c0\")";
    const auto some = [&](const char *answer) {
        return "EXISTS (SELECT 1 FROM (" + rows.sql + ") AS " + name + " WHERE " + test + answer + ')';
    };
    return {.sql = "(CASE WHEN " + some(source.all ? " IS FALSE" : " IS TRUE") + " THEN " +
                   (source.all ? "0" : "1") + " WHEN " + some(" IS NULL") + " THEN NULL ELSE " +
                   (source.all ? "1" : "0") + " END)",
            .type = {DataType::Short},
            .condition = true};
}

Emitter::Piece Emitter::scalar(const Expression &source, Scope &scope)
{
    const Rows rows = singleColumn(source, scope, true);
    m_mayRaise = true;
    std::string sql = "(SELECT CASE WHEN COUNT(*) > 1 THEN jet_raise(";
    sql += std::to_string(Failure);
    sql += ", 'At most one record can be returned by this subquery.') ELSE MAX(\"c0\") END FROM (SELECT "
           "\"c0\" FROM (";
    sql += rows.sql;
    sql += ") LIMIT 2))";
    return {.sql = std::move(sql), .type = rows.columns[0].type};
}

} // namespace jet
