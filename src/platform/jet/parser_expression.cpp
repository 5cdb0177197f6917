#include "platform/jet/errortexts.h"
#include "platform/jet/parser.h"
#include "platform/jet/parser_guards.h"

#include <algorithm>
#include <array>

namespace jet {
namespace {

// Weakest first; a level holds what binds alike, from left to right. People write hundreds of
// the last two in a row.
constexpr std::array<std::string_view, 5> logicLevels = {"IMP", "EQV", "XOR", "OR", "AND"};
constexpr std::size_t firstChainedLevel = 3;

// Walking a tree takes stack for each level.
constexpr int deepestTree = 300;

struct ArithmeticLevel
{
    std::array<std::string_view, 2> operators;
};

constexpr std::array<ArithmeticLevel, 5> arithmeticLevels = {{
    {{"BOR", "BXOR"}},
    {{"BAND", ""}},
    {{"+", "-"}},
    {{"MOD", ""}},
    {{"\\", ""}},
}};

constexpr std::string_view comparisons[] = {"=", "<>", "<", ">", "<=", ">="};

constexpr std::string_view membershipWords[] = {"LIKE", "ALIKE", "IN", "BETWEEN"};

constexpr std::string_view functionsAmongKeywords[] = {"LEFT", "RIGHT", "ASC"};

} // namespace

ExpressionPtr Parser::make(ExpressionKind kind, std::size_t start, std::string_view name)
{
    auto expression = std::make_unique<Expression>();
    expression->kind = kind;
    expression->name = name;
    expression->text = textFrom(start);
    return expression;
}

template <typename... Arguments>
ExpressionPtr Parser::node(ExpressionKind kind, std::size_t start, std::string_view name,
                           Arguments... arguments)
{
    ExpressionPtr expression = make(kind, start, name);
    (add(*expression, std::move(arguments)), ...);
    return expression;
}

void Parser::add(Expression &parent, ExpressionPtr argument) const
{
    parent.depth = std::max(parent.depth, argument->depth + 1);
    if (parent.depth > deepestTree)
        failTooComplex();
    parent.arguments.push_back(std::move(argument));
}

// a & b & c is one node: it is written over and over, and never too deep.
template <typename Operand>
ExpressionPtr Parser::chain(ExpressionKind kind, std::string_view sign, std::size_t start,
                            ExpressionPtr first, Operand operand)
{
    ExpressionPtr result = node(kind, start, sign, std::move(first));
    while (accept(sign))
        add(*result, operand());
    result->text = textFrom(start);
    return result;
}

ExpressionPtr Parser::expression()
{
    const DepthGuard depth(*this);
    if (m_expressionStart != std::string_view::npos)
        return logic(0);
    m_expressionStart = peek().offset;
    ExpressionPtr result = logic(0);
    m_expressionStart = std::string_view::npos;
    return result;
}

ExpressionPtr Parser::logic(std::size_t level)
{
    if (level == logicLevels.size())
        return negation();
    const std::size_t start = peek().offset;
    ExpressionPtr left = logic(level + 1);
    if (level >= firstChainedLevel && at(logicLevels[level]))
        return chain(ExpressionKind::Logic, logicLevels[level], start, std::move(left),
                     [&] { return logic(level + 1); });
    while (accept(logicLevels[level])) {
        ExpressionPtr right = logic(level + 1);
        left = node(ExpressionKind::Logic, start, logicLevels[level], std::move(left), std::move(right));
    }
    return left;
}

ExpressionPtr Parser::negation()
{
    const std::size_t start = peek().offset;
    if (!accept("NOT"))
        return comparison();
    const DepthGuard depth(*this);
    ExpressionPtr operand = negation();
    return node(ExpressionKind::Not, start, "NOT", std::move(operand));
}

ExpressionPtr Parser::comparison()
{
    const std::size_t start = peek().offset;
    ExpressionPtr left = concatenation();
    for (;;) {
        const auto sign = std::ranges::find_if(comparisons, [this](std::string_view s) { return accept(s); });
        if (sign != std::end(comparisons))
            left = comparedBy(*sign, std::move(left), start);
        else if (accept("IS"))
            left = nullTest(std::move(left), start);
        else if (std::ranges::any_of(membershipWords,
                                     [&](std::string_view word) { return at(word, at("NOT") ? 1 : 0); }))
            left = membership(std::move(left), start);
        else
            return left;
    }
}

ExpressionPtr Parser::comparedBy(std::string_view sign, ExpressionPtr left, std::size_t start)
{
    if (!at("ANY") && !at("SOME") && !at("ALL")) {
        ExpressionPtr right = concatenation();
        return node(ExpressionKind::Compare, start, sign, std::move(left), std::move(right));
    }
    const bool all = at("ALL");
    take();
    expect("(");
    QueryPtr rows = query();
    expect(")");
    ExpressionPtr result = node(ExpressionKind::Quantified, start, sign, std::move(left));
    result->query = std::move(rows);
    result->all = all;
    return result;
}

ExpressionPtr Parser::nullTest(ExpressionPtr left, std::size_t start)
{
    const bool negated = accept("NOT");
    expect("NULL");
    ExpressionPtr result = node(ExpressionKind::IsNull, start, "IS", std::move(left));
    result->negated = negated;
    return result;
}

ExpressionPtr Parser::membership(ExpressionPtr left, std::size_t start)
{
    const bool negated = accept("NOT");
    ExpressionPtr result;
    if (accept("BETWEEN")) {
        ExpressionPtr low = concatenation();
        expect("AND");
        ExpressionPtr high = concatenation();
        result =
            node(ExpressionKind::Between, start, "BETWEEN", std::move(left), std::move(low), std::move(high));
    } else if (accept("IN"))
        result = listed(std::move(left), start);
    else {
        take();
        ExpressionPtr pattern = concatenation();
        result = node(ExpressionKind::Like, start, "LIKE", std::move(left), std::move(pattern));
    }
    result->negated = negated;
    result->text = textFrom(start);
    return result;
}

ExpressionPtr Parser::listed(ExpressionPtr left, std::size_t start)
{
    ExpressionPtr result;
    expect("(");
    if (at("SELECT") || at("TABLE")) {
        QueryPtr rows = query();
        result = node(ExpressionKind::InQuery, start, "IN", std::move(left));
        result->query = std::move(rows);
    } else {
        result = node(ExpressionKind::InList, start, "IN", std::move(left));
        const DepthGuard depth(*this);
        do
            add(*result, logic(0));
        while (accept(","));
    }
    expect(")");
    return result;
}

ExpressionPtr Parser::concatenation()
{
    const std::size_t start = peek().offset;
    ExpressionPtr left = arithmetic(0);
    if (!at("&"))
        return left;
    return chain(ExpressionKind::Concatenate, "&", start, std::move(left), [&] { return arithmetic(0); });
}

ExpressionPtr Parser::arithmetic(std::size_t level)
{
    const std::size_t start = peek().offset;
    const bool products = level == arithmeticLevels.size();
    ExpressionPtr left = products ? sign() : arithmetic(level + 1);
    for (;;) {
        std::string_view found;
        for (const std::string_view sign :
             products ? std::array<std::string_view, 2>{"*", "/"} : arithmeticLevels[level].operators) {
            if (!sign.empty() && accept(sign)) {
                found = sign;
                break;
            }
        }
        if (found.empty())
            return left;
        ExpressionPtr right = products ? sign() : arithmetic(level + 1);
        left = node(ExpressionKind::Arithmetic, start, found, std::move(left), std::move(right));
    }
}

ExpressionPtr Parser::sign()
{
    const std::size_t start = peek().offset;
    // Two hyphens begin a comment elsewhere; here they are nothing.
    if (at("-") && m_at > 0 && m_tokens[m_at - 1].kind == TokenKind::Symbol &&
        m_tokens[m_at - 1].text == "-" && m_tokens[m_at - 1].end == start)
        fail();
    if (accept("+")) {
        const DepthGuard depth(*this);
        return sign();
    }
    if (at("-") || at("BNOT")) {
        const DepthGuard depth(*this);
        const bool minus = at("-");
        take();
        ExpressionPtr operand = sign();
        return node(minus ? ExpressionKind::Negate : ExpressionKind::BitNot, start, minus ? "-" : "BNOT",
                    std::move(operand));
    }
    return power();
}

ExpressionPtr Parser::power()
{
    const std::size_t start = peek().offset;
    ExpressionPtr left = primary();
    while (accept("^")) {
        const std::size_t exponent = peek().offset;
        const bool negated = accept("-");
        if (!negated)
            accept("+");
        ExpressionPtr right = primary();
        if (negated)
            right = node(ExpressionKind::Negate, exponent, "-", std::move(right));
        left = node(ExpressionKind::Arithmetic, start, "^", std::move(left), std::move(right));
    }
    return left;
}

ExpressionPtr Parser::primary()
{
    const Token token = peek();
    const std::size_t start = token.offset;
    if (token.literal >= 0) {
        take();
        ExpressionPtr literal = make(ExpressionKind::Literal, start);
        literal->literal = token.literal;
        return literal;
    }
    if (accept("(")) {
        const DepthGuard depth(*this);
        if (at("SELECT") || at("TABLE")) {
            QueryPtr rows = query();
            expect(")");
            ExpressionPtr result = make(ExpressionKind::Scalar, start);
            result->query = std::move(rows);
            return result;
        }
        ExpressionPtr result = logic(0);
        expect(")");
        result->text = textFrom(start);
        return result;
    }
    if (accept("NULL"))
        return make(ExpressionKind::Null, start);
    if (at("TRUE") || at("FALSE")) {
        const int number = at("TRUE") ? -1 : 0;
        take();
        ExpressionPtr result = make(ExpressionKind::Boolean, start);
        result->number = number;
        return result;
    }
    if (accept("EXISTS")) {
        expect("(");
        QueryPtr rows = query();
        expect(")");
        ExpressionPtr result = make(ExpressionKind::Exists, start);
        result->query = std::move(rows);
        return result;
    }
    for (const std::string_view name : functionsAmongKeywords) {
        if (at(name) && at("(", 1))
            return call(take().text, start);
    }
    return nameOrCall();
}

ExpressionPtr Parser::nameOrCall()
{
    const Token token = peek();
    const std::size_t start = token.offset;
    // ON may be the constant where it cannot begin the condition of a join.
    if (!atIdentifier() && !at("ON"))
        fail();
    take();
    if (token.kind == TokenKind::Name && sameWord(token.text, "@@IDENTITY"))
        return make(ExpressionKind::Identity, start);
    if (token.kind == TokenKind::Name && at("("))
        return call(token.text, start);
    ExpressionPtr column = make(ExpressionKind::Column, start, token.text);
    column->bracketed = token.kind == TokenKind::QuotedName;
    if (accept(".") || accept("!")) {
        if (peek().kind != TokenKind::Name && peek().kind != TokenKind::QuotedName)
            fail();
        column->qualifier = token.text;
        column->name = take().text;
        column->bracketed = true;
        column->text = textFrom(start);
    }
    return column;
}

ExpressionPtr Parser::call(std::string_view name, std::size_t start)
{
    const DepthGuard depth(*this);
    expect("(");
    if (at("*") && at(")", 1) && sameWord(name, "COUNT")) {
        m_at += 2;
        return make(ExpressionKind::CountRows, start, name);
    }
    ExpressionPtr result = make(ExpressionKind::Call, start, name);
    if (!at(")")) {
        do
            add(*result, logic(0));
        while (accept(","));
    }
    expect(")");
    result->text = textFrom(start);
    return result;
}

} // namespace jet
