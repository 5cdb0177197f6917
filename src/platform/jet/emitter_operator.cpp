#include "platform/jet/emitter.h"
#include "platform/jet/errortexts.h"

#include <span>

namespace jet {
namespace {

/// a OP b OP c ... as a tree of bounded depth: SQLite refuses deep ones.
std::string balanced(std::span<const std::string> operands, std::string_view sign)
{
    constexpr std::size_t longest = 50;
    std::string sql = "(";
    if (operands.size() > longest) {
        const std::size_t half = operands.size() / 2;
        sql += balanced(operands.first(half), sign);
        sql += sign;
        sql += balanced(operands.subspan(half), sign);
    } else {
        for (std::size_t i = 0; i < operands.size(); ++i)
            sql.append(i == 0 ? std::string_view() : sign).append(operands[i]);
    }
    return sql + ')';
}

constexpr std::size_t mostOperands = 100; // SQLite bounds the arguments of a call

/// jet_cat(a, b, ...), nested where SQLite would refuse so many arguments.
std::string concatenated(std::span<const std::string> operands)
{
    if (operands.size() == 1)
        return operands[0];
    std::string sql;
    const std::size_t share =
        operands.size() <= mostOperands ? 1 : (operands.size() + mostOperands - 1) / mostOperands;
    for (; !operands.empty(); operands = operands.subspan(std::min(share, operands.size())))
        sql += (sql.empty() ? "jet_cat(" : ", ") +
               concatenated(operands.first(std::min(share, operands.size())));
    return sql + ')';
}

bool isProduct(const Expression &expression)
{
    return expression.kind == ExpressionKind::Arithmetic &&
           (expression.name == "*" || expression.name == "/");
}

bool isLongProduct(const Expression &expression)
{
    constexpr int longest = 10;
    int factors = 0;
    for (const Expression *at = &expression; factors <= longest && isProduct(*at);
         at = at->arguments[0].get())
        ++factors;
    return factors > longest;
}

} // namespace

// Whole numbers are as exact as 64 bits; floating ones and dates are checked where the chain
// of operators ends.
Emitter::Piece Emitter::infix(std::string_view sign, const Piece &left, const Piece &right)
{
    const char level = sign == "*" ? '*' : '+';
    const bool goesOn = left.chain == level && (level == '+' || !left.mayOverflow);
    const std::string begin = goesOn ? left.sql : '(' + asNumber(left);
    const DataType types[] = {left.type.type, right.type.type};
    const bool whole = isWhole(types[0]) && isWhole(types[1]);
    const bool wide = types[0] == DataType::Wide || types[1] == DataType::Wide;
    const bool dates[] = {types[0] == DataType::Date, types[1] == DataType::Date};
    const bool date = (sign == "+" && (dates[0] || dates[1])) || (sign == "-" && dates[0] && !dates[1]);
    return {.sql = begin + ' ' + std::string(sign) + ' ' + asNumber(right),
            .type = {date    ? DataType::Date
                     : whole ? DataType::Wide
                             : DataType::Double},
            .mayOverflow = !whole || (level == '*' && wide) || (goesOn && left.mayOverflow),
            .chain = level};
}

// a * b / c ... of many factors is one call: a call within a call for each of them is soon too deep for
// SQLite.
Emitter::Piece Emitter::product(const Expression &source, Scope &scope)
{
    std::vector<const Expression *> parts;
    for (const Expression *at = &source; isProduct(*at); at = at->arguments[0].get())
        parts.push_back(at);
    std::string sql = value(expression(*parts.back()->arguments[0], scope));
    while (!parts.empty()) {
        std::string signs;
        std::string operands;
        for (; !parts.empty() && signs.size() < mostOperands; parts.pop_back()) {
            signs += parts.back()->name;
            operands += ", " + value(expression(*parts.back()->arguments[1], scope));
        }
        sql = "jet_product('" + signs + "', " + sql + operands + ')';
    }
    return {.sql = std::move(sql), .type = {DataType::Double}};
}

Emitter::Piece Emitter::arithmetic(const Expression &source, Scope &scope)
{
    if (isLongProduct(source))
        return product(source, scope);
    const Piece left = expression(*source.arguments[0], scope);
    const Piece right = expression(*source.arguments[1], scope);
    const std::string_view sign = source.name;
    const DataType common = commonType(left.type.type, right.type.type);
    const bool texts = isText(left.type.type) && isText(right.type.type);
    if (sign == "+" && texts) {
        const bool goesOn = left.chain == 't' && left.texts < mostOperands;
        return {.sql = (goesOn ? left.sql : "jet_plus(" + value(left)) + ", " + value(right),
                .type = {DataType::Memo},
                .chain = 't',
                .texts = goesOn ? left.texts + 1 : 2};
    }

    // Functions take both sides as they are: a text is read only where the other is not Null.
    const auto call = [&](const char *name, DataType type) {
        return Piece{.sql = std::string(name) + '(' + value(left) + ", " + value(right) + ')',
                     .type = {type}};
    };
    const bool unknown = left.type.type == DataType::Unknown || right.type.type == DataType::Unknown;
    if (sign == "+" && isText(common) && unknown)
        return call("jet_add", DataType::Unknown);
    if (sign == "+" || sign == "-" || sign == "*") {
        const Piece plain = infix(sign, left, right);
        if (!isText(common) && !unknown)
            return plain;
        Piece piece = call(sign == "+" ? "jet_add" : sign == "-" ? "jet_sub" : "jet_mul", plain.type.type);
        piece.mayOverflow = plain.type.type == DataType::Date;
        return piece;
    }

    const bool longs = isLong(left.type.type) && isLong(right.type.type);
    const DataType whole = longs ? DataType::Long : DataType::Wide;
    if (sign == "/")
        return call("jet_div", DataType::Double);
    if (sign == "\\")
        return call("jet_idiv", whole);
    if (sign == "MOD")
        return call("jet_mod", whole);
    if (sign == "^")
        return call("jet_pow", DataType::Double);
    if (sign == "BXOR")
        return call("jet_bxor", DataType::Long);
    if (longs)
        return {.sql = '(' + value(left) + (sign == "BAND" ? " & " : " | ") + value(right) + ')',
                .type = {DataType::Long}};
    return call(sign == "BAND" ? "jet_band" : "jet_bor", DataType::Long);
}

std::string Emitter::asBits(const Piece &piece)
{
    if (isLong(piece.type.type))
        return value(piece);
    return "jet_clng(" + asNumber(piece) + ')';
}

Emitter::Piece Emitter::concatenate(const Expression &source, Scope &scope)
{
    std::vector<std::string> operands;
    for (const ExpressionPtr &operand : source.arguments)
        operands.push_back(asText(expression(*operand, scope)));
    return {.sql = concatenated(operands), .type = {DataType::Text}};
}

Emitter::Piece Emitter::logic(const Expression &source, Scope &scope)
{
    std::vector<std::string> operands;
    for (const ExpressionPtr &operand : source.arguments)
        operands.push_back(conditionIn(*operand, scope));
    const std::string_view word = source.name;
    std::string sql;
    if (word == "AND" || word == "OR")
        sql = balanced(operands, word == "AND" ? " AND " : " OR ");
    else if (word == "IMP")
        sql = "((NOT " + operands[0] + ") OR " + operands[1] + ')';
    else
        sql = "((NOT " + operands[0] + (word == "XOR" ? ") <> (NOT " : ") = (NOT ") + operands[1] + "))";
    return conditionPiece(sql);
}

} // namespace jet
