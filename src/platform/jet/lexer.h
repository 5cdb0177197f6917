#pragma once

#include "platform/jet/errors.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

enum class TokenKind { Name, QuotedName, Text, Integer, Float, Date, Symbol, Unreadable, End };

/// One word of a statement. `text` is a piece of the statement: of a quoted name or a text
/// without its quotes, of a literal as it was typed.
struct Token
{
    TokenKind kind = TokenKind::End;
    std::string_view text;
    std::size_t offset = 0; ///< of its first byte, quotes included
    std::size_t end = 0;    ///< the byte behind its last
    int literal = -1;       ///< its place among the literals, or -1
};

/// A value lifted out of a statement. Whole numbers beyond 32 bits are of kind Float.
struct Literal
{
    TokenKind kind = TokenKind::Text;
    std::string_view text;
    bool doubledQuotes = false; ///< the text holds a quote twice for each once
    char quote = '\'';
    double number = 0; ///< of numbers and dates
};

/// Why a statement cannot be read on. `what` is at fault from `offset` to `end`, in bytes.
struct Fault
{
    std::string_view what;
    std::size_t offset = 0;
    std::size_t end = 0;
    bool ofExpression = false; ///< the message shows the expression it stands in
    int number = SyntaxError;
};

/// Takes a statement apart, one token a call, and puts its literals into the list, which it empties first.
/// The statement (UTF-8) and the list must outlive it. An unclosed text, name or date, an impossible date and
/// a character that is none of the dialect's are the last token, Unreadable, which is all of the rest: the
/// parser may find another fault before it.
class Lexer final
{
public:
    Lexer(std::string_view statement, std::vector<Literal> &literals)
        : m_statement(statement)
        , m_literals(literals)
    {
        m_literals.clear();
    }

    Token next();
    [[nodiscard]] std::string_view statement() const { return m_statement; }
    /// Of the unreadable token.
    [[nodiscard]] const Fault &fault() const { return m_fault; }

private:
    [[nodiscard]] bool operandBefore() const;
    Token name();
    Token number();
    Token quoted(char close, TokenKind kind);
    Token text(char quote);
    Token date();
    Token symbol(std::size_t length);
    Token finish(TokenKind kind, std::size_t start, std::string_view text);
    Token unreadable(const Fault &fault);
    Token finishLiteral(Token token, Literal literal);

    std::string_view m_statement;
    std::size_t m_at = 0;
    TokenKind m_lastKind = TokenKind::End;
    std::string_view m_lastText;
    bool m_lastIsPoint = false;
    bool m_behindPoint = false; ///< the last token
    std::vector<Literal> &m_literals;
    Fault m_fault;
};

/// A statement whose literals are lifted out: `shape` is the same for all statements that
/// differ in their literals only, and can be told apart from any other statement.
struct LiftedStatement
{
    std::string shape;
    std::vector<Literal> literals;
};

/// Fills `lifted`, whose memory is used again.
void liftLiterals(std::string_view statement, LiftedStatement &lifted);

} // namespace jet
