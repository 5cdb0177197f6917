#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/restored.h"

#include <optional>

namespace jet {
namespace {

// Sums, as a bare number would be the place of a column behind ORDER BY and GROUP BY.
constexpr auto yes = "(0-1)";
constexpr auto no = "(0+0)";

std::optional<bool> constantOf(std::string_view word)
{
    if (sameWord(word, "YES") || sameWord(word, "ON"))
        return true;
    if (sameWord(word, "NO") || sameWord(word, "OFF"))
        return false;
    return std::nullopt;
}

/// Whether the word is a function that needs no parentheses.
bool readsClock(std::string_view word)
{
    return sameWord(word, "DATE") || sameWord(word, "NOW") || sameWord(word, "TIME");
}

const char *typeWord(DataType type)
{
    if (isText(type))
        return "a text";
    if (type == DataType::Date)
        return "a date";
    return type == DataType::Boolean ? "a yes/no value" : "a number";
}

[[noreturn]] void raiseUnknownName(const Expression &source, const std::string &suggested)
{
    raiseError(MissingParameter, "No value given for one or more required parameters. '" +
                                     excerpt(source.text) + "' is not known here." + suggested);
}

std::string inlineLiteral(const Literal &literal)
{
    return '\'' + std::to_string(static_cast<int>(literal.kind)) + std::string(literal.text) + '\'';
}

} // namespace

Emitter::ComplexityGuard::ComplexityGuard(Emitter &emitter) : m_emitter(emitter)
{
    constexpr int deepest = 350;
    constexpr int mostSteps = 2'000'000;
    if (emitter.m_depth >= deepest || ++emitter.m_steps > mostSteps)
        raiseError(SyntaxError, queryTooComplex);
    ++emitter.m_depth;
}

std::string Emitter::value(const Piece &piece)
{
    if (piece.condition)
        return "(-(" + piece.sql + "))";
    if (piece.mayOverflow)
        return (piece.type.type == DataType::Date ? "jet_cdate(" : "jet_cdbl(") + piece.text() + ')';
    return piece.text();
}

std::string Emitter::condition(const Piece &piece)
{
    return piece.condition || piece.type.type == DataType::Boolean ? piece.sql
                                                                   : '(' + value(piece) + " <> 0)";
}

std::string Emitter::collated(const Piece &piece)
{
    const bool texts = isText(piece.type.type) || piece.type.type == DataType::Unknown;
    return texts && !piece.column ? '(' + value(piece) + " COLLATE JET)" : value(piece);
}

std::string Emitter::asText(const Piece &piece)
{
    if (piece.type.type == DataType::Date)
        return "jet_datetext(" + value(piece) + ')';
    if (piece.type.type == DataType::Boolean)
        return "jet_booltext(" + value(piece) + ')';
    return value(piece);
}

std::string Emitter::writtenOut(const Piece &piece)
{
    const DataType type = piece.type.type;
    return isText(type) || type == DataType::Date || type == DataType::Boolean
               ? asText(piece)
               : "jet_text(" + value(piece) + ')';
}

std::string Emitter::as(DataType type, const Piece &piece)
{
    if (isText(type) && !isText(piece.type.type))
        return writtenOut(piece);
    if (type == DataType::Date && isNumber(piece.type.type) && piece.type.type != DataType::Date)
        return "jet_cdate(" + value(piece) + ')';
    return value(piece);
}

std::string Emitter::asNumber(const Piece &piece)
{
    if (!isText(piece.type.type) && piece.type.type != DataType::Unknown)
        return value(piece);
    return "jet_num(" + value(piece) + ')';
}

void Emitter::pin(int literal)
{
    m_pinned.push_back(literal);
}

std::string Emitter::fingerprint(const Expression &source, Scope &scope)
{
    const Restored literals(m_literalsAsValues, true);
    const Restored subqueries(m_subqueries, 0);
    return expression(source, scope).text();
}

std::string Emitter::conditionOf(const Expression &source, Scope &scope, std::string_view clause,
                                 Aggregates aggregates)
{
    const Restored aggregatesHere(m_aggregates, aggregates);
    const Restored clauseHere(m_clause, clause);
    return conditionIn(source, scope);
}

std::string Emitter::conditionIn(const Expression &source, Scope &scope)
{
    const Piece piece = expression(source, scope);
    if (isText(piece.type.type))
        raiseError(TypeMismatch, "Data type mismatch in criteria expression. '" + excerpt(source.text) +
                                     "' is a text, not a condition.");
    return condition(piece);
}

Emitter::Piece Emitter::expression(const Expression &source, Scope &scope)
{
    const ComplexityGuard guard(*this);
    Piece piece = ofKind(source, scope);
    requireBounded(piece.sql);
    return piece;
}

// What writes an operand twice makes the text of nested ones grow without measure.
void Emitter::requireBounded(std::string_view sql)
{
    constexpr std::size_t longestSql = 4'000'000;
    if (sql.size() > longestSql)
        raiseError(SyntaxError, queryTooComplex);
}

Emitter::Piece Emitter::ofKind(const Expression &source, Scope &scope)
{
    switch (source.kind) {
    case ExpressionKind::Literal:
        return literal(source);
    case ExpressionKind::Null:
        return {.sql = "NULL"};
    case ExpressionKind::Boolean:
        return {.sql = source.number != 0 ? yes : no, .type = {DataType::Boolean}, .exact = true};
    case ExpressionKind::Column:
        return column(source, scope);
    case ExpressionKind::Identity:
        return {.sql = "jet_identity()", .type = {DataType::Long}};
    case ExpressionKind::Negate: {
        const Piece operand = expression(*source.arguments[0], scope);
        const DataType type = isNumber(operand.type.type) ? operand.type.type : DataType::Double;
        const bool narrow = type == DataType::Boolean || type == DataType::Byte || type == DataType::Short;
        return {.sql = "(-" + asNumber(operand) + ')',
                .type = {narrow ? DataType::Long : type},
                .exact = operand.exact && !operand.column};
    }
    case ExpressionKind::BitNot:
        return {.sql = "(~" + asBits(expression(*source.arguments[0], scope)) + ')',
                .type = {DataType::Long}};
    case ExpressionKind::Not:
        if (source.arguments[0]->kind == ExpressionKind::InList && !source.arguments[0]->negated)
            return inList(*source.arguments[0], true, scope);
        return conditionPiece("(NOT " + conditionIn(*source.arguments[0], scope) + ')');
    case ExpressionKind::Arithmetic:
        return arithmetic(source, scope);
    case ExpressionKind::Concatenate:
        return concatenate(source, scope);
    case ExpressionKind::Logic:
        return logic(source, scope);
    case ExpressionKind::Compare:
        return compare(source, scope);
    case ExpressionKind::Like: {
        const std::string text = asText(expression(*source.arguments[0], scope));
        const std::string pattern = asText(expression(*source.arguments[1], scope));
        return conditionPiece(std::string(source.negated ? "(NOT " : "(") + "jet_like(" + text + ", " +
                              pattern + "))");
    }
    case ExpressionKind::Between:
        return between(source, scope);
    case ExpressionKind::InList:
        return inList(source, source.negated, scope);
    case ExpressionKind::IsNull: {
        const Piece operand = expression(*source.arguments[0], scope);
        return conditionPiece('(' + value(operand) + (source.negated ? " IS NOT NULL)" : " IS NULL)"));
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

Emitter::Piece Emitter::columnPiece(const ScopeSource &source, const TableColumn &column)
{
    return {.sql = quotedName(source.name) + '.' + quotedName(column.name),
            .type = column.type,
            .column = true,
            .stored = column.stored,
            .exact = column.stored && isLong(column.type.type)};
}

Emitter::Piece Emitter::column(const Expression &source, Scope &scope)
{
    for (Scope *at = &scope; at != nullptr; at = at->outer) {
        const Scope::Found found = at->find(source.qualifier, source.name);
        if (found.column == nullptr)
            continue;
        if (at != &scope)
            at->borrowed.push_back(&source);
        return columnPiece(*found.source, *found.column);
    }
    return alias(source, scope);
}

// A name that no table has: a column of the list under its alias, a constant, the clock.
Emitter::Piece Emitter::alias(const Expression &source, Scope &scope)
{
    if (!source.qualifier.empty())
        raiseUnknown(source, scope);
    for (Scope *at = &scope; at != nullptr; at = at->outer) {
        const std::optional<std::size_t> index = at->itemNamed(source.name);
        if (!index)
            continue;
        const Expression &item = *(*at->items)[*index].expression;
        const Restored visible(at->visibleItems, *index);
        if (at == &scope)
            return expression(item, scope);
        if (scope.hides(*at))
            raiseUnknown(source, scope);
        at->borrowed.push_back(&item);
        const Restored aggregates(m_aggregates, Aggregates::Forbidden);
        const Restored clause(m_clause, std::string_view("sub-query"));
        return expression(item, *at);
    }
    if (!source.bracketed) {
        if (const std::optional<bool> value = constantOf(source.name))
            return {.sql = *value ? yes : no, .type = {DataType::Boolean}, .exact = true};
        if (readsClock(source.name)) {
            Expression call;
            call.kind = ExpressionKind::Call;
            call.name = source.name;
            call.text = source.text;
            return function(call, scope);
        }
    }
    raiseUnknown(source, scope);
}

void Emitter::raiseUnknown(const Expression &source, const Scope &scope) const
{
    std::vector<std::string_view> names;
    std::vector<std::string_view> tables; // that have such a column
    for (const Scope *at = &scope; at != nullptr; at = at->outer) {
        for (const ScopeSource &table : at->sources) {
            if (source.qualifier.empty() || sameName(table.name, source.qualifier)) {
                for (const TableColumn &column : table.columns)
                    names.push_back(column.name);
            } else if (table.column(source.name) != nullptr) {
                // Under an alias a table is known by that only.
                if (sameName(table.table, source.qualifier))
                    raiseUnknownName(source, didYouMean(table.name + '.' + std::string(source.name)));
                tables.push_back(table.name);
            }
        }
    }
    const std::string_view table = nearest(source.qualifier, tables);
    if (names.empty() && !table.empty())
        raiseUnknownName(source, didYouMean(std::string(table) + '.' + std::string(source.name)));
    raiseUnknownName(source, suggestion(source.name, names));
}

void Emitter::requireComparable(const Expression &source, const Piece &left, const Piece &right) const
{
    if (!comparable(left.type.type, right.type.type))
        raiseTypeMismatch(source.text, typeWord(left.type.type), typeWord(right.type.type));
}

Emitter::Piece Emitter::compare(const Expression &source, Scope &scope)
{
    const Piece left = expression(*source.arguments[0], scope);
    const Piece right = expression(*source.arguments[1], scope);
    requireComparable(source, left, right);
    // A column's own collation serves; two expressions need it told.
    const std::string a = left.column || right.column ? value(left) : collated(left);
    return conditionPiece('(' + a + ' ' + std::string(source.name) + ' ' + value(right) + ')');
}

Emitter::Piece Emitter::between(const Expression &source, Scope &scope)
{
    const Piece operand = expression(*source.arguments[0], scope);
    const Piece low = expression(*source.arguments[1], scope);
    const Piece high = expression(*source.arguments[2], scope);
    requireComparable(source, operand, low);
    requireComparable(source, operand, high);
    requireComparable(source, low, high);
    return conditionPiece('(' + collated(operand) + (source.negated ? " NOT" : "") + " BETWEEN MIN(" +
                          collated(low) + ", " + value(high) + ") AND MAX(" + collated(low) + ", " +
                          value(high) + "))");
}

// NOT x IN (..) is x NOT IN (..).
Emitter::Piece Emitter::inList(const Expression &source, bool negated, Scope &scope)
{
    const Piece operand = expression(*source.arguments[0], scope);
    std::string list;
    for (std::size_t i = 1; i < source.arguments.size(); ++i) {
        // A Null in the list of NOT IN is as if it were not there.
        if (negated && source.arguments[i]->kind == ExpressionKind::Null)
            continue;
        const Piece item = expression(*source.arguments[i], scope);
        requireComparable(source, operand, item);
        list += (list.empty() ? "" : ", ") + value(item);
    }
    const std::string left = collated(operand);
    std::string sql;
    if (list.empty())
        sql = '(' + left + " = " + left + ')'; // true, but Null for a Null
    else
        sql = '(' + left + (negated ? " NOT IN (" : " IN (") + list + "))";
    return conditionPiece(sql);
}

} // namespace jet
