#include "openstore.h"
#include "otherprogram.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class TwoPrograms : public OpenStore
{
protected:
    /// Another name of the file: by its own a child would find the handle that came along with the fork.
    [[nodiscard]] QString link() const
    {
        const QString name = folder.filePath("link.mdb"_L1);
        (void)::link(path.toUtf8().constData(), name.toUtf8().constData());
        return name;
    }
};

using TwoConnections = OpenStore;
using VanishedFile = OpenStore;

} // namespace

TEST_F(TwoPrograms, TheSecondWriterIsToldWhoHoldsTheFile)
{
    OtherProgram other(path);

    jet::Recordset rooms;
    rooms.open(u"SELECT * FROM Tbl_Rooms"_s, connection); // reading goes on meanwhile
    EXPECT_EQ(rooms.recordCount(), 0);
    try {
        connection.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('ours')"_s);
        FAIL() << "two programs wrote at once";
    } catch (const Error &error) {
        EXPECT_EQ(error.number(), jet::Failure);
        EXPECT_TRUE(error.description().contains(QString::number(other.process()))) << error.what();
        EXPECT_TRUE(error.description().contains("plan.mdb"_L1)) << error.what();
    }
    other.finish();
    connection.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('ours')"_s);
    jet::Recordset after;
    after.open(u"SELECT RoomNumber FROM Tbl_Rooms ORDER BY ID"_s, connection);
    EXPECT_EQ(after.recordCount(), 2);
}

TEST_F(TwoPrograms, AStatementThatFailsLeavesTheFileToOthers)
{
    EXPECT_THROW(connection.execute(u"INSERT INTO Tbl_HW (HWTypeID) VALUES (3000000000)"_s), Error);
    const auto write = [&] {
        try {
            jet::Connection other;
            other.open(jet::connectionString(link()));
            other.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('theirs')"_s);
            other.close();
        } catch (const Error &) {
            return 1;
        }
        return 0;
    };
    EXPECT_EQ(inAnotherProcess(write), 0);
    jet::Recordset rooms;
    rooms.open(u"SELECT * FROM Tbl_Rooms"_s, connection);
    EXPECT_EQ(rooms.recordCount(), 1);
}

TEST_F(TwoPrograms, LookingAtAnOpenFileKeepsItsLocks)
{
    connection.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('pending')"_s);
    {
        jet::Connection second;
        second.open(jet::connectionString(path));
    }
    // Were the locks gone, a child could write now.
    const auto write = [&] {
        try {
            jet::Connection other;
            other.open(jet::connectionString(link()));
            other.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('theirs')"_s);
        } catch (const Error &error) {
            return error.description().contains("locked"_L1) || error.description().contains("in use"_L1) ? 0
                                                                                                          : 2;
        }
        return 1;
    };
    EXPECT_EQ(inAnotherProcess(write), 0);
}

TEST_F(TwoPrograms, AStatementFollowsTheTablesThatTheOtherChanges)
{
    const auto read = [this] {
        jet::Recordset rows;
        rows.open(u"SELECT A FROM T"_s, connection);
        return rows.eof() ? u"none"_s
                          : rows.value(0).toText() + QString::number(int(rows.fields().item(0).type()));
    };
    const auto inTheOther = [this](const QStringList &statements) {
        EXPECT_EQ(inAnotherProcess([&] {
                      try {
                          jet::Connection other;
                          other.open(jet::connectionString(link()));
                          for (const QString &statement : statements)
                              other.execute(statement);
                          other.close();
                          return 0;
                      } catch (const Error &) {
                          return 1;
                      }
                  }),
                  0);
    };
    connection.execute(u"CREATE TABLE T (A TEXT)"_s);
    connection.execute(u"INSERT INTO T (A) VALUES ('7')"_s);
    jet::commitPendingWrites();
    EXPECT_EQ(read(), "7"_L1 + QString::number(int(jet::FieldType::Memo)));

    inTheOther({u"DROP TABLE T"_s, u"CREATE TABLE T (B LONG, A LONG)"_s, u"INSERT INTO T (A) VALUES (8)"_s});
    EXPECT_EQ(read(), "8"_L1 + QString::number(int(jet::FieldType::Long)));

    inTheOther({u"DROP TABLE T"_s});
    try {
        read();
        FAIL() << "read a table that is gone";
    } catch (const Error &error) {
        EXPECT_EQ(error.number(), jet::MissingTable) << error.what();
    }
}

TEST_F(TwoPrograms, AWriteThatWaitedFollowsTheTables)
{
    connection.execute(u"CREATE TABLE T (A TEXT)"_s);
    connection.execute(u"INSERT INTO T (A) VALUES ('x')"_s);
    jet::commitPendingWrites();
    OtherProgram other(link(), {u"DROP TABLE T"_s, u"CREATE TABLE T (A LONG)"_s});
    std::thread later([&other] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        other.finish();
    });
    try {
        connection.execute(u"INSERT INTO T (A) VALUES ('x')"_s);
        ADD_FAILURE() << "a text in a number column";
    } catch (const Error &error) {
        EXPECT_EQ(error.number(), jet::TypeMismatch) << error.what();
    }
    later.join();
}

TEST_F(TwoPrograms, AWidthIsTheOneOfTheStatementThatSucceeds)
{
    OtherProgram other(path);
    EXPECT_THROW(connection.execute(u"CREATE TABLE T (A TEXT(50))"_s), Error);
    other.finish();
    connection.execute(u"CREATE TABLE T (A TEXT(5))"_s);
    EXPECT_THROW(connection.execute(u"INSERT INTO T (A) VALUES ('0123456789')"_s), Error);
}

TEST_F(TwoConnections, OneReadsWhatTheOtherHasJustWritten)
{
    jet::Connection reader;
    reader.open(jet::connectionString(path));
    for (int room = 1; room <= 50; ++room) {
        connection.execute("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('"_L1 + QString::number(room) +
                           "')"_L1);
        if (room % 10 == 0)
            jet::commitPendingWrites();
        jet::Recordset rows;
        rows.open(u"SELECT * FROM Tbl_Rooms"_s, reader);
        ASSERT_EQ(rows.recordCount(), room);
    }
}

TEST_F(VanishedFile, IsNotWrittenTo)
{
    connection.execute(u"SELECT * FROM Tbl_Rooms"_s);
    QFile::remove(path);
    jet::Recordset rooms;
    rooms.open(u"SELECT * FROM Tbl_Rooms"_s, connection); // the open handle still has it
    EXPECT_EQ(rooms.recordCount(), 0);
    try {
        connection.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('lost')"_s);
        FAIL() << "written to a file that is gone";
    } catch (const Error &error) {
        EXPECT_EQ(error.number(), jet::Failure);
        EXPECT_TRUE(error.description().contains("plan.mdb"_L1)) << error.what();
    }
    connection.close();
    EXPECT_THROW(connection.open(jet::connectionString(path)), Error);
    EXPECT_FALSE(QFile::exists(path));
}
