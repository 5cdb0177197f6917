#include "platform/jet/lexer.h"

#include "platform/jet/datemath.h"
#include "platform/jet/numbertext.h"
#include "platform/jet/words.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace jet {
namespace {

enum Class : unsigned char { Other, Blank, Letter, Digit, Sign, Quote, Bracket, Hash };

constexpr auto classes = [] {
    struct
    {
        Class of[256];
    } table{};
    for (int c = 0; c < 256; ++c) {
        Class kind = Other;
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n')
            kind = Blank;
        else if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c >= 0x80 || c == '@')
            kind = Letter;
        else if (c >= '0' && c <= '9')
            kind = Digit;
        else if (c == '\'' || c == '"')
            kind = Quote;
        else if (c == '[' || c == '`')
            kind = Bracket;
        else if (c == '#')
            kind = Hash;
        else if (std::string_view("(),.;=<>+-*/\\^&!").find(char(c)) != std::string_view::npos)
            kind = Sign;
        table.of[c] = kind;
    }
    return table;
}();

Class classOf(char c)
{
    return classes.of[static_cast<unsigned char>(c)];
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

} // namespace

Token Lexer::finish(TokenKind kind, std::size_t start, std::string_view text)
{
    Token token;
    token.kind = kind;
    token.text = text;
    token.offset = start;
    token.end = m_at;
    m_behindPoint = m_lastIsPoint;
    m_lastIsPoint = kind == TokenKind::Symbol && (text[0] == '.' || text[0] == '!');
    m_lastKind = kind;
    m_lastText = text;
    return token;
}

Token Lexer::unreadable(const Fault &fault)
{
    m_fault = fault;
    m_at = m_statement.size();
    return finish(TokenKind::Unreadable, fault.offset, m_statement.substr(fault.offset));
}

Token Lexer::finishLiteral(Token token, Literal literal)
{
    token.literal = static_cast<int>(m_literals.size());
    m_literals.push_back(literal);
    return token;
}

Token Lexer::next()
{
    while (m_at < m_statement.size() && classOf(m_statement[m_at]) == Blank)
        ++m_at;
    if (m_at >= m_statement.size())
        return finish(TokenKind::End, m_at, {});

    const char c = m_statement[m_at];
    const char after = m_at + 1 < m_statement.size() ? m_statement[m_at + 1] : '\0';
    switch (classOf(c)) {
    case Letter:
        return name();
    case Digit:
        return number();
    case Quote:
        return text(c);
    case Bracket:
        return quoted(c == '[' ? ']' : '`', TokenKind::QuotedName);
    case Hash:
        return date();
    case Sign:
        if (c == '.' && classOf(after) == Digit && !operandBefore())
            return number();
        if (c == '&' && lowered(after) == 'h' && m_at + 2 < m_statement.size() &&
            isHexDigit(m_statement[m_at + 2]) && !operandBefore())
            return number();
        if ((c == '<' && (after == '=' || after == '>')) || (c == '>' && after == '='))
            return symbol(2);
        return symbol(1);
    default:
        return unreadable({"Syntax error", m_at, m_at + 1});
    }
}

Token Lexer::symbol(std::size_t length)
{
    const std::size_t start = m_at;
    m_at += length;
    return finish(TokenKind::Symbol, start, m_statement.substr(start, length));
}

Token Lexer::name()
{
    const std::size_t start = m_at;
    const auto end = std::find_if(m_statement.begin() + std::ptrdiff_t(start), m_statement.end(), [](char c) {
        const Class kind = classOf(c);
        return kind != Letter && kind != Digit && c != '$';
    });
    m_at = std::size_t(end - m_statement.begin());
    return finish(TokenKind::Name, start, m_statement.substr(start, m_at - start));
}

// Tells a sign that begins a number from one that stands between two operands. Behind a reserved
// word an operand begins; a column of such a name is bracketed, or stands behind its table.
bool Lexer::operandBefore() const
{
    switch (m_lastKind) {
    case TokenKind::End:
        return false;
    case TokenKind::Symbol:
        return m_lastText == ")";
    case TokenKind::Name:
        return m_behindPoint || !isReserved(m_lastText) || isReservedValue(m_lastText);
    default:
        return true;
    }
}

Token Lexer::number()
{
    const std::size_t start = m_at;
    Literal literal;
    literal.kind = TokenKind::Integer;
    const char *const begin = m_statement.data() + start;
    const char *const end = m_statement.data() + m_statement.size();
    if (*begin == '&') {
        std::uint32_t hex = 0;
        const auto [last, error] = std::from_chars(begin + 2, end, hex, 16);
        m_at = static_cast<std::size_t>(last - m_statement.data());
        if (error != std::errc())
            return unreadable({"Syntax error in number", start, m_at});
        literal.number = signedBits(hex);
    } else {
        const char *at = begin;
        for (; at < end && classOf(*at) == Digit; ++at)
            literal.number = literal.number * 10 + (*at - '0');
        constexpr std::ptrdiff_t exactDigits = 15;
        const bool plain = at - begin <= exactDigits;
        if (at < end && *at == '.') {
            literal.kind = TokenKind::Float;
            for (++at; at < end && classOf(*at) == Digit;)
                ++at;
        }
        if (at + 1 < end && lowered(*at) == 'e' &&
            (classOf(at[1]) == Digit ||
             (at + 2 < end && (at[1] == '+' || at[1] == '-') && classOf(at[2]) == Digit))) {
            literal.kind = TokenKind::Float;
            for (at += 2; at < end && classOf(*at) == Digit;)
                ++at;
        }
        if (literal.kind == TokenKind::Float || !plain)
            readDouble({begin, at}, literal.number);
        if (literal.number > std::numeric_limits<std::int32_t>::max())
            literal.kind = TokenKind::Float;
        m_at = static_cast<std::size_t>(at - m_statement.data());
        if (std::isinf(literal.number))
            return unreadable({"Syntax error in number", start, m_at});
    }
    // 12abc is neither a number nor a name.
    if (m_at < m_statement.size() && classOf(m_statement[m_at]) == Letter)
        return unreadable({"Syntax error in number", start, m_at + 1});
    literal.text = m_statement.substr(start, m_at - start);
    return finishLiteral(finish(literal.kind, start, literal.text), literal);
}

Token Lexer::quoted(char close, TokenKind kind)
{
    const std::size_t start = m_at;
    const std::size_t last = m_statement.find(close, start + 1);
    if (last == std::string_view::npos || last == start + 1)
        return unreadable({"Syntax error in name", start, last == start + 1 ? last + 1 : m_statement.size()});
    const std::string_view inside = m_statement.substr(start + 1, last - start - 1);
    if (std::any_of(inside.begin(), inside.end(), [](unsigned char c) { return c < ' '; }))
        return unreadable({"Syntax error in name", start, last + 1});
    m_at = last + 1;
    return finish(kind, start, inside);
}

Token Lexer::text(char quote)
{
    const std::size_t start = m_at;
    Literal literal;
    literal.quote = quote;
    std::size_t at = start + 1;
    for (;;) {
        at = m_statement.find(quote, at);
        if (at == std::string_view::npos)
            return unreadable({"Syntax error in string", start, m_statement.size(), true});
        if (at + 1 >= m_statement.size() || m_statement[at + 1] != quote)
            break;
        literal.doubledQuotes = true;
        at += 2;
    }
    m_at = at + 1;
    literal.text = m_statement.substr(start + 1, at - start - 1);
    return finishLiteral(finish(TokenKind::Text, start, literal.text), literal);
}

Token Lexer::date()
{
    const std::size_t start = m_at;
    const std::size_t last = m_statement.find('#', start + 1);
    const std::size_t end = last == std::string_view::npos ? m_statement.size() : last + 1;
    Literal literal;
    literal.kind = TokenKind::Date;
    std::optional<double> date;
    if (last != std::string_view::npos) {
        literal.text = m_statement.substr(start + 1, last - start - 1);
        date = dateOf(literal.text);
    }
    if (!date)
        return unreadable({"Syntax error in date", start, end, true, TypeMismatch});
    literal.number = *date;
    m_at = end;
    return finishLiteral(finish(TokenKind::Date, start, literal.text), literal);
}

void liftLiterals(std::string_view statement, LiftedStatement &lifted)
{
    constexpr char literalMark = '\1'; // stands in no statement: the lexer refuses it
    lifted.shape.clear();
    Lexer lexer(statement, lifted.literals);
    std::size_t copied = 0;
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        if (token.kind == TokenKind::Unreadable) {
            lifted.shape = literalMark; // of no statement that can be read
            return;
        }
        if (token.literal < 0)
            continue;
        lifted.shape.append(statement, copied, token.offset - copied);
        lifted.shape += literalMark;
        lifted.shape += static_cast<char>('a' + static_cast<int>(token.kind));
        copied = token.end;
    }
    lifted.shape.append(statement, copied);
}

} // namespace jet
