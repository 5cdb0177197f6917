#include "assets/clsHW.h"
#include "assets/clsRooms.h"
#include "folders/clsFolders.h"
#include "jet/failingvfs.h"
#include "platform/jet/inspection.h"
#include "queries/clsCustomQuery.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"
#include "store/userstatements.h"
#include "support/companytest.h"
#include "support/deleting.h"

#include <algorithm>
#include <iterator>

#include <sqlite3.h>

using namespace Qt::StringLiterals;
using failingvfs::Fault;
using failingvfs::faults;

namespace {

/// Adds to `told` what the method tells without raising it.
using Write = void (*)(const QString &store, QString &told);

struct Writer
{
    const char *name;
    Write write;
};

constexpr int userIds[] = {13, 12, 11};
constexpr int folderIds[] = {42, 43};
constexpr int itemIds[] = {61, 62};
constexpr int roomIds[] = {81, 83};

void folderRecords(jet::Recordset &records)
{
    makeRecords(records, {u"Name"_s, u"Permission"_s},
                {{u"D:\\New\\"_s, u"R"_s}, {u"D:\\Data\\"_s, u"CH"_s}, {u"D:\\Newer\\"_s, u"L"_s}});
}

QString toldBy(const Report &report)
{
    return report.text + report.note;
}

using UserBatch = Report (clsUsers::*)(const QString &, jet::Recordset &, bool, Steps &);

/// A new user, a known one who gets another id, and one more new.
void addUserBatch(UserBatch batch, std::span<const UserColumn> columns, const QString &store, QString &told)
{
    QStringList names;
    for (const UserColumn &column : columns)
        names += column.name;
    QList<QStringList> lines;
    for (const auto &[id, name] : {std::pair(u"0"_s, u"dora"_s), {u"90"_s, u"anna"_s}, {u"0"_s, u"emil"_s}}) {
        QStringList line(names.size(), u"0"_s);
        line[names.indexOf(u"UserID"_s)] = id;
        line[names.indexOf(u"UserName"_s)] = name;
        line[names.indexOf(u"ServerName"_s)] = u"SRV01"_s;
        lines += line;
    }
    jet::Recordset records;
    makeRecords(records, names, lines);
    NoSteps steps;
    told += toldBy((clsUsers().*batch)(store, records, false, steps));
}

constexpr Writer writers[] = {
    {"OneStatement",
     [](const QString &store, QString &) {
         jet::Recordset none;
         clsCustomQuery().Execute(store, none, u"DELETE FROM Tbl_FolderDefaultPermissions"_s);
     }},
    {"UnderARule",
     [](const QString &store, QString &) { clsFolders().update(store, 42, u"D:\\Moved"_s, {}); }},
    {"ForEach", [](const QString &store, QString &) { clsFolders().RemoveAllPermissions(store, folderIds); }},
    {"DeleteEach",
     [](const QString &store, QString &told) { told += toldBy(deleteAll(clsFolders(), store, folderIds)); }},
    {"RelationsAnew",
     [](const QString &store, QString &) { clsGlobalGroups().addUsers(store, 21, userIds); }},
    {"PermissionsAnew",
     [](const QString &store, QString &) {
         clsUsers().addFolders(store, 12, folderIds, {u"CH"_s, u"L"_s}, true);
     }},
    {"ItemsOfARoom", [](const QString &store, QString &) { clsRooms().addHW(store, 82, itemIds, true); }},
    {"RoomsOfAnItem", [](const QString &store, QString &) { clsHW().addRooms(store, 61, roomIds, true); }},
    {"GroupBatch",
     [](const QString &store, QString &told) {
         jet::Recordset records;
         makeRecords(records, {u"Name"_s, u"Server"_s, u"Description"_s},
                     {{u"New"_s, u"DC01"_s, u"n"_s},
                      {u"Staff"_s, u"DC01"_s, u"s"_s},
                      {u"Newer"_s, u"DC02"_s, u"r"_s}});
         NoSteps steps;
         Report report;
         clsGlobalGroups().AddBatch(store, records, false, steps, report);
         told += toldBy(report);
     }},
    {"MembershipBatch",
     [](const QString &store, QString &told) {
         jet::Recordset records;
         makeRecords(records, {u"UserName"_s, u"UserServer"_s, u"GroupName"_s, u"GroupServer"_s},
                     {{u"anna"_s, u"SRV01"_s, u"Staff"_s, u"DC01"_s},
                      {u"rolf"_s, u"SRV01"_s, u"Admins"_s, u"DC01"_s}});
         NoSteps steps;
         Report report;
         clsGlobalGroups().AddUsersBatch(store, records, steps, report);
         told += toldBy(report);
     }},
    {"FoldersByPath",
     [](const QString &store, QString &told) {
         jet::Recordset records;
         folderRecords(records);
         clsLocalGroups().addFoldersBatch(store, u"Guests"_s, records, told);
     }},
    {"PermittedObjects",
     [](const QString &store, QString &told) {
         jet::Recordset objects;
         makeRecords(objects, {u"Name"_s, u"Server"_s, u"Permission"_s},
                     {{u"bert"_s, u"SRV02"_s, u"CH"_s}, {u"Guests"_s, u"SRV02"_s, u"R"_s}});
         told += clsFolders().addPermittedObjects(store, u"D:\\Data\\"_s, objects);
     }},
    {"FolderBatch",
     [](const QString &store, QString &told) {
         NoSteps steps;
         told += toldBy(clsFolders().AddBatch(store, {u"D:\\New"_s, u"D:\\Data"_s, u"D:\\Newer"_s},
                                              {u"n"_s, u"d"_s, u"r"_s}, false, steps));
     }},
    {"PermissionBatch",
     [](const QString &store, QString &told) {
         NoSteps steps;
         told += toldBy(clsFolders().AddPermissionsBatch(store, {u"D:\\Data"_s, u"D:\\Admin"_s},
                                                         {u"anna"_s, u"Guests"_s}, {u"SRV01"_s, u"SRV02"_s},
                                                         {u"CH"_s, u"L"_s}, steps));
     }},
    {"UserBatch", [](const QString &store,
                     QString &told) { addUserBatch(&clsUsers::AddBatch, liveUpdateColumns(), store, told); }},
    {"UserFileBatch",
     [](const QString &store, QString &told) {
         addUserBatch(&clsUsers::AddBatchFromFile, fileColumns(), store, told);
     }},
};

using Case = std::tuple<Fault, Writer>;

class FailingStoreTest : public CompanyTest, public testing::WithParamInterface<Case>
{
protected:
    /// What lies in a store, in names: whatever id a row got, it must stand for the same things.
    static Rows contentOf(const QString &store)
    {
        Rows all;
        StoreSession session(store);
        for (const QString &query : {
                 u"SELECT 'user', UserName, ServerName FROM Tbl_Users"_s,
                 u"SELECT 'folder', FolderName, Description FROM Tbl_Folders"_s,
                 u"SELECT 'group', Name, Server, Description FROM Tbl_GlobalGroups"_s,
                 u"SELECT 'item in', RoomID, HWID FROM Tbl_RoomHW"_s,
                 u"SELECT 'item of', UserID, HWID FROM Tbl_UserHW"_s,
                 u"SELECT 'item with', HWID, SWID FROM Tbl_SWHW"_s,
                 u"SELECT 'group in', LocalGroupID, GlobalGroupID FROM Tbl_LocalGroupsGlobalGroups"_s,
                 u"SELECT 'default', Account, Permission FROM Tbl_FolderDefaultPermissions"_s,
                 u"SELECT 'in global', g.Name, u.UserName FROM (Tbl_GlobalGroupsUsers AS m "
                 "LEFT JOIN Tbl_GlobalGroups AS g ON m.GlobalGroupID = g.ID) "
                 "LEFT JOIN Tbl_Users AS u ON m.UserID = u.UserID"_s,
                 u"SELECT 'in local', g.Name, m.UserID FROM Tbl_LocalGroupsUsers AS m "
                 "LEFT JOIN Tbl_LocalGroups AS g ON m.LocalGroupID = g.ID"_s,
                 u"SELECT 'in room', m.RoomID, u.UserName FROM Tbl_RoomUsers AS m "
                 "LEFT JOIN Tbl_Users AS u ON m.UserID = u.UserID"_s,
                 u"SELECT 'user may', u.UserName, f.FolderName, p.Permission FROM (Tbl_UserFolderPermission "
                 u"AS p "
                 "LEFT JOIN Tbl_Users AS u ON p.UserID = u.UserID) "
                 "LEFT JOIN Tbl_Folders AS f ON p.FolderID = f.ID"_s,
                 u"SELECT 'local may', g.Name, f.FolderName, p.Permission FROM "
                 u"(Tbl_LocalGroupFolderPermission AS p "
                 "LEFT JOIN Tbl_LocalGroups AS g ON p.LocalGroupID = g.ID) "
                 "LEFT JOIN Tbl_Folders AS f ON p.FolderID = f.ID"_s,
                 u"SELECT 'global may', g.Name, f.FolderName, p.Permission FROM "
                 u"(Tbl_GlobalGroupFolderPermission AS p "
                 "LEFT JOIN Tbl_GlobalGroups AS g ON p.GlobalGroupID = g.ID) "
                 "LEFT JOIN Tbl_Folders AS f ON p.FolderID = f.ID"_s,
             }) {
            jet::Recordset records;
            session.open(query, records);
            all += rowsOf(records);
        }
        std::ranges::sort(all);
        return all;
    }

    static QStringList faultsOf(const QString &store)
    {
        jet::Connection connection;
        connection.open(store);
        return jet::brokenPlaces(connection);
    }

    [[nodiscard]] QString copy(const QString &name) const
    {
        QString made = folder.filePath(name);
        EXPECT_TRUE(QFile::copy(path, made));
        return made;
    }
};

/// The rows of the first list, each as often as it stands there, that the second lacks.
Rows lacking(const Rows &some, const Rows &others)
{
    Rows left;
    std::ranges::set_difference(some, others, std::back_inserter(left));
    return left;
}

} // namespace

TEST_P(FailingStoreTest, WhatIsNotWrittenIsTold)
{
    const auto &[fault, writer] = GetParam();
    run(u"INSERT INTO Tbl_FolderDefaultPermissions (Account, Permission) VALUES ('SYSTEM', 'R')"_s);
    const Rows before = contentOf(connection);
    const QString done = jet::connectionString(copy(u"done.mdb"_s));
    QString unused;
    writer.write(done, unused);
    const Rows after = contentOf(done);
    Rows either;
    std::ranges::set_union(before, after, std::back_inserter(either));

    failingvfs::Installed disk;
    bool everFailed = false;
    bool failed = true;
    for (int call = 1; failed && call < 200; ++call) {
        const QString file = copy(QString::number(call) + ".mdb"_L1);
        const QString store = jet::connectionString(file);
        disk.plan({fault.kind, call, fault.result, fault.forGood});
        QString complaint;
        try {
            writer.write(store, complaint);
        } catch (const Error &error) {
            complaint += error.description();
        }
        failed = disk.hasFailed();
        everFailed = everFailed || failed;
        disk.plan({});

        ASSERT_EQ(faultsOf(store), QStringList()) << "call " << call;
        const Rows content = contentOf(store);
        ASSERT_EQ(lacking(content, either), Rows()) << "neither old nor asked for, at call " << call;
        if (complaint.isEmpty()) {
            ASSERT_EQ(content, after) << "lost without a word at call " << call;
        }
        QString again;
        try {
            writer.write(store, again);
        } catch (const Error &error) {
            ASSERT_EQ(content, after) << error.what() << " at call " << call;
        }
        ASSERT_EQ(contentOf(store), after) << "not mended by a second try, at call " << call;
        QFile::remove(file);
    }
    EXPECT_FALSE(failed);
    EXPECT_TRUE(everFailed);
}

INSTANTIATE_TEST_SUITE_P(Disk, FailingStoreTest,
                         testing::Combine(testing::ValuesIn(faults), testing::ValuesIn(writers)),
                         [](const testing::TestParamInfo<Case> &info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });
