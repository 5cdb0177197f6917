#include "platform/jet/parser.h"

#include "platform/jet/errortexts.h"
#include "platform/jet/parser_guards.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace jet {
namespace {

// Words and signs that may stand behind an expression.
constexpr std::string_view behindExpression[] = {",",      ")",     ";",     "FROM",  "WHERE", "GROUP",
                                                 "HAVING", "ORDER", "UNION", "INTO",  "AS",    "ASC",
                                                 "DESC",   "INNER", "LEFT",  "RIGHT", "SET"};

// What may stand behind a table of FROM.
constexpr std::string_view behindTable[] = {",",     ")",     ";",    "WHERE", "GROUP", "HAVING", "ORDER",
                                            "UNION", "INNER", "LEFT", "RIGHT", "ON",    "SET"};

// Words that other dialects have behind a table and its alias.
constexpr std::string_view foreignBehindTable[] = {"JOIN",  "FULL",  "CROSS", "NATURAL",
                                                   "USING", "LIMIT", "OFFSET"};

template <typename Words>
constexpr bool contains(const Words &words, std::string_view word)
{
    for (const std::string_view entry : words) {
        if (sameWord(entry, word))
            return true;
    }
    return false;
}

bool isOneOf(const Token &token, const auto &words)
{
    const bool word = token.kind == TokenKind::Name || token.kind == TokenKind::Symbol;
    return token.kind == TokenKind::End || (word && contains(words, token.text));
}

constexpr std::string_view misplacedWord =
    "The SELECT statement includes a reserved word or an argument name that is misspelled or missing, or the "
    "punctuation is incorrect";

// SELECT * FROM (query) AS name
Select allOf(Query query, std::string_view name = {})
{
    auto source = std::make_unique<Source>();
    source->alias = name;
    source->query = std::make_unique<Query>(std::move(query));
    Select all;
    all.items.emplace_back();
    all.from.push_back(std::move(source));
    return all;
}

// The rows of an arm, to be ordered once more. They go by the name of their table.
Select allOf(Select arm)
{
    std::string_view name;
    if (arm.from.size() == 1)
        name = arm.from[0]->alias.empty() ? arm.from[0]->table : arm.from[0]->alias;
    Query query;
    query.orderBy = std::exchange(arm.orderBy, {});
    query.arms.push_back(std::move(arm));
    return allOf(std::move(query), name);
}

} // namespace

Parser::Parser(std::string_view statement) : m_lexer(statement, m_literals)
{
    do
        m_tokens.push_back(m_lexer.next());
    while (m_tokens.back().kind != TokenKind::End);
}

const Token &Parser::peek(std::size_t ahead) const
{
    return m_tokens[std::min(m_at + ahead, m_tokens.size() - 1)];
}

Token Parser::take()
{
    const Token token = peek();
    if (token.kind != TokenKind::End)
        ++m_at;
    return token;
}

bool Parser::at(std::string_view word, std::size_t ahead) const
{
    const Token &token = peek(ahead);
    return (token.kind == TokenKind::Name || token.kind == TokenKind::Symbol) && sameWord(token.text, word);
}

bool Parser::accept(std::string_view word)
{
    if (!at(word))
        return false;
    ++m_at;
    return true;
}

void Parser::expect(std::string_view word)
{
    if (!accept(word))
        fail();
}

bool Parser::atIdentifier(std::size_t ahead) const
{
    const Token &token = peek(ahead);
    return token.kind == TokenKind::QuotedName || (token.kind == TokenKind::Name && !isReserved(token.text));
}

std::string_view Parser::identifier()
{
    if (!atIdentifier())
        fail();
    return take().text;
}

std::string_view Parser::textFrom(std::size_t start) const
{
    const std::size_t end = m_at > 0 ? m_tokens[m_at - 1].end : start;
    return m_lexer.statement().substr(start, end > start ? end - start : 0);
}

// Where words of the expression have been taken already, what stands behind them is an operator that is
// missing; at its beginning, and outside of one, the clause is told.
void Parser::fail() const
{
    const Token &token = peek();
    if (m_expressionStart < token.offset && m_at > 0 && m_expressionStart < m_tokens[m_at - 1].end)
        failMissingOperator(m_expressionStart);
    failAt("Syntax error" + (m_clause.empty() ? std::string() : " in " + std::string(m_clause)), token);
}

void Parser::failAt(std::string_view what, const Token &token) const
{
    if (token.kind == TokenKind::Unreadable)
        failUnreadable(m_expressionStart);
    raiseSyntax(what, m_lexer.statement(), token.offset, token.end);
}

void Parser::failUnreadable(std::size_t expressionStart) const
{
    const Fault &fault = m_lexer.fault();
    std::string what(fault.what);
    if (fault.ofExpression) {
        const std::size_t start = std::min(expressionStart, fault.offset);
        what +=
            " in query expression '" + excerpt(m_lexer.statement().substr(start, fault.end - start)) + '\'';
    }
    raiseSyntax(what, m_lexer.statement(), fault.offset, fault.end, fault.number);
}

void Parser::failTooComplex() const
{
    raiseError(SyntaxError, queryTooComplex);
}

void Parser::expectEndOfClause() const
{
    if (!at(";") && peek().kind != TokenKind::End)
        fail();
}

ExpressionPtr Parser::clauseExpression()
{
    const std::size_t start = peek().offset;
    ExpressionPtr result = expression();
    if (!isOneOf(peek(), behindExpression))
        failMissingOperator(start);
    return result;
}

void Parser::failMissingOperator(std::size_t start) const
{
    const Token &token = peek();
    if (token.kind == TokenKind::Unreadable)
        failUnreadable(start);
    // 'O'Brien' is shown with the quote that is one too many.
    const Token &after = peek(1);
    const bool quoteBehind = after.kind == TokenKind::Unreadable && after.offset == token.end &&
                             (after.text.front() == '\'' || after.text.front() == '"');
    const std::size_t end = token.end + (quoteBehind ? 1 : 0);
    const std::string_view expression = m_lexer.statement().substr(start, end - start);
    failAt("Syntax error (missing operator) in query expression '" + excerpt(expression) + '\'', token);
}

Statement Parser::parse()
{
    Statement statement = [this]() -> Statement {
        if (at("SELECT") || at("(") || at("TABLE"))
            return std::move(*query(true));
        if (accept("INSERT"))
            return insert();
        if (accept("UPDATE"))
            return update();
        if (accept("DELETE"))
            return deleteRows();
        if (accept("CREATE"))
            return create();
        if (accept("DROP"))
            return drop();
        failAt("Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'",
               peek());
    }();
    const bool ended = accept(";");
    if (peek().kind == TokenKind::End)
        return statement;
    if (ended)
        raiseSyntax("Characters found after end of SQL statement", m_lexer.statement(), peek().offset,
                    peek().end);
    failAt(misplacedWord, peek());
}

QueryPtr Parser::query(bool allowInto)
{
    const DepthGuard depth(*this);
    const ClauseGuard clause(*this, "query");
    const std::size_t start = peek().offset;
    auto query = std::make_unique<Query>(unionOfArms(allowInto));
    if (query->arms.size() == 1) {
        Select &only = query->arms[0];
        if (only.top && !only.orderBy.empty() && !query->orderBy.empty())
            only = allOf(std::move(only));
        if (query->orderBy.empty())
            query->orderBy = std::exchange(only.orderBy, {});
    }
    query->text = textFrom(start);
    return query;
}

Query Parser::unionOfArms(bool allowInto)
{
    Query query;
    selectArm(query, allowInto);
    while (accept("UNION")) {
        query.unionAll.push_back(accept("ALL"));
        const bool inParentheses = at("(");
        query.orderBy.clear(); // one in the middle orders nothing
        selectArm(query, false);
        // Behind the last arm stands the order of all; within its parentheses its own, for its TOP.
        if (!inParentheses && !at("UNION"))
            query.orderBy = std::exchange(query.arms.back().orderBy, {});
    }
    return query;
}

void Parser::selectArm(Query &query, bool allowInto)
{
    if (at("(")) {
        const DepthGuard depth(*this);
        take();
        Query inner = unionOfArms(false);
        expect(")");
        const bool ordered = at("ORDER");
        std::vector<OrderItem> order = ordered ? orderBy() : std::vector<OrderItem>();
        const bool wholeQuery = query.arms.empty() && !at("UNION");
        if (inner.arms.size() == 1 || wholeQuery) {
            std::ranges::move(inner.arms, std::back_inserter(query.arms));
            query.unionAll.insert(query.unionAll.end(), inner.unionAll.begin(), inner.unionAll.end());
            query.orderBy = ordered ? std::move(order) : std::move(inner.orderBy);
        } else {
            inner.orderBy.clear(); // the order of a part of all rows orders nothing
            query.orderBy = std::move(order);
            query.arms.push_back(allOf(std::move(inner)));
        }
        return;
    }
    Select select;
    if (accept("TABLE")) {
        select.items.emplace_back();
        auto source = std::make_unique<Source>();
        source->table = identifier();
        select.from.push_back(std::move(source));
        if (at("ORDER"))
            select.orderBy = orderBy();
        query.arms.push_back(std::move(select));
        return;
    }
    expect("SELECT");
    accept("ALL");
    if (accept("DISTINCT"))
        select.distinct = true;
    else if (accept("DISTINCTROW"))
        select.distinctRow = true;
    if (at("TOP") && (peek(1).literal >= 0 || at("(", 1) || at("-", 1)))
        top(select);
    items(select);
    if (allowInto && accept("INTO")) {
        const ClauseGuard clause(*this, "INTO clause");
        select.into = identifier();
    }
    if (accept("FROM"))
        select.from = from();
    if (accept("WHERE")) {
        const ClauseGuard clause(*this, "WHERE clause");
        select.where = clauseExpression();
    }
    if (accept("GROUP")) {
        const ClauseGuard clause(*this, "GROUP BY clause");
        expect("BY");
        do
            select.groupBy.push_back(clauseExpression());
        while (accept(","));
    }
    if (accept("HAVING")) {
        const ClauseGuard clause(*this, "HAVING clause");
        select.having = clauseExpression();
    }
    if (at("ORDER"))
        select.orderBy = orderBy();
    query.arms.push_back(std::move(select));
}

void Parser::top(Select &select)
{
    take();
    const Token count = peek();
    if (count.kind != TokenKind::Integer || m_literals[std::size_t(count.literal)].number < 1)
        failAt("Invalid TOP argument", count);
    select.topLiteral = count.literal;
    select.top = static_cast<int>(m_literals[std::size_t(count.literal)].number);
    take();
    select.percent = accept("PERCENT");
}

void Parser::items(Select &select)
{
    const ClauseGuard clause(*this, "SELECT statement");
    do
        select.items.push_back(item());
    while (accept(","));
}

SelectItem Parser::item()
{
    SelectItem item;
    if (accept("*"))
        return item;
    if (atIdentifier() && at(".", 1) && at("*", 2)) {
        item.starOf = identifier();
        m_at += 2;
        return item;
    }
    if (isOneOf(peek(), behindExpression) && !at("(", 1))
        failAt(misplacedWord, peek());
    item.expression = clauseExpression();
    if (!accept("AS"))
        return item;
    // A keyword is a good enough name behind AS: nothing but the list's end can stand there.
    const bool name = peek().kind == TokenKind::QuotedName || peek().kind == TokenKind::Name;
    if (!name || at("FROM") || at("INTO"))
        failAt(misplacedWord, peek());
    item.alias = take().text;
    if (!isOneOf(peek(), behindExpression))
        failAt(misplacedWord, peek());
    return item;
}

std::vector<OrderItem> Parser::orderBy()
{
    const ClauseGuard clause(*this, "ORDER BY clause");
    expect("ORDER");
    expect("BY");
    std::vector<OrderItem> items;
    do {
        OrderItem item;
        item.expression = clauseExpression();
        if (accept("DESC"))
            item.descending = true;
        else
            accept("ASC");
        items.push_back(std::move(item));
    } while (accept(","));
    return items;
}

std::vector<std::unique_ptr<Source>> Parser::from()
{
    const ClauseGuard clause(*this, "FROM clause");
    return sources();
}

std::vector<std::unique_ptr<Source>> Parser::sources()
{
    std::vector<std::unique_ptr<Source>> result;
    do
        result.push_back(joinedSource());
    while (accept(","));
    return result;
}

std::unique_ptr<Source> Parser::joinedSource()
{
    const DepthGuard depth(*this);
    std::unique_ptr<Source> left = singleSource();
    for (int joins = 0;;) {
        JoinKind kind = JoinKind::Inner;
        if (!acceptJoin(kind))
            return left;
        constexpr int mostJoins = 64; // SQLite joins no more tables than that
        if (++joins > mostJoins)
            failTooComplex();
        auto join = std::make_unique<Source>();
        join->join = kind;
        join->left = std::move(left);
        // a JOIN b JOIN c ON .. ON .. binds the inner one first.
        join->right = singleSource();
        expect("ON");
        {
            const ClauseGuard clause(*this, "JOIN operation");
            join->on = clauseExpression();
        }
        left = std::move(join);
    }
}

bool Parser::acceptJoin(JoinKind &kind)
{
    if (at("LEFT") || at("RIGHT")) {
        kind = at("LEFT") ? JoinKind::Left : JoinKind::Right;
        take();
        accept("OUTER");
    } else if (!accept("INNER"))
        return false;
    expect("JOIN");
    return true;
}

void Parser::alias(Source &source)
{
    const Token first = peek();
    const bool bare = !accept("AS") && atIdentifier();
    if (bare || sameWord(first.text, "AS"))
        source.alias = identifier();
    if (isOneOf(peek(), behindTable))
        return;
    // A word that is none of the dialect has passed as an alias: it is at fault, not the next.
    const bool nextIsForeign = isOneOf(peek(), foreignBehindTable) && !isOneOf(first, foreignBehindTable);
    failAt("Syntax error in " + std::string(m_clause), bare && !nextIsForeign ? first : peek());
}

// Behind an opening parenthesis: a query, in parentheses of its own or not, or a join whose first table
// may be a query.
bool Parser::beginsQuery() const
{
    std::size_t ahead = 0;
    while (at("(", ahead))
        ++ahead;
    if (!at("SELECT", ahead) && !at("TABLE", ahead))
        return false;
    if (ahead == 0)
        return true;
    std::size_t open = ahead;
    for (; open > 0 && peek(ahead).kind != TokenKind::End; ++ahead)
        open = open + (at("(", ahead) ? 1 : 0) - (at(")", ahead) ? 1 : 0);
    return at(")", ahead) || at("UNION", ahead) || at("ORDER", ahead);
}

std::unique_ptr<Source> Parser::singleSource()
{
    auto source = std::make_unique<Source>();
    if (at("(")) {
        take();
        if (beginsQuery())
            source->query = query();
        else
            source = joinedSource();
        expect(")");
        if (!source->query)
            return source;
    } else
        source->table = identifier();
    alias(*source);
    return source;
}

} // namespace jet
