#include "platform/jet/errors.h"
#include "store/sampledata.h"
#include "storetest.h"

#include <QDir>
#include <QFile>

TEST_F(StoreTest, NewStoreHasAllTablesAndNoRows)
{
    const QStringList tables =
        u"Tbl_CustomQuery Tbl_FolderDefaultPermissions Tbl_Folders "
        "Tbl_GlobalGroupFolderPermission Tbl_GlobalGroups Tbl_GlobalGroupsUsers Tbl_HW "
        "Tbl_HWType Tbl_LocalGroupFolderPermission Tbl_LocalGroups "
        "Tbl_LocalGroupsGlobalGroups Tbl_LocalGroupsUsers Tbl_Remote_Users "
        "Tbl_ReportConfig Tbl_RoomHW Tbl_Rooms Tbl_RoomUsers Tbl_SW Tbl_SWHW "
        "Tbl_UserFolderPermission Tbl_UserHW Tbl_Users ZTBL_IMPORT_HW_SHEET1"_s.split(u' ');
    for (const QString &table : tables)
        EXPECT_EQ(rows("SELECT COUNT(*) FROM "_L1 + table), Rows{u"0"_s}) << table.toStdString();
}

TEST_F(StoreTest, UsersAndRemoteUsersHaveTheSameColumns)
{
    const auto columns = [&](const QString &table) {
        jet::Recordset records;
        StoreSession(connection).open("SELECT * FROM "_L1 + table, records);
        QStringList names;
        for (int i = 0; i < records.fields().count(); ++i)
            names.append(records.fields().item(i).name() + u' ' +
                         QString::number(int(records.fields().item(i).type())));
        return names;
    };
    EXPECT_EQ(columns(u"Tbl_Users"_s).size(), 47);
    EXPECT_EQ(columns(u"Tbl_Users"_s), columns(u"Tbl_Remote_Users"_s));
}

TEST_F(StoreTest, CreateStoreNeverOverwrites)
{
    run(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('12')"_s);
    const CurrentError error = errorOf([&] { createStore(path); });
    EXPECT_EQ(error.number, jet::Failure);
    EXPECT_TRUE(error.description.contains(u"company.kvs")) << error.description.toStdString();
    EXPECT_EQ(rows(u"SELECT RoomNumber FROM Tbl_Rooms"_s), Rows{u"12"_s});
    EXPECT_EQ(QDir(folder.path()).entryList({u"*.new*"_s}), QStringList());
}

TEST(StoreFile, FailureLeavesNothingBehind)
{
    const QTemporaryDir folder;
    const auto failing = [](StoreSession &store) {
        store.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('12')"_s);
        raise(RuleViolation, u"broken off"_s);
    };
    const CurrentError error = errorOf([&] { createStore(folder.filePath(u"a.kvs"_s), failing); });
    EXPECT_EQ(error.description, u"broken off"_s);
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST(StoreFile, PathsThatCannotBeAreRefusedByName)
{
    const QTemporaryDir folder;
    const struct
    {
        const char *name;
        QString path;
        QString named;
    } cases[] = {
        {"no path", QString(), u"file name"_s},
        {"missing folder", folder.filePath(u"nowhere/a.kvs"_s), u"nowhere"_s},
        {"a folder", folder.path(), folder.path()},
        {"below a file", u"/dev/null/a.kvs"_s, u"/dev/null"_s},
    };
    for (const auto &c : cases) {
        const CurrentError error = errorOf([&] { createStore(c.path); });
        EXPECT_EQ(error.number, jet::Failure) << c.name;
        EXPECT_TRUE(error.description.contains(c.named)) << c.name << ": " << error.description.toStdString();
    }
}

namespace {

Rows allUsers(const QString &path, const QString &condition = {})
{
    jet::Recordset records;
    StoreSession(jet::connectionString(path))
        .open("SELECT * FROM Tbl_Users"_L1 + condition + " ORDER BY UserID"_L1, records);
    return rowsOf(records);
}

} // namespace

TEST(SampleStore, IsTheSameEveryTimeAndGrowsAtItsEnd)
{
    const QTemporaryDir folder;
    const QString small = folder.filePath(u"small.kvs"_s);
    const QString again = folder.filePath(u"again.kvs"_s);
    const QString large = folder.filePath(u"large.kvs"_s);
    createSampleStore(small, 300);
    createSampleStore(again, 300);
    createSampleStore(large, 500);
    const Rows users = allUsers(small);
    ASSERT_EQ(users.size(), 300);
    EXPECT_EQ(users, allUsers(again));
    EXPECT_EQ(users, allUsers(large).first(300));
}

TEST(SampleStore, HoldsAWholeCompany)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"sample.kvs"_s);
    createSampleStore(path, 2000);
    const auto values = [&](const QString &sql) {
        jet::Recordset records;
        StoreSession(jet::connectionString(path)).open(sql, records);
        return rowsOf(records);
    };
    EXPECT_GT(values(u"SELECT DISTINCT ServerName FROM Tbl_Users"_s).size(), 3);
    EXPECT_EQ(values(u"SELECT UserName, ServerName FROM Tbl_Users GROUP BY UserName, ServerName "
                     "HAVING Count(*) > 1"_s),
              Rows());
    EXPECT_EQ(values(u"SELECT UserID FROM Tbl_Users GROUP BY UserID HAVING Count(*) > 1"_s), Rows());
    for (const QString &name : {u"O'Brien"_s, u"Müller"_s, u"Lefèvre"_s, u"Žižka"_s}) {
        QString quoted = name;
        quoted.replace(u'\'', "''"_L1);
        EXPECT_FALSE(values("SELECT UserID FROM Tbl_Users WHERE LastName = '"_L1 + quoted + u'\'').isEmpty())
            << name.toStdString();
    }
    EXPECT_EQ(values(u"SELECT UserID FROM Tbl_Users WHERE EmailAddress = '' OR Department = '' OR "
                     "FirstName = '' OR HomeDir = '' OR UserName LIKE '%[!a-z0-9]%'"_s),
              Rows());
}
