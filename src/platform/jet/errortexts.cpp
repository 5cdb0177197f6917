#include "platform/jet/errortexts.h"

#include "base/error.h"
#include "platform/jet/utf8.h"

#include <algorithm>

namespace jet {

void raiseError(int number, std::string_view text)
{
    throwError(number, QString::fromUtf8(text.data(), qsizetype(text.size())));
}

std::string excerpt(std::string_view text)
{
    constexpr std::size_t longest = 200;
    constexpr char32_t firstControlPicture = 0x2400;
    const std::size_t end = utf8::offset(text, longest);
    std::string shown;
    for (const char c : text.substr(0, end)) {
        if (c == '\t' || c == '\r' || c == '\n')
            shown += ' ';
        else if (c >= 0 && c < ' ')
            utf8::append(shown, firstControlPicture + static_cast<char32_t>(c));
        else
            shown += c;
    }
    return end < text.size() ? shown + "..." : shown;
}

void raiseSyntax(std::string_view text, std::string_view statement, std::size_t offset, std::size_t end,
                 int number)
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
        message += " Near '" + excerpt(statement.substr(offset, end - offset)) + "' at " +
                   std::to_string(utf8::length(statement.substr(0, offset)) + 1) + '.';
    }
    raiseError(number, message);
}

void raiseInExpression(int number, std::string_view what, std::string_view expression)
{
    raiseError(number, std::string(what) + " in query expression '" + excerpt(expression) + "'.");
}

std::string didYouMean(std::string_view name)
{
    return " Did you mean '" + std::string(name) + "'?";
}

std::string_view nearest(std::string_view word, const std::vector<std::string_view> &names)
{
    constexpr std::size_t longestName = 64;
    if (word.size() > longestName)
        return {};
    std::string_view nearest;
    std::size_t best = std::max<std::size_t>(1, word.size() / 3);
    for (const std::string_view name : names) {
        const std::size_t distance = wordDistance(word, name);
        if (distance < word.size() && distance <= best && (nearest.empty() || distance < best)) {
            best = distance;
            nearest = name;
        }
    }
    return nearest;
}

std::string suggestion(std::string_view word, const std::vector<std::string_view> &names)
{
    const std::string_view name = nearest(word, names);
    return name.empty() ? std::string() : didYouMean(name);
}

void raiseMissingSource(std::string_view name, const std::vector<std::string_view> &known)
{
    raiseError(MissingTable, "The Microsoft Jet database engine cannot find the input table or query '" +
                                 std::string(name) +
                                 "'.  Make sure it exists and that its name is spelled correctly." +
                                 suggestion(name, known));
}

void raiseTypeMismatch(std::string_view expression, std::string_view left, std::string_view right)
{
    raiseError(TypeMismatch, "Data type mismatch in criteria expression. '" + excerpt(expression) +
                                 "' compares " + std::string(left) + " with " + std::string(right) + '.');
}

} // namespace jet
