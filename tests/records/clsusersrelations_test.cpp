#include "platform/jet/errors.h"
#include "store/clsUsers.h"
#include "support/companytest.h"

using namespace Qt::StringLiterals;
using namespace company;

namespace {

class UserRelationsTest : public CompanyTest
{
protected:
    clsUsers users;
};

} // namespace

TEST_F(UserRelationsTest, ReadersGiveTheirRows)
{
    // clang-format off
    expectRows(users, {
        {"getAll", &clsUsers::getAll, 0, {anna, bert, rolf}},
        {"getAllLoginNames", &clsUsers::getAllLoginNames, 0,
         {u"13|SRV01\\anna"_s, u"12|SRV02\\bert"_s, u"11|SRV01\\rolf"_s}},
        {"getByHardwareType", &clsUsers::getByHardwareType, 52, {bert, rolf}},
        {"getGlobalGroupMembers", &clsUsers::getGlobalGroupMembers, 21, {bert, rolf}},
        {"getNotGlobalGroupMembers", &clsUsers::getNotGlobalGroupMembers, 22, {anna, rolf}},
        {"getLocalGroupMembers", &clsUsers::getLocalGroupMembers, 31, {bert, rolf}},
        {"getNotLocalGroupMembers", &clsUsers::getNotLocalGroupMembers, 32, {anna, rolf}},
        {"getGlobalGroups", &clsUsers::getGlobalGroups, 12, {globalGuests, globalStaff}},
        {"getNotGlobalGroups", &clsUsers::getNotGlobalGroups, 11, {globalAdmins, globalGuests}},
        {"getLocalGroups", &clsUsers::getLocalGroups, 11,
         {u"32|SRV02\\Guests|-|DC01\\Staff"_s, u"31|SRV01\\Staff|All|DC01\\Staff"_s}},
        {"getAllFolders", &clsUsers::getAllFolders, 11,
         {tools + u"|R|N/A|N/A", admin + u"|L|Guests|SRV02", common + u"|CH|Staff|SRV01", data + u"|R|Staff|SRV01"}},
        {"getSW", &clsUsers::getSW, 11, {writer1 + u"|-", writer1 + u"|-", writer2 + u"|-"}},
        {"getRooms", &clsUsers::getRooms, 12, {room102, room7}},
        {"getNotRooms", &clsUsers::getNotRooms, 11, {room101, room102}},
        {"getHW", &clsUsers::getHW, 11, {hw63, hw61}},
        {"getNotHW", &clsUsers::getNotHW, 11, {hw66, hw65, hw64, hw62}},
        {"getHW of nothing", &clsUsers::getHW, 13, {}},
    });
    // clang-format on
}

TEST_F(UserRelationsTest, UsersAreFoundByPartsOfTheirNamesAndByAccount)
{
    const auto found = [&](const QString &lastName, const QString &userName) {
        return rowsFrom([&](auto &records) { users.Find(connection, records, lastName, userName); });
    };
    EXPECT_EQ(found({}, {}), (Rows{anna, bert, rolf}));
    EXPECT_EQ(found(u"ÄRM"_s, {}), (Rows{anna, bert})) << "a Null is as good as any";
    EXPECT_EQ(found(u"r"_s, u"o"_s), (Rows{rolf}));
    const auto account = [&](const QString &name, const QString &server) {
        return rowsFrom(
                   [&](auto &records) { users.getByUserNameAndServer(connection, records, name, server); })
            .join(u'\n')
            .left(8);
    };
    EXPECT_EQ(account(u"BERT"_s, u"srv02"_s), u"12|bert|"_s);
    EXPECT_EQ(account(u"bert"_s, u"SRV01"_s), QString());
    const Rows row = rowsFrom([&](auto &records) { users.getUserByID(connection, 12, records); });
    EXPECT_EQ(row.join(u'\n').left(8), u"12|bert|"_s);
    EXPECT_EQ(rowsFrom([&](auto &records) { users.getStructure(connection, records); }).size(), 1);
}

TEST_F(UserRelationsTest, RowsOutliveTheStore)
{
    jet::Recordset records;
    users.getAll(connection, records);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(records.recordCount(), 3);
    EXPECT_EQ(rowsOf(records), (Rows{anna, bert, rolf}));
}

TEST_F(UserRelationsTest, AddFolders_UpdatesWhatIsThereAndClearsOnRequest)
{
    const auto permissions = [this] { return content("Tbl_UserFolderPermission"); };
    users.addFolders(connection, 12, QList<int>{42, 43}, {u"R"_s, u"L"_s}, false);
    EXPECT_EQ(permissions(), (Rows{u"11|44|R"_s, u"12|41|L"_s, u"12|42|R"_s, u"12|43|L"_s, u"13|42|R"_s}));
    users.addFolders(connection, 12, QList<int>{42}, {u"CH"_s}, true);
    EXPECT_EQ(permissions(), (Rows{u"11|44|R"_s, u"12|42|CH"_s, u"13|42|R"_s}));
    users.RemoveFolderPermissions(connection, QList<int>{11, 12, 99});
    EXPECT_EQ(permissions(), Rows{u"13|42|R"_s});
}

TEST_F(UserRelationsTest, AddFoldersBatch_AddsMissingFoldersAndNamesTheImpossible)
{
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Permission"_s},
                {{u"D:\\Admin\\"_s, u"R"_s}, {u"D:\\It's\\"_s, u"R"_s}, {u"D:\\New\\"_s, u"CH"_s}});
    QString failed = u"before,"_s;
    users.addFoldersBatch(connection, u"anna"_s, records, failed);
    EXPECT_EQ(failed, u"before,D:\\It's\\,"_s);
    EXPECT_EQ(rows(u"SELECT FolderID, Permission FROM Tbl_UserFolderPermission WHERE UserID = 13 "
                   "ORDER BY FolderID"_s),
              (Rows{u"42|R"_s, u"43|R"_s, u"45|CH"_s}));
    EXPECT_EQ(rows(u"SELECT ID, FolderName FROM Tbl_Folders WHERE ID > 44"_s), Rows{u"45|D:\\New\\"_s});

    const CurrentError error =
        errorOf([&] { users.addFoldersBatch(connection, u"nobody"_s, records, failed); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, u"The specified User does not exist in your Database"_s);
}

TEST_F(UserRelationsTest, AddFoldersBatch_EndsWhereTheFoldersAreGone)
{
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Permission"_s}, {{u"D:\\New\\"_s, u"R"_s}});
    run(u"DROP TABLE Tbl_Folders"_s);
    const Rows before = content("Tbl_UserFolderPermission");
    QString failed;
    const CurrentError error =
        errorOf([&] { users.addFoldersBatch(connection, u"anna"_s, records, failed); });
    EXPECT_EQ(error.number, jet::MissingTable);
    EXPECT_TRUE(error.description.contains(u"Tbl_Folders")) << error.description.toStdString();
    EXPECT_EQ(failed, QString());
    EXPECT_EQ(content("Tbl_UserFolderPermission"), before);
}

TEST_F(UserRelationsTest, GroupsRoomsAndHardwareBecomeTheOnlyOnes)
{
    users.addGlobalGroups(connection, 12, QList<int>{23, 23});
    EXPECT_EQ(content("Tbl_GlobalGroupsUsers"), (Rows{u"21|11"_s, u"23|12"_s, u"23|13"_s}));
    users.addRooms(connection, 12, QList<int>{83, 81});
    EXPECT_EQ(content("Tbl_RoomUsers"), (Rows{u"81|11"_s, u"81|12"_s, u"83|12"_s, u"83|13"_s}));
    users.addRooms(connection, 12, QList<int>());
    EXPECT_EQ(content("Tbl_RoomUsers"), (Rows{u"81|11"_s, u"83|13"_s}));

    // The item leaves its user and stays in its room.
    users.addHW(connection, 12, QList<int>{61, 62});
    EXPECT_EQ(content("Tbl_UserHW"), (Rows{u"11|63"_s, u"12|61"_s, u"12|62"_s}));
    EXPECT_EQ(content("Tbl_RoomHW"), (Rows{u"81|62"_s, u"81|64"_s, u"82|64"_s}));
}
