#pragma once

#include "platform/jet/lexer.h"
#include "platform/jet/tree.h"

#include <span>

namespace jet {

/// Recursive descent over the dialect and nothing else. One statement: a semicolon may end
/// it, text behind that is refused. The tree points into the statement's text.
class Parser final
{
public:
    explicit Parser(std::string_view statement);

    [[nodiscard]] Statement parse();
    /// The values that literals of the tree point to.
    [[nodiscard]] const std::vector<Literal> &literals() const { return m_literals; }

private:
    // The words at hand.
    [[nodiscard]] const Token &peek(std::size_t ahead = 0) const;
    Token take();
    [[nodiscard]] bool at(std::string_view word, std::size_t ahead = 0) const;
    bool accept(std::string_view word);
    void expect(std::string_view word);
    void expectEndOfClause() const;
    std::string_view identifier();
    [[nodiscard]] bool atIdentifier(std::size_t ahead = 0) const;
    [[noreturn]] void fail() const;
    [[noreturn]] void failAt(std::string_view what, const Token &token) const;
    [[noreturn]] void failMissingOperator(std::size_t start) const;
    [[noreturn]] void failUnreadable(std::size_t expressionStart) const;
    [[noreturn]] void failTooComplex() const;
    [[nodiscard]] std::string_view textFrom(std::size_t start) const;

    // parser.cpp
    QueryPtr query(bool allowInto = false);
    Query unionOfArms(bool allowInto);
    void selectArm(Query &query, bool allowInto);
    [[nodiscard]] bool beginsQuery() const;
    void top(Select &select);
    void items(Select &select);
    SelectItem item();
    std::vector<OrderItem> orderBy();
    std::vector<std::unique_ptr<Source>> from();
    std::vector<std::unique_ptr<Source>> sources();
    std::unique_ptr<Source> joinedSource();
    std::unique_ptr<Source> singleSource();
    void alias(Source &source);
    bool acceptJoin(JoinKind &kind);

    // parser_write.cpp
    Insert insert();
    Update update();
    Delete deleteRows();
    Statement create();
    CreateTable createTable();
    CreateIndex createIndex(bool unique);
    ColumnDefinition columnDefinition(CreateTable &table);
    /// Raises when the table has a key already.
    void expectPrimaryKey(const CreateTable &table);
    Statement drop();

    // parser_expression.cpp
    ExpressionPtr expression();
    /// One that a word of the statement must follow, a sign between two or the end.
    ExpressionPtr clauseExpression();
    ExpressionPtr logic(std::size_t level);
    ExpressionPtr negation();
    ExpressionPtr comparison();
    ExpressionPtr comparedBy(std::string_view sign, ExpressionPtr left, std::size_t start);
    ExpressionPtr nullTest(ExpressionPtr left, std::size_t start);
    /// [Not] Like, Between or In.
    ExpressionPtr membership(ExpressionPtr left, std::size_t start);
    ExpressionPtr listed(ExpressionPtr left, std::size_t start);
    ExpressionPtr concatenation();
    ExpressionPtr arithmetic(std::size_t level);
    ExpressionPtr sign();
    ExpressionPtr power();
    ExpressionPtr primary();
    ExpressionPtr nameOrCall();
    ExpressionPtr call(std::string_view name, std::size_t start);
    ExpressionPtr make(ExpressionKind kind, std::size_t start, std::string_view name = {});
    /// Raises SyntaxError for a tree that grows deeper than can be walked.
    void add(Expression &parent, ExpressionPtr argument) const;
    template <typename Operand>
    ExpressionPtr chain(ExpressionKind kind, std::string_view sign, std::size_t start, ExpressionPtr first,
                        Operand operand);
    template <typename... Arguments>
    ExpressionPtr node(ExpressionKind kind, std::size_t start, std::string_view name, Arguments... arguments);

    std::vector<Literal> m_literals;
    Lexer m_lexer;
    std::vector<Token> m_tokens;
    std::size_t m_at = 0;
    std::string_view m_clause; ///< names the clause in "Syntax error in FROM clause"
    std::size_t m_expressionStart = std::string_view::npos; ///< of the outermost one at hand, or npos
    int m_depth = 0;

    friend class DepthGuard;
    friend class ClauseGuard;
};

} // namespace jet
