#include "assets/clsHW.h"
#include "assets/clsRooms.h"
#include "folders/clsFolders.h"
#include "platform/jet/errors.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"
#include "support/companytest.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class RecordClassTest : public CompanyTest
{
protected:
    clsUsers users;
    clsGlobalGroups globalGroups;
    clsLocalGroups localGroups;
    clsFolders folders;
    clsHW hardware;
    clsRooms rooms;
};

} // namespace

TEST_F(RecordClassTest, AMissingStoreIsToldAndKept)
{
    const QString nowhere = jet::connectionString(folder.filePath(u"nowhere.kvs"_s));
    jet::Recordset records;
    jet::Recordset objects;
    makeRecords(objects, {u"Name"_s, u"Server"_s, u"Description"_s, u"Permission"_s},
                {{u"a"_s, u"b"_s, u"c"_s, u"R"_s}});
    UserRecord user;
    QString text;
    int id = 0;
    const struct
    {
        const RecordClass &records;
        std::function<void()> step;
    } cases[] = {
        {users, [&] { users.TestConnection(nowhere); }},
        {users, [&] { users.getAll(nowhere, records); }},
        {users, [&] { users.Add(nowhere, user); }},
        {users, [&] { users.addRooms(nowhere, 1, QList<int>{1}); }},
        {globalGroups, [&] { globalGroups.Add(nowhere, u"S"_s, u"N"_s, {}, id); }},
        {globalGroups, [&] { globalGroups.Delete(nowhere, QList<int>{1}); }},
        {localGroups, [&] { localGroups.AddBatch(nowhere, objects, false); }},
        {folders, [&] { folders.Add(nowhere, u"C:\\Data"_s, {}); }},
        {folders, [&] { text += folders.addPermittedObjects(nowhere, u"D:\\Data\\"_s, objects); }},
        {folders, [&] { folders.AddBatch(nowhere, {u"C:\\Data"_s}, {QString()}, false, text); }},
        {folders,
         [&] { folders.AddPermissionsBatch(nowhere, {u"D:"_s}, {u"n"_s}, {u"s"_s}, {u"R"_s}, text); }},
        {hardware, [&] { hardware.Delete(nowhere, 1); }},
    };
    for (const auto &c : cases) {
        const CurrentError error = errorOf(c.step);
        EXPECT_EQ(error.number, jet::Failure);
        EXPECT_TRUE(error.description.contains(u"nowhere.kvs")) << error.description.toStdString();
        EXPECT_EQ(c.records.errorNumber(), error.number);
        EXPECT_EQ(c.records.errorDescription(), error.description);
    }
    EXPECT_EQ(text, QString());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"nowhere.kvs"_s)));
    EXPECT_NO_THROW(users.TestConnection(connection));
}

TEST_F(RecordClassTest, WhatWasDoneBeforeAFailureStays)
{
    const struct
    {
        const char *dropped;
        std::function<void()> step;
        const char *changed;
        Rows left;
    } cases[] = {
        {"Tbl_SWHW",
         [&] {
             rooms.addHW(connection, 82, QList<int>{62, 61}, true);
         },
         "Tbl_RoomHW",
         {u"81|64"_s, u"82|62"_s}},
        {"Tbl_UserHW",
         [&] { rooms.addHW(connection, 82, QList<int>{62}, false); },
         "Tbl_RoomHW",
         {u"81|64"_s}},
        {"Tbl_UserHW",
         [&] { hardware.addRooms(connection, 64, QList<int>{83}, false); },
         "Tbl_RoomHW",
         {u"81|62"_s}},
        {"Tbl_Rooms", [&] { rooms.Delete(connection, 81); }, "Tbl_RoomUsers", {u"82|12"_s, u"83|13"_s}},
        {"Tbl_GlobalGroups",
         [&] {
             globalGroups.Delete(connection, QList<int>{21, 22});
         },
         "Tbl_LocalGroupsGlobalGroups",
         {u"32|22"_s, u"33|23"_s}},
        {"Tbl_LocalGroupFolderPermission",
         [&] {
             localGroups.Delete(connection, QList<int>{32, 33});
         },
         "Tbl_LocalGroupsGlobalGroups",
         {u"31|21"_s, u"33|23"_s}},
        {"Tbl_LocalGroupFolderPermission",
         [&] {
             folders.Delete(connection, QList<int>{42, 41});
         },
         "Tbl_UserFolderPermission",
         {u"11|44|R"_s, u"12|41|L"_s}},
    };
    for (const auto &c : cases) {
        run("DROP TABLE "_L1 + QLatin1StringView(c.dropped));
        EXPECT_EQ(errorOf(c.step).number, jet::MissingTable) << c.dropped;
        EXPECT_EQ(content(c.changed), c.left) << c.dropped;
        ASSERT_TRUE(QFile::remove(path));
        CompanyTest::SetUp();
    }
    run(u"DROP TABLE Tbl_RoomHW"_s);
    EXPECT_EQ(errorOf([&] { hardware.addUsers(connection, 61, QList<int>{13}); }).number, jet::MissingTable);
    EXPECT_EQ(content("Tbl_UserHW"), (Rows{u"11|63"_s, u"12|63"_s})) << "cleared, nothing inserted";
}
