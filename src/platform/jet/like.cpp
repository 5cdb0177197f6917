#include "platform/jet/like.h"

#include "platform/jet/collation.h"
#include "platform/jet/utf8.h"
#include "platform/jet/words.h"

#include <QChar>

#include <algorithm>
#include <array>

namespace jet {

namespace {

constexpr std::size_t shortText = 256;

bool isAlphanumeric(char32_t code)
{
    return code < utf8::firstBrokenByte && QChar::isLetterOrNumber(code);
}

} // namespace

bool LikePattern::Set::lies(char32_t folded, const std::pair<char32_t, char32_t> &range)
{
    const auto [first, last] = range;
    if (first == last)
        return folded == first;
    // Between letters and digits the order of the store decides, so that [a-z] has the accented letters too.
    if (isAlphanumeric(first) && isAlphanumeric(last)) {
        const std::string text = utf8::encoded(folded);
        return isAlphanumeric(folded) && compareTexts(utf8::encoded(first), text) <= 0 &&
               compareTexts(text, utf8::encoded(last)) <= 0;
    }
    return folded >= first && folded <= last;
}

void LikePattern::Set::add(char32_t first, char32_t last)
{
    ranges.emplace_back(first, last);
    for (char32_t code = 0; code < ascii.size(); ++code)
        if (lies(code, ranges.back()))
            ascii.set(code);
}

bool LikePattern::Set::contains(char32_t folded) const
{
    const bool found =
        folded < ascii.size()
            ? ascii.test(folded)
            : std::ranges::any_of(ranges, [&](const auto &range) { return lies(folded, range); });
    return found != negated;
}

LikePattern::LikePattern(std::string_view pattern)
{
    const std::string folded = foldCase(pattern);
    std::string_view rest = folded;
    while (!rest.empty()) {
        const char c = rest.front();
        std::size_t used = 1;
        if (c == '%') {
            if (m_parts.empty() || m_parts.back().kind != Kind::AnyRun)
                m_parts.push_back({Kind::AnyRun, {}, {}});
        } else if (c == '_') {
            m_parts.push_back({Kind::AnyCharacter, {}, {}});
        } else if (const std::size_t set = c == '[' ? addSet(rest.substr(1)) : 0; set > 0) {
            used += set;
        } else {
            addLiteral(rest.substr(0, 1));
        }
        rest.remove_prefix(used);
    }

    const auto literals = std::ranges::count(m_parts, Kind::Literal, &Part::kind);
    const auto runs = std::ranges::count(m_parts, Kind::AnyRun, &Part::kind);
    m_plain = literals + runs == std::ptrdiff_t(m_parts.size()) && literals <= 1;
    if (m_plain && !m_parts.empty()) {
        m_openStart = m_parts.front().kind == Kind::AnyRun;
        m_openEnd = m_parts.back().kind == Kind::AnyRun;
        if (const auto literal = std::ranges::find(m_parts, Kind::Literal, &Part::kind);
            literal != m_parts.end())
            m_needle = literal->literal;
        m_asciiNeedle = utf8::isAscii(m_needle);
    }
}

void LikePattern::addLiteral(std::string_view text)
{
    if (m_parts.empty() || m_parts.back().kind != Kind::Literal)
        m_parts.push_back({Kind::Literal, {}, {}});
    m_parts.back().literal.append(text);
}

std::size_t LikePattern::addSet(std::string_view rest)
{
    const std::size_t close = rest.find(']');
    if (close == std::string_view::npos)
        return 0;
    std::string_view inside = rest.substr(0, close);
    if (inside == "!") {
        addLiteral(inside);
        return close + 1;
    }
    Set set;
    if (inside.starts_with('!')) {
        set.negated = true;
        inside.remove_prefix(1);
    }
    if (inside.empty())
        return close + 1; // [] is the empty text

    std::vector<char32_t> characters;
    for (const char *at = inside.data(), *end = at + inside.size(); at != end;)
        characters.push_back(utf8::next(at, end));
    if (characters.size() == 1 && !set.negated) {
        addLiteral(inside);
        return close + 1;
    }
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const bool isRange = i + 2 < characters.size() && characters[i + 1] == U'-';
        set.add(characters[i], characters[isRange ? i + 2 : i]);
        if (isRange)
            i += 2;
    }
    m_parts.push_back({Kind::Set, {}, std::move(set)});
    return close + 1;
}

LikePattern::Answer LikePattern::beginning(std::string_view text) const
{
    const std::size_t common = std::min(text.size(), m_needle.size());
    for (std::size_t i = 0; i < common; ++i) {
        const char c = text[i];
        if (static_cast<unsigned char>(c) >= 0x80)
            return Answer::LookCloser;
        if (lowered(c) != m_needle[i])
            return Answer::No;
    }
    const bool reaches = m_openEnd ? text.size() >= m_needle.size() : text.size() == m_needle.size();
    return reaches ? Answer::Yes : Answer::No;
}

bool LikePattern::matches(std::string_view text) const
{
    if (m_plain && m_needle.empty() && m_openEnd)
        return true;
    if (m_plain && !m_openStart && m_asciiNeedle)
        if (const Answer answer = beginning(text); answer != Answer::LookCloser)
            return answer == Answer::Yes;
    if (text.size() > shortText || !utf8::isAscii(text))
        return matchesFolded(foldCase(text));
    std::array<char, shortText> folded;
    std::ranges::transform(text, folded.begin(), lowered);
    return matchesFolded({folded.data(), text.size()});
}

bool LikePattern::matchesFolded(std::string_view text) const
{
    if (!m_plain)
        return walk(text);
    if (m_openStart && m_openEnd)
        return text.find(m_needle) != std::string_view::npos;
    if (m_openStart)
        return text.ends_with(m_needle);
    if (m_openEnd)
        return text.starts_with(m_needle);
    return text == m_needle;
}

bool LikePattern::step(const Part &part, const char *&at, const char *end) const
{
    if (part.kind == Kind::Literal) {
        if (!std::string_view(at, std::size_t(end - at)).starts_with(part.literal))
            return false;
        at += part.literal.size();
        return true;
    }
    if (at == end)
        return false;
    const char32_t code = utf8::next(at, end);
    return part.kind == Kind::AnyCharacter || part.set.contains(code);
}

bool LikePattern::walk(std::string_view text) const
{
    const char *at = text.data();
    const char *const end = at + text.size();
    const std::size_t none = m_parts.size();
    std::size_t run = none; // the last % that was passed; only that one is ever widened
    const char *runEnd = nullptr;
    for (std::size_t part = 0;;) {
        if (part < m_parts.size() && m_parts[part].kind == Kind::AnyRun) {
            run = part++;
            runEnd = at;
            if (part == m_parts.size())
                return true;
            continue;
        }
        if (part == m_parts.size() ? at == end : step(m_parts[part], at, end)) {
            if (part == m_parts.size())
                return true;
            ++part;
            continue;
        }
        if (run == none || runEnd == end)
            return false;
        (void)utf8::next(runEnd, end);
        part = run + 1;
        if (m_parts[part].kind == Kind::Literal) {
            const std::string_view behind(runEnd, std::size_t(end - runEnd));
            const std::size_t found = behind.find(m_parts[part].literal);
            if (found == std::string_view::npos)
                return false;
            runEnd += found;
        }
        at = runEnd;
    }
}

} // namespace jet
