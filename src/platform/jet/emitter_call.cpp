#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"
#include "platform/jet/functions.h"

namespace jet {
namespace {

enum class AggregateType { Count, Double, SameAsArgument };

struct AggregateRow
{
    std::string_view name;
    const char *sqlite;
    AggregateType type;
    bool numbers; ///< takes numbers only
};

constexpr AggregateRow aggregates[] = {
    {"COUNT", "COUNT", AggregateType::Count, false},
    {"SUM", "SUM", AggregateType::Double, true},
    {"AVG", "AVG", AggregateType::Double, true},
    {"MIN", "MIN", AggregateType::SameAsArgument, false},
    {"MAX", "MAX", AggregateType::SameAsArgument, false},
    {"FIRST", "jet_first", AggregateType::SameAsArgument, false},
    {"LAST", "jet_last", AggregateType::SameAsArgument, false},
    {"STDEV", "jet_stdev", AggregateType::Double, true},
    {"STDEVP", "jet_stdevp", AggregateType::Double, true},
    {"VAR", "jet_var", AggregateType::Double, true},
    {"VARP", "jet_varp", AggregateType::Double, true},
};

const AggregateRow *findAggregate(std::string_view name)
{
    for (const AggregateRow &row : aggregates) {
        if (sameWord(row.name, name))
            return &row;
    }
    return nullptr;
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
    for (const std::string_view word : {"IIF", "CHOOSE", "SWITCH"}) {
        if (sameWord(word, source.name))
            return branches(source, scope);
    }
    if (sameWord(source.name, "ISNULL")) {
        if (source.arguments.size() != 1)
            raiseArgumentCount(source);
        return {.sql = '(' + value(expression(*source.arguments[0], scope)) + " IS NULL)",
                .type = {DataType::Short},
                .condition = true};
    }
    return function(source, scope);
}

Emitter::Piece Emitter::aggregate(const Expression &source, Scope &scope)
{
    if (m_aggregates == Aggregates::Forbidden)
        raiseError(SyntaxError, "Cannot have aggregate function in " + std::string(m_clause) + " (" +
                                    std::string(source.text) + ").");
    if (m_aggregates == Aggregates::Inside)
        raiseError(SyntaxError,
                   "Cannot have aggregate function in expression (" + std::string(source.text) + ").");
    scope.hasAggregate = true;
    if (source.kind == ExpressionKind::CountRows)
        return {.sql = "COUNT(*)", .type = {DataType::Long}};
    if (source.arguments.size() != 1)
        raiseArgumentCount(source);

    const AggregateRow &row = *findAggregate(source.name);
    m_aggregates = Aggregates::Inside;
    const Piece operand = expression(*source.arguments[0], scope);
    m_aggregates = Aggregates::Allowed;
    const std::string sql =
        std::string(row.sqlite) + '(' + (row.numbers ? asNumber(operand) : collated(operand)) + ')';
    switch (row.type) {
    case AggregateType::Count:
        return {.sql = sql, .type = {DataType::Long}};
    case AggregateType::Double:
        return {.sql = sql, .type = {DataType::Double}};
    case AggregateType::SameAsArgument:
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
    const bool choose = sameWord(source.name, "CHOOSE");
    const bool iif = sameWord(source.name, "IIF");
    if (iif ? count != 3 : choose ? count < 2 : count == 0 || count % 2 != 0)
        raiseArgumentCount(source);

    Piece result;
    const auto branch = [&](const Expression &branch) {
        const Piece piece = expression(branch, scope);
        result.type = {commonType(result.type.type, piece.type.type)};
        return value(piece);
    };
    const auto when = [&](const Expression &test) {
        return " WHEN " + condition(expression(test, scope)) + " THEN ";
    };
    std::string sql = "CASE";
    if (iif)
        sql += when(*arguments[0]) + branch(*arguments[1]) + " ELSE " + branch(*arguments[2]);
    else if (choose) {
        m_mayRaise = true;
        sql += " jet_tolong(" + value(expression(*arguments[0], scope)) + ')';
        for (std::size_t i = 1; i < count; ++i)
            sql += " WHEN " + std::to_string(i) + " THEN " + branch(*arguments[i]);
    } else {
        for (std::size_t i = 0; i < count; i += 2) {
            sql += when(*arguments[i]);
            sql += branch(*arguments[i + 1]);
        }
    }
    result.sql = '(' + sql + " END)";
    return result;
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
        return isText(type) || type == DataType::Unknown ? "jet_cdate(" + value(piece) + ')' : value(piece);
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
    if (info == nullptr) {
        const std::string_view nearest = nearestFunction(source.name);
        raiseError(SyntaxError,
                   "Undefined function '" + std::string(source.name) + "' in expression." +
                       (nearest.empty() ? std::string() : " Did you mean '" + std::string(nearest) + "'?"));
    }
    const int count = static_cast<int>(source.arguments.size());
    if (count < info->minimum || (info->maximum >= 0 && count > info->maximum))
        raiseArgumentCount(source);

    m_mayRaise = true;
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
        result.type = {isWhole(first) ? DataType::Long : DataType::Double};
        break;
    }
    return result;
}

} // namespace jet
