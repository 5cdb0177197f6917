#include "folderstest.h"
#include "platform/jet/errors.h"

#include <functional>

namespace {

constexpr auto folderExists = "The specified Folder already exists in the Database"_L1;
constexpr auto defaultExists = "The specified Default Permission already exists in the Database"_L1;

} // namespace

TEST_F(FoldersTest, PathGetsItsBackslashWhenItLacksOne)
{
    folders.Add(connection, u"C:\\Data"_s, u"local"_s);
    folders.Add(connection, u"\\\\SRV01\\Share\\"_s, {});
    folders.Add(connection, {}, u"empty"_s);
    EXPECT_EQ(allFolders(), (Rows{u"1|C:\\Data\\|local"_s, u"2|\\\\SRV01\\Share\\|"_s, u"3|\\|empty"_s}));
    folders.update(connection, 1, u"C:\\Other"_s, u"moved"_s);
    folders.update(connection, 2, u"\\\\SRV02\\Share\\"_s, {});
    EXPECT_EQ(allFolders(), (Rows{u"1|C:\\Other\\|moved"_s, u"2|\\\\SRV02\\Share\\|"_s, u"3|\\|empty"_s}));
}

TEST_F(FoldersTest, TakenPathIsRefusedWithNothingWritten)
{
    folders.Add(connection, u"C:\\Data"_s, u"old"_s);
    folders.Add(connection, u"C:\\Other"_s, {});
    const Rows before = allFolders();
    const std::function<void()> steps[] = {
        [&] { folders.Add(connection, u"C:\\Data\\"_s, u"new"_s); },
        [&] { folders.Add(connection, u"c:\\DATA"_s, u"new"_s); },
        [&] { folders.update(connection, 2, u"C:\\Data"_s, u"new"_s); },
    };
    for (const auto &step : steps) {
        const CurrentError error = errorOf(step);
        EXPECT_EQ(error.number, RuleViolation);
        EXPECT_EQ(error.description, folderExists);
        EXPECT_EQ(folders.errorDescription(), folderExists);
    }
    EXPECT_EQ(allFolders(), before);
    folders.update(connection, 1, u"C:\\DATA"_s, u"its own path"_s);
    EXPECT_EQ(allFolders().first(), u"1|C:\\DATA\\|its own path"_s);
}

TEST_F(FoldersTest, ApostropheIsRefusedByTheStore)
{
    folders.Add(connection, u"C:\\Data"_s, {});
    jet::Recordset found;
    const std::function<void()> steps[] = {
        [&] { folders.Add(connection, u"C:\\It's"_s, {}); },
        [&] { folders.Add(connection, u"C:\\It"_s, u"it's"_s); },
        [&] { folders.update(connection, 1, u"C:\\Data"_s, u"it's"_s); },
        [&] { folders.Find(connection, found, u"'"_s); },
        [&] { folders.AddDefaultFolderPermission(connection, u"SRV01\\O'Brien"_s, u"R"_s); },
    };
    for (const auto &step : steps)
        EXPECT_EQ(errorOf(step).number, jet::SyntaxError);
    EXPECT_EQ(allFolders(), Rows{u"1|C:\\Data\\|"_s});
    EXPECT_EQ(defaults(), Rows());
}

TEST_F(FoldersTest, IdsAreNeverUsedAgain)
{
    folders.Add(connection, u"C:\\One"_s, {});
    folders.Add(connection, u"C:\\Two"_s, {});
    folders.Delete(connection, QList<int>{1, 2, 99});
    folders.Add(connection, u"C:\\Two"_s, {});
    EXPECT_EQ(allFolders(), Rows{u"3|C:\\Two\\|"_s});
}

TEST_F(FoldersTest, DefaultPermissionsAreOneForAnAccount)
{
    folders.AddDefaultFolderPermission(connection, u"SYSTEM"_s, u"Full Control"_s);
    folders.AddDefaultFolderPermission(connection, u"DC01\\Admins"_s, u"CH"_s);
    const Rows before = defaults();
    const std::function<void()> steps[] = {
        [&] { folders.AddDefaultFolderPermission(connection, u"system"_s, u"R"_s); },
        [&] { folders.updateDefaultFolderPermission(connection, 2, u"System"_s, u"R"_s); },
    };
    for (const auto &step : steps) {
        const CurrentError error = errorOf(step);
        EXPECT_EQ(error.number, RuleViolation);
        EXPECT_EQ(error.description, defaultExists);
    }
    EXPECT_EQ(defaults(), before);
    folders.updateDefaultFolderPermission(connection, 1, u"SYSTEM"_s, u"R"_s);
    folders.updateDefaultFolderPermission(connection, 2, u"DC01\\Ops"_s, u"L"_s);
    EXPECT_EQ(defaults(), (Rows{u"2|DC01\\Ops|L"_s, u"1|SYSTEM|R"_s}));
    folders.DeleteDefaultFolderPermissions(connection, QList<int>{1, 99});
    EXPECT_EQ(defaults(), Rows{u"2|DC01\\Ops|L"_s});
}

TEST_F(FoldersTest, MissingStoreIsToldByBatchesToo)
{
    const QString nowhere = jet::connectionString(folder.filePath(u"nowhere.kvs"_s));
    jet::Recordset records;
    jet::Recordset objects;
    makeRecords(objects, {u"Name"_s, u"Server"_s, u"Permission"_s}, {});
    QString text;
    const std::function<void()> steps[] = {
        [&] { folders.getAll(nowhere, records); },
        [&] { folders.Add(nowhere, u"C:\\Data"_s, {}); },
        [&] { folders.addUsers(nowhere, 1, QList<int>{1}, {u"R"_s}, true); },
        [&] { text += folders.addPermittedObjects(nowhere, u"C:\\Data\\"_s, objects); },
        [&] { folders.AddBatch(nowhere, {u"C:\\Data"_s}, {QString()}, false, text); },
        [&] {
            folders.AddPermissionsBatch(nowhere, {u"C:\\Data"_s}, {u"anna"_s}, {u"SRV01"_s}, {u"R"_s}, text);
        },
    };
    for (const auto &step : steps) {
        const CurrentError error = errorOf(step);
        EXPECT_EQ(error.number, jet::Failure);
        EXPECT_TRUE(error.description.contains(u"nowhere.kvs")) << error.description.toStdString();
        EXPECT_EQ(folders.errorDescription(), error.description);
    }
    EXPECT_EQ(text, QString());
}

TEST_F(FolderAccountsTest, ReadersGiveTheirRows)
{
    using Reader = void (clsFolders::*)(const QString &, jet::Recordset &, int);
    const Rows data = {u"1|D:\\Data\\|Data|R"_s};
    const Rows noAdmin = {u"2|D:\\Admin\\|-|N/A"_s};
    const struct
    {
        const char *name;
        Reader reader;
        int id;
        Rows expected;
    } cases[] = {
        {"getUsers", &clsFolders::getUsers, 1, {u"1|Ärmel|Anna|anna|SRV01|R"_s}},
        {"getUsers of none", &clsFolders::getUsers, 2, {}},
        {"getUsersForPermissionWizard",
         &clsFolders::getUsersForPermissionWizard,
         1,
         {u"1|Ärmel Anna|anna|SRV01|R"_s}},
        {"getNotUsersForPermissionWizard",
         &clsFolders::getNotUsersForPermissionWizard,
         1,
         {u"3| |cleo|SRV01|N/A"_s, u"2|Zorn Bert|bert|SRV02|N/A"_s}},
        {"getNotUsers",
         &clsFolders::getNotUsers,
         1,
         {u"1|Ärmel|Anna|anna|SRV01|R"_s, u"2|Zorn|Bert|bert|SRV02|CH"_s}},
        {"getLocalGroups", &clsFolders::getLocalGroups, 1, {u"1|Printers|SRV01|Print|CH"_s}},
        {"getNotLocalGroups", &clsFolders::getNotLocalGroups, 1, {u"2|Data|SRV02|-|N/A"_s}},
        {"getGlobalGroups", &clsFolders::getGlobalGroups, 1, {u"1|Staff|DC01|All|L"_s}},
        {"getNotGlobalGroups", &clsFolders::getNotGlobalGroups, 1, {u"2|Admins|DC01|-|N/A"_s}},
        {"getUserMembers", &clsFolders::getUserMembers, 1, data},
        {"getNotUserMembers", &clsFolders::getNotUserMembers, 1, noAdmin},
        {"getNotUserMembers of all",
         &clsFolders::getNotUserMembers,
         3,
         {u"2|D:\\Admin\\|-|N/A"_s, u"1|D:\\Data\\|Data|N/A"_s}},
        {"getLocalGroupMembers", &clsFolders::getLocalGroupMembers, 1, {u"1|D:\\Data\\|Data|CH"_s}},
        {"getNotLocalGroupMembers", &clsFolders::getNotLocalGroupMembers, 1, noAdmin},
        {"getGlobalGroupMembers", &clsFolders::getGlobalGroupMembers, 1, {u"1|D:\\Data\\|Data|L"_s}},
        {"getNotGlobalGroupMembers", &clsFolders::getNotGlobalGroupMembers, 1, noAdmin},
    };
    for (const auto &c : cases) {
        jet::Recordset records;
        (folders.*c.reader)(connection, records, c.id);
        EXPECT_EQ(rowsOf(records), c.expected) << c.name;
    }
}

TEST_F(FolderAccountsTest, FoldersAreListedByPath)
{
    const auto all = [](const auto &open) {
        jet::Recordset records;
        open(records);
        return rowsOf(records);
    };
    const Rows byPath = {u"2|D:\\Admin\\|-"_s, u"1|D:\\Data\\|Data"_s};
    EXPECT_EQ(all([&](auto &records) { folders.getAll(connection, records); }), byPath);
    EXPECT_EQ(all([&](auto &records) { folders.Find(connection, records, {}); }), byPath);
    EXPECT_EQ(all([&](auto &records) { folders.Find(connection, records, u"DATA"_s); }), byPath.last(1));
}

TEST_F(FolderAccountsTest, DeleteAndRemoveAllPermissionsTakeTheirRowsOnly)
{
    folders.addUsers(connection, 2, QList<int>{2}, {u"R"_s}, false);
    folders.Delete(connection, QList<int>{1});
    EXPECT_EQ(rows(u"SELECT ID FROM Tbl_Folders"_s), Rows{u"2"_s});
    EXPECT_EQ(permissions(), (Rows{u"user 2|2|R"_s, u"global 1|1|L"_s}));
    folders.RemoveAllPermissions(connection, QList<int>{1});
    EXPECT_EQ(permissions(), Rows{u"user 2|2|R"_s});
    folders.RemoveAllPermissions(connection, QList<int>{2});
    EXPECT_EQ(permissions(), Rows());
    EXPECT_EQ(rows(u"SELECT ID FROM Tbl_Folders"_s), Rows{u"2"_s});
}

TEST_F(FolderAccountsTest, AccountsAreAddedUntestedOrInPlaceOfTheOldOnes)
{
    folders.addUsers(connection, 1, QList<int>{1, 2}, {u"CH"_s, u"L"_s}, false);
    folders.addLocalGroups(connection, 1, QList<int>{2}, {u"R"_s}, true);
    folders.addGlobalGroups(connection, 1, QList<int>(), {}, true);
    folders.addGlobalGroups(connection, 2, QList<int>{1, 2}, {u"R"_s, u"CH"_s}, true);
    EXPECT_EQ(permissions(), (Rows{u"user 1|1|CH"_s, u"user 1|1|R"_s, u"user 2|1|L"_s, u"local 2|1|R"_s,
                                   u"global 1|2|R"_s, u"global 2|2|CH"_s}));
}
