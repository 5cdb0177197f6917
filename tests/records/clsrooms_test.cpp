#include "assetstest.h"

using RoomsTest = AssetsTest;

TEST_F(RoomsTest, ReadersGiveTheirRows)
{
    const QString anna = u"1|Ärmel|Anna|anna|SRV01"_s;
    const QString bert = u"2|-|-|bert|SRV02"_s;
    const QString first = u"1|PC Maker M1 7|S1|-|Office|-"_s;
    const struct
    {
        const char *name;
        Reader<clsRooms> reader;
        int id;
        Rows rows;
    } cases[] = {
        {"getByHardwareType", &clsRooms::getByHardwareType, 1, {u"1|101|Front"_s}},
        {"getByHardwareType of none", &clsRooms::getByHardwareType, 2, {}},
        {"getUsers", &clsRooms::getUsers, 1, {anna}},
        {"getNotUsers", &clsRooms::getNotUsers, 1, {bert}},
        {"getNotUsers of none", &clsRooms::getNotUsers, 2, {bert, anna}},
        {"getHW", &clsRooms::getHW, 1, {first}},
        {"getHW of none", &clsRooms::getHW, 2, {}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(read(rooms, c.reader, c.id), c.rows) << c.name;
    EXPECT_EQ(read(rooms, &clsRooms::getNotHW, 1).size(), 3);
    EXPECT_EQ(read(rooms, &clsRooms::getNotHW, 1).last(), u"2|PC Maker M1 7|S2|-|-|10.0.0.2"_s);
    EXPECT_EQ(read(rooms, &clsRooms::getNotHW, 2).size(), 4);
    EXPECT_EQ(read(rooms, &clsRooms::getAll), (Rows{u"1|101|Front"_s, u"2|102|-"_s, u"3|B 7|-"_s}));
}

TEST_F(RoomsTest, Find_LooksForAPartOfTheNumber)
{
    const auto found = [&](const QString &number) {
        jet::Recordset result;
        rooms.Find(connection, result, number);
        return rowsOf(result);
    };
    EXPECT_EQ(found(u"10"_s), (Rows{u"1|101|Front"_s, u"2|102|-"_s}));
    EXPECT_EQ(found(u"b"_s), Rows{u"3|B 7|-"_s});
    EXPECT_EQ(found({}).size(), 3);
    EXPECT_EQ(found(u"9"_s), Rows());
}

TEST_F(RoomsTest, AddUsers_WritesARepeatedIdOnce)
{
    run(u"INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (2,1)"_s);
    rooms.addUsers(connection, 1, QList<int>{2, 1, 2});
    EXPECT_EQ(roomUsers(), (Rows{u"1|1"_s, u"1|2"_s, u"2|1"_s}));
    rooms.addUsers(connection, 1, QList<int>());
    EXPECT_EQ(roomUsers(), Rows{u"2|1"_s});
}

TEST_F(RoomsTest, AddHW_TakesTheItemsFromOtherRoomsAndUsers)
{
    rooms.addHW(connection, 2, QList<int>{1, 2}, false);
    EXPECT_EQ(roomHW(), (Rows{u"1|2"_s, u"2|2"_s}));
    EXPECT_EQ(userHW(), Rows());
    EXPECT_EQ(swHW(), (Rows{u"1|1"_s, u"1|2"_s}));

    rooms.addHW(connection, 2, QList<int>{2, 3}, true);
    EXPECT_EQ(roomHW(), (Rows{u"2|2"_s, u"3|2"_s}));
    EXPECT_EQ(swHW(), Rows{u"1|1"_s});

    rooms.addHW(connection, 2, QList<int>(), true);
    EXPECT_EQ(roomHW(), Rows());
    EXPECT_EQ(swHW(), Rows{u"1|1"_s});
}

TEST_F(RoomsTest, Delete_TakesTheUsersAlongAndLeavesTheHardware)
{
    run(u"INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (2,2)"_s);
    rooms.Delete(connection, 1);
    EXPECT_EQ(rows(u"SELECT ID FROM Tbl_Rooms ORDER BY ID"_s), (Rows{u"2"_s, u"3"_s}));
    EXPECT_EQ(roomUsers(), Rows{u"2|2"_s});
    EXPECT_EQ(roomHW(), Rows{u"1|1"_s});
    EXPECT_EQ(read(hardware, &clsHW::getRoom, 1), Rows());
    EXPECT_EQ(read(hardware, &clsHW::getUnAssigned).size(), 2);
}
