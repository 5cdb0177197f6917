#include "folders/clsFolders.h"

#include "store/batchrecords.h"
#include "store/relations.h"
#include "store/statement.h"
#include "store/storesession.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto unknownFolder = "The specified Folder does not exist in your Database"_L1;

// clang-format off
constexpr RelationStatements userPermissions = {
    "DELETE FROM Tbl_UserFolderPermission WHERE FolderID={id}"_L1,
    {},
    "INSERT INTO Tbl_UserFolderPermission(FolderID,UserID,Permission) VALUES ({id},{item},'{permission}')"_L1,
};
constexpr RelationStatements localGroupPermissions = {
    "DELETE FROM Tbl_LocalGroupFolderPermission WHERE FolderID={id}"_L1,
    {},
    "INSERT INTO Tbl_LocalGroupFolderPermission(FolderID,LocalGroupID,Permission) VALUES ({id},{item},'{permission}')"_L1,
};
constexpr RelationStatements globalGroupPermissions = {
    "DELETE FROM Tbl_GlobalGroupFolderPermission WHERE FolderID={id}"_L1,
    {},
    "INSERT INTO Tbl_GlobalGroupFolderPermission(FolderID,GlobalGroupID,Permission) VALUES ({id},{item},'{permission}')"_L1,
};

/// The kinds an account may be of: the first that knows its name and server takes it.
struct AccountKind
{
    QLatin1StringView lookup;
    const RelationStatements &permissions;
};

constexpr AccountKind accountKinds[] = {
    {"SELECT USERID FROM TBL_Users Where [UserName]='{name}' AND ServerName='{server}'"_L1,  userPermissions},
    {"SELECT ID from Tbl_LocalGroups WHERE [Name]='{name}' AND Server ='{server}'"_L1,       localGroupPermissions},
    {"SELECT ID from Tbl_GlobalGroups WHERE [Name]='{name}' AND Server ='{server}'"_L1,      globalGroupPermissions},
};
// clang-format on

using PermittedByKind = std::array<Permissions, std::size(accountKinds)>;

/// Returns whether the account is known to the store.
bool takeAccount(StoreSession &store, const QString &name, const QString &server, const QString &permission,
                 PermittedByKind &permitted)
{
    for (std::size_t kind = 0; kind < std::size(accountKinds); ++kind) {
        const Value id =
            store.scalar(joined(accountKinds[kind].lookup, {{"name"_L1, name}, {"server"_L1, server}}));
        if (id.isNull())
            continue;
        permitted[kind].add(int(id.toInteger()), permission);
        return true;
    }
    return store.exists(
        joined("SELECT * FROM Tbl_FolderDefaultPermissions WHERE Account ='{server}\\{name}'"_L1,
               {{"server"_L1, server}, {"name"_L1, name}}));
}

} // namespace

QString clsFolders::addPermittedObjects(const QString &connectionString, const QString &folderName,
                                        jet::Recordset &objects)
{
    enum { Name, Server, Permission };
    QString unknown;
    withWrites(connectionString, [&](StoreSession &store) {
        const Value folder = store.scalar(
            joined("SELECT ID from Tbl_Folders WHERE FolderName ='{path}'"_L1, {{"path"_L1, folderName}}));
        if (folder.isNull())
            throwError(RuleViolation, unknownFolder);
        PermittedByKind permitted;
        for (BatchRecords batch(objects, {"Name"_L1, "Server"_L1, "Permission"_L1}); batch.next();) {
            const QString name = batch.text(Name);
            const QString server = batch.text(Server);
            if (!takeAccount(store, name, server, batch.text(Permission), permitted))
                unknown += server + u'\\' + name + u',';
        }
        const int id = int(folder.toInteger());
        for (std::size_t kind = 0; kind < permitted.size(); ++kind) {
            clearRelations(store, accountKinds[kind].permissions, id);
            addRelations(store, accountKinds[kind].permissions, id, permitted[kind].ids,
                         permitted[kind].permissions);
        }
    });
    return unknown;
}

void clsFolders::addUsers(const QString &connectionString, int folder, std::span<const int> users,
                          const QStringList &permissions, bool deleteFirst)
{
    writeRelations(connectionString, userPermissions, folder, users, permissions, deleteFirst);
}

void clsFolders::addLocalGroups(const QString &connectionString, int folder, std::span<const int> groups,
                                const QStringList &permissions, bool deleteFirst)
{
    writeRelations(connectionString, localGroupPermissions, folder, groups, permissions, deleteFirst);
}

void clsFolders::addGlobalGroups(const QString &connectionString, int folder, std::span<const int> groups,
                                 const QStringList &permissions, bool deleteFirst)
{
    writeRelations(connectionString, globalGroupPermissions, folder, groups, permissions, deleteFirst);
}
