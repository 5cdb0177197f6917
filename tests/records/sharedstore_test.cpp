#include "assets/clsRooms.h"
#include "folders/clsFolders.h"
#include "jet/failingvfs.h"
#include "jet/otherprogram.h"
#include "platform/jet/errors.h"
#include "store/clsGlobalGroups.h"
#include "store/clsUsers.h"
#include "support/recordtest.h"
#include "support/scriptedsteps.h"

#include <QFile>

#include <chrono>
#include <thread>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

/// A store that another program uses, too, and disks that fail: what becomes of a batch and of a single
/// write.
class SharedStoreTest : public RecordTest
{
protected:
    void SetUp() override
    {
        RecordTest::SetUp();
        // By its own name a child would find the handle that came along with the fork.
        ASSERT_EQ(::link(path.toUtf8().constData(), theirName.toUtf8().constData()), 0);
    }

    Report importUsers(int count)
    {
        static const QStringList fields =
            u"UserID UserName ServerName FullName Comment UserComment HomeDirDrive "
            "HomeDir Profile ScriptPath AccDisabled NoChangePwd NoExpirePwd"_s.split(u' ');
        QList<QStringList> lines;
        for (int i = 1; i <= count; ++i)
            lines.append(
                {u"0"_s, u"user%1"_s.arg(i), u"SRV"_s, {}, {}, {}, {}, {}, {}, {}, u"0"_s, u"0"_s, u"0"_s});
        jet::Recordset records;
        makeRecords(records, fields, lines);
        return clsUsers().AddBatchFromFile(connection, records, false, steps);
    }

    [[nodiscard]] Rows users() const
    {
        return rows(u"SELECT UserID, UserName FROM Tbl_Users ORDER BY UserID"_s);
    }

    const QString theirName = folder.filePath(u"link.kvs"_s);
    ScriptedSteps steps;
};

const QStringList theirUser{
    u"INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (1,'theirs','SRV')"_s};

} // namespace

TEST_F(SharedStoreTest, ABatchWaitsSaysForWhomAndGoesOnWithTheNextFreeId)
{
    OtherProgram other(theirName, theirUser);
    steps.onWait = [&](const QString &) {
        if (steps.waits.size() == 3)
            other.finish();
        return true;
    };
    const Report report = importUsers(3);
    ASSERT_GE(steps.waits.size(), 3);
    EXPECT_EQ(report.end, Report::End::Finished);
    EXPECT_EQ(report.text, QString());
    EXPECT_EQ(report.added, 3);
    EXPECT_EQ(users(), (Rows{u"1|theirs"_s, u"2|user1"_s, u"3|user2"_s, u"4|user3"_s}));
}

TEST_F(SharedStoreTest, ABatchThatWaitsCanBeCancelledAndNamesWhoHoldsTheStore)
{
    OtherProgram other(theirName, theirUser);
    const auto begin = std::chrono::steady_clock::now();
    const Report report = importUsers(3);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(3)) << "Cancel came late.";
    EXPECT_EQ(report.end, Report::End::Cancelled);
    EXPECT_EQ(report.added + report.failed, 0);
    EXPECT_TRUE(report.note.contains(QString::number(other.process()))) << report.note.toStdString();
    EXPECT_EQ(steps.waits, QStringList{report.note});
    other.finish();
    EXPECT_EQ(users(), Rows{u"1|theirs"_s});
}

TEST_F(SharedStoreTest, AReaderThatHoldsUpTheEndOfABatchIsWaitedFor)
{
    sqlite3 *reader = nullptr;
    steps.onStep = [&](const QString &item) {
        if (item != u"SRV\\user3")
            return;
        ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &reader), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(reader, "BEGIN; SELECT * FROM Tbl_Rooms", nullptr, nullptr, nullptr),
                  SQLITE_OK);
    };
    steps.onWait = [&](const QString &) {
        sqlite3_close(std::exchange(reader, nullptr));
        return true;
    };
    EXPECT_EQ(importUsers(3).end, Report::End::Finished);
    EXPECT_EQ(steps.waits.size(), 1);
    EXPECT_EQ(users().size(), 3);
}

TEST_F(SharedStoreTest, WhatAWriteDependsOnIsReadUnderItsLock)
{
    int id = 0;
    UserRecord user;
    user.UserName = u"theirs"_s;
    user.ServerName = u"SRV"_s;
    const struct
    {
        const char *name;
        QString theirs;
        std::function<void()> add;
    } cases[] = {
        {"user", theirUser.first(), [&] { clsUsers().Add(connection, user); }},
        {"group", u"INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('N','S')"_s,
         [&] { clsGlobalGroups().Add(connection, u"S"_s, u"N"_s, {}, id); }},
        {"room", u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('101')"_s,
         [&] { clsRooms().Add(connection, u"101"_s, {}); }},
        {"folder", u"INSERT INTO Tbl_Folders (FolderName) VALUES ('C:\\Data\\')"_s,
         [&] { clsFolders().Add(connection, u"C:\\Data"_s, {}); }},
    };
    for (const auto &c : cases) {
        OtherProgram other(theirName, {c.theirs});
        std::thread later([&other] {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            other.finish();
        });
        EXPECT_EQ(errorOf(c.add).number, RuleViolation) << c.name << " is in the store twice.";
        later.join();
    }
}

// The disk is full from some write on, and each user is brought to it before the next is begun: what the
// report counts and names must be what is there.
TEST_F(SharedStoreTest, AFullDiskEndsABatchWhichSaysWhatIsNotInTheStore)
{
    constexpr int count = 5;
    steps.onStep = [](const QString &) { jet::flushPendingWrites(); };
    QSet<int> kept;
    bool failed = true;
    for (int call = 1; failed && call < 200; ++call) {
        failingvfs::Installed disk;
        disk.plan({failingvfs::Kind::Write, call, SQLITE_FULL, true});
        const Report report = importUsers(count);
        failed = disk.hasFailed();
        disk.plan({});
        const int inStore = int(users().size());
        kept.insert(inStore);
        EXPECT_EQ(report.added, inStore) << "call " << call;
        EXPECT_EQ(report.failed, 0);
        EXPECT_EQ(report.end == Report::End::Lost, failed);
        EXPECT_EQ(report.note.count(u"disk space"), failed ? 1 : 0) << report.note.toStdString();
        if (failed) {
            const QString last =
                inStore == count - 1 ? u"SRV\\user5"_s : u"from SRV\\user%1 to SRV\\user5"_s.arg(inStore + 1);
            EXPECT_TRUE(report.note.endsWith(u"Not in the Database: %1 of 5, "_s.arg(count - inStore) + last))
                << report.note.toStdString();
        }
        run(u"DELETE FROM Tbl_Users"_s);
    }
    EXPECT_FALSE(failed);
    EXPECT_EQ(kept.size(), count + 1) << "The disk did not fill up between all of them.";
}

TEST_F(SharedStoreTest, AStoreThatIsMovedAwayEndsABatch)
{
    bool moved = false;
    steps.onStep = [&](const QString &item) {
        jet::flushPendingWrites();
        if (item == u"SRV\\user3")
            moved = QFile::rename(path, folder.filePath(u"moved.kvs"_s));
    };
    const Report report = importUsers(1000);
    ASSERT_TRUE(moved);
    EXPECT_EQ(report.end, Report::End::Lost);
    EXPECT_EQ(report.added, 2);
    EXPECT_EQ(steps.items.size(), 3) << "It ran on.";
    EXPECT_TRUE(report.note.contains(u"moved or deleted")) << report.note.toStdString();
    EXPECT_TRUE(report.note.endsWith(u"Not in the Database: 998 of 1000, from SRV\\user3 to SRV\\user1000"));
}

// A disk that is full for a moment undoes one statement alone: no relationship may stay behind for that.
TEST_F(SharedStoreTest, AUserWhoGetsANewIdKeepsAllThatIsRelatedOrNothingChanges)
{
    const QStringList tables{u"Tbl_GlobalGroupsUsers"_s, u"Tbl_RoomUsers"_s, u"Tbl_UserHW"_s};
    {
        StoreSession store(connection);
        store.execute(u"INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (7,'user1','SRV')"_s);
        for (const char *row :
             {"Tbl_GlobalGroupsUsers (GlobalGroupID", "Tbl_RoomUsers (RoomID", "Tbl_UserHW (HWID"})
            store.execute(u"INSERT INTO %1,UserID) VALUES (3,7)"_s.arg(QLatin1StringView(row)));
        store.close();
    }
    const QString model = folder.filePath(u"model.kvs"_s);
    ASSERT_TRUE(QFile::copy(path, model));
    failingvfs::Installed disk;
    bool failed = true;
    for (int call = 1; failed && call < 200; ++call) {
        QFile::remove(path);
        ASSERT_TRUE(QFile::copy(model, path));
        disk.plan({failingvfs::Kind::Write, call, SQLITE_FULL, false});
        const Report report = importUsers(1);
        failed = disk.hasFailed();
        disk.plan({});
        const QString id = report.updated == 1 ? u"8"_s : u"7"_s;
        EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_Users"_s), Rows{id}) << "call " << call;
        for (const QString &table : tables)
            EXPECT_EQ(rows("SELECT UserID FROM "_L1 + table), Rows{id})
                << table.toStdString() << " at call " << call;
    }
    EXPECT_FALSE(failed);
}
