#include "store/clsUsers.h"

#include "store/relations.h"
#include "store/statement.h"
#include "store/storesession.h"
#include "store/userstatements.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto unknownUser = "The specified User does not exist in your Database"_L1;

// clang-format off
constexpr RelationStatements groupsOfUser = {
    "DELETE FROM Tbl_GlobalGroupsUsers WHERE UserID={id}"_L1,
    "SELECT * FROM Tbl_GlobalGroupsUsers WHERE UserID ={id} AND  GlobalGroupID ={item}"_L1,
    "INSERT INTO Tbl_GlobalgroupsUsers (UserID,GlobalGroupID) VALUES ({id},{item})"_L1,
};
constexpr RelationStatements roomsOfUser = {
    "DELETE FROM Tbl_RoomUsers WHERE UserID={id}"_L1,
    {},
    "INSERT INTO Tbl_RoomUsers(UserID,RoomID) VALUES ({id},{item})"_L1,
};
// clang-format on

} // namespace

void clsUsers::addFolders(const QString &connectionString, int id, std::span<const int> folders,
                          const QStringList &permissions, bool clearFirst)
{
    writeRelations(connectionString, foldersOfUser(), id, folders, permissions, clearFirst);
}

void clsUsers::addFoldersBatch(const QString &connectionString, const QString &userName,
                               jet::Recordset &records, QString &failed)
{
    withWrites(connectionString, [&](StoreSession &store) {
        const Value user = store.scalar(
            joined("SELECT UserID FROM Tbl_Users WHERE [UserName]='{name}'"_L1, {{"name"_L1, userName}}));
        if (user.isNull())
            throwError(RuleViolation, unknownUser);
        const Permissions taken = findOrAddFolders(store, records, failed);
        addRelations(store, foldersOfUser(), int(user.toInteger()), taken.ids, taken.permissions);
    });
}

void clsUsers::addGlobalGroups(const QString &connectionString, int id, std::span<const int> groups)
{
    replaceRelations(connectionString, groupsOfUser, id, groups);
}

void clsUsers::addRooms(const QString &connectionString, int id, std::span<const int> rooms)
{
    replaceRelations(connectionString, roomsOfUser, id, rooms);
}

void clsUsers::addHW(const QString &connectionString, int id, std::span<const int> items)
{
    withWrites(connectionString, [&](StoreSession &store) {
        store.execute(withId("DELETE FROM Tbl_UserHW WHERE UserID={id}"_L1, id));
        const QString user = QString::number(id);
        for (const int item : items) {
            store.execute(withId("DELETE FROM Tbl_UserHW WHERE HWID={id}"_L1, item));
            store.execute(joined("INSERT INTO Tbl_UserHW (UserID,HWID) VALUES ({user},{item})"_L1,
                                 {{"user"_L1, user}, {"item"_L1, QString::number(item)}}));
        }
    });
}
