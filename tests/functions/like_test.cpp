#include "platform/jet/like.h"

#include "sqltest.h"

namespace {

struct Match
{
    const char *text;
    const char *pattern;
    bool matches;
};

const Match matches[] = {
    {"abc", "abc", true},
    {"abc", "ABC", true},
    {"ÄÖÜ", "äöü", true},
    {"жук", "Ж%", true},
    {"abc", "ab", false},
    {"abc ", "abc", false}, // blanks count
    {"", "", true},
    {"", "%", true},
    {"", "_", false},
    {"a", "", false},
    {"abc", "a%", true},
    {"abc", "%c", true},
    {"abc", "%B%", true},
    {"abc", "%d%", false},
    {"abc", "b%", false},
    {"abc", "%b", false},
    {"aXbXc", "a%x%C", true},
    {"abab", "%ab", true},
    {"ab", "a%b%b", false},
    {"abc", "a_c", true},
    {"aéc", "a_c", true}, // a character, not a byte
    {"a\xff"
     "c",
     "a_c", true},
    {"ac", "a_c", false},
    {"abc", "%__", true},
    {"a", "%__", false},
    {"b1", "[abc][0-9]", true},
    {"B1", "[a-c]%", true},
    {"d1", "[a-c]%", false},
    {"d1", "[!a-c]%", true},
    {"b1", "[!A-C]%", false},
    {"é", "[a-z]", true},
    {"É", "[é]", true},
    {"é", "[!é]", false},
    {"ж", "[а-я]", true},
    {"5", "[a-z]", false},
    {"-", "[-a]", true},
    {"-", "[a-]", true},
    {"-", "[!-a]", false},
    {"b", "[a-]", false},
    {"!", "[!]", true},
    {"^", "[^]", true},
    {"b", "[^a]", false}, // ^ is an ordinary character
    {"a", "[^a]", true},
    {"50%", "50[%]", true},
    {"505", "50[%]", false},
    {"a_b", "a[_]b", true},
    {"axb", "a[_]b", false},
    {"[x]", "[[]x]", true},
    {"ab", "a[]b", true}, // [] is the empty text
    {"a[b", "a[b", true}, // a bracket that nothing closes
    {"a[b", "%[%", true},
    {"a]b", "a]b", true},
    {"*?#^", "*?#^", true},
    {"abc", "a*", false},
    {"1", "#", false},
    {"a\\%b", "a\\%b", true},
    {"axb", "a\\%b", false},
    {"Muller Müller", "%MÜLL%", true},
};

using LikeTest = SqlTest;

} // namespace

TEST(LikePattern, MatchesTheWholeText)
{
    for (const auto &[text, pattern, expected] : matches)
        EXPECT_EQ(jet::LikePattern(pattern).matches(text), expected) << text << " like " << pattern;
}

TEST(LikePattern, ReadsTextsBeyondTheShortOnes)
{
    const std::string filler(5000, 'x');
    EXPECT_TRUE(jet::LikePattern("%needle%").matches(filler + "NEEDLE" + filler));
    EXPECT_TRUE(jet::LikePattern("x%NEEDL_").matches(filler + "needle"));
    EXPECT_FALSE(jet::LikePattern("%needle%").matches(filler + "needl" + filler));
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

TEST_F(LikeTest, TakesThePatternOfEachRow)
{
    execute("CREATE TABLE t (text TEXT, pattern TEXT);"
            "INSERT INTO t VALUES ('abc', 'a%'), ('abc', 'b%'), ('abc', '%C'), (NULL, '%'), ('abc', NULL)");
    EXPECT_EQ(values("SELECT quote(jet_like(text, pattern)) FROM t"), "1 0 1 NULL NULL");
    EXPECT_EQ(values("SELECT text FROM t WHERE jet_like(text, 'A_c')"), "abc abc abc abc");
    EXPECT_EQ(values("SELECT jet_like(12.5, '12%')"), "1");
}
