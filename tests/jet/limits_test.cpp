#include "openstore.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Long and deep statements: answered, or refused in plain words, and the store works on.
class LimitsTest : public OpenStore
{
public:
    void SetUp() override { connection.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('A')"_s); }

    /// The only value of the answer, or the number and the text of the error.
    QString answer(const QString &sql)
    {
        try {
            jet::Recordset rows;
            rows.open(sql, connection);
            return rows.recordCount() == 1 ? rows.value(0).toText() : QString::number(rows.recordCount());
        } catch (const Error &error) {
            return QString::number(error.number()) + u' ' + error.description();
        }
    }
};

QString repeated(QLatin1StringView text, int times)
{
    return QString(text).repeated(times);
}

const QString tooComplex = u"-2147217900 Query is too complex."_s;

struct Statement
{
    const char *name;
    QString sql;
    QString answer;
};

TEST_F(LimitsTest, LongStatementsAreAnswered)
{
    QStringList numbers;
    for (int i = 1; i <= 10'000; ++i)
        numbers.append(QString::number(i));
    const Statement statements[] = {
        {"a list", "SELECT ID FROM Tbl_Rooms WHERE ID IN ("_L1 + numbers.join(u',') + u')', u"1"_s},
        {"a list of texts",
         "SELECT ID FROM Tbl_Rooms WHERE RoomNumber IN ('"_L1 + numbers.join("','"_L1) + "','a')"_L1, u"1"_s},
        {"alternatives", "SELECT ID FROM Tbl_Rooms WHERE ID = "_L1 + numbers.join(" OR ID = "_L1), u"1"_s},
        {"conditions", "SELECT ID FROM Tbl_Rooms WHERE ID < 2"_L1 + repeated(" AND ID > 0"_L1, 5000), u"1"_s},
        {"joined texts", "SELECT Len("_L1 + numbers.join(" & "_L1) + u')', u"38894"_s},
        {"a sum", "SELECT "_L1 + repeated("1 + "_L1, 250) + u'1', u"251"_s},
        {"a sum of texts", "SELECT Len("_L1 + repeated("'a' + "_L1, 290) + "'a')"_L1, u"291"_s},
        {"parentheses", "SELECT "_L1 + repeated("("_L1, 150) + u'7' + repeated(")"_L1, 150), u"7"_s},
        {"branches", "SELECT "_L1 + repeated("IIf(False, 1, "_L1, 60) + u'5' + repeated(")"_L1, 60), u"5"_s},
        {"choices", "SELECT Choose(3000"_L1 + repeated(", 1"_L1, 2999) + ", 2)"_L1, u"2"_s},
        {"unions", "SELECT ID FROM Tbl_Rooms"_L1 + repeated(" UNION SELECT ID FROM Tbl_Rooms"_L1, 400),
         u"1"_s},
        {"a text of 1 MB", "SELECT Len('"_L1 + repeated("a"_L1, 1'000'000) + "')"_L1, u"1000000"_s},
        {"factors", "SELECT 1"_L1 + repeated(" * 2 / 2"_L1, 149), u"1"_s},
        {"values within values", "SELECT "_L1 + repeated("(SELECT "_L1, 8) + u'7' + repeated(")"_L1, 8),
         u"7"_s},
        {"bits", "SELECT 1"_L1 + repeated(" BXOR 2"_L1, 24), u"1"_s},
        {"blanks", "SELECT "_L1 + repeated(" "_L1, 1'000'000) + u'1', u"1"_s},
    };
    for (const Statement &statement : statements)
        EXPECT_EQ(statement.answer, answer(statement.sql)) << statement.name;
}

TEST_F(LimitsTest, DeepStatementsAreRefusedInPlainWords)
{
    QStringList numbers;
    for (int i = 0; i < 50'000; ++i)
        numbers.append(QString::number(i));
    const Statement statements[] = {
        {"parentheses", "SELECT "_L1 + repeated("("_L1, 5000) + u'1' + repeated(")"_L1, 5000), tooComplex},
        {"Not", "SELECT "_L1 + repeated("NOT "_L1, 5000) + u'1', tooComplex},
        {"IN lists", "SELECT "_L1 + repeated("1 IN ("_L1, 5000) + u'1' + repeated(")"_L1, 5000), tooComplex},
        {"joins", "SELECT 1 FROM Tbl_Rooms AS a"_L1 + repeated(" INNER JOIN Tbl_Rooms ON 1 = 1"_L1, 20000),
         tooComplex},
        {"minus", "SELECT "_L1 + repeated("- "_L1, 5000) + u'1', tooComplex},
        {"plus", "SELECT "_L1 + repeated("+ "_L1, 5000) + u'1', tooComplex},
        {"a sum", "SELECT "_L1 + repeated("1 + "_L1, 5000) + u'1', tooComplex},
        {"powers", "SELECT "_L1 + repeated("1 ^ "_L1, 5000) + u'1', tooComplex},
        {"comparisons", "SELECT "_L1 + repeated("1 = "_L1, 5000) + u'1', tooComplex},
        {"implications", "SELECT "_L1 + repeated("1 Imp "_L1, 5000) + u'1', tooComplex},
        {"calls", "SELECT "_L1 + repeated("Abs("_L1, 5000) + u'1' + repeated(")"_L1, 5000), tooComplex},
        {"calls within the parser's depth",
         "SELECT "_L1 + repeated("Abs("_L1, 150) + u'1' + repeated(")"_L1, 150), tooComplex},
        {"sub-queries", "SELECT "_L1 + repeated("(SELECT "_L1, 100) + u'1' + repeated(")"_L1, 100),
         tooComplex},
        {"derived tables",
         "SELECT * FROM "_L1 + repeated("(SELECT * FROM "_L1, 300) + "Tbl_Rooms"_L1 + repeated(")"_L1, 300),
         tooComplex},
        {"joins in parentheses",
         "SELECT 1 FROM "_L1 + repeated("("_L1, 5000) + "Tbl_Rooms"_L1 + repeated(")"_L1, 5000), tooComplex},
        {"unions", "SELECT ID FROM Tbl_Rooms"_L1 + repeated(" UNION SELECT ID FROM Tbl_Rooms"_L1, 1000),
         tooComplex},
        {"columns", "SELECT ID"_L1 + repeated(", ID"_L1, 100'000) + " FROM Tbl_Rooms"_L1, tooComplex},
        {"columns without a name", "SELECT 1"_L1 + repeated(", 1"_L1, 100'000), tooComplex},
        {"columns of a table", "CREATE TABLE T (a"_L1 + numbers.join(" LONG, a"_L1) + " LONG)"_L1,
         tooComplex},
        {"keys of a table",
         "CREATE TABLE T (a LONG, PRIMARY KEY (a"_L1 + repeated(", a"_L1, 100'000) + "))"_L1, tooComplex},
        {"bounds within bounds",
         "SELECT "_L1 + repeated("ID BETWEEN ("_L1, 100) + u'1' + repeated(") AND 2"_L1, 100) +
             " FROM Tbl_Rooms"_L1,
         tooComplex},
        {"ANY of ANY",
         "SELECT ID FROM Tbl_Rooms"_L1 + repeated(" WHERE ID > ANY (SELECT ID FROM Tbl_Rooms"_L1, 30) +
             repeated(")"_L1, 30),
         tooComplex},
    };
    for (const Statement &statement : statements)
        EXPECT_EQ(statement.answer, answer(statement.sql)) << statement.name;
    EXPECT_EQ(u"1"_s, answer(u"SELECT Count(*) FROM Tbl_Rooms"_s));
}

// A guess must leave something of the word, and costs time for an endless one.
TEST_F(LimitsTest, NoNameIsGuessedForAShortWordOrAnEndlessOne)
{
    const QString unknown =
        u"-2147217904 No value given for one or more required parameters. '%1' is not known here."_s;
    EXPECT_EQ(answer(u"SELECT x.ID FROM Tbl_Rooms AS y"_s), unknown.arg(u"x.ID"_s));
    EXPECT_EQ(answer(u"SELECT q FROM (SELECT 1 AS A)"_s), unknown.arg(u"q"_s));
    const QString endless = repeated("a"_L1, 1'000'000);
    EXPECT_EQ(answer("SELECT "_L1 + endless + " FROM Tbl_Rooms"_L1),
              unknown.arg(endless.left(200) + "..."_L1));
}

TEST_F(LimitsTest, LongErrorsShowAnExcerpt)
{
    const QString text = answer("SELECT 'x"_L1 + repeated("a"_L1, 1'000'000));
    EXPECT_TRUE(text.startsWith("-2147217900 Syntax error in string"_L1));
    EXPECT_LT(text.size(), 600);
}

// Characters that no file of cases can hold.
TEST_F(LimitsTest, NamesWithControlCharactersAreRefused)
{
    for (const QChar odd : {u'\0', u'\1', u'\n', u'\x1f'}) {
        for (const QString &statement : {
                 QString("SELECT ID AS [a"_L1 + odd + "b] FROM Tbl_Rooms"_L1),
                 QString("SELECT [a"_L1 + odd + "b] FROM Tbl_Rooms"_L1),
                 QString("SELECT ID FROM [Tbl_Rooms"_L1 + odd + u']'),
                 QString("CREATE TABLE [T"_L1 + odd + "] (A LONG)"_L1),
             }) {
            try {
                connection.execute(statement);
                ADD_FAILURE() << "taken: " << statement.toStdString();
            } catch (const Error &error) {
                EXPECT_EQ(error.number(), jet::SyntaxError) << error.what();
                EXPECT_TRUE(error.description().contains("name"_L1)) << error.what();
            }
        }
    }
}

TEST_F(LimitsTest, TextsKeepEveryCharacter)
{
    const QString odd = u"a"_s + QChar(0) + u'b' + QChar(1) + u'c' + QChar(0x1f) + u"\u2028\U0001F600"_s;
    connection.execute("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('"_L1 + odd + "')"_L1);
    jet::Recordset rows;
    rows.open("SELECT RoomNumber, '"_L1 + odd + "' & '!' FROM Tbl_Rooms WHERE RoomNumber = '"_L1 + odd +
                  u'\'',
              connection);
    ASSERT_EQ(rows.recordCount(), 1);
    EXPECT_EQ(rows.value(0).toText(), odd);
    EXPECT_EQ(rows.value(1).toText(), QString(odd + u'!'));
}

} // namespace
