#include "assets/clsHW.h"

#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto findInAllTypes =
    "SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
    "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
    "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
    "WHERE ([SerialNumber] LIKE '%{serial}%' OR [SerialNumber] is Null) "
    "AND ([WorkStationName] LIKE '%{workstation}%' OR [WorkStationName] is Null) "
    "AND ([IPAddress] LIKE '%{ip}%' OR [IPAddress] is Null) "
    "AND ([AssetNumber] Like '%{asset}%' OR [AssetNumber] is Null) "
    "AND (CompanyPropertyNumber Like '%{property}%' OR [CompanyPropertyNumber] is Null) "
    "ORDER BY [SerialNumber];"_L1;
constexpr auto findInType =
    "SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
    "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
    "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
    "WHERE [HWTypeID]={type} AND ([SerialNumber] LIKE '%{serial}%' OR [SerialNumber] is Null) "
    "AND ([WorkStationName] LIKE '%{workstation}%' OR [WorkStationName] is Null) "
    "AND ([IPAddress] LIKE '%{ip}%' OR [IPAddress] is Null) "
    "AND ([AssetNumber] Like '%{asset}%' OR [AssetNumber] is Null) "
    "AND (CompanyPropertyNumber Like '%{property}%' OR [CompanyPropertyNumber] is Null) "
    "ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_L1;

} // namespace

void clsHW::getAssignedRoom(const QString &connectionString, int id, QString &roomNumber, int &roomId)
{
    jet::Recordset room;
    read(connectionString, room,
         withId("SELECT * FROM Tbl_Rooms INNER JOIN Tbl_RoomHW ON Tbl_Rooms.ID = Tbl_RoomHW.RoomID "
                "WHERE Tbl_RoomHW.HWID={id}"_L1,
                id));
    roomNumber = room.eof() ? QString() : room.value(u"RoomNumber").toText();
    roomId = room.eof() ? 0 : int(room.value(u"ID").toInteger());
}

void clsHW::getOfType(const QString &connectionString, jet::Recordset &result, int hardwareType)
{
    read(
        connectionString, result,
        withId("SELECT Tbl_HW.[ID], Tbl_HWType.[Type] & ' ' &  Tbl_HWType.[Manufacturer] & ' ' & "
               "Tbl_HWType.[Model] & ' ' & Tbl_HWType.[TypeNumber] as [HardwareType], Tbl_HW.[SerialNumber], "
               "Tbl_HW.[WarrantyNumber], Tbl_HW.[CompanyPropertyNumber], Tbl_HW.[Usage], Tbl_HW.[IPAddress] "
               "FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
               "WHERE Tbl_HW.HWTypeID = {id} ORDER BY  [SerialNumber] ASC "_L1,
               hardwareType));
}

void clsHW::getRoom(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM Tbl_RoomHW "
                "INNER JOIN Tbl_Rooms ON Tbl_RoomHW.RoomID = Tbl_Rooms.ID Where Tbl_RoomHW.HWID = {id} "
                "ORDER BY Tbl_Rooms.RoomNumber ASC"_L1,
                id));
}

void clsHW::getNotRoom(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM TBl_Rooms "
                "WHERE Tbl_Rooms.ID NOT IN (SELECT RoomID as ID FROM TBL_RoomHW WHERE HWID = {id}) "
                "ORDER BY RoomNumber ASC"_L1,
                id));
}

void clsHW::getNotUser(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName , Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users "
                "WHERE Tbl_Users.UserID NOT IN (SELECT USERID from Tbl_UserHW WHERE HWID = {id}) "
                "ORDER BY LastName ASC"_L1,
                id));
}

void clsHW::getUser(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users INNER JOIN Tbl_UserHW "
                "ON Tbl_Users.UserID = Tbl_UserHW.UserID WHERE Tbl_UserHW.HWID={id} "
                "ORDER BY Tbl_Users.LastName ASC "_L1,
                id));
}

void clsHW::getSW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_SW.ID, Tbl_SW.[Type], Tbl_SW.[Manufacturer], Tbl_SW.[Name], Tbl_SW.[Version] "
                "FROM Tbl_SWHW INNER JOIN Tbl_SW ON Tbl_SWHW.SWID = Tbl_SW.ID WHERE Tbl_SWHW.HWID = {id} "
                "ORDER BY Tbl_SW.[Type], Tbl_SW.[Manufacturer], Tbl_SW.[Name], Tbl_SW.[Version]; "_L1,
                id));
}

void clsHW::getNotSW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_SW.ID, Tbl_SW.[Type], Tbl_SW.[Manufacturer], Tbl_SW.[Name], Tbl_SW.[Version] "
                "FROM Tbl_SW  WHERE Tbl_SW.ID NOT IN (SELECT SWID AS ID FROM Tbl_SWHW WHERE HWID ={id}) "
                "ORDER BY Tbl_SW.[Type], Tbl_SW.[Manufacturer], Tbl_SW.[Name], Tbl_SW.[Version]; "_L1,
                id));
}

void clsHW::getSuppliers(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT DISTINCT 0 as ID, [Supplier] FROM Tbl_HW ORDER BY [Supplier] ASC"_s);
}

void clsHW::getStatus(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT DISTINCT 0 as ID, [Status] FROM Tbl_HW ORDER BY [Status] ASC"_s);
}

void clsHW::getUsage(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT DISTINCT 0 as ID, [Usage] FROM Tbl_HW ORDER BY [Usage] ASC"_s);
}

void clsHW::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
         "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
         "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
         "ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber],[SerialNumber];"_s);
}

void clsHW::getUnAssigned(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
         "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
         "LEFT JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
         "WHERE Tbl_HWType.ID Is Null OR (TBl_HW.ID NOT IN (SELECT HWID as ID FROM Tbl_UserHW) "
         "AND Tbl_HW.ID NOT IN (SELECT HWID AS ID FROM Tbl_ROOMHW)) "
         "ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_s);
}

void clsHW::Find(const QString &connectionString, jet::Recordset &result, int hardwareType,
                 const QString &serialNumber, const QString &workStationName, const QString &ipAddress,
                 const QString &assetNumber, const QString &companyPropertyNumber)
{
    const QString type = QString::number(hardwareType);
    read(connectionString, result,
         joined(hardwareType == 0 ? findInAllTypes : findInType, {{"type"_L1, type},
                                                                  {"serial"_L1, serialNumber},
                                                                  {"workstation"_L1, workStationName},
                                                                  {"ip"_L1, ipAddress},
                                                                  {"asset"_L1, assetNumber},
                                                                  {"property"_L1, companyPropertyNumber}}));
}

void clsHW::GetByID(const QString &connectionString, jet::Recordset &result, int id)
{
    read(
        connectionString, result,
        withId(
            "SELECT Tbl_HW.*, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS [HWType] "
            "FROM Tbl_HW LEFT JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_HW.ID = {id} "
            "ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_L1,
            id));
}
