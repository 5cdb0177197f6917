#include "platform/jet/errortexts.h"

#include "base/error.h"
#include "platform/jet/lexer.h"

namespace jet {

void raiseError(int number, std::string_view text)
{
    raise(number, QString::fromUtf8(text.data(), qsizetype(text.size())));
}

void raiseSyntax(std::string_view text, std::string_view statement, std::size_t offset, std::size_t end)
{
    std::string message(text);
    message += '.';
    if (offset >= statement.size())
        message += " The statement ends too early.";
    else {
        // A place inside of a character is moved back to its beginning.
        while (offset > 0 && (static_cast<unsigned char>(statement[offset]) & 0xc0) == 0x80)
            --offset;
        while (end < statement.size() && (static_cast<unsigned char>(statement[end]) & 0xc0) == 0x80)
            ++end;
        message += " Near '" + std::string(statement.substr(offset, end - offset)) + "' at " +
                   std::to_string(characterAt(statement, offset)) + '.';
    }
    raiseError(SyntaxError, message);
}

void raiseInExpression(int number, std::string_view what, std::string_view expression)
{
    raiseError(number, std::string(what) + " in query expression '" + std::string(expression) + "'.");
}

std::string suggestion(std::string_view word, const std::vector<std::string_view> &names)
{
    std::string_view nearest;
    std::size_t best = word.size() / 3 + 1;
    for (const std::string_view name : names) {
        const std::size_t distance = wordDistance(word, name);
        if (distance <= best && (nearest.empty() || distance < best)) {
            best = distance;
            nearest = name;
        }
    }
    return nearest.empty() ? std::string() : " Did you mean '" + std::string(nearest) + "'?";
}

void raiseTypeMismatch(std::string_view expression, std::string_view left, std::string_view right)
{
    raiseError(TypeMismatch, "Data type mismatch in criteria expression. '" + std::string(expression) +
                                 "' compares " + std::string(left) + " with " + std::string(right) + '.');
}

} // namespace jet
