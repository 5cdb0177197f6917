#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/clsSW.h"
#include "folders/clsFolders.h"
#include "platform/jet/errors.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"
#include "support/companytest.h"

#include <functional>

using namespace Qt::StringLiterals;
using namespace company;

namespace {

using Read = std::function<void(const QString &, jet::Recordset &)>;

template <typename Records>
Read of(void (Records::*reader)(const QString &, jet::Recordset &))
{
    return [=](const QString &store, jet::Recordset &rows) { (Records().*reader)(store, rows); };
}

template <typename Records>
Read of(void (Records::*reader)(const QString &, jet::Recordset &, int), int id)
{
    return [=](const QString &store, jet::Recordset &rows) { (Records().*reader)(store, rows, id); };
}

template <typename Records>
Read of(void (Records::*reader)(const QString &, int, jet::Recordset &), int id)
{
    return [=](const QString &store, jet::Recordset &rows) { (Records().*reader)(store, id, rows); };
}

template <typename Records, typename... Texts>
Read found(Texts... texts)
{
    return [=](const QString &store, jet::Recordset &rows) {
        Records().Find(store, rows, QString::fromUtf8(texts)...);
    };
}

/// The texts are those of serial number, workstation, address, asset and company property.
Read foundHW(int type, const QStringList &texts)
{
    return [=](const QString &store, jet::Recordset &rows) {
        clsHW().Find(store, rows, type, texts[0], texts[1], texts[2], texts[3], texts[4]);
    };
}

enum Order { Ordered, AnyOrder, AnyCase };

struct Reading
{
    const char *name;
    Read read;
    QString columns;
    Rows rows;
    Order order = Ordered;
};

const QString user = u"UserID|LastName|FirstName|UserName|ServerName"_s;
const QString userName = u"UserID|DisplayName|UserName|ServerName|Permission"_s;
const QString group = u"ID|Name|Server|Description"_s;
const QString folder = u"ID|FolderName|Description"_s;
const QString product = u"ID|Type|Manufacturer|Name|Version"_s;
const QString room = u"ID|RoomNumber|Description"_s;
const QString hardware = u"ID|Hardware Type|SerialNumber|CompanyPropertyNumber|Usage|IPAddress"_s;
const QString type = u"ID|Type|Manufacturer|Model|TypeNumber|Description"_s;
const QString permission = u"|Permission"_s;
const Rows types = {u"55|Monitor|Zeta|M9|-|-"_s, u"54|PC|-|M9|9|-"_s, u"53|pc|Maker|L9|9|-"_s,
                    u"52|PC|MAKER|M1|5|-"_s, u"51|PC|Maker|M1|7|-"_s};
const Rows noStation = {hw66, hw65, hw64, hw63, hw61};

// clang-format off
const Reading readings[] = {
    {"users: getAll", of(&clsUsers::getAll), user, {anna, bert, rolf}},
    {"users: getAllLoginNames", of(&clsUsers::getAllLoginNames), u"UserID|UserName"_s, {u"13|SRV01\\anna"_s, u"12|SRV02\\bert"_s, u"11|SRV01\\rolf"_s}},
    {"users: Find all", found<clsUsers>("", ""), user, {anna, bert, rolf}},
    {"users: Find a part, a Null is as good as any", found<clsUsers>("RME", ""), user, {anna, bert}},
    {"users: Find parts of both", found<clsUsers>("r", "o"), user, {rolf}},
    {"users: getByHardwareType", of(&clsUsers::getByHardwareType, 52), user, {bert, rolf}},
    {"users: getGlobalGroupMembers", of(&clsUsers::getGlobalGroupMembers, 21), user, {bert, rolf}},
    {"users: getNotGlobalGroupMembers", of(&clsUsers::getNotGlobalGroupMembers, 22), user, {anna, rolf}},
    {"users: getLocalGroupMembers", of(&clsUsers::getLocalGroupMembers, 31), user, {bert, rolf}},
    {"users: getNotLocalGroupMembers", of(&clsUsers::getNotLocalGroupMembers, 32), user, {anna, rolf}},
    {"users: getGlobalGroups", of(&clsUsers::getGlobalGroups, 12), group, {globalGuests, globalStaff}},
    {"users: getNotGlobalGroups", of(&clsUsers::getNotGlobalGroups, 11), group, {globalAdmins, globalGuests}},
    {"users: getLocalGroups", of(&clsUsers::getLocalGroups, 11), u"ID|LocalGroup|Description|GlobalGroup"_s,
     {u"32|SRV02\\Guests|-|DC01\\Staff"_s, u"31|SRV01\\Staff|All|DC01\\Staff"_s}},
    {"users: getAllFolders", of(&clsUsers::getAllFolders, 11), folder + permission + u"|LocalGroup|Server",
     {tools + u"|R|N/A|N/A", admin + u"|L|Guests|SRV02", common + u"|CH|Staff|SRV01", data + u"|R|Staff|SRV01"}},
    {"users: getSW, once an item", of(&clsUsers::getSW, 11), product + u"|Description", {writer1 + u"|-", writer1 + u"|-", writer2 + u"|-"}},
    {"users: getRooms", of(&clsUsers::getRooms, 12), room, {room102, room7}},
    {"users: getNotRooms", of(&clsUsers::getNotRooms, 11), room, {room101, room102}},
    {"users: getHW", of(&clsUsers::getHW, 11), hardware, {hw63, hw61}},
    {"users: getHW of nothing", of(&clsUsers::getHW, 13), hardware, {}},
    {"users: getNotHW", of(&clsUsers::getNotHW, 11), hardware, {hw66, hw65, hw64, hw62}},
    {"users: getNotHW of another", of(&clsUsers::getNotHW, 12), hardware, {hw66, hw65, hw64, hw62, hw61}, AnyOrder},

    {"global groups: getAll", of(&clsGlobalGroups::getAll), group, {globalAdmins, globalGuests, globalStaff}},
    {"global groups: getAllGlobalGroupNames, by the column", of(&clsGlobalGroups::getAllGlobalGroupNames), u"ID|Name"_s,
     {u"23|DC01\\Admins"_s, u"22|DC02\\Guests"_s, u"21|DC01\\Staff"_s}},
    {"global groups: Find all", found<clsGlobalGroups>(""), group, {globalAdmins, globalGuests, globalStaff}},
    {"global groups: Find a part", found<clsGlobalGroups>("TAF"), group, {globalStaff}},
    {"global groups: getUsers", of(&clsGlobalGroups::getUsers, 21), user, {bert, rolf}},
    {"global groups: getUsers of none", of(&clsGlobalGroups::getUsers, 99), user, {}},
    {"global groups: getFolders", of(&clsGlobalGroups::getFolders, 21), folder + permission, {common + u"|L", data + u"|CH"}},
    {"global groups: getLocalGroupMembers", of(&clsGlobalGroups::getLocalGroupMembers, 32), group, {globalGuests, globalStaff}},
    {"global groups: getNotLocalGroupMembers", of(&clsGlobalGroups::getNotLocalGroupMembers, 31), group, {globalAdmins, globalGuests}},
    {"global groups: getLocalGroups", of(&clsGlobalGroups::getLocalGroups, 21), group, {localGuests, localStaff}},
    {"global groups: getNotLocalGroups", of(&clsGlobalGroups::getNotLocalGroups, 22), group, {localAdmins, localStaff}},

    {"local groups: getAll", of(&clsLocalGroups::getAll), group, {localAdmins, localGuests, localStaff}},
    {"local groups: getAllLocalGroupNames, by the column", of(&clsLocalGroups::getAllLocalGroupNames), u"ID|Name"_s,
     {u"33|SRV01\\Admins"_s, u"32|SRV02\\Guests"_s, u"31|SRV01\\Staff"_s}},
    {"local groups: Find all", found<clsLocalGroups>(""), group, {localAdmins, localGuests, localStaff}},
    {"local groups: Find a part", found<clsLocalGroups>("TAF"), group, {localStaff}},
    {"local groups: getUsers", of(&clsLocalGroups::getUsers, 31), user, {bert, rolf}},
    {"local groups: getFolders", of(&clsLocalGroups::getFolders, 31), folder + permission, {common + u"|CH", data + u"|R"}},
    {"local groups: getGlobalGroups", of(&clsLocalGroups::getGlobalGroups, 32), group, {globalGuests, globalStaff}},

    {"folders: getAll", of(&clsFolders::getAll), folder, {tools, admin, common, data}},
    {"folders: Find all", found<clsFolders>(""), folder, {tools, admin, common, data}},
    {"folders: Find a part", found<clsFolders>("A\\"), folder, {data}},
    {"folders: getAllFolderDefaultPermissions", of(&clsFolders::getAllFolderDefaultPermissions), u"ID|Account|Permission"_s,
     {u"2|DC01\\Admins|CH"_s, u"1|SYSTEM|R"_s}},
    {"folders: getUsers", of(&clsFolders::getUsers, 42), user + permission, {bert + u"|CH", anna + u"|R"}, AnyOrder},
    {"folders: getUsers of none", of(&clsFolders::getUsers, 43), user + permission, {}},
    {"folders: getUsersForPermissionWizard", of(&clsFolders::getUsersForPermissionWizard, 42), userName,
     {u"13| |anna|SRV01|R"_s, u"12|Ärmel Bert|bert|SRV02|CH"_s}},
    {"folders: getNotUsersForPermissionWizard", of(&clsFolders::getNotUsersForPermissionWizard, 41), userName,
     {u"13| |anna|SRV01|N/A"_s, u"11|Zorn Rolf|rolf|SRV01|N/A"_s}},
    {"folders: getNotUsers, by themselves and through groups", of(&clsFolders::getNotUsers, 41), user + permission,
     {rolf + u"|R", bert + u"|R", bert + u"|L"}, AnyOrder},
    {"folders: getLocalGroups", of(&clsFolders::getLocalGroups, 43), group + permission, {localAdmins + u"|R", localGuests + u"|L"}},
    {"folders: getNotLocalGroups", of(&clsFolders::getNotLocalGroups, 41), group + permission, {localAdmins + u"|N/A", localGuests + u"|N/A"}},
    {"folders: getGlobalGroups", of(&clsFolders::getGlobalGroups, 43), group + permission, {globalAdmins + u"|CH", globalGuests + u"|R"}},
    {"folders: getNotGlobalGroups", of(&clsFolders::getNotGlobalGroups, 41), group + permission, {globalAdmins + u"|N/A", globalGuests + u"|N/A"}},
    {"folders: getUserMembers", of(&clsFolders::getUserMembers, 12), folder + permission, {common + u"|CH", data + u"|L"}},
    {"folders: getNotUserMembers", of(&clsFolders::getNotUserMembers, 12), folder + permission, {tools + u"|N/A", admin + u"|N/A"}},
    {"folders: getLocalGroupMembers", of(&clsFolders::getLocalGroupMembers, 31), folder + permission, {common + u"|CH", data + u"|R"}},
    {"folders: getNotLocalGroupMembers", of(&clsFolders::getNotLocalGroupMembers, 31), folder + permission, {tools + u"|N/A", admin + u"|N/A"}},
    {"folders: getGlobalGroupMembers", of(&clsFolders::getGlobalGroupMembers, 21), folder + permission, {common + u"|L", data + u"|CH"}},
    {"folders: getNotGlobalGroupMembers", of(&clsFolders::getNotGlobalGroupMembers, 21), folder + permission, {tools + u"|N/A", admin + u"|N/A"}},

    {"rooms: getAll", of(&clsRooms::getAll), room, {room101, room102, room7}},
    {"rooms: Find all", found<clsRooms>(""), room, {room101, room102, room7}},
    {"rooms: Find a part", found<clsRooms>("0"), room, {room101, room102}},
    {"rooms: getByHardwareType", of(&clsRooms::getByHardwareType, 53), room, {room102, room7}},
    {"rooms: getByHardwareType of none", of(&clsRooms::getByHardwareType, 55), room, {}},
    {"rooms: getUsers", of(&clsRooms::getUsers, 81), user, {bert, rolf}},
    {"rooms: getNotUsers", of(&clsRooms::getNotUsers, 82), user, {anna, rolf}},
    {"rooms: getHW", of(&clsRooms::getHW, 81), hardware, {hw64, hw62}},
    {"rooms: getNotHW", of(&clsRooms::getNotHW, 81), hardware, {hw66, hw65, hw63, hw61}},

    {"software: getAll", of(&clsSW::getAll), product + u"|Description", {driver + u"|-", zed + u"|-", calc + u"|-", writer1 + u"|-", writer2 + u"|-"}},
    {"software: getDisplayNames", of(&clsSW::getDisplayNames), u"ID|SWDisplayName"_s,
     {u"75|Driver Zeta Zed "_s, u"74|Office  Zed 9"_s, u"73|OFFICE Maker Calc 9"_s, u"72|Office MAKER Writer 1"_s, u"71|Office Maker Writer 2"_s}},
    {"software: getTypes", of(&clsSW::getTypes), u"ID|Type"_s, {u"0|driver"_s, u"0|office"_s}, AnyCase},
    {"software: getManufacturers", of(&clsSW::getManufacturers), u"ID|Manufacturer"_s, {u"0|-"_s, u"0|maker"_s, u"0|zeta"_s}, AnyCase},
    {"software: getHW", of(&clsSW::getHW, 72), hardware, {hw63, hw61}},
    {"software: getNotHW", of(&clsSW::getNotHW, 72), hardware, {hw66, hw65, hw64, hw62}},
    {"software: getUsers, once an item", of(&clsSW::getUsers, 72), user, {bert, rolf, rolf}},
    {"software: getUsers of none", of(&clsSW::getUsers, 75), user, {}},

    {"types: getAll", of(&clsHWType::getAll), type, types},
    {"types: getDisplayList", of(&clsHWType::getDisplayList), u"ID|HardWareType"_s,
     {u"55|Monitor Zeta M9 "_s, u"54|PC  M9 9"_s, u"53|pc Maker L9 9"_s, u"52|PC MAKER M1 5"_s, u"51|PC Maker M1 7"_s}},
    {"types: getTypes", of(&clsHWType::getTypes), u"ID|Type"_s, {u"0|monitor"_s, u"0|pc"_s}, AnyCase},
    {"types: getManufacturers", of(&clsHWType::getManufacturers), u"ID|Manufacturer"_s, {u"0|-"_s, u"0|maker"_s, u"0|zeta"_s}, AnyCase},
    {"types: Find all, a Null is never found", found<clsHWType>("", "", ""), type, {types[0], types[2], types[3], types[4]}},
    {"types: Find a type", found<clsHWType>("C", "", ""), type, types.last(3)},
    {"types: Find a manufacturer", found<clsHWType>("", "et", ""), type, types.first(1)},
    {"types: Find a model", found<clsHWType>("", "", "1"), type, types.last(2)},

    {"hardware: getAll", of(&clsHW::getAll), hardware, {hw66, hw65, hw64, hw63, hw62, hw61}},
    {"hardware: getUnAssigned", of(&clsHW::getUnAssigned), hardware, {hw66, hw65}},
    {"hardware: getOfType", of(&clsHW::getOfType, 51), u"ID|HardwareType|SerialNumber|WarrantyNumber|CompanyPropertyNumber|Usage|IPAddress"_s,
     {u"62|PC Maker M1 7|S8|-|P2|-|10.2"_s, u"61|PC Maker M1 7|S9|W1|P1|Office|10.1"_s}},
    {"hardware: GetByID", of(&clsHW::GetByID, 62),
     u"ID|HWTypeID|SerialNumber|AssetNumber|WarrantyNumber|CompanyPropertyNumber|WorkStationName|Supplier|PurchaseDate|Usage|Status|EUCD|Comments|Network|IPAddress|IPSubnet|HWType"_s,
     {u"62|51|S8|A2|-|P2|WS2|of |-|-| ok|False|-|False|10.2|-|PC Maker M1 7"_s}},
    {"hardware: getRoom", of(&clsHW::getRoom, 64), room, {room102, room7}},
    {"hardware: getNotRoom", of(&clsHW::getNotRoom, 62), room, {room101, room102}},
    {"hardware: getUser", of(&clsHW::getUser, 63), user, {bert, rolf}},
    {"hardware: getUser of none", of(&clsHW::getUser, 66), user, {}},
    {"hardware: getNotUser", of(&clsHW::getNotUser, 61), user, {anna, bert}},
    {"hardware: getSW", of(&clsHW::getSW, 61), product, {writer1, writer2}},
    {"hardware: getNotSW", of(&clsHW::getNotSW, 61), product, {driver, zed, calc}},
    {"hardware: getNotSW of another", of(&clsHW::getNotSW, 62), product, {driver, zed, writer1, writer2}},
    {"hardware: getUsage", of(&clsHW::getUsage), u"ID|Usage"_s, {u"0|-"_s, u"0|lab"_s, u"0|office"_s}, AnyCase},
    {"hardware: getSuppliers", of(&clsHW::getSuppliers), u"ID|Supplier"_s, {u"0|of "_s, u"0|of lab"_s, u"0|of office"_s}, AnyCase},
    {"hardware: getStatus", of(&clsHW::getStatus), u"ID|Status"_s, {u"0| ok"_s, u"0|lab ok"_s, u"0|office ok"_s}, AnyCase},
    {"hardware: Find all", foundHW(0, {{}, {}, {}, {}, {}}), hardware, {hw66, hw65, hw64, hw63, hw62, hw61}},
    {"hardware: Find a serial number", foundHW(0, {u"9"_s, {}, {}, {}, {}}), hardware, {hw66, hw61}},
    {"hardware: Find a workstation", foundHW(0, {{}, u"s1"_s, {}, {}, {}}), hardware, noStation},
    {"hardware: Find an address", foundHW(0, {{}, {}, u"0.1"_s, {}, {}}), hardware, noStation},
    {"hardware: Find an asset", foundHW(0, {{}, {}, {}, u"1"_s, {}}), hardware, noStation},
    {"hardware: Find a company property", foundHW(0, {{}, {}, {}, {}, u"1"_s}), hardware, noStation},
    {"hardware: Find of a type", foundHW(51, {{}, {}, {}, {}, {}}), hardware, {hw61, hw62}, AnyOrder},
    {"hardware: Find a serial number of a type", foundHW(51, {u"9"_s, {}, {}, {}, {}}), hardware, {hw61}},
    {"hardware: Find a workstation of a type", foundHW(51, {{}, u"s1"_s, {}, {}, {}}), hardware, {hw61}},
    {"hardware: Find an address of a type", foundHW(51, {{}, {}, u"0.1"_s, {}, {}}), hardware, {hw61}},
    {"hardware: Find an asset of a type", foundHW(51, {{}, {}, {}, u"1"_s, {}}), hardware, {hw61}},
    {"hardware: Find a company property of a type", foundHW(51, {{}, {}, {}, {}, u"1"_s}), hardware, {hw61}},
    {"hardware: Find of no type", foundHW(99, {{}, {}, {}, {}, {}}), hardware, {}},
};

/// Rows of relationships that have lost an end, no two of them the same one.
const char *const loose[] = {
    "Tbl_GlobalGroupsUsers VALUES (21,901)", "Tbl_GlobalGroupsUsers VALUES (902,11)", "Tbl_LocalGroupsUsers VALUES (31,903)",
    "Tbl_LocalGroupsUsers VALUES (904,11)", "Tbl_LocalGroupsGlobalGroups VALUES (32,905)", "Tbl_LocalGroupsGlobalGroups VALUES (906,21)",
    "Tbl_UserFolderPermission VALUES (12,907,'R')", "Tbl_UserFolderPermission VALUES (908,42,'R')",
    "Tbl_LocalGroupFolderPermission VALUES (31,909,'R')", "Tbl_LocalGroupFolderPermission VALUES (910,43,'R')",
    "Tbl_GlobalGroupFolderPermission VALUES (21,911,'R')", "Tbl_GlobalGroupFolderPermission VALUES (912,43,'R')",
    "Tbl_UserHW VALUES (11,913)", "Tbl_UserHW VALUES (914,63)", "Tbl_RoomHW VALUES (81,915)", "Tbl_RoomHW VALUES (916,64)",
    "Tbl_RoomUsers VALUES (81,917)", "Tbl_RoomUsers VALUES (918,12)", "Tbl_SWHW VALUES (72,919)", "Tbl_SWHW VALUES (920,61)",
    "Tbl_HW (ID,HWTypeID,SerialNumber,Supplier,Status,Usage) VALUES (69,921,'S1','of lab','lab ok','lab')",
};
// clang-format on

class ReadersTest : public CompanyTest
{
protected:
    void expectReadings(const QHash<QString, Rows> &further = {}) const
    {
        for (const Reading &reading : readings) {
            SCOPED_TRACE(reading.name);
            jet::Recordset result;
            reading.read(connection, result);
            ASSERT_EQ(result.state(), jet::StateOpen);
            QStringList columns;
            for (int i = 0; i < result.fields().count(); ++i)
                columns += result.fields().item(i).name();
            EXPECT_EQ(columns.join(u'|'), reading.columns);
            Rows rows = rowsOf(result);
            Rows expected = further.value(QString::fromLatin1(reading.name)) + reading.rows;
            if (reading.order == AnyCase) {
                rows = rows.join(u'\n').toLower().split(u'\n');
            } else if (reading.order == AnyOrder) {
                rows.sort();
                expected.sort();
            }
            EXPECT_EQ(rows, expected);
        }
    }
};

} // namespace

TEST_F(ReadersTest, GiveTheirColumnsAndRowsWhateverHasLostItsOtherEnd)
{
    run(u"UPDATE Tbl_HW SET Supplier = 'of ' & Usage, Status = Usage & ' ok'"_s);
    run(u"INSERT INTO Tbl_FolderDefaultPermissions (Account,Permission) VALUES ('SYSTEM','R')"_s);
    run(u"INSERT INTO Tbl_FolderDefaultPermissions (Account,Permission) VALUES ('DC01\\Admins','CH')"_s);
    expectReadings();
    for (const char *row : loose)
        run("INSERT INTO "_L1 + QString::fromLatin1(row));
    // Hardware without a type is in no other list.
    expectReadings({{u"hardware: getUnAssigned"_s, {u"69|   |S1|-|lab|-"_s}}});
}

TEST_F(ReadersTest, AUserIsFoundByIdAndByAccountWithAllColumns)
{
    clsUsers users;
    const auto read = [](auto &&step) { return rowsFrom(step).join(u'\n'); };
    const QString all = rows(u"SELECT * FROM Tbl_Users WHERE UserID = 12"_s).join(u'\n');
    EXPECT_EQ(read([&](auto &rows) { users.getUserByID(connection, 12, rows); }), all);
    EXPECT_EQ(
        read([&](auto &rows) { users.getByUserNameAndServer(connection, rows, u"BERT"_s, u"srv02"_s); }),
        all);
    EXPECT_EQ(
        read([&](auto &rows) { users.getByUserNameAndServer(connection, rows, u"bert"_s, u"SRV01"_s); }),
        u""_s);
    EXPECT_EQ(read([&](auto &rows) { users.getStructure(connection, rows); }).count(u'|'), 46);
}

TEST_F(ReadersTest, TheLastColumnsOfAnOrderCount)
{
    run(u"UPDATE Tbl_Users SET LastName = 'Same', FirstName = 'Same' WHERE UserID < 13"_s);
    run(u"UPDATE Tbl_Users SET LastName = 'same', FirstName = 'Early' WHERE UserID = 13"_s);
    run(u"INSERT INTO Tbl_UserHW (UserID,HWID) VALUES (13,63)"_s);
    EXPECT_EQ(rowsFrom([&](auto &result) { clsSW().getUsers(connection, result, 72); }),
              (Rows{u"13|same|Early|anna|SRV01"_s, u"12|Same|Same|bert|SRV02"_s, u"11|Same|Same|rolf|SRV01"_s,
                    u"11|Same|Same|rolf|SRV01"_s}));
    clsHW().addSW(connection, 66, QList<int>{71, 72, 73, 74, 75});
    EXPECT_EQ(rowsFrom([&](auto &result) { clsHW().getSW(connection, result, 66); }),
              (Rows{driver, zed, calc, writer1, writer2}));
    run(u"INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (81,61)"_s);
    EXPECT_EQ(rowsFrom([&](auto &result) { clsRooms().getByHardwareType(connection, result, 51); }),
              (Rows{room7, room7}))
        << "once an item";
}

TEST_F(ReadersTest, AnApostropheIsRefusedAndRowsOutliveTheStore)
{
    for (const Read &find :
         {found<clsUsers>("'", ""), found<clsGlobalGroups>("'"), found<clsLocalGroups>("'"),
          found<clsFolders>("'"), found<clsRooms>("'"), found<clsHWType>("'", "", "")}) {
        jet::Recordset result;
        EXPECT_EQ(errorOf([&] { find(connection, result); }).number, jet::SyntaxError);
    }
    jet::Recordset result;
    clsUsers().getAll(connection, result);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(result.recordCount(), 3);
    EXPECT_EQ(rowsOf(result), (Rows{anna, bert, rolf}));
}
