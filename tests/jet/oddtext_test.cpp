#include "openstore.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Characters that no file of cases can hold.
using OddTextTest = OpenStore;

} // namespace

TEST_F(OddTextTest, NamesWithControlCharactersAreRefused)
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

TEST_F(OddTextTest, TextsKeepEveryCharacter)
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
