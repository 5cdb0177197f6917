#include "platform/jet/like.h"

#include "sqltest.h"

namespace {

using LikeTest = SqlTest;

} // namespace

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

TEST_F(LikeTest, TakesThePatternOfEachRow)
{
    execute("CREATE TABLE t (text TEXT, pattern TEXT);"
            "INSERT INTO t VALUES ('abc', 'a%'), ('abc', 'b%'), ('abc', '%C'), (NULL, '%'), ('abc', NULL)");
    EXPECT_EQ(values("SELECT quote(jet_like(text, pattern)) FROM t"), "1 0 1 NULL NULL");
    EXPECT_EQ(values("SELECT text FROM t WHERE jet_like(text, 'A_c')"), "abc abc abc abc");
    EXPECT_EQ(values("SELECT jet_like(12.5, '12%')"), "1");
}
