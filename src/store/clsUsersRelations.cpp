#include "store/clsUsers.h"

#include "store/relations.h"
#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto unknownUser = "The specified User does not exist in your Database"_L1;

// clang-format off
constexpr RelationStatements folders = {
    "DELETE FROM Tbl_UserFolderPermission WHERE UserID={id}"_L1,
    "SELECT Permission FROM Tbl_UserFolderPermission WHERE UserID = {id} AND FolderID= {item}"_L1,
    "INSERT INTO Tbl_UserFolderPermission(UserID,FolderID,Permission) VALUES ({id},{item},'{permission}')"_L1,
    "UPDATE Tbl_UserFolderPermission SET Permission ='{permission}' WHERE UserID = {id} AND FolderID = {item}"_L1,
};
constexpr RelationStatements globalGroups = {
    "DELETE FROM Tbl_GlobalGroupsUsers WHERE UserID={id}"_L1,
    "SELECT * FROM Tbl_GlobalGroupsUsers WHERE UserID ={id} AND  GlobalGroupID ={item}"_L1,
    "INSERT INTO Tbl_GlobalgroupsUsers (UserID,GlobalGroupID) VALUES ({id},{item})"_L1,
};
constexpr RelationStatements rooms = {
    "DELETE FROM Tbl_RoomUsers WHERE UserID={id}"_L1,
    {},
    "INSERT INTO Tbl_RoomUsers(UserID,RoomID) VALUES ({id},{item})"_L1,
};
// clang-format on

} // namespace

void writeUserFolders(StoreSession &store, int user, std::span<const int> folderIds,
                      const QStringList &permissions, bool clearFirst)
{
    writeRelations(store, folders, user, folderIds, permissions, clearFirst);
}

void clsUsers::addFolders(const QString &connectionString, int id, std::span<const int> folderIds,
                          const QStringList &permissions, bool clearFirst)
{
    withStore(connectionString,
              [&](StoreSession &store) { writeUserFolders(store, id, folderIds, permissions, clearFirst); });
}

void clsUsers::addFoldersBatch(const QString &connectionString, const QString &userName,
                               jet::Recordset &records, QString &failed)
{
    withStore(connectionString, [&](StoreSession &store) {
        const Value user = store.scalar(
            joined("SELECT UserID FROM Tbl_Users WHERE [UserName]='{name}'"_L1, {{"name"_L1, userName}}));
        if (user.isNull())
            raise(RuleViolation, unknownUser);
        const Permissions taken = takeFolderPermissions(store, records, failed);
        writeUserFolders(store, int(user.toInteger()), taken.ids, taken.permissions, false);
    });
}

void clsUsers::addGlobalGroups(const QString &connectionString, int id, std::span<const int> groups)
{
    withStore(connectionString,
              [&](StoreSession &store) { writeRelations(store, globalGroups, id, groups, {}, true); });
}

void clsUsers::addRooms(const QString &connectionString, int id, std::span<const int> roomIds)
{
    withStore(connectionString,
              [&](StoreSession &store) { writeRelations(store, rooms, id, roomIds, {}, true); });
}

void clsUsers::addHW(const QString &connectionString, int id, std::span<const int> items)
{
    withStore(connectionString, [&](StoreSession &store) {
        store.execute(withId("DELETE FROM Tbl_UserHW WHERE UserID={id}"_L1, id));
        const QString user = QString::number(id);
        for (const int item : items) {
            store.execute(withId("DELETE FROM Tbl_UserHW WHERE HWID={id}"_L1, item));
            store.execute(joined("INSERT INTO Tbl_UserHW (UserID,HWID) VALUES ({user},{item})"_L1,
                                 {{"user"_L1, user}, {"item"_L1, QString::number(item)}}));
        }
    });
}
