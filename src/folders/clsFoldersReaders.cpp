#include "folders/clsFolders.h"

#include "store/statement.h"

using namespace Qt::StringLiterals;

void clsFolders::getUsers(const QString &connectionString, jet::Recordset &result, int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName, Tbl_UserFolderPermission.Permission "
                "FROM Tbl_Users INNER JOIN Tbl_UserFolderPermission "
                "ON Tbl_Users.UserID = Tbl_UserFolderPermission.UserID "
                "WHERE Tbl_UserFolderPermission.FolderID = {id}"_L1,
                folder));
}

void clsFolders::getUsersForPermissionWizard(const QString &connectionString, jet::Recordset &result,
                                             int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName & ' ' & Tbl_Users.FirstName as DisplayName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName , Tbl_UserFolderPermission.Permission "
                "FROM Tbl_Users INNER JOIN Tbl_UserFolderPermission "
                "ON Tbl_Users.UserID = Tbl_UserFolderPermission.UserID "
                "WHERE Tbl_UserFolderPermission.FolderID = {id} ORDER BY LastName ASC"_L1,
                folder));
}

void clsFolders::getNotUsersForPermissionWizard(const QString &connectionString, jet::Recordset &result,
                                                int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName & ' ' & Tbl_Users.FirstName as DisplayName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName, 'N/A' as Permission FROM Tbl_Users "
                "WHERE Tbl_Users.UserID NOT IN (SELECT USERID from Tbl_UserFolderPermission "
                "WHERE FolderID = {id}) ORDER BY LastName ASC"_L1,
                folder));
}

void clsFolders::getNotUsers(const QString &connectionString, jet::Recordset &result, int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName, Tbl_UserFolderPermission.Permission "
                "FROM Tbl_Users INNER JOIN Tbl_UserFolderPermission "
                "ON Tbl_Users.UserID = Tbl_UserFolderPermission.UserID "
                "WHERE Tbl_UserFolderPermission.FolderID = {id} "
                "UNION SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName, Tbl_LocalGroupFolderPermission.Permission "
                "FROM ((Tbl_Users INNER JOIN Tbl_GlobalGroupsUsers "
                "ON Tbl_Users.UserID = Tbl_GlobalGroupsUsers.UserID) "
                "INNER JOIN Tbl_LocalGroupsGlobalGroups "
                "ON Tbl_GlobalGroupsUsers.GlobalGroupID = Tbl_LocalGroupsGlobalGroups.GlobalGroupID) "
                "INNER JOIN Tbl_LocalGroupFolderPermission "
                "ON Tbl_LocalGroupsGlobalGroups.LocalGroupID = Tbl_LocalGroupFolderPermission.LocalGroupID "
                "WHERE Tbl_LocalGroupFolderPermission.FolderID = {id}"_L1,
                folder));
}

void clsFolders::getLocalGroups(const QString &connectionString, jet::Recordset &result, int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_LocalGroups.ID, Tbl_LocalGroups.Name, "
                "Tbl_LocalGroups.Server,Tbl_LocalGroups.Description, "
                "Tbl_LocalGroupFolderPermission.Permission FROM (Tbl_Folders "
                "INNER JOIN Tbl_LocalGroupFolderPermission "
                "ON Tbl_Folders.ID = Tbl_LocalGroupFolderPermission.FolderID) "
                "INNER JOIN Tbl_LocalGroups "
                "ON Tbl_LocalGroupFolderPermission.LocalGroupID = Tbl_LocalGroups.ID "
                "WHERE Tbl_Folders.ID = {id} ORDER BY Tbl_LocalGroups.Name ASC "_L1,
                folder));
}

void clsFolders::getNotLocalGroups(const QString &connectionString, jet::Recordset &result, int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_LocalGroups.ID, Tbl_LocalGroups.Name,Tbl_LocalGroups.Server, "
                "Tbl_LocalGroups.Description, 'N/A' as Permission FROM Tbl_LocalGroups "
                "WHERE Tbl_LocalGroups.ID NOT IN (SELECT LocalGroupID FROM Tbl_LocalGroupFolderPermission "
                "WHERE FolderID= {id}) ORDER BY Tbl_LocalGroups.Name ASC "_L1,
                folder));
}

void clsFolders::getGlobalGroups(const QString &connectionString, jet::Recordset &result, int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name, "
                "Tbl_GlobalGroups.Server,Tbl_GlobalGroups.Description, "
                "Tbl_GlobalGroupFolderPermission.Permission FROM Tbl_GlobalGroupFolderPermission "
                "INNER JOIN Tbl_GlobalGroups "
                "ON Tbl_GlobalGroupFolderPermission.GlobalGroupID = Tbl_GlobalGroups.ID "
                "WHERE Tbl_GlobalGroupFolderPermission.FolderID={id} Order By Tbl_GlobalGroups.Name ASC"_L1,
                folder));
}

void clsFolders::getNotGlobalGroups(const QString &connectionString, jet::Recordset &result, int folder)
{
    read(connectionString, result,
         withId("SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name,Tbl_GlobalGroups.Server, "
                "Tbl_GlobalGroups.Description, 'N/A' as Permission FROM Tbl_GlobalGroups "
                "WHERE Tbl_GlobalGroups.ID NOT IN "
                "(SELECT GlobalGroupID FROM Tbl_GlobalGroupFolderPermission "
                "WHERE FolderID= {id}) ORDER BY Tbl_GlobalGroups.Name ASC "_L1,
                folder));
}

void clsFolders::getUserMembers(const QString &connectionString, jet::Recordset &result, int user)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "Tbl_UserFolderPermission.Permission FROM Tbl_Folders "
                "INNER JOIN Tbl_UserFolderPermission ON Tbl_Folders.ID = Tbl_UserFolderPermission.FolderID "
                "WHERE Tbl_UserFolderPermission.UserID={id} ORDER BY FolderName ASC"_L1,
                user));
}

void clsFolders::getNotUserMembers(const QString &connectionString, jet::Recordset &result, int user)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "'N/A' AS Permission From Tbl_Folders WHERE Tbl_Folders.ID NOT IN "
                "(SELECT FolderID From Tbl_UserFolderPermission WHERE UserID = {id}) "
                "ORDER BY Tbl_Folders.FolderName ASC"_L1,
                user));
}

void clsFolders::getLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "Tbl_LocalGroupFolderPermission.Permission FROM Tbl_LocalGroupFolderPermission "
                "INNER JOIN Tbl_Folders ON Tbl_LocalGroupFolderPermission.FolderID = Tbl_Folders.ID "
                "Where Tbl_LocalGroupFolderPermission.LocalGroupID = {id} "
                "ORDER BY Tbl_Folders.FolderName ASC"_L1,
                group));
}

void clsFolders::getNotLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "'N/A' as Permission FROM Tbl_Folders WHERE Tbl_Folders.ID NOT IN "
                "(SELECT FolderID FROM Tbl_LocalGroupFolderPermission WHERE LocalGroupID = {id}) "
                "ORDER BY FolderNAME ASC "_L1,
                group));
}

void clsFolders::getGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "Tbl_GlobalGroupFolderPermission.Permission FROM Tbl_GlobalGroupFolderPermission "
                "INNER JOIN Tbl_Folders ON Tbl_GlobalGroupFolderPermission.FolderID = Tbl_Folders.ID "
                "WHERE  Tbl_GlobalGroupFolderPermission.GlobalGroupID={id} Order By FolderName ASC"_L1,
                group));
}

void clsFolders::getNotGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "'N/A' as Permission FROM Tbl_Folders WHERE Tbl_Folders.ID NOT IN "
                "(SELECT FolderID FROM Tbl_GlobalGroupFolderPermission WHERE GlobalGroupID = {id}) "
                "ORDER BY FolderNAME ASC "_L1,
                group));
}
