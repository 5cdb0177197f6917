#include "assets/clsRooms.h"
#include "support/companytest.h"

using namespace Qt::StringLiterals;
using namespace company;

namespace {

class RoomsTest : public CompanyTest
{
protected:
    clsRooms rooms;
};

} // namespace

TEST_F(RoomsTest, ReadersGiveTheirRows)
{
    // clang-format off
    expectRows(rooms, {
        {"getAll", &clsRooms::getAll, 0, {room101, room102, room7}},
        {"getByHardwareType", &clsRooms::getByHardwareType, 53, {room102, room7}},
        {"getByHardwareType of none", &clsRooms::getByHardwareType, 55, {}},
        {"getUsers", &clsRooms::getUsers, 81, {bert, rolf}},
        {"getNotUsers", &clsRooms::getNotUsers, 82, {anna, rolf}},
        {"getHW", &clsRooms::getHW, 81, {hw64, hw62}},
        {"getNotHW", &clsRooms::getNotHW, 81, {hw66, hw65, hw63, hw61}},
    });
    // clang-format on
    run(u"INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (81,61)"_s);
    expectRows(rooms, {{"once an item", &clsRooms::getByHardwareType, 51, {room7, room7}}});
}

TEST_F(RoomsTest, Find_LooksForAPartOfTheNumber)
{
    const auto found = [&](const QString &number) {
        return rowsFrom([&](auto &result) { rooms.Find(connection, result, number); });
    };
    EXPECT_EQ(found(u"10"_s), (Rows{room101, room102}));
    EXPECT_EQ(found(u"b"_s), Rows{room7});
    EXPECT_EQ(found({}), (Rows{room101, room102, room7}));
}

TEST_F(RoomsTest, AddUsers_WritesARepeatedIdOnce)
{
    rooms.addUsers(connection, 81, QList<int>{13, 11, 13});
    EXPECT_EQ(content("Tbl_RoomUsers"), (Rows{u"81|11"_s, u"81|13"_s, u"82|12"_s, u"83|13"_s}));
    rooms.addUsers(connection, 81, QList<int>());
    EXPECT_EQ(content("Tbl_RoomUsers"), (Rows{u"82|12"_s, u"83|13"_s}));
}

TEST_F(RoomsTest, AddHW_TakesTheItemsFromOtherRoomsAndUsers)
{
    const Rows software = content("Tbl_SWHW");
    rooms.addHW(connection, 82, QList<int>{61, 62, 61}, false);
    EXPECT_EQ(content("Tbl_RoomHW"), (Rows{u"81|64"_s, u"82|61"_s, u"82|62"_s}));
    EXPECT_EQ(content("Tbl_UserHW"), (Rows{u"11|63"_s, u"12|63"_s}));
    EXPECT_EQ(content("Tbl_SWHW"), software);

    rooms.addHW(connection, 82, QList<int>{62, 63}, true);
    EXPECT_EQ(content("Tbl_RoomHW"), (Rows{u"81|64"_s, u"82|62"_s, u"82|63"_s}));
    EXPECT_EQ(content("Tbl_SWHW"), (Rows{u"71|61"_s, u"72|61"_s}));

    rooms.addHW(connection, 82, QList<int>(), true);
    EXPECT_EQ(content("Tbl_RoomHW"), Rows{u"81|64"_s});
    EXPECT_EQ(content("Tbl_SWHW").size(), 2);
}
