#include "folders/clsFolders.h"
#include "platform/jet/errors.h"
#include "support/companytest.h"

using namespace Qt::StringLiterals;
using namespace company;

namespace {

class FoldersTest : public CompanyTest
{
protected:
    Rows users() const { return content("Tbl_UserFolderPermission"); }
    Rows localGroups() const { return content("Tbl_LocalGroupFolderPermission"); }
    Rows globalGroups() const { return content("Tbl_GlobalGroupFolderPermission"); }

    clsFolders folders;
};

} // namespace

TEST_F(FoldersTest, PathGetsItsBackslashWhenItLacksOne)
{
    folders.Add(connection, u"C:\\Data"_s, u"local"_s);
    folders.Add(connection, {}, {});
    folders.update(connection, 41, u"\\\\SRV01\\Share"_s, u"moved"_s);
    folders.update(connection, 42, u"\\\\SRV02\\Share\\"_s, {});
    EXPECT_EQ(content("Tbl_Folders"), (Rows{u"41|\\\\SRV01\\Share\\|moved"_s, u"42|\\\\SRV02\\Share\\|"_s,
                                            admin, tools, u"45|C:\\Data\\|local"_s, u"46|\\|"_s}));
    for (const QString &path : {u"c:\\DATA"_s, u"C:\\Data\\"_s}) {
        EXPECT_EQ(errorOf([&] { folders.Add(connection, path, {}); }).number, RuleViolation);
        EXPECT_EQ(errorOf([&] { folders.update(connection, 41, path, {}); }).number, RuleViolation);
    }
}

TEST_F(FoldersTest, ReadersGiveTheirRows)
{
    // clang-format off
    expectRows(folders, {
        {"getAll", &clsFolders::getAll, 0, {tools, admin, common, data}},
        {"getUsers", &clsFolders::getUsers, 42, {bert + u"|CH", anna + u"|R"}, false},
        {"getUsersForPermissionWizard", &clsFolders::getUsersForPermissionWizard, 42,
         {u"13| |anna|SRV01|R"_s, u"12|Ärmel Bert|bert|SRV02|CH"_s}},
        {"getNotUsersForPermissionWizard", &clsFolders::getNotUsersForPermissionWizard, 41,
         {u"13| |anna|SRV01|N/A"_s, u"11|Zorn Rolf|rolf|SRV01|N/A"_s}},
        {"getNotUsers", &clsFolders::getNotUsers, 41, {rolf + u"|R", bert + u"|R", bert + u"|L"}, false},
        {"getLocalGroups", &clsFolders::getLocalGroups, 43, {localAdmins + u"|R", localGuests + u"|L"}},
        {"getNotLocalGroups", &clsFolders::getNotLocalGroups, 41, {localAdmins + u"|N/A", localGuests + u"|N/A"}},
        {"getGlobalGroups", &clsFolders::getGlobalGroups, 43, {globalAdmins + u"|CH", globalGuests + u"|R"}},
        {"getNotGlobalGroups", &clsFolders::getNotGlobalGroups, 41, {globalAdmins + u"|N/A", globalGuests + u"|N/A"}},
        {"getUserMembers", &clsFolders::getUserMembers, 12, {common + u"|CH", data + u"|L"}},
        {"getNotUserMembers", &clsFolders::getNotUserMembers, 12, {tools + u"|N/A", admin + u"|N/A"}},
        {"getLocalGroupMembers", &clsFolders::getLocalGroupMembers, 31, {common + u"|CH", data + u"|R"}},
        {"getNotLocalGroupMembers", &clsFolders::getNotLocalGroupMembers, 31, {tools + u"|N/A", admin + u"|N/A"}},
        {"getGlobalGroupMembers", &clsFolders::getGlobalGroupMembers, 21, {common + u"|L", data + u"|CH"}},
        {"getNotGlobalGroupMembers", &clsFolders::getNotGlobalGroupMembers, 21, {tools + u"|N/A", admin + u"|N/A"}},
        {"getUsers of none", &clsFolders::getUsers, 43, {}},
    });
    // clang-format on
    folders.AddDefaultFolderPermission(connection, u"SYSTEM"_s, u"R"_s);
    folders.AddDefaultFolderPermission(connection, u"DC01\\Admins"_s, u"CH"_s);
    expectRows(folders, {{"getAllFolderDefaultPermissions",
                          &clsFolders::getAllFolderDefaultPermissions,
                          0,
                          {u"2|DC01\\Admins|CH"_s, u"1|SYSTEM|R"_s}}});
}

TEST_F(FoldersTest, Find_LooksForAPartOfThePath)
{
    const auto found = [&](const QString &text) {
        return rowsFrom([&](auto &result) { folders.Find(connection, result, text); });
    };
    EXPECT_EQ(found({}), (Rows{tools, admin, common, data}));
    EXPECT_EQ(found(u"d:"_s), (Rows{admin, common, data}));
    EXPECT_EQ(found(u"a\\"_s), Rows{data});
    EXPECT_EQ(found(u"\\Data\\"_s), Rows{data});
    EXPECT_EQ(errorOf([&] { found(u"'"_s); }).number, jet::SyntaxError);
}

TEST_F(FoldersTest, RemoveAllPermissionsClearsAllThreeTablesAndLeavesTheFolders)
{
    folders.RemoveAllPermissions(connection, QList<int>{42, 43});
    EXPECT_EQ(users(), (Rows{u"11|44|R"_s, u"12|41|L"_s}));
    EXPECT_EQ(localGroups(), Rows{u"31|41|R"_s});
    EXPECT_EQ(globalGroups(), Rows{u"21|41|CH"_s});
    EXPECT_EQ(content("Tbl_Folders").size(), 4);
}

TEST_F(FoldersTest, AccountsAreAddedUntestedOrInPlaceOfTheOldOnes)
{
    folders.addUsers(connection, 42, QList<int>{12, 11}, {u"L"_s, u"R"_s}, false);
    folders.addLocalGroups(connection, 43, QList<int>{32, 31}, {u"R"_s, u"L"_s}, false);
    folders.addGlobalGroups(connection, 43, QList<int>{22, 21}, {u"L"_s, u"R"_s}, false);
    EXPECT_EQ(users(),
              (Rows{u"11|42|R"_s, u"11|44|R"_s, u"12|41|L"_s, u"12|42|CH"_s, u"12|42|L"_s, u"13|42|R"_s}));
    EXPECT_EQ(localGroups(),
              (Rows{u"31|41|R"_s, u"31|42|CH"_s, u"31|43|L"_s, u"32|43|L"_s, u"32|43|R"_s, u"33|43|R"_s}));
    EXPECT_EQ(globalGroups(),
              (Rows{u"21|41|CH"_s, u"21|42|L"_s, u"21|43|R"_s, u"22|43|L"_s, u"22|43|R"_s, u"23|43|CH"_s}));

    folders.addUsers(connection, 42, QList<int>{13}, {u"CH"_s}, true);
    folders.addLocalGroups(connection, 43, QList<int>{33}, {u"CH"_s}, true);
    folders.addGlobalGroups(connection, 43, QList<int>(), {}, true);
    EXPECT_EQ(users(), (Rows{u"11|44|R"_s, u"12|41|L"_s, u"13|42|CH"_s}));
    EXPECT_EQ(localGroups(), (Rows{u"31|41|R"_s, u"31|42|CH"_s, u"33|43|CH"_s}));
    EXPECT_EQ(globalGroups(), (Rows{u"21|41|CH"_s, u"21|42|L"_s}));
}
