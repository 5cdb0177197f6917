#include "store/clsUsers.h"

#include "store/statement.h"

using namespace Qt::StringLiterals;

void clsUsers::getByHardwareType(const QString &connectionString, jet::Recordset &result, int hardwareType)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM (Tbl_Users INNER JOIN Tbl_UserHW "
                "ON Tbl_Users.UserID = Tbl_UserHW.UserID) INNER JOIN Tbl_HW ON Tbl_UserHW.HWID = Tbl_HW.ID "
                "Where Tbl_HW.HWTypeID = {id} ORDER BY Tbl_Users.LastName ASC"_L1,
                hardwareType));
}

void clsUsers::getGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
                "Tbl_Users.ServerName FROM Tbl_GlobalGroupsUsers INNER JOIN Tbl_Users "
                "ON Tbl_GlobalGroupsUsers.UserID = Tbl_Users.UserID "
                "WHERE Tbl_GlobalGroupsUsers.GlobalGroupID={id} ORDER BY LastName ASC"_L1,
                group));
}

void clsUsers::getGlobalGroups(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name,Tbl_GlobalGroups.Server, "
                "Tbl_GlobalGroups.Description FROM (Tbl_Users INNER JOIN Tbl_GlobalGroupsUsers "
                "ON Tbl_Users.UserID = Tbl_GlobalGroupsUsers.UserID) INNER JOIN Tbl_GlobalGroups "
                "ON Tbl_GlobalGroupsUsers.GlobalGroupID = Tbl_GlobalGroups.ID "
                "WHERE Tbl_Users.UserID = {id} ORDER BY Tbl_GlobalGroups.Name ASC"_L1,
                id));
}

void clsUsers::getLocalGroups(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_LocalGroups.ID, Tbl_LocalGroups.Server & '\\' & Tbl_LocalGroups.Name as "
                "LocalGroup , Tbl_LocalGroups.Description, Tbl_GlobalGroups.Server & '\\' & "
                "Tbl_GlobalGroups.Name as [GlobalGroup] FROM ((Tbl_GlobalGroupsUsers "
                "INNER JOIN Tbl_LocalGroupsGlobalGroups "
                "ON Tbl_GlobalGroupsUsers.GlobalGroupID = Tbl_LocalGroupsGlobalGroups.GlobalGroupID) "
                "INNER JOIN Tbl_LocalGroups "
                "ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = Tbl_LocalGroups.ID) "
                "INNER JOIN Tbl_GlobalGroups ON Tbl_GlobalGroupsUsers.GlobalGroupID = Tbl_GlobalGroups.ID "
                "WHERE Tbl_GlobalGroupsUsers.UserID={id} ORDER BY  Tbl_LocalGroups.Name ASC"_L1,
                id));
}

void clsUsers::getNotGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName , Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users "
                "WHERE Tbl_Users.UserID NOT IN (SELECT UserID FROM Tbl_GlobalGroupsUsers "
                "WHERE GlobalGroupID ={id}) ORDER BY LastName ASC"_L1,
                group));
}

void clsUsers::getNotLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName , Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_Users "
                "WHERE Tbl_Users.UserID NOT IN (SELECT UserID FROM Tbl_LocalGroupsUsers "
                "WHERE LocalGroupID ={id}) ORDER BY LastName ASC"_L1,
                group));
}

void clsUsers::getLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_LocalGroupsUsers INNER JOIN Tbl_Users "
                "ON Tbl_LocalGroupsUsers.UserID = Tbl_Users.UserID "
                "WHERE Tbl_LocalGroupsUsers.LocalGroupID={id} ORDER BY LastName ASC "_L1,
                group));
}

void clsUsers::getAllFolders(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "Tbl_LocalGroupFolderPermission.Permission, Tbl_LocalGroups.Name as "
                "[LocalGroup],Tbl_LocalGroups.Server FROM (((Tbl_LocalGroupsGlobalGroups "
                "INNER JOIN Tbl_GlobalGroupsUsers "
                "ON Tbl_LocalGroupsGlobalGroups.GlobalGroupID = Tbl_GlobalGroupsUsers.GlobalGroupID) "
                "INNER JOIN Tbl_LocalGroups "
                "ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = Tbl_LocalGroups.ID) "
                "INNER JOIN Tbl_LocalGroupFolderPermission "
                "ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = Tbl_LocalGroupFolderPermission.LocalGroupID) "
                "INNER JOIN Tbl_Folders ON Tbl_LocalGroupFolderPermission.FolderID = Tbl_Folders.ID "
                "WHERE  Tbl_GlobalGroupsUsers.UserID={id} ORDER BY FOLDERNAME ASC "
                "UNION SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "Tbl_UserFolderPermission.Permission, 'N/A' as [LocalGroup],'N/A' AS [Server] "
                "FROM Tbl_Folders INNER JOIN Tbl_UserFolderPermission "
                "ON Tbl_Folders.ID = Tbl_UserFolderPermission.FolderID "
                "WHERE Tbl_UserFolderPermission.UserID={id} ORDER BY FOLDERNAME ASC"_L1,
                id));
}

void clsUsers::getSW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_SW.ID, Tbl_SW.Type, Tbl_SW.Manufacturer, Tbl_SW.Name, Tbl_SW.Version, "
                "Tbl_SW.Description FROM (Tbl_UserHW INNER JOIN Tbl_SWHW ON Tbl_UserHW.HWID = Tbl_SWHW.HWID) "
                "INNER JOIN Tbl_SW ON Tbl_SWHW.SWID = Tbl_SW.ID WHERE Tbl_UserHW.UserID = {id} "
                "ORDER BY Tbl_SW.Type, Tbl_SW.Manufacturer, Tbl_SW.Name, "
                "Tbl_SW.Version, Tbl_SW.Description"_L1,
                id));
}

void clsUsers::getNotGlobalGroups(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT * from Tbl_GlobalGroups WHERE ID Not IN (SELECT GlobalGroupID AS ID "
                "FROM Tbl_GlobalGroupsUsers WHERE UserID ={id}) ORDER by Name ASC"_L1,
                id));
}

void clsUsers::getRooms(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM Tbl_RoomUsers "
                "INNER JOIN Tbl_Rooms ON Tbl_RoomUsers.RoomID = Tbl_Rooms.ID "
                "Where Tbl_RoomUsers.UserID = {id} ORDER BY Tbl_Rooms.RoomNumber;"_L1,
                id));
}

void clsUsers::getNotRooms(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM Tbl_Rooms "
                "WHERE Tbl_Rooms.ID NOT IN (SELECT RoomID AS ID From Tbl_RoomUsers WHERE UserID ={id}) "
                "ORDER BY RoomNumber ASC"_L1,
                id));
}

void clsUsers::getNotHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_HW.ID, [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber] AS "
                "[Hardware Type], [SerialNumber], [CompanyPropertyNumber], [Usage], [IPAddress] FROM Tbl_HW "
                "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
                "WHERE Tbl_HW.ID NOT IN (SELECT HWID as ID FROM Tbl_UserHW WHERE UserID = {id}) "
                "ORDER BY [Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber];"_L1,
                id));
}

void clsUsers::getHW(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_HW.ID, Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & "
                "[TypeNumber] AS [Hardware Type], Tbl_HW.[SerialNumber], Tbl_HW.[CompanyPropertyNumber], "
                "Tbl_HW.[Usage], Tbl_HW.[IPAddress] FROM (Tbl_UserHW INNER JOIN Tbl_HW "
                "ON Tbl_UserHW.HWID = Tbl_HW.ID) INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID "
                "Where (((Tbl_UserHW.UserID) = {id})) "
                "ORDER BY Tbl_HWType.[Type] & ' ' & [Manufacturer] & ' ' & [Model] & ' ' & [TypeNumber]; "_L1,
                id));
}
