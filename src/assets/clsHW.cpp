#include "assets/clsHW.h"

#include "store/relations.h"
#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists =
    "A Hardware of the same Type with this Serial Number already exists in the Database."_L1;

// clang-format off
constexpr auto taken =
    "SELECT * FROM Tbl_HW WHERE SerialNumber = '{serial}' AND HWTypeID = {type}"_L1;
constexpr auto insert =
    "INSERT INTO Tbl_HW ([HWTypeID],[SerialNumber],[AssetNumber],[WarrantyNumber],[CompanyPropertyNumber],[WorkStationName],[Supplier],[PurchaseDate],[Usage],[Status],[EUCD],[Comments],[Network],[IPAddress],[IPSubnet]) "
    "VALUES ({type},'{serial}','{asset}','{warranty}','{property}','{workstation}','{supplier}',#{date}#,'{usage}','{status}',{eucd},'{comments}',{network},'{ip}','{subnet}')"_L1;

constexpr auto takenByOther =
    "SELECT * FROM Tbl_HW WHERE SerialNumber = '{serial}' AND HWTypeID = {type} AND ID <> {id}"_L1;
constexpr auto change =
    "UPDATE Tbl_HW SET [HWTypeID] ={type}, [SerialNumber] ='{serial}', [AssetNumber] = '{asset}', [WarrantyNumber] ='{warranty}', [CompanyPropertyNumber] ='{property}', [WorkStationName] ='{workstation}', [Supplier] ='{supplier}', "
    "[PurchaseDate] =#{date}#, [Usage] ='{usage}', [Status] ='{status}', [EUCD] ={eucd}, [Comments] ='{comments}', [NetWork] ={network}, [IPAddress] ='{ip}', [IPSubNet] ='{subnet}' WHERE ID = {id}"_L1;
// clang-format on

constexpr RelationStatements roomsOfItem = {
    "DELETE * FROM Tbl_RoomHW WHERE HWID={id}"_L1,
    {},
    "INSERT INTO Tbl_RoomHW (HWID,RoomID) VALUES ({id},{item})"_L1,
};
constexpr RelationStatements usersOfItem = {
    "DELETE * FROM Tbl_UserHW WHERE HWID={id}"_L1,
    {},
    "INSERT INTO Tbl_UserHW (HWID,UserID) VALUES ({id},{item})"_L1,
};
constexpr RelationStatements softwareOfItem = {
    "DELETE * FROM Tbl_SWHW WHERE HWID={id}"_L1,
    {},
    "INSERT INTO Tbl_SWHW (HWID,SWID) VALUES ({id},{item})"_L1,
};

/// The text with the columns of the item, and its id where the text asks for one.
QString filled(QLatin1StringView text, const HWRecord &item, int id = 0)
{
    const QString idText = QString::number(id);
    const QString type = QString::number(item.HWTypeID);
    const QString eucd = QString::number(item.EUCD);
    const QString network = QString::number(item.Network);
    return joined(text, {{"type"_L1, type},
                         {"serial"_L1, item.SerialNumber},
                         {"asset"_L1, item.AssetNumber},
                         {"warranty"_L1, item.WarrantyNumber},
                         {"property"_L1, item.CompanyPropertyNumber},
                         {"workstation"_L1, item.WorkStationName},
                         {"supplier"_L1, item.Supplier},
                         {"date"_L1, item.PurchaseDate},
                         {"usage"_L1, item.Usage},
                         {"status"_L1, item.Status},
                         {"eucd"_L1, eucd},
                         {"comments"_L1, item.Comments},
                         {"network"_L1, network},
                         {"ip"_L1, item.IPAddress},
                         {"subnet"_L1, item.IPSubnet},
                         {"id"_L1, idText}});
}

} // namespace

QString insertHW(const HWRecord &item)
{
    return filled(insert, item);
}

void writeHWRooms(StoreSession &store, int id, std::span<const int> rooms)
{
    writeRelations(store, roomsOfItem, id, rooms, {}, false);
}

void writeHWUsers(StoreSession &store, int id, std::span<const int> users)
{
    writeRelations(store, usersOfItem, id, users, {}, false);
}

void writeHWSoftware(StoreSession &store, int id, std::span<const int> software)
{
    writeRelations(store, softwareOfItem, id, software, {}, false);
}

void clsHW::Add(const QString &connectionString, const HWRecord &item)
{
    writeUnlessFound(connectionString, filled(taken, item), alreadyExists, insertHW(item));
}

void clsHW::addRooms(const QString &connectionString, int id, std::span<const int> rooms, bool deleteSW)
{
    withStore(connectionString, [&](StoreSession &store) {
        store.execute(withId(roomsOfItem.clear, id));
        if (!rooms.empty())
            store.execute(withId(usersOfItem.clear, id));
        if (deleteSW)
            store.execute(withId("DELETE * FROM Tbl_SWHW WHERE HWID ={id}"_L1, id));
        writeHWRooms(store, id, rooms);
    });
}

void clsHW::addUsers(const QString &connectionString, int id, std::span<const int> users)
{
    withStore(connectionString, [&](StoreSession &store) {
        store.execute(withId(usersOfItem.clear, id));
        if (!users.empty())
            store.execute(withId(roomsOfItem.clear, id));
        writeHWUsers(store, id, users);
    });
}

void clsHW::addSW(const QString &connectionString, int id, std::span<const int> software)
{
    withStore(connectionString, [&](StoreSession &store) {
        store.execute(withId(softwareOfItem.clear, id));
        writeHWSoftware(store, id, software);
    });
}

void clsHW::update(const QString &connectionString, int id, const HWRecord &item)
{
    writeUnlessFound(connectionString, filled(takenByOther, item, id), alreadyExists,
                     filled(change, item, id));
}

void clsHW::Delete(const QString &connectionString, int id)
{
    write(connectionString, withId("DELETE * FROM Tbl_HW WHERE ID ={id}"_L1, id));
}
