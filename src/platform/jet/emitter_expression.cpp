#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"

#include <array>

namespace jet {
namespace {

constexpr std::array<std::string_view, 4> constantWords = {"YES", "NO", "ON", "OFF"};
constexpr std::array<std::string_view, 3> clockWords = {"DATE", "NOW", "TIME"};

const char *typeWord(DataType type)
{
    if (isText(type))
        return "a text";
    if (type == DataType::Date)
        return "a date";
    return type == DataType::Boolean ? "a yes/no value" : "a number";
}

std::string inlineLiteral(const Literal &literal)
{
    return '\'' + std::to_string(static_cast<int>(literal.kind)) + std::string(literal.text) + '\'';
}

} // namespace

std::string Emitter::value(const Piece &piece)
{
    return piece.condition ? "(-(" + piece.sql + "))" : piece.sql;
}

std::string Emitter::condition(const Piece &piece)
{
    return piece.condition || piece.type.type == DataType::Boolean ? piece.sql : '(' + piece.sql + " <> 0)";
}

std::string Emitter::collated(const Piece &piece)
{
    const bool texts = isText(piece.type.type) || piece.type.type == DataType::Unknown;
    return texts && !piece.column ? '(' + value(piece) + " COLLATE JET)" : value(piece);
}

std::string Emitter::asText(const Piece &piece)
{
    if (piece.type.type == DataType::Date)
        return "jet_datetext(" + piece.sql + ')';
    if (piece.type.type == DataType::Boolean)
        return "jet_booltext(" + value(piece) + ')';
    return value(piece);
}

std::string Emitter::asNumber(const Piece &piece)
{
    if (!isText(piece.type.type) && piece.type.type != DataType::Unknown)
        return value(piece);
    m_mayRaise = true;
    return "jet_num(" + value(piece) + ')';
}

void Emitter::pin(int literal)
{
    m_pinned.push_back(literal);
}

std::string Emitter::fingerprint(const Expression &source, Scope &scope)
{
    const bool before = m_literalsAsValues;
    m_literalsAsValues = true;
    std::string result = expression(source, scope).sql;
    m_literalsAsValues = before;
    return result;
}

std::string Emitter::conditionOf(const Expression &source, Scope &scope, std::string_view clause)
{
    const Aggregates aggregates = m_aggregates;
    const std::string_view outerClause = m_clause;
    m_aggregates = clause == "HAVING clause" ? Aggregates::Allowed : Aggregates::Forbidden;
    m_clause = clause;
    const Piece piece = expression(source, scope);
    m_aggregates = aggregates;
    m_clause = outerClause;
    if (isText(piece.type.type))
        raiseTypeMismatch(source.text, "a condition", "a text");
    return condition(piece);
}

Emitter::Piece Emitter::expression(const Expression &source, Scope &scope)
{
    switch (source.kind) {
    case ExpressionKind::Literal:
        return literal(source);
    case ExpressionKind::Null:
        return {.sql = "NULL"};
    case ExpressionKind::Boolean:
        return {.sql = source.number != 0 ? "(-1)" : "0", .type = {DataType::Boolean}, .exact = true};
    case ExpressionKind::Column:
        return column(source, scope);
    case ExpressionKind::Identity:
        return {.sql = "last_insert_rowid()", .type = {DataType::Long}};
    case ExpressionKind::Negate: {
        const Piece operand = expression(*source.arguments[0], scope);
        const DataType type = isNumber(operand.type.type) ? operand.type.type : DataType::Double;
        return {.sql = "(-" + asNumber(operand) + ')',
                .type = {type == DataType::Boolean ? DataType::Long : type},
                .exact = operand.exact};
    }
    case ExpressionKind::BitNot:
        return {.sql = "(~" + asNumber(expression(*source.arguments[0], scope)) + ')',
                .type = {DataType::Long}};
    case ExpressionKind::Not:
        return {.sql = "(NOT " + condition(expression(*source.arguments[0], scope)) + ')',
                .type = {DataType::Short},
                .condition = true};
    case ExpressionKind::Arithmetic:
        return arithmetic(source, scope);
    case ExpressionKind::Join:
        return joinTexts(source, scope);
    case ExpressionKind::Logic:
        return logic(source, scope);
    case ExpressionKind::Compare:
        return compare(source, scope);
    case ExpressionKind::Like: {
        const std::string text = asText(expression(*source.arguments[0], scope));
        const std::string pattern = asText(expression(*source.arguments[1], scope));
        return {.sql =
                    std::string(source.negated ? "(NOT " : "(") + "jet_like(" + text + ", " + pattern + "))",
                .type = {DataType::Short},
                .condition = true};
    }
    case ExpressionKind::Between:
        return between(source, scope);
    case ExpressionKind::InList:
        return inList(source, scope);
    case ExpressionKind::IsNull: {
        const Piece operand = expression(*source.arguments[0], scope);
        return {.sql = '(' + value(operand) + (source.negated ? " IS NOT NULL)" : " IS NULL)"),
                .type = {DataType::Short},
                .condition = true};
    }
    case ExpressionKind::Exists:
    case ExpressionKind::InQuery:
        return subquery(source, scope);
    case ExpressionKind::Quantified:
        return quantified(source, scope);
    case ExpressionKind::Scalar:
        return scalar(source, scope);
    case ExpressionKind::CountRows:
    case ExpressionKind::Call:
        return call(source, scope);
    }
    return {};
}

Emitter::Piece Emitter::literal(const Expression &source)
{
    const Literal &literal = m_literals[std::size_t(source.literal)];
    Piece piece;
    if (m_literalsAsValues) {
        pin(source.literal);
        piece.sql = inlineLiteral(literal);
    } else
        piece.sql = '?' + std::to_string(source.literal + 1);
    switch (literal.kind) {
    case TokenKind::Integer:
        piece.type = {DataType::Long};
        piece.exact = true;
        break;
    case TokenKind::Float:
        piece.type = {DataType::Double};
        break;
    case TokenKind::Date:
        piece.type = {DataType::Date};
        break;
    default:
        piece.type = {DataType::Text};
    }
    return piece;
}

Emitter::Piece Emitter::column(const Expression &source, Scope &scope)
{
    for (Scope *at = &scope; at != nullptr; at = at->outer) {
        if (const Scope::Found found = at->find(source.qualifier, source.name); found.column != nullptr)
            return {.sql = quotedName(found.source->name) + '.' + quotedName(found.column->name),
                    .type = found.column->type,
                    .column = true,
                    .exact = isWhole(found.column->type.type)};
    }
    return alias(source, scope);
}

// A name that no table has: a column of the list under its alias, a constant, the clock.
Emitter::Piece Emitter::alias(const Expression &source, Scope &scope)
{
    if (!source.qualifier.empty())
        raiseUnknown(source, scope);
    for (std::size_t i = 0; scope.items != nullptr && i < scope.visibleItems; ++i) {
        const SelectItem &item = (*scope.items)[i];
        if (!item.expression || !sameWord(item.alias, source.name))
            continue;
        const std::size_t visible = scope.visibleItems;
        scope.visibleItems = i;
        Piece piece = expression(*item.expression, scope);
        scope.visibleItems = visible;
        return piece;
    }
    if (!source.bracketed) {
        for (const std::string_view word : constantWords) {
            if (sameWord(word, source.name))
                return {.sql = word == "YES" || word == "ON" ? "(-1)" : "0",
                        .type = {DataType::Boolean},
                        .exact = true};
        }
        for (const std::string_view word : clockWords) {
            if (sameWord(word, source.name)) {
                Expression call;
                call.kind = ExpressionKind::Call;
                call.name = word;
                call.text = source.text;
                return function(call, scope);
            }
        }
    }
    raiseUnknown(source, scope);
}

void Emitter::raiseUnknown(const Expression &source, const Scope &scope) const
{
    std::vector<std::string_view> names;
    for (const Scope *at = &scope; at != nullptr; at = at->outer) {
        for (const ScopeSource &table : at->sources) {
            if (!source.qualifier.empty() && !sameWord(table.name, source.qualifier))
                continue;
            for (const TableColumn &column : table.columns)
                names.push_back(column.name);
        }
    }
    raiseError(MissingParameter, "No value given for one or more required parameters. '" +
                                     std::string(source.text) + "' is not known here." +
                                     suggestion(source.name, names));
}

void Emitter::requireComparable(const Expression &source, const Piece &left, const Piece &right) const
{
    if (!comparable(left.type.type, right.type.type))
        raiseTypeMismatch(source.text, typeWord(left.type.type), typeWord(right.type.type));
}

Emitter::Piece Emitter::arithmetic(const Expression &source, Scope &scope)
{
    const Piece left = expression(*source.arguments[0], scope);
    const Piece right = expression(*source.arguments[1], scope);
    const std::string_view sign = source.name;
    if (sign == "+" && isText(left.type.type) && isText(right.type.type))
        return {.sql = '(' + value(left) + " || " + value(right) + ')', .type = {DataType::Memo}};

    const bool runningTells = isText(commonType(left.type.type, right.type.type)) &&
                              (left.type.type == DataType::Unknown || right.type.type == DataType::Unknown);
    if (sign == "+" && runningTells) {
        m_mayRaise = true;
        return {.sql = "jet_add(" + value(left) + ", " + value(right) + ')', .type = {DataType::Unknown}};
    }

    const std::string a = asNumber(left);
    const std::string b = asNumber(right);
    const bool whole = isWhole(left.type.type) && isWhole(right.type.type);
    const bool leftDate = left.type.type == DataType::Date;
    const bool rightDate = right.type.type == DataType::Date;
    const auto infix = [&](const char *op, DataType type) {
        return Piece{.sql = '(' + a + op + b + ')', .type = {type}};
    };
    const auto call = [&](const char *name, DataType type) {
        m_mayRaise = true;
        return Piece{.sql = std::string(name) + '(' + a + ", " + b + ')', .type = {type}};
    };
    const DataType number = whole ? DataType::Long : DataType::Double;
    if (sign == "+")
        return infix(" + ", leftDate || rightDate ? DataType::Date : number);
    if (sign == "-")
        return infix(" - ", leftDate && !rightDate ? DataType::Date : number);
    if (sign == "*")
        return infix(" * ", number);
    if (sign == "/")
        return call("jet_div", DataType::Double);
    if (sign == "\\")
        return call("jet_idiv", DataType::Long);
    if (sign == "MOD")
        return call("jet_mod", DataType::Long);
    if (sign == "^")
        return call("jet_pow", DataType::Double);
    if (sign == "BAND")
        return infix(" & ", DataType::Long);
    if (sign == "BOR")
        return infix(" | ", DataType::Long);
    return {.sql = "((" + a + " | " + b + ") & ~(" + a + " & " + b + "))", .type = {DataType::Long}};
}

Emitter::Piece Emitter::joinTexts(const Expression &source, Scope &scope)
{
    std::string sql;
    for (const ExpressionPtr &operand : source.arguments)
        sql += (sql.empty() ? "jet_cat(" : ", ") + asText(expression(*operand, scope));
    return {.sql = sql + ')', .type = {DataType::Text}};
}

Emitter::Piece Emitter::logic(const Expression &source, Scope &scope)
{
    const Piece left = expression(*source.arguments[0], scope);
    const Piece right = expression(*source.arguments[1], scope);
    for (const Piece *side : {&left, &right}) {
        if (isText(side->type.type))
            raiseTypeMismatch(source.text, "a condition", "a text");
    }
    const std::string a = condition(left);
    const std::string b = condition(right);
    const std::string_view word = source.name;
    std::string sql;
    if (word == "AND" || word == "OR")
        sql = '(' + a + ' ' + std::string(word) + ' ' + b + ')';
    else if (word == "IMP")
        sql = "((NOT " + a + ") OR " + b + ')';
    else
        sql = "((NOT " + a + (word == "XOR" ? ") <> (NOT " : ") = (NOT ") + b + "))";
    return {.sql = sql, .type = {DataType::Short}, .condition = true};
}

Emitter::Piece Emitter::compare(const Expression &source, Scope &scope)
{
    const Piece left = expression(*source.arguments[0], scope);
    const Piece right = expression(*source.arguments[1], scope);
    requireComparable(source, left, right);
    // A column's own collation serves; two expressions need it told.
    const std::string a = left.column || right.column ? value(left) : collated(left);
    return {.sql = '(' + a + ' ' + std::string(source.name) + ' ' + value(right) + ')',
            .type = {DataType::Short},
            .condition = true};
}

Emitter::Piece Emitter::between(const Expression &source, Scope &scope)
{
    const Piece operand = expression(*source.arguments[0], scope);
    const Piece low = expression(*source.arguments[1], scope);
    const Piece high = expression(*source.arguments[2], scope);
    requireComparable(source, operand, low);
    requireComparable(source, operand, high);
    requireComparable(source, low, high);
    return {.sql = '(' + collated(operand) + (source.negated ? " NOT" : "") + " BETWEEN MIN(" +
                   collated(low) + ", " + value(high) + ") AND MAX(" + collated(low) + ", " + value(high) +
                   "))",
            .type = {DataType::Short},
            .condition = true};
}

Emitter::Piece Emitter::inList(const Expression &source, Scope &scope)
{
    const Piece operand = expression(*source.arguments[0], scope);
    std::string list;
    for (std::size_t i = 1; i < source.arguments.size(); ++i) {
        // A Null in the list of NOT IN is as if it were not there.
        if (source.negated && source.arguments[i]->kind == ExpressionKind::Null)
            continue;
        const Piece item = expression(*source.arguments[i], scope);
        requireComparable(source, operand, item);
        list += (list.empty() ? "" : ", ") + value(item);
    }
    const std::string left = collated(operand);
    std::string sql;
    if (list.empty())
        sql = '(' + left + " IS NOT NULL)";
    else
        sql = '(' + left + (source.negated ? " NOT IN (" : " IN (") + list + "))";
    return {.sql = sql, .type = {DataType::Short}, .condition = true};
}

Emitter::Piece Emitter::subquery(const Expression &source, Scope &scope)
{
    if (source.kind == ExpressionKind::Exists)
        return {.sql = "EXISTS (" + query(*source.query, &scope).sql + ')',
                .type = {DataType::Short},
                .condition = true};
    const Piece operand = expression(*source.arguments[0], scope);
    const Rows rows = query(*source.query, &scope);
    if (rows.columns.size() != 1)
        raiseError(SyntaxError,
                   "The subquery '" + std::string(source.query->text) + "' must return one field only.");
    requireComparable(source, operand, {.sql = {}, .type = rows.columns[0].type});
    return {.sql = '(' + collated(operand) + (source.negated ? " NOT IN (" : " IN (") + rows.sql + "))",
            .type = {DataType::Short},
            .condition = true};
}

Emitter::Piece Emitter::quantified(const Expression &source, Scope &scope)
{
    const Piece operand = expression(*source.arguments[0], scope);
    const Rows rows = query(*source.query, &scope, true);
    if (rows.columns.size() != 1)
        raiseError(SyntaxError,
                   "The subquery '" + std::string(source.query->text) + "' must return one field only.");
    requireComparable(source, operand, {.sql = {}, .type = rows.columns[0].type});
    const std::string name = quotedName("%any" + std::to_string(++m_subqueries));
    const std::string test =
        '(' + collated(operand) + ' ' + std::string(source.name) + ' ' + name + ".\"c0\")";
    const std::string from = " (SELECT 1 FROM (" + rows.sql + ") AS " + name + " WHERE ";
    // ALL fails on a row whose comparison is not true, Null included.
    return {.sql = source.all ? "(NOT EXISTS" + from + '(' + test + " IS NOT TRUE)))"
                              : "(EXISTS" + from + test + "))",
            .type = {DataType::Short},
            .condition = true};
}

Emitter::Piece Emitter::scalar(const Expression &source, Scope &scope)
{
    const Rows rows = query(*source.query, &scope, true);
    if (rows.columns.size() != 1)
        raiseError(SyntaxError,
                   "The subquery '" + std::string(source.query->text) + "' must return one field only.");
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
