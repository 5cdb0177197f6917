#include "platform/jet/collation.h"

#include "platform/jet/utf8.h"
#include "platform/jet/words.h"

#include <QChar>
#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <sqlite3.h>

namespace jet {

namespace {

/// The printable characters before the digits, in their order. ' and - are not among them.
constexpr std::string_view punctuation = " !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>";

// Lead bytes of what has no byte of its own.
constexpr std::uint8_t noPrimary = 0;
constexpr std::uint8_t leadOfSymbols = 70;  // other signs: behind punctuation, before digits
constexpr std::uint8_t leadOfLetters = 250; // other letters: behind Z

constexpr std::array<std::uint8_t, 256> makeWeights()
{
    std::array<std::uint8_t, 256> weights{};
    std::uint8_t weight = 1;
    for (std::size_t control = 0; control < 0x20; ++control)
        weights[control] = weight++;
    weights[0x7F] = weight++;
    for (const char c : punctuation)
        weights[static_cast<unsigned char>(c)] = weight++;
    weight = leadOfSymbols + 1;
    for (std::size_t digit = '0'; digit <= '9'; ++digit)
        weights[digit] = weight++;
    for (std::size_t letter = 'A'; letter <= 'Z'; ++letter)
        weights[letter] = weights[letter + ('a' - 'A')] = weight++;
    return weights;
}

/// The primary weight of each ASCII byte; noPrimary where a closer look is needed.
constexpr std::array<std::uint8_t, 256> weights = makeWeights();
static_assert(weights['>'] < leadOfSymbols && weights['Z'] < leadOfLetters);

enum class Level : std::uint8_t { Primary, Accent, Mark };

/// What one character counts for on one level. A primary weight is that of an ASCII
/// character in its top byte, or a lead byte with the code point below it.
struct Element
{
    Level level = Level::Primary;
    std::uint32_t weight = 0;
};

constexpr std::size_t largestExpansion = 6;

struct Expansion
{
    std::array<Element, largestExpansion> elements{};
    std::uint8_t count = 0;

    void add(Level level, std::uint32_t weight)
    {
        if (count < elements.size())
            elements[count++] = {level, weight};
    }
};

/// Apostrophes, hyphens and the soft hyphen count last of all.
constexpr std::array<char32_t, 6> lastMarks{U'\'', U'-', 0x2019, 0x2010, 0x2011, 0x00AD};

struct Ligature
{
    char32_t letter;
    std::string_view letters;
    char32_t accent; ///< none: equal to the letters
};

/// Letters without a canonical decomposition that sort as letters of the alphabet.
constexpr Ligature ligatures[] = {
    {0x00DF, "ss", 0},                            // sharp s
    {0x00E6, "ae", 0},     {0x00FE, "th", 0},     // thorn
    {0x0153, "oe", 0},     {0x00F0, "d", 0x0336}, // eth
    {0x0111, "d", 0x0335},                        // d with stroke
    {0x00F8, "o", 0x0338}, {0x0142, "l", 0x0335}, {0x0127, "h", 0x0335},
    {0x0167, "t", 0x0335}, {0x0131, "i", 0x0335}, // dotless i
};

std::uint32_t primaryOf(char32_t code)
{
    if (code < 0x80)
        return std::uint32_t(weights[code]) << 24;
    const bool isLetter = code >= utf8::firstBrokenByte || QChar::isLetter(code) || QChar::isMark(code) ||
                          QChar::category(code) == QChar::Other_NotAssigned;
    return std::uint32_t(isLetter ? leadOfLetters : leadOfSymbols) << 24 | std::uint32_t(code);
}

void expandInto(Expansion &expansion, char32_t code)
{
    if (const auto mark = std::ranges::find(lastMarks, code); mark != lastMarks.end()) {
        expansion.add(Level::Mark, std::uint32_t(mark - lastMarks.begin()) + 1);
        return;
    }
    if (code >= utf8::firstBrokenByte || code < 0x80) {
        expansion.add(Level::Primary, primaryOf(code));
        return;
    }
    const char32_t folded = QChar::toCaseFolded(code);
    if (const auto row = std::ranges::find(ligatures, folded, &Ligature::letter);
        row != std::end(ligatures)) {
        for (const char letter : row->letters)
            expansion.add(Level::Primary, primaryOf(static_cast<unsigned char>(letter)));
        if (row->accent != 0)
            expansion.add(Level::Accent, row->accent);
        return;
    }
    if (QChar::category(folded) == QChar::Mark_NonSpacing && QChar::combiningClass(folded) != 0) {
        expansion.add(Level::Accent, folded);
        return;
    }
    if (QChar::decompositionTag(folded) == QChar::Canonical) {
        const auto parts = QChar::decomposition(folded).toUcs4();
        if (parts.size() > 1 || (parts.size() == 1 && char32_t(parts.first()) != folded)) {
            for (const uint part : parts)
                expandInto(expansion, part);
            return;
        }
    }
    expansion.add(Level::Primary, primaryOf(folded));
}

constexpr char32_t endOfTable = 0x250;

/// The Latin letters beyond ASCII are looked up, the others are expanded as they come.
const std::array<Expansion, endOfTable> &expansionTable()
{
    static const auto table = [] {
        std::array<Expansion, endOfTable> expansions;
        for (char32_t code = 0; code < endOfTable; ++code)
            expandInto(expansions[code], code);
        return expansions;
    }();
    return table;
}

/// The elements of a text, one after the other.
class Elements final
{
public:
    explicit Elements(std::string_view text) : m_at(text.data()), m_end(text.data() + text.size()) {}

    /// False at the end.
    bool next(Element &element)
    {
        while (m_place == m_count) {
            if (m_at == m_end)
                return false;
            const char32_t code = utf8::next(m_at, m_end);
            if (code < 0x80 && weights[code] != noPrimary) {
                element = {Level::Primary, std::uint32_t(weights[code]) << 24};
                return true;
            }
            if (code < endOfTable) {
                m_expansion = &m_table[code];
            } else {
                m_own = {};
                expandInto(m_own, code);
                m_expansion = &m_own;
            }
            m_place = 0;
            m_count = m_expansion->count;
        }
        element = m_expansion->elements[m_place++];
        return true;
    }

    /// The next element of a level and the number of primary ones before it. False at the end.
    bool next(Level level, Element &element, std::uint32_t &position)
    {
        while (next(element)) {
            if (element.level == level)
                return true;
            if (element.level == Level::Primary)
                ++position;
        }
        return false;
    }

private:
    const char *m_at;
    const char *m_end;
    const std::array<Expansion, endOfTable> &m_table = expansionTable();
    Expansion m_own;
    const Expansion *m_expansion = nullptr;
    std::uint8_t m_place = 0;
    std::uint8_t m_count = 0;
};

int compareElements(std::string_view left, std::string_view right)
{
    Elements leftElements(left);
    Elements rightElements(right);
    Element l;
    Element r;
    bool deeper[3] = {};
    const auto nextPrimary = [&deeper](Elements &elements, Element &element) {
        while (elements.next(element)) {
            if (element.level == Level::Primary)
                return true;
            deeper[std::size_t(element.level)] = true;
        }
        return false;
    };
    for (;;) {
        const bool hasLeft = nextPrimary(leftElements, l);
        const bool hasRight = nextPrimary(rightElements, r);
        if (!hasLeft || !hasRight) {
            if (hasLeft != hasRight)
                return hasLeft ? 1 : -1;
            break;
        }
        if (l.weight != r.weight)
            return l.weight < r.weight ? -1 : 1;
    }

    for (const Level level : {Level::Accent, Level::Mark}) {
        if (!deeper[std::size_t(level)])
            continue;
        Elements leftAgain(left);
        Elements rightAgain(right);
        std::uint32_t leftPosition = 0;
        std::uint32_t rightPosition = 0;
        for (;;) {
            const bool hasLeft = leftAgain.next(level, l, leftPosition);
            const bool hasRight = rightAgain.next(level, r, rightPosition);
            if (!hasLeft && !hasRight)
                break;
            if (hasLeft != hasRight)
                return hasLeft ? 1 : -1;
            if (leftPosition != rightPosition)
                return leftPosition < rightPosition ? 1 : -1;
            if (l.weight != r.weight)
                return l.weight < r.weight ? -1 : 1;
        }
    }
    return 0;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

} // namespace

int compareTexts(std::string_view left, std::string_view right)
{
    left = trimmed(left);
    right = trimmed(right);
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        const std::uint8_t l = weights[static_cast<unsigned char>(left[i])];
        const std::uint8_t r = weights[static_cast<unsigned char>(right[i])];
        if (l == noPrimary || r == noPrimary)
            return compareElements(left.substr(i), right.substr(i));
        if (l != r)
            return l < r ? -1 : 1;
    }
    if (left.size() == right.size())
        return 0;
    const std::string_view rest = left.size() > common ? left.substr(common) : right.substr(common);
    if (weights[static_cast<unsigned char>(rest.front())] != noPrimary)
        return left.size() > common ? 1 : -1;
    return compareElements(left.substr(common), right.substr(common));
}

std::string foldCase(std::string_view text)
{
    if (!utf8::isAscii(text))
        return utf8::mapped(text, [](char32_t code) { return char32_t(QChar::toCaseFolded(code)); });
    std::string folded(text);
    std::ranges::transform(folded, folded.begin(), lowered);
    return folded;
}

void registerCollation(sqlite3 *handle)
{
    const auto compare = [](void *, int leftSize, const void *left, int rightSize, const void *right) {
        const std::string_view a{static_cast<const char *>(left), std::size_t(leftSize)};
        const std::string_view b{static_cast<const char *>(right), std::size_t(rightSize)};
        try {
            return compareTexts(a, b);
        } catch (...) {
            // No exception may pass through SQLite, and it takes no error from here.
            return a.compare(b);
        }
    };
    sqlite3_create_collation_v2(handle, "JET", SQLITE_UTF8, nullptr, compare, nullptr);
}

} // namespace jet
