#include "assets/clsHW.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists =
    "A Hardware of the same Type with this Serial Number already exists in the Database."_L1;

} // namespace

void clsHW::Add(const QString &connectionString, const HWRecord &item)
{
    const QString type = QString::number(item.HWTypeID);
    writeUnlessFound(
        connectionString,
        "SELECT * FROM Tbl_HW WHERE SerialNumber = '"_L1 + item.SerialNumber + "' AND HWTypeID = "_L1 + type,
        alreadyExists,
        "INSERT INTO Tbl_HW ([HWTypeID],[SerialNumber],[AssetNumber],[WarrantyNumber],"
        "[CompanyPropertyNumber],[WorkStationName],[Supplier],[PurchaseDate],[Usage],[Status],[EUCD],"
        "[Comments],[Network],[IPAddress],[IPSubnet]) VALUES ("_L1 +
            type + ",'"_L1 + item.SerialNumber + "','"_L1 + item.AssetNumber + "','"_L1 +
            item.WarrantyNumber + "','"_L1 + item.CompanyPropertyNumber + "','"_L1 + item.WorkStationName +
            "','"_L1 + item.Supplier + "',#"_L1 + item.PurchaseDate + "#,'"_L1 + item.Usage + "','"_L1 +
            item.Status + "',"_L1 + QString::number(item.EUCD) + ",'"_L1 + item.Comments + "',"_L1 +
            QString::number(item.Network) + ",'"_L1 + item.IPAddress + "','"_L1 + item.IPSubnet + "')"_L1);
}

void clsHW::addRooms(const QString &connectionString, int id, std::span<const int> rooms, bool deleteSW)
{
    const QString item = QString::number(id);
    QStringList clearing = {"DELETE * FROM Tbl_RoomHW WHERE HWID="_L1 + item};
    if (!rooms.empty())
        clearing += "DELETE * FROM Tbl_UserHW WHERE HWID="_L1 + item;
    if (deleteSW)
        clearing += "DELETE * FROM Tbl_SWHW WHERE HWID ="_L1 + item;
    relate(connectionString, clearing, "INSERT INTO Tbl_RoomHW (HWID,RoomID) VALUES ("_L1 + item + ","_L1,
           rooms);
}

void clsHW::addUsers(const QString &connectionString, int id, std::span<const int> users)
{
    const QString item = QString::number(id);
    QStringList clearing = {"DELETE * FROM Tbl_UserHW WHERE HWID="_L1 + item};
    if (!users.empty())
        clearing += "DELETE * FROM Tbl_RoomHW WHERE HWID="_L1 + item;
    relate(connectionString, clearing, "INSERT INTO Tbl_UserHW (HWID,UserID) VALUES ("_L1 + item + ","_L1,
           users);
}

void clsHW::addSW(const QString &connectionString, int id, std::span<const int> software)
{
    const QString item = QString::number(id);
    relate(connectionString, {"DELETE * FROM Tbl_SWHW WHERE HWID="_L1 + item},
           "INSERT INTO Tbl_SWHW (HWID,SWID) VALUES ("_L1 + item + ","_L1, software);
}

void clsHW::update(const QString &connectionString, int id, const HWRecord &item)
{
    const QString row = QString::number(id);
    const QString type = QString::number(item.HWTypeID);
    writeUnlessFound(
        connectionString,
        "SELECT * FROM Tbl_HW WHERE SerialNumber = '"_L1 + item.SerialNumber + "' AND HWTypeID = "_L1 + type +
            " AND ID <> "_L1 + row,
        alreadyExists,
        "UPDATE Tbl_HW SET [HWTypeID] ="_L1 + type + ", [SerialNumber] ='"_L1 + item.SerialNumber +
            "', [AssetNumber] = '"_L1 + item.AssetNumber + "', [WarrantyNumber] ='"_L1 + item.WarrantyNumber +
            "', [CompanyPropertyNumber] ='"_L1 + item.CompanyPropertyNumber + "', [WorkStationName] ='"_L1 +
            item.WorkStationName + "', [Supplier] ='"_L1 + item.Supplier + "', [PurchaseDate] =#"_L1 +
            item.PurchaseDate + "#, [Usage] ='"_L1 + item.Usage + "', [Status] ='"_L1 + item.Status +
            "', [EUCD] ="_L1 + QString::number(item.EUCD) + ", [Comments] ='"_L1 + item.Comments +
            "', [NetWork] ="_L1 + QString::number(item.Network) + ", [IPAddress] ='"_L1 + item.IPAddress +
            "', [IPSubNet] ='"_L1 + item.IPSubnet + "' WHERE ID = "_L1 + row);
}

void clsHW::Delete(const QString &connectionString, int id)
{
    write(connectionString, {"DELETE * FROM Tbl_HW WHERE ID ="_L1 + QString::number(id)});
}
