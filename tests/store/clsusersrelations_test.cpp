#include "platform/jet/errors.h"
#include "storetest.h"

#include <QFile>

namespace {

/// Two users with groups, folders, hardware, software and rooms, and a third with nothing.
class UserRelationsTest : public StoreTest
{
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        StoreSession store(connection);
        for (const char *statement : {
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (1,'anna','SRV01','Ärmel','Anna')",
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (2,'bert','SRV02','Zorn','Bert')",
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (3,'cleo','SRV01')",
                 "INSERT INTO Tbl_GlobalGroups (Name,Server,Description) VALUES ('Staff','DC01','All')",
                 "INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('Admins','DC01')",
                 "INSERT INTO Tbl_LocalGroups (Name,Server,Description) VALUES ('Printers','SRV01','Print')",
                 "INSERT INTO Tbl_LocalGroups (Name,Server) VALUES ('Data','SRV02')",
                 "INSERT INTO Tbl_Folders (FolderName,Description) VALUES ('D:\\Data\\','Data')",
                 "INSERT INTO Tbl_Folders (FolderName) VALUES ('D:\\Admin\\')",
                 "INSERT INTO Tbl_HWType (Type,Manufacturer,Model,TypeNumber) VALUES ('PC','Maker','M1','7')",
                 "INSERT INTO Tbl_HWType (Type,Manufacturer,Model) VALUES ('Monitor','Maker','M2')",
                 "INSERT INTO Tbl_HW (HWTypeID,SerialNumber,Usage) VALUES (1,'S1','Office')",
                 "INSERT INTO Tbl_HW (HWTypeID,SerialNumber) VALUES (2,'S2')",
                 "INSERT INTO Tbl_SW (Type,Manufacturer,Name,Version) VALUES "
                 "('Office','Maker','Writer','1.0')",
                 "INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('101','Front')",
                 "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('102')",
                 "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID,UserID) VALUES (1,1)",
                 "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID,UserID) VALUES (1,2)",
                 "INSERT INTO Tbl_LocalGroupsUsers (LocalGroupID,UserID) VALUES (1,2)",
                 "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES (1,1)",
                 "INSERT INTO Tbl_LocalGroupFolderPermission (LocalGroupID,FolderID,Permission) VALUES "
                 "(1,1,'R')",
                 "INSERT INTO Tbl_UserFolderPermission (UserID,FolderID,Permission) VALUES (1,2,'CH')",
                 "INSERT INTO Tbl_UserHW (UserID,HWID) VALUES (1,1)",
                 "INSERT INTO Tbl_SWHW (SWID,HWID) VALUES (1,1)",
                 "INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,1)",
             })
            store.execute(QString::fromUtf8(statement));
    }

    Rows read(void (clsUsers::*reader)(const QString &, jet::Recordset &, int), int id)
    {
        jet::Recordset records;
        (users.*reader)(connection, records, id);
        return rowsOf(records);
    }

    Rows permissions(int user)
    {
        return rows("SELECT FolderID, Permission FROM Tbl_UserFolderPermission WHERE UserID = "_L1 +
                    QString::number(user) + " ORDER BY FolderID"_L1);
    }
};

} // namespace

TEST_F(UserRelationsTest, ReadersGiveTheirRows)
{
    const QString anna = u"1|Ärmel|Anna|anna|SRV01"_s;
    const QString bert = u"2|Zorn|Bert|bert|SRV02"_s;
    const QString cleo = u"3|-|-|cleo|SRV01"_s;
    const struct
    {
        const char *name;
        void (clsUsers::*reader)(const QString &, jet::Recordset &, int);
        int id;
        Rows rows;
    } cases[] = {
        {"getByHardwareType", &clsUsers::getByHardwareType, 1, {anna}},
        {"getByHardwareType of none", &clsUsers::getByHardwareType, 2, {}},
        {"getGlobalGroupMembers", &clsUsers::getGlobalGroupMembers, 1, {anna, bert}},
        {"getLocalGroupMembers", &clsUsers::getLocalGroupMembers, 1, {bert}},
        {"getNotGlobalGroupMembers", &clsUsers::getNotGlobalGroupMembers, 1, {cleo}},
        {"getNotLocalGroupMembers", &clsUsers::getNotLocalGroupMembers, 1, {cleo, anna}},
        {"getGlobalGroups", &clsUsers::getGlobalGroups, 1, {u"1|Staff|DC01|All"_s}},
        {"getNotGlobalGroups", &clsUsers::getNotGlobalGroups, 1, {u"2|Admins|DC01|-"_s}},
        {"getNotGlobalGroups of all",
         &clsUsers::getNotGlobalGroups,
         3,
         {u"2|Admins|DC01|-"_s, u"1|Staff|DC01|All"_s}},
        {"getLocalGroups", &clsUsers::getLocalGroups, 1, {u"1|SRV01\\Printers|Print|DC01\\Staff"_s}},
        {"getAllFolders",
         &clsUsers::getAllFolders,
         1,
         {u"2|D:\\Admin\\|-|CH|N/A|N/A"_s, u"1|D:\\Data\\|Data|R|Printers|SRV01"_s}},
        {"getAllFolders through the group",
         &clsUsers::getAllFolders,
         2,
         {u"1|D:\\Data\\|Data|R|Printers|SRV01"_s}},
        {"getSW", &clsUsers::getSW, 1, {u"1|Office|Maker|Writer|1.0|-"_s}},
        {"getRooms", &clsUsers::getRooms, 1, {u"1|101|Front"_s}},
        {"getNotRooms", &clsUsers::getNotRooms, 1, {u"2|102|-"_s}},
        {"getHW", &clsUsers::getHW, 1, {u"1|PC Maker M1 7|S1|-|Office|-"_s}},
        {"getNotHW", &clsUsers::getNotHW, 1, {u"2|Monitor Maker M2 |S2|-|-|-"_s}},
        {"getHW of nothing", &clsUsers::getHW, 3, {}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(read(c.reader, c.id), c.rows) << c.name;
}

TEST_F(UserRelationsTest, RecordReadersGiveTheirRows)
{
    const auto all = [](auto &&open) {
        jet::Recordset records;
        open(records);
        EXPECT_EQ(records.state(), jet::StateOpen);
        return rowsOf(records);
    };
    const Rows byLastName = {u"3|-|-|cleo|SRV01"_s, u"1|Ärmel|Anna|anna|SRV01"_s,
                             u"2|Zorn|Bert|bert|SRV02"_s};
    EXPECT_EQ(all([&](auto &records) { users.getAll(connection, records); }), byLastName);
    EXPECT_EQ(all([&](auto &records) { users.Find(connection, records, {}, {}); }), byLastName);
    EXPECT_EQ(all([&](auto &records) { users.Find(connection, records, u"ÄRM"_s, {}); }),
              byLastName.first(2));
    EXPECT_EQ(all([&](auto &records) { users.Find(connection, records, u"o"_s, u"er"_s); }),
              byLastName.last(1));
    EXPECT_EQ(all([&](auto &records) { users.getAllLoginNames(connection, records); }),
              (Rows{u"1|SRV01\\anna"_s, u"2|SRV02\\bert"_s, u"3|SRV01\\cleo"_s}));
    EXPECT_EQ(all([&](auto &records) {
                  users.getByUserNameAndServer(connection, records, u"BERT"_s, u"srv02"_s);
              }).size(),
              1);
    EXPECT_EQ(
        all([&](auto &records) { users.getByUserNameAndServer(connection, records, u"bert"_s, u"SRV01"_s); }),
        Rows());
    EXPECT_TRUE(all([&](auto &records) { users.getUserByID(connection, 2, records); })
                    .value(0)
                    .startsWith(u"2|bert|"));
    EXPECT_EQ(all([&](auto &records) { users.getStructure(connection, records); }).size(), 1);
}

TEST_F(UserRelationsTest, RowsOutliveTheStore)
{
    jet::Recordset records;
    users.getAll(connection, records);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(records.recordCount(), 3);
    EXPECT_EQ(rowsOf(records).last(), u"2|Zorn|Bert|bert|SRV02"_s);
}

TEST_F(UserRelationsTest, AddFolders_UpdatesWhatIsThereAndClearsOnRequest)
{
    users.addFolders(connection, 1, QList<int>{1, 2}, {u"L"_s, u"R"_s}, false);
    EXPECT_EQ(permissions(1), (Rows{u"1|L"_s, u"2|R"_s}));
    users.addFolders(connection, 1, QList<int>{1}, {u"CH"_s}, false);
    EXPECT_EQ(permissions(1), (Rows{u"1|CH"_s, u"2|R"_s}));
    users.addFolders(connection, 2, QList<int>{2}, {u"L"_s}, true);
    users.addFolders(connection, 1, QList<int>{1}, {u"R"_s}, true);
    EXPECT_EQ(permissions(1), Rows{u"1|R"_s});
    EXPECT_EQ(permissions(2), Rows{u"2|L"_s});
    users.RemoveFolderPermissions(connection, QList<int>{1, 3});
    EXPECT_EQ(permissions(1), Rows());
    EXPECT_EQ(permissions(2), Rows{u"2|L"_s});
}

TEST_F(UserRelationsTest, AddFoldersBatch_AddsMissingFoldersAndNamesTheImpossible)
{
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Permission"_s},
                {{u"D:\\Admin\\"_s, u"R"_s}, {u"D:\\It's\\"_s, u"R"_s}, {u"D:\\New\\"_s, u"CH"_s}});
    QString failed = u"before,"_s;
    users.addFoldersBatch(connection, u"anna"_s, records, failed);
    EXPECT_EQ(failed, u"before,D:\\It's\\,"_s);
    EXPECT_EQ(permissions(1), (Rows{u"2|R"_s, u"3|CH"_s}));
    EXPECT_EQ(rows(u"SELECT ID, FolderName FROM Tbl_Folders ORDER BY ID"_s),
              (Rows{u"1|D:\\Data\\"_s, u"2|D:\\Admin\\"_s, u"3|D:\\New\\"_s}));

    const CurrentError error =
        errorOf([&] { users.addFoldersBatch(connection, u"nobody"_s, records, failed); });
    EXPECT_EQ(error.number, RuleViolation);
    EXPECT_EQ(error.description, u"The specified User does not exist in your Database"_s);
}

TEST_F(UserRelationsTest, GroupsAndRoomsBecomeTheOnlyOnes)
{
    users.addGlobalGroups(connection, 1, QList<int>{2, 2});
    EXPECT_EQ(rows(u"SELECT GlobalGroupID, UserID FROM Tbl_GlobalGroupsUsers ORDER BY UserID"_s),
              (Rows{u"2|1"_s, u"1|2"_s}));
    users.addRooms(connection, 1, QList<int>{2});
    users.addRooms(connection, 2, QList<int>{1, 2});
    EXPECT_EQ(rows(u"SELECT UserID, RoomID FROM Tbl_RoomUsers ORDER BY UserID, RoomID"_s),
              (Rows{u"1|2"_s, u"2|1"_s, u"2|2"_s}));
    users.addRooms(connection, 2, QList<int>());
    EXPECT_EQ(rows(u"SELECT RoomID FROM Tbl_RoomUsers WHERE UserID = 2"_s), Rows());
}

TEST_F(UserRelationsTest, AddHW_TakesTheItemFromItsUserAndLeavesTheRoom)
{
    run(u"INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (1,1)"_s);
    users.addHW(connection, 2, QList<int>{1, 2});
    EXPECT_EQ(rows(u"SELECT UserID, HWID FROM Tbl_UserHW ORDER BY HWID"_s), (Rows{u"2|1"_s, u"2|2"_s}));
    EXPECT_EQ(rows(u"SELECT RoomID FROM Tbl_RoomHW"_s), Rows{u"1"_s});
}
