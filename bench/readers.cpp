#include "readers.h"

#include "rawstore.h"

#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/clsSW.h"
#include "base/error.h"
#include "folders/clsFolders.h"
#include "queries/clsCustomQuery.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"

using namespace Qt::StringLiterals;

namespace {

template <typename>
struct OwnerOf;
template <typename Class, typename... Arguments>
struct OwnerOf<void (Class::*)(Arguments...)>
{
    using Type = Class;
};
template <auto method>
using Owner = typename OwnerOf<decltype(method)>::Type;

template <auto method>
void plain(const QString &store, jet::Recordset &result, int)
{
    (Owner<method>().*method)(store, result);
}

template <auto method>
void byId(const QString &store, jet::Recordset &result, int id)
{
    (Owner<method>().*method)(store, result, id);
}

template <auto method>
void idFirst(const QString &store, jet::Recordset &result, int id)
{
    (Owner<method>().*method)(store, id, result);
}

void findUsers(const QString &store, jet::Recordset &result, int)
{
    clsUsers().Find(store, result, u"er"_s, u"er"_s);
}

void userByAccount(const QString &store, jet::Recordset &result, int)
{
    clsUsers().getByUserNameAndServer(store, result, u"uadams"_s, u"PRAHA01"_s);
}

void findHardwareTypes(const QString &store, jet::Recordset &result, int)
{
    clsHWType().Find(store, result, u"o"_s, u"a"_s, {});
}

void findHardware(const QString &store, jet::Recordset &result, int)
{
    clsHW().Find(store, result, 0, u"1"_s, {}, {}, {}, {});
}

template <typename Class>
void findByName(const QString &store, jet::Recordset &result, int)
{
    Class().Find(store, result, u"er"_s);
}

void executeQuery(const QString &store, jet::Recordset &result, int)
{
    clsCustomQuery().Execute(
        store, result,
        u"SELECT Department, Count(*) FROM Tbl_Users GROUP BY Department ORDER BY Department"_s);
}

// clang-format off
constexpr Reader table[] = {
    {"clsUsers.getStructure", nullptr, plain<&clsUsers::getStructure>,
     "SELECT * FROM Tbl_Users LIMIT 1"},
    {"clsUsers.getAll", nullptr, plain<&clsUsers::getAll>,
     "SELECT UserID, LastName, FirstName, UserName, ServerName FROM Tbl_Users ORDER BY LastName"},
    {"clsUsers.getUserByID", "UserID FROM Tbl_Users", idFirst<&clsUsers::getUserByID>,
     "SELECT * FROM Tbl_Users WHERE UserID = ?1"},
    {"clsUsers.Find", nullptr, findUsers,
     "SELECT UserID, LastName, FirstName, UserName, ServerName FROM Tbl_Users WHERE (LastName LIKE "
     "'%er%' OR LastName IS NULL) AND (UserName LIKE '%er%' OR UserName IS NULL) ORDER BY LastName"},
    {"clsUsers.getAllLoginNames", nullptr, plain<&clsUsers::getAllLoginNames>,
     "SELECT UserID, ifnull(ServerName, '') || '\\' || ifnull(UserName, '') AS UserName FROM Tbl_Users "
     "ORDER BY UserName"},
    {"clsUsers.getByHardwareType", "HWTypeID FROM Tbl_HW INNER JOIN Tbl_UserHW ON Tbl_UserHW.HWID = Tbl_HW.ID", byId<&clsUsers::getByHardwareType>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM (Tbl_Users INNER JOIN Tbl_UserHW ON Tbl_Users.UserID = "
     "Tbl_UserHW.UserID) INNER JOIN Tbl_HW ON Tbl_UserHW.HWID = Tbl_HW.ID WHERE Tbl_HW.HWTypeID = ?1 "
     "ORDER BY Tbl_Users.LastName"},
    {"clsUsers.getGlobalGroupMembers", "GlobalGroupID FROM Tbl_GlobalGroupsUsers", byId<&clsUsers::getGlobalGroupMembers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_GlobalGroupsUsers INNER JOIN Tbl_Users ON "
     "Tbl_GlobalGroupsUsers.UserID = Tbl_Users.UserID WHERE Tbl_GlobalGroupsUsers.GlobalGroupID = ?1 "
     "ORDER BY LastName"},
    {"clsUsers.getGlobalGroups", "UserID FROM Tbl_Users", byId<&clsUsers::getGlobalGroups>,
     "SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name, Tbl_GlobalGroups.Server, "
     "Tbl_GlobalGroups.Description FROM (Tbl_Users INNER JOIN Tbl_GlobalGroupsUsers ON Tbl_Users.UserID "
     "= Tbl_GlobalGroupsUsers.UserID) INNER JOIN Tbl_GlobalGroups ON Tbl_GlobalGroupsUsers.GlobalGroupID"
     " = Tbl_GlobalGroups.ID WHERE Tbl_Users.UserID = ?1 ORDER BY Tbl_GlobalGroups.Name"},
    {"clsUsers.getLocalGroups", "UserID FROM Tbl_GlobalGroupsUsers", byId<&clsUsers::getLocalGroups>,
     "SELECT Tbl_LocalGroups.ID, ifnull(Tbl_LocalGroups.Server, '') || '\\' || "
     "ifnull(Tbl_LocalGroups.Name, '') AS LocalGroup, Tbl_LocalGroups.Description, "
     "ifnull(Tbl_GlobalGroups.Server, '') || '\\' || ifnull(Tbl_GlobalGroups.Name, '') AS GlobalGroup "
     "FROM ((Tbl_GlobalGroupsUsers INNER JOIN Tbl_LocalGroupsGlobalGroups ON "
     "Tbl_GlobalGroupsUsers.GlobalGroupID = Tbl_LocalGroupsGlobalGroups.GlobalGroupID) INNER JOIN "
     "Tbl_LocalGroups ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = Tbl_LocalGroups.ID) INNER JOIN "
     "Tbl_GlobalGroups ON Tbl_GlobalGroupsUsers.GlobalGroupID = Tbl_GlobalGroups.ID WHERE "
     "Tbl_GlobalGroupsUsers.UserID = ?1 ORDER BY Tbl_LocalGroups.Name"},
    {"clsUsers.getNotGlobalGroupMembers", "GlobalGroupID FROM Tbl_GlobalGroupsUsers", byId<&clsUsers::getNotGlobalGroupMembers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_Users WHERE Tbl_Users.UserID NOT IN (SELECT UserID FROM "
     "Tbl_GlobalGroupsUsers WHERE GlobalGroupID = ?1) ORDER BY LastName"},
    {"clsUsers.getNotLocalGroupMembers", "LocalGroupID FROM Tbl_LocalGroupsUsers", byId<&clsUsers::getNotLocalGroupMembers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_Users WHERE Tbl_Users.UserID NOT IN (SELECT UserID FROM "
     "Tbl_LocalGroupsUsers WHERE LocalGroupID = ?1) ORDER BY LastName"},
    {"clsUsers.getLocalGroupMembers", "LocalGroupID FROM Tbl_LocalGroupsUsers", byId<&clsUsers::getLocalGroupMembers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_LocalGroupsUsers INNER JOIN Tbl_Users ON Tbl_LocalGroupsUsers.UserID"
     " = Tbl_Users.UserID WHERE Tbl_LocalGroupsUsers.LocalGroupID = ?1 ORDER BY LastName"},
    {"clsUsers.getAllFolders", "UserID FROM Tbl_GlobalGroupsUsers", byId<&clsUsers::getAllFolders>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
     "Tbl_LocalGroupFolderPermission.Permission, Tbl_LocalGroups.Name AS LocalGroup, "
     "Tbl_LocalGroups.Server FROM (((Tbl_LocalGroupsGlobalGroups INNER JOIN Tbl_GlobalGroupsUsers ON "
     "Tbl_LocalGroupsGlobalGroups.GlobalGroupID = Tbl_GlobalGroupsUsers.GlobalGroupID) INNER JOIN "
     "Tbl_LocalGroups ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = Tbl_LocalGroups.ID) INNER JOIN "
     "Tbl_LocalGroupFolderPermission ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = "
     "Tbl_LocalGroupFolderPermission.LocalGroupID) INNER JOIN Tbl_Folders ON "
     "Tbl_LocalGroupFolderPermission.FolderID = Tbl_Folders.ID WHERE Tbl_GlobalGroupsUsers.UserID = ?1 "
     "UNION SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
     "Tbl_UserFolderPermission.Permission, 'N/A' AS LocalGroup, 'N/A' AS Server FROM Tbl_Folders INNER "
     "JOIN Tbl_UserFolderPermission ON Tbl_Folders.ID = Tbl_UserFolderPermission.FolderID WHERE "
     "Tbl_UserFolderPermission.UserID = ?1 ORDER BY FolderName"},
    {"clsUsers.getSW", "UserID FROM Tbl_UserHW", byId<&clsUsers::getSW>,
     "SELECT Tbl_SW.ID, Tbl_SW.Type, Tbl_SW.Manufacturer, Tbl_SW.Name, Tbl_SW.Version, "
     "Tbl_SW.Description FROM (Tbl_UserHW INNER JOIN Tbl_SWHW ON Tbl_UserHW.HWID = Tbl_SWHW.HWID) INNER "
     "JOIN Tbl_SW ON Tbl_SWHW.SWID = Tbl_SW.ID WHERE Tbl_UserHW.UserID = ?1 ORDER BY Tbl_SW.Type, "
     "Tbl_SW.Manufacturer, Tbl_SW.Name, Tbl_SW.Version, Tbl_SW.Description"},
    {"clsUsers.getNotGlobalGroups", "UserID FROM Tbl_GlobalGroupsUsers", byId<&clsUsers::getNotGlobalGroups>,
     "SELECT * FROM Tbl_GlobalGroups WHERE ID NOT IN (SELECT GlobalGroupID AS ID FROM "
     "Tbl_GlobalGroupsUsers WHERE UserID = ?1) ORDER BY Name"},
    {"clsUsers.getRooms", "UserID FROM Tbl_RoomUsers", byId<&clsUsers::getRooms>,
     "SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM Tbl_RoomUsers INNER JOIN "
     "Tbl_Rooms ON Tbl_RoomUsers.RoomID = Tbl_Rooms.ID WHERE Tbl_RoomUsers.UserID = ?1 ORDER BY "
     "Tbl_Rooms.RoomNumber"},
    {"clsUsers.getNotRooms", "UserID FROM Tbl_RoomUsers", byId<&clsUsers::getNotRooms>,
     "SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM Tbl_Rooms WHERE Tbl_Rooms.ID"
     " NOT IN (SELECT RoomID AS ID FROM Tbl_RoomUsers WHERE UserID = ?1) ORDER BY RoomNumber"},
    {"clsUsers.getNotHW", "UserID FROM Tbl_UserHW", byId<&clsUsers::getNotHW>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, SerialNumber, CompanyPropertyNumber, Usage, IPAddress "
     "FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_HW.ID NOT IN "
     "(SELECT HWID AS ID FROM Tbl_UserHW WHERE UserID = ?1) ORDER BY {hwtype}"},
    {"clsUsers.getHW", "UserID FROM Tbl_UserHW", byId<&clsUsers::getHW>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, Tbl_HW.SerialNumber, Tbl_HW.CompanyPropertyNumber, "
     "Tbl_HW.Usage, Tbl_HW.IPAddress FROM (Tbl_UserHW INNER JOIN Tbl_HW ON Tbl_UserHW.HWID = Tbl_HW.ID) "
     "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_UserHW.UserID = ?1 ORDER BY "
     "{hwtype}"},
    {"clsGlobalGroups.getAll", nullptr, plain<&clsGlobalGroups::getAll>,
     "SELECT * FROM Tbl_GlobalGroups ORDER BY Name"},
    {"clsGlobalGroups.getAllGlobalGroupNames", nullptr, plain<&clsGlobalGroups::getAllGlobalGroupNames>,
     "SELECT ID, ifnull(Server, '') || '\\' || ifnull(Name, '') AS Name FROM Tbl_GlobalGroups ORDER BY "
     "Name"},
    {"clsGlobalGroups.Find", nullptr, findByName<clsGlobalGroups>,
     "SELECT * FROM Tbl_GlobalGroups WHERE Name LIKE '%er%' ORDER BY Name"},
    {"clsGlobalGroups.getNotLocalGroupMembers", "LocalGroupID FROM Tbl_LocalGroupsGlobalGroups", byId<&clsGlobalGroups::getNotLocalGroupMembers>,
     "SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name, Tbl_GlobalGroups.Server, "
     "Tbl_GlobalGroups.Description FROM Tbl_GlobalGroups WHERE ID NOT IN (SELECT GlobalGroupID FROM "
     "Tbl_LocalGroupsGlobalGroups WHERE LocalGroupID = ?1) ORDER BY Name"},
    {"clsGlobalGroups.getUsers", "GlobalGroupID FROM Tbl_GlobalGroupsUsers", byId<&clsGlobalGroups::getUsers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_GlobalGroupsUsers INNER JOIN Tbl_Users ON "
     "Tbl_GlobalGroupsUsers.UserID = Tbl_Users.UserID WHERE Tbl_GlobalGroupsUsers.GlobalGroupID = ?1 "
     "ORDER BY LastName"},
    {"clsGlobalGroups.getFolders", "GlobalGroupID FROM Tbl_GlobalGroupFolderPermission", byId<&clsGlobalGroups::getFolders>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
     "Tbl_GlobalGroupFolderPermission.Permission FROM Tbl_GlobalGroupFolderPermission INNER JOIN "
     "Tbl_Folders ON Tbl_GlobalGroupFolderPermission.FolderID = Tbl_Folders.ID WHERE "
     "Tbl_GlobalGroupFolderPermission.GlobalGroupID = ?1 ORDER BY FolderName"},
    {"clsGlobalGroups.getLocalGroupMembers", "LocalGroupID FROM Tbl_LocalGroupsGlobalGroups", byId<&clsGlobalGroups::getLocalGroupMembers>,
     "SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name, Tbl_GlobalGroups.Server, "
     "Tbl_GlobalGroups.Description FROM Tbl_LocalGroupsGlobalGroups INNER JOIN Tbl_GlobalGroups ON "
     "Tbl_LocalGroupsGlobalGroups.GlobalGroupID = Tbl_GlobalGroups.ID WHERE "
     "Tbl_LocalGroupsGlobalGroups.LocalGroupID = ?1 ORDER BY Name"},
    {"clsGlobalGroups.getLocalGroups", "GlobalGroupID FROM Tbl_LocalGroupsGlobalGroups", byId<&clsGlobalGroups::getLocalGroups>,
     "SELECT Tbl_LocalGroups.ID, Tbl_LocalGroups.Name, Tbl_LocalGroups.Server, "
     "Tbl_LocalGroups.Description FROM Tbl_LocalGroups INNER JOIN Tbl_LocalGroupsGlobalGroups ON "
     "Tbl_LocalGroups.ID = Tbl_LocalGroupsGlobalGroups.LocalGroupID WHERE "
     "Tbl_LocalGroupsGlobalGroups.GlobalGroupID = ?1 ORDER BY Name"},
    {"clsGlobalGroups.getNotLocalGroups", "GlobalGroupID FROM Tbl_LocalGroupsGlobalGroups", byId<&clsGlobalGroups::getNotLocalGroups>,
     "SELECT * FROM Tbl_LocalGroups WHERE ID NOT IN (SELECT LocalGroupID AS ID FROM "
     "Tbl_LocalGroupsGlobalGroups WHERE GlobalGroupID= ?1) ORDER BY Name"},
    {"clsLocalGroups.Find", nullptr, findByName<clsLocalGroups>,
     "SELECT * FROM Tbl_LocalGroups WHERE Name LIKE '%er%' ORDER BY Name"},
    {"clsLocalGroups.getAll", nullptr, plain<&clsLocalGroups::getAll>,
     "SELECT * FROM Tbl_LocalGroups ORDER BY Name"},
    {"clsLocalGroups.getAllLocalGroupNames", nullptr, plain<&clsLocalGroups::getAllLocalGroupNames>,
     "SELECT ID, ifnull(Server, '') || '\\' || ifnull(Name, '') AS Name FROM Tbl_LocalGroups ORDER BY "
     "Name"},
    {"clsLocalGroups.getGlobalGroups", "LocalGroupID FROM Tbl_LocalGroupsGlobalGroups", idFirst<&clsLocalGroups::getGlobalGroups>,
     "SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name, Tbl_GlobalGroups.Server, "
     "Tbl_GlobalGroups.Description FROM Tbl_GlobalGroups INNER JOIN Tbl_LocalGroupsGlobalGroups ON "
     "Tbl_GlobalGroups.ID = Tbl_LocalGroupsGlobalGroups.GlobalGroupID WHERE "
     "Tbl_LocalGroupsGlobalGroups.LocalGroupID = ?1 ORDER BY Tbl_GlobalGroups.Name"},
    {"clsLocalGroups.getUsers", "LocalGroupID FROM Tbl_LocalGroupsUsers", idFirst<&clsLocalGroups::getUsers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_LocalGroupsUsers INNER JOIN Tbl_Users ON Tbl_LocalGroupsUsers.UserID"
     " = Tbl_Users.UserID WHERE Tbl_LocalGroupsUsers.LocalGroupID = ?1 ORDER BY LastName"},
    {"clsLocalGroups.getFolders", "LocalGroupID FROM Tbl_LocalGroupFolderPermission", byId<&clsLocalGroups::getFolders>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
     "Tbl_LocalGroupFolderPermission.Permission FROM Tbl_LocalGroupFolderPermission INNER JOIN "
     "Tbl_Folders ON Tbl_LocalGroupFolderPermission.FolderID = Tbl_Folders.ID WHERE "
     "Tbl_LocalGroupFolderPermission.LocalGroupID = ?1 ORDER BY Tbl_Folders.FolderName"},
    {"clsFolders.getAll", nullptr, plain<&clsFolders::getAll>,
     "SELECT * FROM Tbl_Folders ORDER BY FolderName"},
    {"clsFolders.Find", nullptr, findByName<clsFolders>,
     "SELECT * FROM Tbl_Folders WHERE FolderName LIKE '%er%' ORDER BY FolderName"},
    {"clsFolders.getAllFolderDefaultPermissions", nullptr, plain<&clsFolders::getAllFolderDefaultPermissions>,
     "SELECT * FROM Tbl_FolderDefaultPermissions ORDER BY Account"},
    {"clsFolders.getUsers", "FolderID FROM Tbl_UserFolderPermission", byId<&clsFolders::getUsers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName, Tbl_UserFolderPermission.Permission FROM Tbl_Users INNER JOIN "
     "Tbl_UserFolderPermission ON Tbl_Users.UserID = Tbl_UserFolderPermission.UserID WHERE "
     "Tbl_UserFolderPermission.FolderID = ?1"},
    {"clsFolders.getUsersForPermissionWizard", "FolderID FROM Tbl_UserFolderPermission", byId<&clsFolders::getUsersForPermissionWizard>,
     "SELECT Tbl_Users.UserID, ifnull(Tbl_Users.LastName, '') || ' ' || ifnull(Tbl_Users.FirstName, '') "
     "AS DisplayName, Tbl_Users.UserName, Tbl_Users.ServerName, Tbl_UserFolderPermission.Permission FROM"
     " Tbl_Users INNER JOIN Tbl_UserFolderPermission ON Tbl_Users.UserID = "
     "Tbl_UserFolderPermission.UserID WHERE Tbl_UserFolderPermission.FolderID = ?1 ORDER BY LastName"},
    {"clsFolders.getNotUsersForPermissionWizard", "FolderID FROM Tbl_UserFolderPermission", byId<&clsFolders::getNotUsersForPermissionWizard>,
     "SELECT Tbl_Users.UserID, ifnull(Tbl_Users.LastName, '') || ' ' || ifnull(Tbl_Users.FirstName, '') "
     "AS DisplayName, Tbl_Users.UserName, Tbl_Users.ServerName, 'N/A' AS Permission FROM Tbl_Users WHERE"
     " Tbl_Users.UserID NOT IN (SELECT UserID FROM Tbl_UserFolderPermission WHERE FolderID = ?1) ORDER "
     "BY LastName"},
    {"clsFolders.getNotUsers", "FolderID FROM Tbl_UserFolderPermission", byId<&clsFolders::getNotUsers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName, Tbl_UserFolderPermission.Permission FROM Tbl_Users INNER JOIN "
     "Tbl_UserFolderPermission ON Tbl_Users.UserID = Tbl_UserFolderPermission.UserID WHERE "
     "Tbl_UserFolderPermission.FolderID = ?1 UNION SELECT Tbl_Users.UserID, Tbl_Users.LastName, "
     "Tbl_Users.FirstName, Tbl_Users.UserName, Tbl_Users.ServerName, "
     "Tbl_LocalGroupFolderPermission.Permission FROM ((Tbl_Users INNER JOIN Tbl_GlobalGroupsUsers ON "
     "Tbl_Users.UserID = Tbl_GlobalGroupsUsers.UserID) INNER JOIN Tbl_LocalGroupsGlobalGroups ON "
     "Tbl_GlobalGroupsUsers.GlobalGroupID = Tbl_LocalGroupsGlobalGroups.GlobalGroupID) INNER JOIN "
     "Tbl_LocalGroupFolderPermission ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = "
     "Tbl_LocalGroupFolderPermission.LocalGroupID WHERE Tbl_LocalGroupFolderPermission.FolderID = ?1"},
    {"clsFolders.getLocalGroups", "ID FROM Tbl_Folders", byId<&clsFolders::getLocalGroups>,
     "SELECT Tbl_LocalGroups.ID, Tbl_LocalGroups.Name, Tbl_LocalGroups.Server, "
     "Tbl_LocalGroups.Description, Tbl_LocalGroupFolderPermission.Permission FROM (Tbl_Folders INNER "
     "JOIN Tbl_LocalGroupFolderPermission ON Tbl_Folders.ID = Tbl_LocalGroupFolderPermission.FolderID) "
     "INNER JOIN Tbl_LocalGroups ON Tbl_LocalGroupFolderPermission.LocalGroupID = Tbl_LocalGroups.ID "
     "WHERE Tbl_Folders.ID = ?1 ORDER BY Tbl_LocalGroups.Name"},
    {"clsFolders.getNotLocalGroups", "FolderID FROM Tbl_LocalGroupFolderPermission", byId<&clsFolders::getNotLocalGroups>,
     "SELECT Tbl_LocalGroups.ID, Tbl_LocalGroups.Name, Tbl_LocalGroups.Server, "
     "Tbl_LocalGroups.Description, 'N/A' AS Permission FROM Tbl_LocalGroups WHERE Tbl_LocalGroups.ID NOT"
     " IN (SELECT LocalGroupID FROM Tbl_LocalGroupFolderPermission WHERE FolderID= ?1) ORDER BY "
     "Tbl_LocalGroups.Name"},
    {"clsFolders.getGlobalGroups", "FolderID FROM Tbl_GlobalGroupFolderPermission", byId<&clsFolders::getGlobalGroups>,
     "SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name, Tbl_GlobalGroups.Server, "
     "Tbl_GlobalGroups.Description, Tbl_GlobalGroupFolderPermission.Permission FROM "
     "Tbl_GlobalGroupFolderPermission INNER JOIN Tbl_GlobalGroups ON "
     "Tbl_GlobalGroupFolderPermission.GlobalGroupID = Tbl_GlobalGroups.ID WHERE "
     "Tbl_GlobalGroupFolderPermission.FolderID = ?1 ORDER BY Tbl_GlobalGroups.Name"},
    {"clsFolders.getNotGlobalGroups", "FolderID FROM Tbl_GlobalGroupFolderPermission", byId<&clsFolders::getNotGlobalGroups>,
     "SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name, Tbl_GlobalGroups.Server, "
     "Tbl_GlobalGroups.Description, 'N/A' AS Permission FROM Tbl_GlobalGroups WHERE Tbl_GlobalGroups.ID "
     "NOT IN (SELECT GlobalGroupID FROM Tbl_GlobalGroupFolderPermission WHERE FolderID= ?1) ORDER BY "
     "Tbl_GlobalGroups.Name"},
    {"clsFolders.getUserMembers", "UserID FROM Tbl_UserFolderPermission", byId<&clsFolders::getUserMembers>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
     "Tbl_UserFolderPermission.Permission FROM Tbl_Folders INNER JOIN Tbl_UserFolderPermission ON "
     "Tbl_Folders.ID = Tbl_UserFolderPermission.FolderID WHERE Tbl_UserFolderPermission.UserID = ?1 "
     "ORDER BY FolderName"},
    {"clsFolders.getNotUserMembers", "UserID FROM Tbl_UserFolderPermission", byId<&clsFolders::getNotUserMembers>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, 'N/A' AS Permission FROM "
     "Tbl_Folders WHERE Tbl_Folders.ID NOT IN (SELECT FolderID FROM Tbl_UserFolderPermission WHERE "
     "UserID = ?1) ORDER BY Tbl_Folders.FolderName"},
    {"clsFolders.getLocalGroupMembers", "LocalGroupID FROM Tbl_LocalGroupFolderPermission", byId<&clsFolders::getLocalGroupMembers>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
     "Tbl_LocalGroupFolderPermission.Permission FROM Tbl_LocalGroupFolderPermission INNER JOIN "
     "Tbl_Folders ON Tbl_LocalGroupFolderPermission.FolderID = Tbl_Folders.ID WHERE "
     "Tbl_LocalGroupFolderPermission.LocalGroupID = ?1 ORDER BY Tbl_Folders.FolderName"},
    {"clsFolders.getNotLocalGroupMembers", "LocalGroupID FROM Tbl_LocalGroupFolderPermission", byId<&clsFolders::getNotLocalGroupMembers>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, 'N/A' AS Permission FROM "
     "Tbl_Folders WHERE Tbl_Folders.ID NOT IN (SELECT FolderID FROM Tbl_LocalGroupFolderPermission WHERE"
     " LocalGroupID = ?1) ORDER BY FolderName"},
    {"clsFolders.getGlobalGroupMembers", "GlobalGroupID FROM Tbl_GlobalGroupFolderPermission", byId<&clsFolders::getGlobalGroupMembers>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
     "Tbl_GlobalGroupFolderPermission.Permission FROM Tbl_GlobalGroupFolderPermission INNER JOIN "
     "Tbl_Folders ON Tbl_GlobalGroupFolderPermission.FolderID = Tbl_Folders.ID WHERE "
     "Tbl_GlobalGroupFolderPermission.GlobalGroupID = ?1 ORDER BY FolderName"},
    {"clsFolders.getNotGlobalGroupMembers", "GlobalGroupID FROM Tbl_GlobalGroupFolderPermission", byId<&clsFolders::getNotGlobalGroupMembers>,
     "SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, 'N/A' AS Permission FROM "
     "Tbl_Folders WHERE Tbl_Folders.ID NOT IN (SELECT FolderID FROM Tbl_GlobalGroupFolderPermission "
     "WHERE GlobalGroupID = ?1) ORDER BY FolderName"},
    {"clsHW.getOfType", "HWTypeID FROM Tbl_HW", byId<&clsHW::getOfType>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, Tbl_HW.SerialNumber, Tbl_HW.WarrantyNumber, "
     "Tbl_HW.CompanyPropertyNumber, Tbl_HW.Usage, Tbl_HW.IPAddress FROM Tbl_HW INNER JOIN Tbl_HWType ON "
     "Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_HW.HWTypeID = ?1 ORDER BY SerialNumber"},
    {"clsHW.getRoom", "HWID FROM Tbl_RoomHW", byId<&clsHW::getRoom>,
     "SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM Tbl_RoomHW INNER JOIN "
     "Tbl_Rooms ON Tbl_RoomHW.RoomID = Tbl_Rooms.ID WHERE Tbl_RoomHW.HWID = ?1 ORDER BY "
     "Tbl_Rooms.RoomNumber"},
    {"clsHW.getNotRoom", "HWID FROM Tbl_RoomHW", byId<&clsHW::getNotRoom>,
     "SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM Tbl_Rooms WHERE Tbl_Rooms.ID"
     " NOT IN (SELECT RoomID AS ID FROM Tbl_RoomHW WHERE HWID = ?1) ORDER BY RoomNumber"},
    {"clsHW.getNotUser", "HWID FROM Tbl_UserHW", byId<&clsHW::getNotUser>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_Users WHERE Tbl_Users.UserID NOT IN (SELECT UserID FROM Tbl_UserHW "
     "WHERE HWID = ?1) ORDER BY LastName"},
    {"clsHW.getUser", "HWID FROM Tbl_UserHW", byId<&clsHW::getUser>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_Users INNER JOIN Tbl_UserHW ON Tbl_Users.UserID = Tbl_UserHW.UserID "
     "WHERE Tbl_UserHW.HWID = ?1 ORDER BY Tbl_Users.LastName"},
    {"clsHW.getSW", "HWID FROM Tbl_SWHW", byId<&clsHW::getSW>,
     "SELECT Tbl_SW.ID, Tbl_SW.Type, Tbl_SW.Manufacturer, Tbl_SW.Name, Tbl_SW.Version FROM Tbl_SWHW "
     "INNER JOIN Tbl_SW ON Tbl_SWHW.SWID = Tbl_SW.ID WHERE Tbl_SWHW.HWID = ?1 ORDER BY Tbl_SW.Type, "
     "Tbl_SW.Manufacturer, Tbl_SW.Name, Tbl_SW.Version"},
    {"clsHW.getNotSW", "HWID FROM Tbl_SWHW", byId<&clsHW::getNotSW>,
     "SELECT Tbl_SW.ID, Tbl_SW.Type, Tbl_SW.Manufacturer, Tbl_SW.Name, Tbl_SW.Version FROM Tbl_SW WHERE "
     "Tbl_SW.ID NOT IN (SELECT SWID AS ID FROM Tbl_SWHW WHERE HWID = ?1) ORDER BY Tbl_SW.Type, "
     "Tbl_SW.Manufacturer, Tbl_SW.Name, Tbl_SW.Version"},
    {"clsHW.getSuppliers", nullptr, plain<&clsHW::getSuppliers>,
     "SELECT DISTINCT 0 AS ID, Supplier FROM Tbl_HW ORDER BY Supplier"},
    {"clsHW.getStatus", nullptr, plain<&clsHW::getStatus>,
     "SELECT DISTINCT 0 AS ID, Status FROM Tbl_HW ORDER BY Status"},
    {"clsHW.getUsage", nullptr, plain<&clsHW::getUsage>,
     "SELECT DISTINCT 0 AS ID, Usage FROM Tbl_HW ORDER BY Usage"},
    {"clsHW.getAll", nullptr, plain<&clsHW::getAll>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, SerialNumber, CompanyPropertyNumber, Usage, IPAddress "
     "FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID ORDER BY {hwtype}, "
     "SerialNumber"},
    {"clsHW.getUnAssigned", nullptr, plain<&clsHW::getUnAssigned>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, SerialNumber, CompanyPropertyNumber, Usage, IPAddress "
     "FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_HW.ID NOT IN "
     "(SELECT HWID AS ID FROM Tbl_UserHW) AND Tbl_HW.ID NOT IN (SELECT HWID AS ID FROM Tbl_RoomHW) ORDER"
     " BY {hwtype}"},
    {"clsHW.GetByID", "ID FROM Tbl_HW", byId<&clsHW::GetByID>,
     "SELECT Tbl_HW.*, {hwtype} AS HWType FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = "
     "Tbl_HWType.ID WHERE Tbl_HW.ID = ?1 ORDER BY {hwtype}"},
    {"clsHWType.getAll", nullptr, plain<&clsHWType::getAll>,
     "SELECT * FROM Tbl_HWType ORDER BY Type, Manufacturer, Model, TypeNumber"},
    {"clsHWType.Find", nullptr, findHardwareTypes,
     "SELECT * FROM Tbl_HWType WHERE Type LIKE '%o%' AND Manufacturer LIKE '%a%' AND Model LIKE '%%'"
     " ORDER BY Type, Manufacturer, Model, TypeNumber"},
    {"clsHWType.getDisplayList", nullptr, plain<&clsHWType::getDisplayList>,
     "SELECT Tbl_HWType.ID, {hwtype} AS HardwareType FROM Tbl_HWType ORDER BY {hwtype}"},
    {"clsHWType.getTypes", nullptr, plain<&clsHWType::getTypes>,
     "SELECT DISTINCT 0 AS ID, Type FROM Tbl_HWType ORDER BY Type"},
    {"clsHWType.getManufacturers", nullptr, plain<&clsHWType::getManufacturers>,
     "SELECT DISTINCT 0 AS ID, Manufacturer FROM Tbl_HWType ORDER BY Manufacturer"},
    {"clsRooms.Find", nullptr, findByName<clsRooms>,
     "SELECT * FROM Tbl_Rooms WHERE RoomNumber LIKE '%er%' ORDER BY RoomNumber"},
    {"clsRooms.getByHardwareType", "HWTypeID FROM Tbl_HW INNER JOIN Tbl_RoomHW ON Tbl_RoomHW.HWID = Tbl_HW.ID", byId<&clsRooms::getByHardwareType>,
     "SELECT Tbl_Rooms.ID, Tbl_Rooms.RoomNumber, Tbl_Rooms.Description FROM (Tbl_Rooms INNER JOIN "
     "Tbl_RoomHW ON Tbl_Rooms.ID = Tbl_RoomHW.RoomID) INNER JOIN Tbl_HW ON Tbl_RoomHW.HWID = Tbl_HW.ID "
     "WHERE Tbl_HW.HWTypeID = ?1 ORDER BY Tbl_Rooms.RoomNumber"},
    {"clsRooms.getUsers", "RoomID FROM Tbl_RoomUsers", byId<&clsRooms::getUsers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_Users INNER JOIN Tbl_RoomUsers ON Tbl_Users.UserID = "
     "Tbl_RoomUsers.UserID WHERE Tbl_RoomUsers.RoomID = ?1 ORDER BY Tbl_Users.LastName"},
    {"clsRooms.getHW", "RoomID FROM Tbl_RoomHW", byId<&clsRooms::getHW>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, Tbl_HW.SerialNumber, Tbl_HW.CompanyPropertyNumber, "
     "Tbl_HW.Usage, Tbl_HW.IPAddress FROM (Tbl_RoomHW INNER JOIN Tbl_HW ON Tbl_RoomHW.HWID = Tbl_HW.ID) "
     "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_RoomHW.RoomID = ?1 ORDER BY "
     "{hwtype}"},
    {"clsRooms.getNotHW", "RoomID FROM Tbl_RoomHW", byId<&clsRooms::getNotHW>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, SerialNumber, CompanyPropertyNumber, Usage, IPAddress "
     "FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_HW.ID NOT IN "
     "(SELECT HWID AS ID FROM Tbl_RoomHW WHERE RoomID = ?1) ORDER BY {hwtype}"},
    {"clsRooms.getNotUsers", "RoomID FROM Tbl_RoomUsers", byId<&clsRooms::getNotUsers>,
     "SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, Tbl_Users.UserName, "
     "Tbl_Users.ServerName FROM Tbl_Users WHERE Tbl_Users.UserID NOT IN (SELECT UserID FROM "
     "Tbl_RoomUsers WHERE RoomID = ?1) ORDER BY LastName"},
    {"clsRooms.getAll", nullptr, plain<&clsRooms::getAll>,
     "SELECT * FROM Tbl_Rooms ORDER BY RoomNumber"},
    {"clsSW.getManufacturers", nullptr, plain<&clsSW::getManufacturers>,
     "SELECT DISTINCT 0 AS ID, Manufacturer FROM Tbl_SW ORDER BY Manufacturer"},
    {"clsSW.getAll", nullptr, plain<&clsSW::getAll>,
     "SELECT * FROM Tbl_SW ORDER BY Type, Manufacturer, Name, Version"},
    {"clsSW.getDisplayNames", nullptr, plain<&clsSW::getDisplayNames>,
     "SELECT ID, ifnull(Type, '') || ' ' || ifnull(Manufacturer, '') || ' ' || ifnull(Name, '') || ' ' || "
     "ifnull(Version, '') AS SWDisplayName FROM Tbl_SW ORDER BY Type, Manufacturer, Name, Version"},
    {"clsSW.getHW", "SWID FROM Tbl_SWHW", byId<&clsSW::getHW>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, Tbl_HW.SerialNumber, Tbl_HW.CompanyPropertyNumber, "
     "Tbl_HW.Usage, Tbl_HW.IPAddress FROM (Tbl_SWHW INNER JOIN Tbl_HW ON Tbl_SWHW.HWID = Tbl_HW.ID) "
     "INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_SWHW.SWID = ?1 ORDER BY "
     "{hwtype}"},
    {"clsSW.getUsers", "SWID FROM Tbl_SWHW", byId<&clsSW::getUsers>,
     "SELECT Tbl_Users.UserID, LastName, FirstName, UserName, Tbl_Users.ServerName FROM (Tbl_Users INNER"
     " JOIN Tbl_UserHW ON Tbl_Users.UserID = Tbl_UserHW.UserID) INNER JOIN Tbl_SWHW ON Tbl_UserHW.HWID ="
     " Tbl_SWHW.HWID WHERE Tbl_SWHW.SWID = ?1 ORDER BY Tbl_Users.LastName, Tbl_Users.FirstName, "
     "Tbl_Users.UserName"},
    {"clsSW.getNotHW", "SWID FROM Tbl_SWHW", byId<&clsSW::getNotHW>,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, SerialNumber, CompanyPropertyNumber, Usage, IPAddress "
     "FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE Tbl_HW.ID NOT IN "
     "(SELECT HWID AS ID FROM Tbl_SWHW WHERE SWID = ?1) ORDER BY {hwtype}"},
    {"clsSW.getTypes", nullptr, plain<&clsSW::getTypes>,
     "SELECT DISTINCT 0 AS ID, Type FROM Tbl_SW ORDER BY Type"},
    {"clsCustomQuery.getAll", nullptr, plain<&clsCustomQuery::getAll>,
     "SELECT * FROM Tbl_CustomQuery ORDER BY Name"},
    {"clsUsers.getByUserNameAndServer", nullptr, userByAccount,
     "SELECT * FROM Tbl_Users WHERE UserName = 'uadams' AND ServerName = 'PRAHA01'"},
    {"clsHW.Find", nullptr, findHardware,
     "SELECT Tbl_HW.ID, {hwtype} AS HardwareType, SerialNumber, CompanyPropertyNumber, Usage, IPAddress "
     "FROM Tbl_HW INNER JOIN Tbl_HWType ON Tbl_HW.HWTypeID = Tbl_HWType.ID WHERE "
     "(SerialNumber LIKE '%1%' OR SerialNumber IS NULL) AND (WorkStationName LIKE '%%' OR "
     "WorkStationName IS NULL) AND (IPAddress LIKE '%%' OR IPAddress IS NULL) AND (AssetNumber LIKE "
     "'%%' OR AssetNumber IS NULL) AND (CompanyPropertyNumber LIKE '%%' OR CompanyPropertyNumber IS "
     "NULL) ORDER BY SerialNumber"},
    {"clsCustomQuery.Execute", nullptr, executeQuery,
     "SELECT Department, Count(*) FROM Tbl_Users GROUP BY Department ORDER BY Department"},
};
// clang-format on

} // namespace

std::span<const Reader> readers()
{
    return table;
}

int subjectOf(const Reader &reader, const QString &path)
{
    if (!reader.subject)
        return 0;
    const RawStore store(path);
    RawStatement busiest(store, std::string("SELECT ") + reader.subject +
                                    " GROUP BY 1 ORDER BY Count(*) DESC, 1 LIMIT 1");
    if (!busiest.step())
        throwError(1, u"The sample has nothing to read for."_s);
    return int(busiest.number(0));
}
