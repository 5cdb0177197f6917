#include "platform/jet/functionbodies.h"
#include "platform/jet/functioncall.h"

#include "base/windows1252.h"
#include "platform/jet/collation.h"
#include "platform/jet/utf8.h"

#include <QChar>

#include <algorithm>

namespace jet::bodies {

namespace {

enum Comparison { Binary = 0, Textual = 1, OfStore = 2 };

/// Left out, -1 and 2 stand for the order of the store, which is without regard to case.
bool isBinary(const Call &call, int index)
{
    const int comparison = call.whole(index, OfStore);
    if (comparison < -1 || comparison > OfStore)
        raiseInvalidCall();
    return comparison == Binary;
}

std::size_t atLeast(int least, int number)
{
    if (number < least)
        raiseInvalidCall();
    return std::size_t(number);
}

std::string_view firstCharacters(std::string_view text, std::size_t count)
{
    return text.substr(0, utf8::offset(text, count));
}

std::string_view withoutCharacters(std::string_view text, std::size_t count)
{
    return text.substr(utf8::offset(text, count));
}

/// Two texts as a search compares them. Folding keeps the number of characters.
struct Search
{
    Search(std::string_view text, std::string_view sought, bool binary)
        : haystack(binary ? std::string(text) : foldCase(text))
        , needle(binary ? std::string(sought) : foldCase(sought))
    {
    }
    std::string haystack;
    std::string needle;
};

std::string upper(std::string_view text)
{
    return utf8::mapped(text, [](char32_t code) { return char32_t(QChar::toUpper(code)); });
}

std::string lower(std::string_view text)
{
    return utf8::mapped(text, [](char32_t code) { return char32_t(QChar::toLower(code)); });
}

/// Each word begins with a capital letter and goes on in small ones.
std::string proper(std::string_view text)
{
    bool inWord = false;
    return utf8::mapped(text, [&inWord](char32_t code) {
        const char32_t cased = inWord ? QChar::toLower(code) : QChar::toUpper(code);
        inWord = !(QChar::isSpace(code) || code == 0);
        return cased;
    });
}

char32_t firstCharacter(std::string_view text)
{
    if (text.empty())
        raiseInvalidCall();
    const char *at = text.data();
    return utf8::next(at, at + text.size());
}

std::string repeated(std::string_view character, int count)
{
    const std::size_t size = atLeast(0, count);
    requireRoom(character.size() * size);
    if (character.size() == 1)
        return std::string(size, character.front());
    std::string text;
    text.reserve(character.size() * size);
    for (int i = 0; i < count; ++i)
        text += character;
    return text;
}

std::string_view trimmed(std::string_view text, bool atStart, bool atEnd)
{
    while (atStart && text.starts_with(' '))
        text.remove_prefix(1);
    while (atEnd && text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

} // namespace

void left(Call &call)
{
    call.give(firstCharacters(call.text(0), atLeast(0, call.whole(1))));
}

void right(Call &call)
{
    const std::string_view text = call.text(0);
    const std::size_t length = utf8::length(text);
    call.give(withoutCharacters(text, length - std::min(length, atLeast(0, call.whole(1)))));
}

void mid(Call &call)
{
    const std::string_view behind = withoutCharacters(call.text(0), atLeast(1, call.whole(1)) - 1);
    call.give(call.count() > 2 ? firstCharacters(behind, atLeast(0, call.whole(2))) : behind);
}

void length(Call &call)
{
    call.giveWhole(std::int64_t(utf8::length(call.text(0))));
}

void upperCase(Call &call)
{
    call.give(upper(call.text(0)));
}

void lowerCase(Call &call)
{
    call.give(lower(call.text(0)));
}

void trim(Call &call)
{
    call.give(trimmed(call.text(0), true, true));
}

void trimLeft(Call &call)
{
    call.give(trimmed(call.text(0), true, false));
}

void trimRight(Call &call)
{
    call.give(trimmed(call.text(0), false, true));
}

void inString(Call &call)
{
    // With three arguments and more the first one is the place to start at.
    const int texts = call.count() > 2 ? 1 : 0;
    const std::size_t start = atLeast(1, texts == 1 ? call.whole(0) : 1) - 1;
    const Search search(call.text(texts), call.text(texts + 1), isBinary(call, 3));
    const std::size_t from = utf8::offset(search.haystack, start);
    if (search.haystack.empty() || start > utf8::length(search.haystack)) {
        call.giveWhole(0);
        return;
    }
    const std::size_t found = search.haystack.find(search.needle, from);
    call.giveWhole(found == std::string::npos
                       ? 0
                       : std::int64_t(utf8::length(std::string_view(search.haystack).substr(0, found))) + 1);
}

void inStringReversed(Call &call)
{
    const Search search(call.text(0), call.text(1), isBinary(call, 3));
    const std::size_t length = utf8::length(search.haystack);
    const int start = call.whole(2, -1);
    if (start == 0 || start < -1)
        raiseInvalidCall();
    const std::size_t last = start == -1 ? length : std::size_t(start);
    if (search.haystack.empty() || last > length) {
        call.giveWhole(0);
        return;
    }
    // What is found lies wholly in the first `last` characters.
    const std::string_view searched = firstCharacters(search.haystack, last);
    if (search.needle.empty()) {
        call.giveWhole(std::int64_t(last));
        return;
    }
    const std::size_t found = searched.rfind(search.needle);
    call.giveWhole(
        found == std::string_view::npos ? 0 : std::int64_t(utf8::length(searched.substr(0, found))) + 1);
}

void replace(Call &call)
{
    for (int i = 0; i < call.count(); ++i)
        if (call.isNull(i))
            raiseMismatch();
    std::string_view text = withoutCharacters(call.text(0), atLeast(1, call.whole(3, 1)) - 1);
    const int limit = call.whole(4, -1);
    if (limit < -1)
        raiseInvalidCall();
    const std::string_view replacement = call.text(2);
    const Search search(text, call.text(1), isBinary(call, 5));
    const std::size_t needleLength = utf8::length(search.needle);

    std::string result;
    std::string_view folded = search.haystack;
    for (int done = 0; !search.needle.empty() && done != limit; ++done) {
        const std::size_t found = folded.find(search.needle);
        if (found == std::string_view::npos)
            break;
        const std::size_t before = utf8::offset(text, utf8::length(folded.substr(0, found)));
        requireRoom(result.size() + before + replacement.size());
        result.append(text.substr(0, before)).append(replacement);
        text = withoutCharacters(text.substr(before), needleLength);
        folded.remove_prefix(found + search.needle.size());
    }
    call.give(result.append(text));
}

void reverse(Call &call)
{
    std::string_view text = call.text(0);
    std::string result(text.size(), ' ');
    for (std::size_t left = text.size(); left > 0;) {
        const std::size_t size = utf8::offset(text, 1);
        left -= size;
        text.copy(result.data() + left, size);
        text.remove_prefix(size);
    }
    call.give(result);
}

void space(Call &call)
{
    call.give(repeated(" ", call.whole(0)));
}

void stringOf(Call &call)
{
    const int count = call.whole(0);
    if (call.isText(1)) {
        call.give(repeated(utf8::encoded(firstCharacter(call.text(1))), count));
        return;
    }
    call.give(repeated(utf8::encoded(windows1252::character(uchar(call.whole(1)))), count));
}

void codeOf(Call &call)
{
    const char32_t code = firstCharacter(call.text(0));
    call.giveWhole(windows1252::byte(code).value_or('?'));
}

void characterOf(Call &call)
{
    const int code = call.whole(0);
    if (code < 0 || code > 255)
        raiseInvalidCall();
    call.give(utf8::encoded(windows1252::character(uchar(code))));
}

void unicodeOf(Call &call)
{
    call.giveWhole(std::int64_t(firstCharacter(call.text(0))));
}

void unicodeCharacter(Call &call)
{
    const int code = call.whole(0);
    if (code < 0 || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
        raiseInvalidCall();
    call.give(utf8::encoded(char32_t(code)));
}

void compareStrings(Call &call)
{
    const std::string_view left = call.text(0);
    const std::string_view right = call.text(1);
    const int order = isBinary(call, 2) ? left.compare(right) : compareTexts(left, right);
    call.giveWhole(order < 0 ? -1 : order > 0 ? 1 : 0);
}

void convertString(Call &call)
{
    switch (call.whole(1)) {
    case 1:
        call.give(upper(call.text(0)));
        break;
    case 2:
        call.give(lower(call.text(0)));
        break;
    case 3:
        call.give(proper(call.text(0)));
        break;
    default:
        raiseInvalidCall();
    }
}

} // namespace jet::bodies
