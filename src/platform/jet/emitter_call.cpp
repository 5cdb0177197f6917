#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/functions.h"
#include "platform/jet/restored.h"

#include <algorithm>

namespace jet {
namespace {

enum class AggregateType { Count, Double, SameAsArgument, OfOneRow };

struct AggregateRow
{
    std::string_view name;
    const char *sqlite;
    AggregateType type;
    bool numbers; ///< takes numbers only
};

constexpr AggregateRow aggregates[] = {
    {"Count", "COUNT", AggregateType::Count, false},
    {"Sum", "SUM", AggregateType::Double, true},
    {"Avg", "AVG", AggregateType::Double, true},
    {"Min", "MIN", AggregateType::SameAsArgument, false},
    {"Max", "MAX", AggregateType::SameAsArgument, false},
    {"First", "jet_first", AggregateType::OfOneRow, false},
    {"Last", "jet_last", AggregateType::OfOneRow, false},
    {"StDev", "jet_stdev", AggregateType::Double, true},
    {"StDevP", "jet_stdevp", AggregateType::Double, true},
    {"Var", "jet_var", AggregateType::Double, true},
    {"VarP", "jet_varp", AggregateType::Double, true},
};

const AggregateRow *findAggregate(std::string_view name)
{
    for (const AggregateRow &row : aggregates) {
        if (sameWord(row.name, name))
            return &row;
    }
    return nullptr;
}

// Functions that are no rows of the table.
constexpr std::string_view branchings[] = {"IIf", "Choose", "Switch"};

bool isBranching(std::string_view name)
{
    return std::ranges::any_of(branchings, [&](std::string_view word) { return sameWord(word, name); });
}

bool isCallOf(const Expression &source, std::string_view name)
{
    return source.kind == ExpressionKind::Call && sameWord(source.name, name);
}

[[noreturn]] void raiseUndefined(std::string_view name)
{
    std::vector<std::string_view> names = functionNames();
    names.insert(names.end(), std::begin(branchings), std::end(branchings));
    names.push_back("IsNull");
    for (const AggregateRow &row : aggregates)
        names.push_back(row.name);
    raiseError(SyntaxError,
               "Undefined function '" + std::string(name) + "' in expression." + suggestion(name, names));
}

/// Whether a column of the scope itself stands in the expression; a sub-query may hold any.
bool usesSources(const Expression &expression, const Scope &scope)
{
    if (expression.query)
        return true;
    if (expression.kind == ExpressionKind::Column)
        return scope.find(expression.qualifier, expression.name).column != nullptr;
    return std::ranges::any_of(expression.arguments,
                               [&](const ExpressionPtr &argument) { return usesSources(*argument, scope); });
}

[[noreturn]] void raiseArgumentCount(const Expression &source)
{
    raiseInExpression(SyntaxError, "Wrong number of arguments used with function", source.text);
}

} // namespace

bool Emitter::isAggregate(const Expression &source)
{
    return source.kind == ExpressionKind::CountRows ||
           (source.kind == ExpressionKind::Call && findAggregate(source.name) != nullptr);
}

Emitter::Piece Emitter::call(const Expression &source, Scope &scope)
{
    if (isAggregate(source))
        return aggregate(source, scope);
    if (isBranching(source.name))
        return branches(source, scope);
    if (sameWord(source.name, "IsNull")) {
        if (source.arguments.size() != 1)
            raiseArgumentCount(source);
        return conditionPiece('(' + value(expression(*source.arguments[0], scope)) + " IS NULL)");
    }
    return function(source, scope);
}

Emitter::Piece Emitter::aggregate(const Expression &source, Scope &scope)
{
    if (m_aggregates == Aggregates::Forbidden)
        raiseError(SyntaxError, "Cannot have aggregate function in " + std::string(m_clause) + " (" +
                                    excerpt(source.text) + ").");
    if (m_aggregates == Aggregates::Inside)
        raiseError(SyntaxError,
                   "Cannot have aggregate function in expression (" + excerpt(source.text) + ").");
    scope.hasAggregate = true;
    // An expression that names a column of the query itself and is always true.
    const auto own = [&scope] {
        const ScopeSource &first = scope.sources[0];
        const std::string column = quotedName(first.name) + '.' + quotedName(first.columns[0].name);
        return column + " IS " + column;
    };
    const bool inside = scope.goesInside && !scope.sources.empty();
    if (source.kind == ExpressionKind::CountRows)
        return {.sql = inside ? "COUNT(" + own() + ')' : "COUNT(*)", .type = {DataType::Long}};
    if (source.arguments.size() != 1)
        raiseArgumentCount(source);

    const AggregateRow &row = *findAggregate(source.name);
    const std::size_t borrowed = scope.borrowed.size();
    const Piece operand = [&] {
        const Restored inside(m_aggregates, Aggregates::Inside);
        return expression(*source.arguments[0], scope);
    }();
    scope.borrowed.resize(borrowed); // within an aggregate a sub-query may read any column
    std::string list = row.numbers ? asNumber(operand) : collated(operand);
    // SQLite adds whole numbers up in 64 bits and raises beyond.
    if (row.type == AggregateType::Double && !isLong(operand.type.type))
        list = "1.0 * " + list;
    // Over columns of an outer query alone SQLite would take the aggregate for one of that query.
    if ((inside || (scope.outer != nullptr && !scope.sources.empty())) &&
        !usesSources(*source.arguments[0], scope))
        list = "CASE WHEN " + own() + " THEN " + list + " END";
    // Without a row id beside it, SQLite would read the rows in the order of an index.
    if (row.type == AggregateType::OfOneRow && scope.sources.size() == 1 && scope.sources[0].isTable())
        list += ", " + quotedName(scope.sources[0].name) + '.' +
                std::string(rowIdName(m_catalog.table(scope.sources[0].table)));
    const std::string sql = std::string(row.sqlite) + '(' + list + ')';
    switch (row.type) {
    case AggregateType::Count:
        return {.sql = sql, .type = {DataType::Long}};
    case AggregateType::Double:
        return {.sql = sql, .type = {DataType::Double}, .mayOverflow = true};
    case AggregateType::SameAsArgument:
    case AggregateType::OfOneRow:
        break;
    }
    const ColumnType type{operand.type.type == DataType::Counter ? DataType::Long : operand.type.type,
                          operand.type.width};
    return {.sql = sql, .type = type, .exact = operand.exact};
}

// IIf, Choose and Switch are one CASE: only the branch that is taken is worked out.
Emitter::Piece Emitter::branches(const Expression &source, Scope &scope)
{
    const std::vector<ExpressionPtr> &arguments = source.arguments;
    const std::size_t count = arguments.size();
    const bool choose = isCallOf(source, "Choose");
    const bool iif = isCallOf(source, "IIf");
    if (iif ? count != 3 : choose ? count < 2 : count == 0 || count % 2 != 0)
        raiseArgumentCount(source);

    // What stands before each branch: WHEN with its condition, or ELSE.
    std::string sql = "CASE";
    std::vector<std::string> heads;
    std::vector<Piece> pieces;
    DataType type = DataType::Unknown;
    const auto branch = [&](std::string head, const Expression &branch) {
        heads.push_back(std::move(head));
        pieces.push_back(expression(branch, scope));
        type = commonType(type, pieces.back().type.type);
    };
    const auto when = [&](const Expression &test) { return " WHEN " + conditionIn(test, scope) + " THEN "; };
    if (iif) {
        // An IIf in the last place goes on with the same CASE.
        const Expression *last = &source;
        for (; isCallOf(*last, "IIf") && last->arguments.size() == 3; last = last->arguments[2].get())
            branch(when(*last->arguments[0]), *last->arguments[1]);
        branch(" ELSE ", *last);
    } else if (choose) {
        sql += " jet_clng(" + asNumber(expression(*arguments[0], scope)) + ')';
        for (std::size_t i = 1; i < count; ++i)
            branch(" WHEN " + std::to_string(i) + " THEN ", *arguments[i]);
    } else {
        for (std::size_t i = 0; i < count; i += 2)
            branch(when(*arguments[i]), *arguments[i + 1]);
    }
    for (std::size_t i = 0; i < pieces.size(); ++i)
        sql += heads[i] + as(type, pieces[i]);
    return {.sql = '(' + sql + " END)", .type = {type}};
}

std::string Emitter::argument(const Piece &piece, char kind)
{
    const DataType type = piece.type.type;
    switch (kind) {
    case 't':
        return asText(piece);
    case 'n':
        return asNumber(piece);
    case 'd':
        return isText(type) || type == DataType::Unknown ? "jet_readdate(" + value(piece) + ')'
                                                         : value(piece);
    case 'k': {
        const char *letter = isText(type)                ? "'t', "
                             : type == DataType::Date    ? "'d', "
                             : type == DataType::Boolean ? "'b', "
                             : type == DataType::Unknown ? "'u', "
                                                         : "'n', ";
        return letter + value(piece);
    }
    default:
        return value(piece);
    }
}

Emitter::Piece Emitter::function(const Expression &source, Scope &scope)
{
    const FunctionInfo *info = findFunction(source.name);
    if (info == nullptr)
        raiseUndefined(source.name);
    const int count = static_cast<int>(source.arguments.size());
    if (count < info->minimum || (info->maximum >= 0 && count > info->maximum))
        raiseArgumentCount(source);

    Piece result;
    std::string list;
    DataType first = DataType::Unknown;
    for (std::size_t i = 0; i < source.arguments.size(); ++i) {
        const Piece piece = expression(*source.arguments[i], scope);
        if (i == 0)
            first = piece.type.type;
        const char kind = info->arguments[std::min(i, info->arguments.size() - 1)];
        list += (list.empty() ? "" : ", ") + argument(piece, kind);
    }
    result.sql = std::string(info->sqlite) + '(' + list + ')';
    if (info->oncePerStatement)
        result.sql = "(SELECT " + result.sql + ')';
    switch (info->result) {
    case ResultKind::Text:
        result.type = {DataType::Memo};
        break;
    case ResultKind::Short:
        result.type = {DataType::Short};
        result.exact = true;
        break;
    case ResultKind::Long:
        result.type = {DataType::Long};
        break;
    case ResultKind::Double:
        result.type = {DataType::Double};
        break;
    case ResultKind::Currency:
        result.type = {DataType::Currency};
        break;
    case ResultKind::Date:
        result.type = {DataType::Date};
        break;
    case ResultKind::Boolean:
        result.type = {DataType::Boolean};
        break;
    case ResultKind::SameAsFirst:
        result.type = {first};
        break;
    case ResultKind::Numeric:
        result.type = {!isWhole(first)           ? DataType::Double
                       : first == DataType::Wide ? DataType::Wide
                                                 : DataType::Long};
        break;
    }
    return result;
}

} // namespace jet
