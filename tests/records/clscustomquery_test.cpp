#include "base/text.h"
#include "platform/jet/errors.h"
#include "queries/clsCustomQuery.h"
#include "support/recordtest.h"

using namespace Qt::StringLiterals;

namespace {

class CustomQueryTest : public RecordTest
{
protected:
    void SetUp() override
    {
        RecordTest::SetUp();
        run(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('101')"_s);
        run(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('102')"_s);
    }

    clsCustomQuery queries;
};

} // namespace

TEST_F(CustomQueryTest, ASavedStatementComesBackAsTyped)
{
    const QString typed = u"SELECT * FROM Tbl_Users WHERE [LastName] LIKE 'O''B%'"_s;
    queries.Add(connection, u"Irish"_s, u"All of them"_s, escapeQuotes(typed));
    queries.Add(connection, u"Empty"_s, {}, {});
    EXPECT_EQ(rowsFrom([&](auto &all) { queries.getAll(connection, all); }),
              (Rows{u"2|Empty||"_s, u"1|Irish|All of them|"_s + typed}));

    jet::Recordset result;
    queries.Execute(connection, result, typed);
    EXPECT_EQ(result.recordCount(), 0);
}

TEST_F(CustomQueryTest, ASelectGivesRowsThatOutliveTheStore)
{
    jet::Recordset result;
    queries.Execute(connection, result, u"sElEcT RoomNumber FROM Tbl_Rooms ORDER BY RoomNumber DESC"_s);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(rowsOf(result), (Rows{u"102"_s, u"101"_s}));
}

TEST_F(CustomQueryTest, AnyOtherStatementRunsAndGivesNoRows)
{
    const struct
    {
        const char *name;
        QString statement;
        Rows rooms;
    } cases[] = {
        {"update", u"UPDATE Tbl_Rooms SET RoomNumber = '103' WHERE ID = 2"_s, {u"101"_s, u"103"_s}},
        {"insert", u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('104')"_s, {u"101"_s, u"103"_s, u"104"_s}},
        {"delete", u"DELETE * FROM Tbl_Rooms WHERE ID = 1"_s, {u"103"_s, u"104"_s}},
        {"select into",
         u"SELECT RoomNumber INTO Tbl_Copy FROM Tbl_Rooms WHERE ID > 2"_s,
         {u"103"_s, u"104"_s}},
        {"a select behind a blank", u" SELECT * FROM Tbl_Rooms"_s, {u"103"_s, u"104"_s}},
    };
    for (const auto &c : cases) {
        jet::Recordset result;
        queries.Execute(connection, result, c.statement);
        EXPECT_EQ(result.state(), jet::StateClosed) << c.name;
        EXPECT_EQ(rows(u"SELECT RoomNumber FROM Tbl_Rooms ORDER BY ID"_s), c.rooms) << c.name;
    }
    EXPECT_EQ(content("Tbl_Copy"), Rows{u"104"_s});
}

TEST_F(CustomQueryTest, ARefusedStatementRaisesTheStoresError)
{
    jet::Recordset result;
    for (const auto &[statement, number] : {std::pair{u"SELECT * FROM Tbl_Nothing"_s, jet::MissingTable},
                                            {u"SELECT Nothing FROM Tbl_Rooms"_s, jet::MissingParameter},
                                            {u"SELECTED"_s, jet::SyntaxError},
                                            {u"DELETE * FORM Tbl_Rooms"_s, jet::SyntaxError},
                                            {QString(), jet::EmptyCommand}}) {
        EXPECT_EQ(errorOf([&] { queries.Execute(connection, result, statement); }).number, number)
            << statement.toStdString();
        EXPECT_EQ(result.state(), jet::StateClosed);
        EXPECT_EQ(queries.errorNumber(), number);
    }
    EXPECT_EQ(rows(u"SELECT ID FROM Tbl_Rooms"_s).size(), 2);
}
