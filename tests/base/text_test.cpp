#include "base/error.h"
#include "base/text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(EscapeQuotes, DoublesEachQuote)
{
    EXPECT_EQ(escapeQuotes(u"O'Brien's"_s), u"O''Brien''s");
    EXPECT_EQ(escapeQuotes(u"''"_s), u"''''");
    EXPECT_EQ(escapeQuotes(u"a \"b\" \\"_s), u"a \"b\" \\");
}

TEST(FormatSqlDate, WritesTheMonthFirstWithoutZeros)
{
    EXPECT_EQ(formatSqlDate(u"2005-03-04"_s), u"3/4/2005");
    EXPECT_EQ(formatSqlDate(u"03/04/2005"_s), u"3/4/2005");
    EXPECT_EQ(formatSqlDate(u"12/31/1999 11:59:59 PM"_s), u"12/31/1999");
    EXPECT_EQ(formatSqlDate(QString()), QString());
}

TEST(FormatSqlDate, RefusesWhatIsNoDateByName)
{
    for (const QString &text : {u"yesterday"_s, u"2/30/2005"_s, u" "_s}) {
        try {
            (void)formatSqlDate(text);
            ADD_FAILURE() << text.toStdString();
        } catch (const Error &error) {
            EXPECT_EQ(error.number(), 13);
            EXPECT_TRUE(error.description().contains(text));
        }
    }
}

TEST(SplitAccountName, SplitsAtTheFirstBackslash)
{
    QStringList names;
    QStringList servers;
    for (const QString &account :
         {u"SRV01\\ann"_s, u"Everyone"_s, u"\\ann"_s, u"SRV01\\a\\b"_s, u"SRV01\\"_s})
        splitAccountName(account, names, servers);
    EXPECT_EQ(names, (QStringList{u"ann"_s, u"Everyone"_s, u"ann"_s, u"a\\b"_s, u""_s}));
    EXPECT_EQ(servers, (QStringList{u"SRV01"_s, u""_s, u""_s, u"SRV01"_s, u"SRV01"_s}));
}

TEST(FillMarker, PutsTheValueInAsItIs)
{
    EXPECT_EQ(fillMarker(u"quit $?"_s, u"Kelvane"_s), u"quit Kelvane?");
    EXPECT_EQ(fillMarker(u"$ and $"_s, u"$1"_s), u"$1 and $1");
    EXPECT_EQ(fillMarker(u"none"_s, u"x"_s), u"none");
}
