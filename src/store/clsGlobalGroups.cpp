#include "store/clsGlobalGroups.h"

#include "store/groups.h"
#include "store/relations.h"
#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

constexpr RelationStatements localGroupsOfGroup = {
    "DELETE FROM Tbl_LocalGroupsGlobalGroups WHERE GlobalGroupID={id}"_L1,
    "SELECT * FROM Tbl_LocalGroupsGlobalGroups WHERE GlobalGroupID ={id} AND  LocalGroupID ={item}"_L1,
    "INSERT INTO Tbl_LocalGroupsGlobalGroups (GlobalGroupID,LocalGroupID) VALUES ({id},{item})"_L1,
};

} // namespace

Report clsGlobalGroups::Delete(const QString &connectionString, std::span<const int> ids,
                               const QStringList &names, Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps,
                      {"DELETE * FROM Tbl_LocalGroupsGlobalGroups WHERE GlobalGroupID ={id}"_L1,
                       "DELETE * FROM Tbl_GlobalGroups WHERE ID ={id}"_L1});
}

void clsGlobalGroups::RemoveUsers(const QString &connectionString, std::span<const int> ids)
{
    writeForEach(connectionString, ids, {"DELETE * FROM Tbl_GlobalGroupsUsers WHERE GlobalGroupID ={id}"_L1});
}

void clsGlobalGroups::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT * from Tbl_GlobalGroups ORDER by Name ASC"_s);
}

void clsGlobalGroups::addFolders(const QString &connectionString, int id, std::span<const int> folders,
                                 const QStringList &permissions, bool clearFirst)
{
    writeRelations(connectionString, foldersOfGroup(GroupKind::Global), id, folders, permissions, clearFirst);
}

void clsGlobalGroups::getAllGlobalGroupNames(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT ID,Server & '\\' & Name as Name from Tbl_GlobalGroups ORDER by Name ASC"_s);
}

void clsGlobalGroups::Find(const QString &connectionString, jet::Recordset &result, const QString &name)
{
    read(connectionString, result,
         joined("SELECT * from Tbl_GlobalGroups WHERE Name LIKE '%{name}%' ORDER by Name ASC"_L1,
                {{"name"_L1, name}}));
}

void clsGlobalGroups::Add(const QString &connectionString, const QString &server, const QString &name,
                          const QString &description, int &id)
{
    withWrites(connectionString, [&](StoreSession &store) {
        addGroup(store, GroupKind::Global, server, name, description, id);
    });
}

void clsGlobalGroups::AddBatch(const QString &connectionString, jet::Recordset &records, bool leaveExisting,
                               Steps &steps, Report &report, AtFailure atFailure)
{
    runBatch(
        connectionString, steps, report, {&report.done, &report.added, &report.updated},
        [&](BatchRun &run) { addGroups(run, GroupKind::Global, records, leaveExisting, report, atFailure); });
}

void clsGlobalGroups::AddUsersBatch(const QString &connectionString, jet::Recordset &records, Steps &steps,
                                    Report &report, AtFailure atFailure)
{
    runBatch(connectionString, steps, report, {&report.done},
             [&](BatchRun &run) { addGroupUsers(run, GroupKind::Global, records, report, atFailure); });
}

void clsGlobalGroups::update(const QString &connectionString, int id, const QString &server,
                             const QString &name, const QString &description)
{
    withWrites(connectionString, [&](StoreSession &store) {
        updateGroup(store, GroupKind::Global, id, server, name, description);
    });
}

void clsGlobalGroups::addUsers(const QString &connectionString, int id, std::span<const int> users)
{
    replaceRelations(connectionString, usersOfGroup(GroupKind::Global), id, users);
}

void clsGlobalGroups::addLocalGroups(const QString &connectionString, int id,
                                     std::span<const int> localGroups)
{
    replaceRelations(connectionString, localGroupsOfGroup, id, localGroups);
}

void clsGlobalGroups::getNotLocalGroupMembers(const QString &connectionString, jet::Recordset &result,
                                              int localGroup)
{
    read(connectionString, result,
         withId("SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name,Tbl_GlobalGroups.Server, "
                "Tbl_GlobalGroups.Description FROM Tbl_GlobalGroups "
                "WHERE ID NOT IN (SELECT GlobalGroupID FROM Tbl_LocalGroupsGlobalgroups "
                "WHERE LocalGroupID ={id}) ORDER BY Name ASC"_L1,
                localGroup));
}

void clsGlobalGroups::getUsers(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName, Tbl_Users.ServerName FROM Tbl_GlobalGroupsUsers "
                "INNER JOIN Tbl_Users ON Tbl_GlobalGroupsUsers.UserID = Tbl_Users.UserID "
                "WHERE Tbl_GlobalGroupsUsers.GlobalGroupID={id} ORDER BY LastName ASC"_L1,
                id));
}

void clsGlobalGroups::getFolders(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "Tbl_GlobalGroupFolderPermission.Permission FROM Tbl_GlobalGroupFolderPermission "
                "INNER JOIN Tbl_Folders ON Tbl_GlobalGroupFolderPermission.FolderID = Tbl_Folders.ID "
                "WHERE Tbl_GlobalGroupFolderPermission.GlobalGroupID={id} Order By FolderName ASC"_L1,
                id));
}

void clsGlobalGroups::getLocalGroupMembers(const QString &connectionString, jet::Recordset &result,
                                           int localGroup)
{
    read(connectionString, result,
         withId("SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name,Tbl_GlobalGroups.Server, "
                "Tbl_GlobalGroups.Description FROM Tbl_LocalGroupsGlobalGroups "
                "INNER JOIN Tbl_GlobalGroups "
                "ON Tbl_LocalGroupsGlobalGroups.GlobalGroupID = Tbl_GlobalGroups.ID "
                "WHERE Tbl_LocalGroupsGlobalGroups.LocalGroupID={id} ORDER BY Name ASC"_L1,
                localGroup));
}

void clsGlobalGroups::getLocalGroups(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_LocalGroups.ID, Tbl_LocalGroups.Name,Tbl_LocalGroups.Server, "
                "Tbl_LocalGroups.Description FROM Tbl_LocalGroups "
                "INNER JOIN Tbl_LocalGroupsGlobalGroups "
                "ON Tbl_LocalGroups.ID = Tbl_LocalGroupsGlobalGroups.LocalGroupID "
                "WHERE Tbl_LocalGroupsGlobalGroups.GlobalGroupID={id} ORDER BY NAME ASC"_L1,
                id));
}

void clsGlobalGroups::getNotLocalGroups(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT * FROM Tbl_LocalGroups WHERE ID NOT IN (SELECT LocalGroupID as ID "
                "FROM Tbl_LocalGroupsGlobalGroups WHERE GlobalGroupID= {id}) ORDER BY [Name] ASC"_L1,
                id));
}
