#pragma once

#include <bitset>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace jet {

/// A pattern of LIKE, read once: % is any run, _ is any character, [abc], [a-z] and [!a-z]
/// stand for one character, everything else, a [ without its ] among it, for itself. The
/// whole text must match; the case of letters never counts. A match costs at most the length
/// of the text times the length of the pattern.
class LikePattern final
{
public:
    explicit LikePattern(std::string_view pattern);

    [[nodiscard]] bool matches(std::string_view text) const;

private:
    enum class Kind { Literal, AnyRun, AnyCharacter, Set };

    struct Set
    {
        bool negated = false;
        std::bitset<128> ascii;
        std::vector<std::pair<char32_t, char32_t>>
            ranges; ///< a single character is a range from itself to itself

        void add(char32_t first, char32_t last);
        [[nodiscard]] bool contains(char32_t folded) const;
        [[nodiscard]] static bool lies(char32_t folded, const std::pair<char32_t, char32_t> &range);
    };

    struct Part
    {
        Kind kind = Kind::Literal;
        std::string literal;
        Set set;
    };

    void addLiteral(std::string_view text);
    /// Reads the set behind a [ and returns its length with the ], or 0 when there is none.
    std::size_t addSet(std::string_view rest);
    enum class Answer { No, Yes, LookCloser };
    /// Whether an ASCII text begins with the needle, or is it; other texts must be folded first.
    [[nodiscard]] Answer beginning(std::string_view text) const;
    [[nodiscard]] bool matchesFolded(std::string_view text) const;
    [[nodiscard]] bool walk(std::string_view text) const;
    [[nodiscard]] bool step(const Part &part, const char *&at, const char *end) const;

    std::vector<Part> m_parts;
    /// Patterns of one literal, with % at either end or none, need no walk.
    bool m_plain = false;
    bool m_openStart = false;
    bool m_openEnd = false;
    bool m_asciiNeedle = false;
    std::string m_needle;
};

} // namespace jet
