#include "platform/jet/collation.h"
#include "platform/jet/like.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

int sign(int order)
{
    return (order > 0) - (order < 0);
}

struct Equality
{
    const char *left;
    const char *right;
    bool equal;
};

// clang-format off
const Equality equalities[] = {
    {"a", "A", true}, {"É", "é", true}, {"é", "e", false}, {"ЖУК", "жук", true}, {"ΣΟΦΌΣ", "σοφός", true},
    {"Straße", "STRASSE", true}, {"STRAẞE", "strasse", true}, {"Æsir", "aesir", true},
    {"þing", "THING", true}, {"œuvre", "Oeuvre", true}, {"øl", "ol", false}, {"e\u0301", "é", true},
    {"\u212B", "å", true}, {"co-op", "coop", false}, {"O'Brien", "OBrien", false},
    {"O'Brien", "o'brien", true}, {"a   ", "a", true}, {"   ", "", true}, {" a", "a", false},
    {"a\t", "a", false}, {"", "a", false}, {"a\xff", "a\xfe", false},
};
// clang-format on

/// Each list stands in its order.
const std::vector<std::vector<std::string>> orders = {
    {"",  "\t", " a", "!", "\"", "#",  "$", "%", "&", "(", ")", "*", ",", ".", "/",
     ":", ";",  "?",  "@", "[",  "\\", "]", "^", "_", "`", "{", "|", "}", "~", "+",
     "<", "=",  ">",  "§", "0",  "1",  "9", "a", "B", "c", "Z", "Ω", "я", "漢"},
    {"Oakes", "Obama", "O'Brien", "Ozark"},
    {"coop", "co-op", "cop"},
    {"adams", "Ärger", "Bauer"},
    {"cote", "coté", "côte", "côté"},
    {"resume", "résumé", "resumed"},
    {"Muellers", "muller", "Müller", "mum"},
    {"a", "a-", "ä", "ab"},
    {"user 9", "user_1", "user1", "user10", "user2", "users"},
    {"C:\\Data", "C:\\Data\\", "C:\\Data\\x"},
};

std::string randomText(std::mt19937 &random)
{
    // clang-format off
    static const std::vector<std::string> pieces = {
        "a", "A", "b", "ss", "ß", "é", "e", "e\u0301", "\u0301", "'", "-", " ", "  ", "1", "!", "_", "æ",
        "ae", "Ω", "ω", "я", "漢", "\xff", "\xc3", "\xf0\x9f\x98\x80", "\xed\xa0\x80", std::string(1, '\0'),
        "\t", "’", "Ǽ",
    };
    // clang-format on
    std::string text;
    for (auto count = random() % 6; count > 0; --count)
        text += pieces[random() % pieces.size()];
    return text;
}

std::string bytes(const std::string &text)
{
    return testing::PrintToString(text);
}

} // namespace

TEST(CompareTexts, TellsTheSameFromTheSimilar)
{
    for (const auto &[left, right, equal] : equalities)
        EXPECT_EQ(jet::compareTexts(left, right) == 0, equal) << left << " | " << right;
}

TEST(CompareTexts, KeepsTheOrderOfThePhoneBook)
{
    for (const auto &order : orders)
        for (std::size_t i = 0; i < order.size(); ++i)
            for (std::size_t j = 0; j < order.size(); ++j)
                EXPECT_EQ(sign(jet::compareTexts(order[i], order[j])), sign(int(i) - int(j)))
                    << order[i] << " | " << order[j];
}

TEST(CompareTexts, IsATotalOrderOverAnyBytes)
{
    std::mt19937 random(1973);
    for (int round = 0; round < 60; ++round) {
        std::vector<std::string> texts(40);
        std::ranges::generate(texts, [&] { return randomText(random); });
        std::ranges::sort(texts, [](const auto &a, const auto &b) { return jet::compareTexts(a, b) < 0; });
        // Sorted by a total order, every pair of the list agrees with its places.
        for (std::size_t i = 0; i < texts.size(); ++i) {
            for (std::size_t j = i; j < texts.size(); ++j) {
                const int order = sign(jet::compareTexts(texts[i], texts[j]));
                ASSERT_LE(order, 0) << bytes(texts[i]) << bytes(texts[j]);
                ASSERT_EQ(sign(jet::compareTexts(texts[j], texts[i])), -order)
                    << bytes(texts[i]) << bytes(texts[j]);
            }
        }
    }
}

TEST(FoldCase, FoldsAllLettersAndKeepsBrokenBytes)
{
    EXPECT_EQ(jet::foldCase("ABC xyz 123"), "abc xyz 123");
    EXPECT_EQ(jet::foldCase("ÄÉЖΩ"), "äéжω");
    EXPECT_EQ(jet::foldCase("A\xff\xc3Z"), "a\xff\xc3z");
}

TEST(LikePattern, ReadsTextsBeyondTheShortOnes)
{
    const std::string filler(5000, 'x');
    EXPECT_TRUE(jet::LikePattern("%needle%").matches(filler + "NEEDLE" + filler));
    EXPECT_TRUE(jet::LikePattern("x%NEEDL_").matches(filler + "needle"));
    EXPECT_FALSE(jet::LikePattern("%needle%").matches(filler + "needl" + filler));
    EXPECT_TRUE(jet::LikePattern("a_c").matches("a\xff"
                                                "c"))
        << "a byte that is no character";
}

TEST(LikePattern, NeverTriesEveryWay)
{
    // Each % could end anywhere; trying all of them would outlast the test.
    std::string pattern = "%";
    for (int i = 0; i < 40; ++i)
        pattern += "a%_%";
    pattern += "b";
    EXPECT_FALSE(jet::LikePattern(pattern).matches(std::string(20000, 'a')));
    EXPECT_TRUE(jet::LikePattern(pattern).matches(std::string(20000, 'a') + 'b'));
}
