#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/clsSW.h"
#include "folders/clsFolders.h"
#include "jet/otherprogram.h"
#include "platform/jet/errors.h"
#include "platform/jet/inspection.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"
#include "store/storecheck.h"
#include "support/companytest.h"
#include "support/deleting.h"

#include <QFileInfo>

#include <map>
#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace company;

namespace {

/// What the relationship tables hold, by table.
using Relationships = std::map<QString, Rows>;

class DeletingTest : public CompanyTest
{
protected:
    /// All rows, or those that do not hold the id in the column.
    [[nodiscard]] Relationships relationships(const QString &column = {}, int id = 0) const
    {
        jet::Connection opened;
        opened.open(connection);
        Relationships all;
        for (const jet::StoredTable &table : jet::storedTables(opened)) {
            const auto isId = [](const jet::StoredPart &part) {
                return part.name.endsWith("ID"_L1) && part.definition == "LONG NOT NULL"_L1;
            };
            if (table.columns.size() < 2 || !isId(table.columns[0]) || !isId(table.columns[1]))
                continue;
            const bool hasColumn = table.columns[0].name == column || table.columns[1].name == column;
            Rows left = rows("SELECT * FROM "_L1 + table.name +
                             (hasColumn ? " WHERE %1 <> %2"_L1.arg(column).arg(id) : QString()));
            left.sort();
            all[table.name] = left;
        }
        return all;
    }

    template <typename Records>
    void expectToTakeAlong(Records records, const char *table, const QString &column, int id)
    {
        SCOPED_TRACE(table);
        const Relationships before = relationships();
        ASSERT_EQ(before.size(), 10U);
        const Relationships expected = relationships(column, id);
        ASSERT_NE(before, expected);
        const Rows objects = content(table);
        const Report report = deleteAll(records, connection, QList<int>{id, 99});
        EXPECT_EQ(report.done, 2);
        EXPECT_EQ(report.text, QString());
        EXPECT_EQ(content(table).size(), objects.size() - 1);
        EXPECT_EQ(relationships(), expected);
    }

    /// Brings the store back to the format that knew no rules.
    void makeOlder() const
    {
        const QByteArray triggers =
            "GlobalGroups.ID LocalGroups.ID Folders.ID HW.ID SW.ID Rooms.ID Users.UserID";
        QByteArray sql = "PRAGMA user_version = 1;";
        for (const QByteArray &trigger : triggers.split(' '))
            sql += "DROP TRIGGER \"jet_delete_Tbl_" + trigger + "\";";
        sqlite3 *handle = nullptr;
        sqlite3_open(path.toUtf8().constData(), &handle);
        EXPECT_EQ(sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(handle);
        sqlite3_close(handle);
    }

    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A number of the file's header.
    [[nodiscard]] int formatOfFile() const { return bytes()[63]; }
};

/// Never waits for another program.
class Impatient final : public Steps
{
public:
    void phase(const QString &, int, int) override {}
    bool step(const QString &) override { return true; }
    bool wait(const QString &) override { return false; }
};

} // namespace

TEST_F(DeletingTest, EveryRootObjectTakesItsRelationshipsAlong)
{
    expectToTakeAlong(clsUsers(), "Tbl_Users", u"UserID"_s, 12);
    expectToTakeAlong(clsGlobalGroups(), "Tbl_GlobalGroups", u"GlobalGroupID"_s, 21);
    expectToTakeAlong(clsLocalGroups(), "Tbl_LocalGroups", u"LocalGroupID"_s, 32);
    expectToTakeAlong(clsFolders(), "Tbl_Folders", u"FolderID"_s, 43);
    expectToTakeAlong(clsSW(), "Tbl_SW", u"SWID"_s, 72);
    expectToTakeAlong(clsRooms(), "Tbl_Rooms", u"RoomID"_s, 81);
    expectToTakeAlong(clsHW(), "Tbl_HW", u"HWID"_s, 61);
    EXPECT_EQ(checkStore(path), QStringList());

    run(u"DELETE * FROM Tbl_Users"_s);
    for (const auto &[table, rows] : relationships()) {
        if (table.contains(u"User"_s)) {
            EXPECT_EQ(rows, Rows()) << table.toStdString();
        }
    }
}

TEST_F(DeletingTest, AnIdIsFreeWithNothingOnIt)
{
    clsUsers users;
    (void)deleteAll(users, connection, QList<int>{13});
    UserRecord next;
    next.UserName = u"dora"_s;
    next.ServerName = u"SRV01"_s;
    users.Add(connection, next);
    EXPECT_EQ(next.UserID, 13);
    EXPECT_EQ(relationships(), relationships(u"UserID"_s, 13));
}

TEST_F(DeletingTest, AnIdOfTwoUsersIsFreeBehindTheLast)
{
    run(u"INSERT INTO Tbl_Users (UserID, UserName, ServerName) VALUES (12, 'twin', 'SRV09')"_s);
    const Relationships before = relationships();
    run(u"DELETE * FROM Tbl_Users WHERE UserName = 'bert'"_s);
    EXPECT_EQ(relationships(), before);
    const Relationships without = relationships(u"UserID"_s, 12);
    run(u"DELETE * FROM Tbl_Users WHERE UserName = 'twin'"_s);
    EXPECT_EQ(relationships(), without);

    run(u"INSERT INTO Tbl_Users (UserID, UserName, ServerName) VALUES (11, 'twin', 'SRV09')"_s);
    (void)deleteAll(clsUsers(), connection, QList<int>{11});
    EXPECT_EQ(relationships(), relationships(u"UserID"_s, 11));
    EXPECT_EQ(content("Tbl_Users").size(), 1);
}

TEST_F(DeletingTest, TheRulesFollowTheTables)
{
    run(u"INSERT INTO Tbl_Remote_Users SELECT * FROM Tbl_Users"_s);
    const Relationships before = relationships();
    clsUsers().Import(connection);
    EXPECT_EQ(relationships(), before);
    Relationships without = relationships(u"UserID"_s, 11);
    run(u"DELETE * FROM Tbl_Users WHERE UserID = 11"_s);
    EXPECT_EQ(relationships(), without);

    run(u"DROP TABLE Tbl_RoomUsers"_s);
    without = relationships(u"UserID"_s, 12);
    run(u"DELETE * FROM Tbl_Users WHERE UserID = 12"_s);
    EXPECT_EQ(relationships(), without);

    run(u"CREATE TABLE Tbl_RoomUsers (RoomID LONG NOT NULL, UserID LONG NOT NULL)"_s);
    run(u"INSERT INTO Tbl_RoomUsers VALUES (81, 13)"_s);
    run(u"DELETE * FROM Tbl_Users WHERE UserID = 13"_s);
    EXPECT_EQ(content("Tbl_RoomUsers"), Rows());

    {
        StoreSession undone(connection);
        undone.beginWriting();
        undone.execute(u"DROP TABLE Tbl_SWHW"_s);
        undone.rollBack();
    }
    without = relationships(u"SWID"_s, 72);
    run(u"DELETE * FROM Tbl_SW WHERE ID = 72"_s);
    EXPECT_EQ(relationships(), without);
}

TEST_F(DeletingTest, AnOlderStoreGetsTheRulesWithTheFirstWrite)
{
    makeOlder();
    const QByteArray before = bytes();
    ASSERT_EQ(formatOfFile(), 1);
    {
        StoreSession store(connection);
        EXPECT_EQ(store.scalar(u"SELECT Count(*) FROM Tbl_Users"_s).toInteger(), 3);
        EXPECT_THROW(store.execute(u"INSERT INTO Tbl_HW (HWTypeID) VALUES (3000000000)"_s), Error);
        store.close();
    }
    EXPECT_EQ(checkStore(path), QStringList());
    EXPECT_TRUE(bytes() == before) << "reading, or failing to write, has changed the file";

    Relationships without = relationships(u"UserID"_s, 11);
    (void)deleteAll(clsUsers(), connection, QList<int>{11});
    EXPECT_EQ(formatOfFile(), 2);
    EXPECT_EQ(relationships(), without);

    // They are the file's now.
    without = relationships(u"UserID"_s, 12);
    jet::Connection other;
    other.open(connection);
    other.execute(u"DELETE * FROM Tbl_Users WHERE UserID = 12"_s);
    EXPECT_EQ(relationships(), without);
}

TEST_F(DeletingTest, HardwareStaysWithoutItsType)
{
    clsHWType types;
    EXPECT_EQ(types.countItems(connection, QList<int>{51, 53, 99}), 3);
    const Relationships before = relationships();
    (void)deleteAll(types, connection, QList<int>{51});
    EXPECT_EQ(types.countItems(connection, QList<int>{51}), 2);
    EXPECT_EQ(relationships(), before);
    EXPECT_EQ(checkStore(path),
              QStringList{u"Table Tbl_HW: 2 rows have a HWTypeID that is not in Tbl_HWType."_s});
    clsHW hardware;
    // Assigned or not, these are in no other list.
    Rows listed = rowsFrom([&](auto &result) { hardware.getUnAssigned(connection, result); });
    listed.sort();
    EXPECT_EQ(listed, (Rows{u"61|   |S9|P1|Office|10.1"_s, u"62|   |S8|P2|-|10.2"_s, hw65, hw66}));
    EXPECT_EQ(rowsFrom([&](auto &result) { hardware.GetByID(connection, result, 61); }).size(), 1);
}

TEST_F(DeletingTest, ABatchNamesWhatFailsAndGoesOn)
{
    run(u"DROP TABLE Tbl_LocalGroupFolderPermission"_s);
    NoSteps steps;
    const Report report =
        clsFolders().Delete(connection, QList<int>{42, 41}, {u"the one"_s, u"the other"_s}, steps);
    EXPECT_EQ(report.end, Report::End::Finished);
    EXPECT_EQ(report.done, 0);
    EXPECT_EQ(report.failed, 2);
    const QStringList lines = report.text.split(u"\r\n"_s, Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2) << report.text.toStdString();
    EXPECT_TRUE(lines[0].startsWith("the one: "_L1) &&
                lines[0].contains("Tbl_LocalGroupFolderPermission"_L1));
    EXPECT_TRUE(lines[1].startsWith("the other: "_L1));
    EXPECT_EQ(content("Tbl_UserFolderPermission"), Rows{u"11|44|R"_s}) << "what was done before stays";
}

TEST_F(DeletingTest, ABatchEndsWithTheStore)
{
    NoSteps steps;
    const QString nowhere = folder.filePath(u"nowhere.kvs"_s);
    const Report lost = clsRooms().Delete(jet::connectionString(nowhere), QList<int>{81, 82},
                                          {u"the one"_s, u"the other"_s}, steps);
    EXPECT_EQ(lost.end, Report::End::Lost);
    EXPECT_TRUE(lost.note.contains(nowhere)) << lost.note.toStdString();
    EXPECT_TRUE(lost.note.endsWith("Not deleted: 2 of 2, from the one to the other"_L1))
        << lost.note.toStdString();

    OtherProgram other(path);
    Impatient impatient;
    const Report locked = clsRooms().Delete(connection, QList<int>{81}, {u"the one"_s}, impatient);
    EXPECT_EQ(locked.end, Report::End::Cancelled);
    EXPECT_EQ(locked.done, 0);
    EXPECT_TRUE(locked.note.contains(QString::number(other.process()))) << locked.note.toStdString();
}

TEST_F(DeletingTest, ARepairRemovesWhatHasLostAnEndBehindACopy)
{
    EXPECT_EQ(repairStore(path), QStringList());
    EXPECT_EQ(folder.path(), QFileInfo(path).path());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"company.kvs"_s}) << "nothing to keep";

    makeOlder();
    const Relationships sound = relationships();
    for (const QString &copy : {u"company-before-repair.kvs"_s, u"company-before-repair-2.kvs"_s}) {
        jet::Connection loose;
        loose.open(connection);
        loose.execute(u"INSERT INTO Tbl_RoomUsers VALUES (81, 7)"_s);
        loose.execute(u"INSERT INTO Tbl_RoomUsers VALUES (80, 11)"_s);
        loose.execute(u"INSERT INTO Tbl_SWHW VALUES (70, 60)"_s);
        loose.execute(u"INSERT INTO Tbl_SWHW VALUES (70, 61)"_s);
        loose.close();
        const QStringList findings = checkStore(path);
        const QString place = folder.filePath(copy);
        EXPECT_EQ(repairStore(path).join(u'\n'),
                  QStringList({"The store as it was is kept in "_L1 + place + u'.',
                               u"Table Tbl_RoomUsers: removed 1 row whose RoomID is not in Tbl_Rooms."_s,
                               u"Table Tbl_RoomUsers: removed 1 row whose UserID is not in Tbl_Users."_s,
                               u"Table Tbl_SWHW: removed 2 rows whose SWID is not in Tbl_SW."_s})
                      .join(u'\n'));
        EXPECT_EQ(relationships(), sound);
        EXPECT_EQ(checkStore(path), QStringList());
        EXPECT_EQ(formatOfFile(), 2);
        EXPECT_EQ(checkStore(place), findings);
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 3);
}

TEST_F(DeletingTest, ARepairThatCannotKeepACopyChangesNothing)
{
    run(u"INSERT INTO Tbl_RoomUsers VALUES (81, 7)"_s);
    const QByteArray before = bytes();
    {
        OtherProgram other(path);
        EXPECT_THROW((void)repairStore(path), jet::StoreLocked);
    }
    QByteArray broken = bytes();
    constexpr qsizetype page = 4096;
    broken.replace(broken.size() - page, page, QByteArray(page, '\xA5'));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(broken);
    file.close();
    EXPECT_EQ(errorOf([&] { (void)repairStore(path); }).description,
              "The store '"_L1 + path + "' is damaged and was not repaired."_L1);
    EXPECT_TRUE(bytes() == broken);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"company.kvs"_s});
}
