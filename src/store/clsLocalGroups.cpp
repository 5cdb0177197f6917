#include "store/clsLocalGroups.h"

#include "store/groups.h"
#include "store/relations.h"
#include "store/statement.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto unknownGroup = "The specified Local Group does not exist in your Database"_L1;

} // namespace

void clsLocalGroups::AddUsersBatch(const QString &connectionString, jet::Recordset &records, Steps &steps,
                                   Report &report, AtFailure atFailure)
{
    runBatch(connectionString, steps, report, {&report.done},
             [&](BatchRun &run) { addGroupUsers(run, GroupKind::Local, records, report, atFailure); });
}

void clsLocalGroups::addUsers(const QString &connectionString, int id, std::span<const int> users)
{
    replaceRelations(connectionString, usersOfGroup(GroupKind::Local), id, users);
}

void clsLocalGroups::AddBatch(const QString &connectionString, jet::Recordset &records, bool leaveExisting,
                              Steps &steps, Report &report, AtFailure atFailure)
{
    runBatch(
        connectionString, steps, report, {&report.done, &report.added, &report.updated},
        [&](BatchRun &run) { addGroups(run, GroupKind::Local, records, leaveExisting, report, atFailure); });
}

void clsLocalGroups::Find(const QString &connectionString, jet::Recordset &result, const QString &name)
{
    read(connectionString, result,
         joined("SELECT * from Tbl_LocalGroups WHERE Name LIKE '%{name}%' ORDER by Name ASC"_L1,
                {{"name"_L1, name}}));
}

Report clsLocalGroups::Delete(const QString &connectionString, std::span<const int> ids,
                              const QStringList &names, Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps,
                      {"DELETE * FROM Tbl_LocalGroupsGlobalGroups WHERE LocalGroupID ={id}"_L1,
                       "DELETE * FROM Tbl_LocalGroupFolderPermission WHERE LocalGroupID ={id}"_L1,
                       "DELETE * FROM Tbl_LocalGroups WHERE ID ={id}"_L1});
}

void clsLocalGroups::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT * from Tbl_LocalGroups ORDER by Name ASC"_s);
}

void clsLocalGroups::getAllLocalGroupNames(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result,
         u"SELECT ID,Server & '\\'& Name as Name from Tbl_LocalGroups ORDER by Name ASC"_s);
}

void clsLocalGroups::getGlobalGroups(const QString &connectionString, int id, jet::Recordset &result)
{
    read(connectionString, result,
         withId("SELECT Tbl_GlobalGroups.ID, Tbl_GlobalGroups.Name,Tbl_GlobalGroups.Server, "
                "Tbl_GlobalGroups.Description FROM Tbl_GlobalGroups "
                "INNER JOIN Tbl_LocalGroupsGlobalGroups "
                "ON Tbl_GlobalGroups.ID = Tbl_LocalGroupsGlobalGroups.GlobalGroupID "
                "WHERE Tbl_LocalGroupsGlobalGroups.LocalGroupID = {id} ORDER BY Tbl_GlobalGroups.Name ASC"_L1,
                id));
}

void clsLocalGroups::getUsers(const QString &connectionString, int id, jet::Recordset &result)
{
    read(connectionString, result,
         withId("SELECT Tbl_Users.UserID, Tbl_Users.LastName, Tbl_Users.FirstName, "
                "Tbl_Users.UserName,Tbl_Users.ServerName FROM Tbl_LocalGroupsUsers "
                "INNER JOIN Tbl_Users ON Tbl_LocalGroupsUsers.UserID = Tbl_Users.UserID "
                "WHERE Tbl_LocalGroupsUsers.LocalGroupID={id} ORDER BY LastName ASC "_L1,
                id));
}

void clsLocalGroups::RemoveUsers(const QString &connectionString, std::span<const int> ids)
{
    writeForEach(connectionString, ids, {"DELETE * FROM Tbl_LocalGroupsUsers WHERE LocalGroupID ={id}"_L1});
}

void clsLocalGroups::getFolders(const QString &connectionString, jet::Recordset &result, int id)
{
    read(connectionString, result,
         withId("SELECT Tbl_Folders.ID, Tbl_Folders.FolderName, Tbl_Folders.Description, "
                "Tbl_LocalGroupFolderPermission.Permission FROM Tbl_LocalGroupFolderPermission "
                "INNER JOIN Tbl_Folders ON Tbl_LocalGroupFolderPermission.FolderID = Tbl_Folders.ID "
                "Where Tbl_LocalGroupFolderPermission.LocalGroupID = {id} "
                "ORDER BY Tbl_Folders.FolderName ASC"_L1,
                id));
}

void clsLocalGroups::RemoveFolderPermissions(const QString &connectionString, std::span<const int> ids)
{
    writeForEach(connectionString, ids,
                 {"DELETE * FROM Tbl_LocalGroupFolderPermission WHERE LocalGroupID ={id}"_L1});
}

void clsLocalGroups::update(const QString &connectionString, int id, const QString &server,
                            const QString &name, const QString &description)
{
    withWrites(connectionString, [&](StoreSession &store) {
        updateGroup(store, GroupKind::Local, id, server, name, description);
    });
}

void clsLocalGroups::Add(const QString &connectionString, const QString &server, const QString &name,
                         const QString &description, int &id)
{
    withWrites(connectionString, [&](StoreSession &store) {
        addGroup(store, GroupKind::Local, server, name, description, id);
    });
}

void clsLocalGroups::addGlobalGroups(const QString &connectionString, int id,
                                     std::span<const int> globalGroups)
{
    replaceRelations(connectionString, globalGroupsOfGroup(), id, globalGroups);
}

void clsLocalGroups::AddGlobalGroupsBatch(const QString &connectionString, jet::Recordset &records,
                                          Steps &steps, Report &report, AtFailure atFailure)
{
    runBatch(connectionString, steps, report, {&report.done},
             [&](BatchRun &run) { addLocalGroupGlobalGroups(run, records, report, atFailure); });
}

void clsLocalGroups::RemoveGlobalGroups(const QString &connectionString, std::span<const int> ids)
{
    writeForEach(connectionString, ids,
                 {"DELETE * FROM Tbl_LocalGroupsGlobalGroups WHERE LocalGroupID ={id}"_L1});
}

void clsLocalGroups::addFolders(const QString &connectionString, int id, std::span<const int> folders,
                                const QStringList &permissions, bool clearFirst)
{
    writeRelations(connectionString, foldersOfGroup(GroupKind::Local), id, folders, permissions, clearFirst);
}

void clsLocalGroups::addFoldersBatch(const QString &connectionString, const QString &groupName,
                                     jet::Recordset &records, QString &failed)
{
    withWrites(connectionString, [&](StoreSession &store) {
        const Value group = store.scalar(
            joined("SELECT ID from Tbl_LocalGroups WHERE [Name]='{name}'"_L1, {{"name"_L1, groupName}}));
        if (group.isNull())
            throwError(RuleViolation, unknownGroup);
        const Permissions taken = findOrAddFolders(store, records, failed);
        addRelations(store, foldersOfGroup(GroupKind::Local), int(group.toInteger()), taken.ids,
                     taken.permissions);
    });
}
