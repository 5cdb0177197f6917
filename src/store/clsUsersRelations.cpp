#include "store/clsUsers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto unknownUser = "The specified User does not exist in your Database"_L1;

void writeFolder(StoreSession &store, const QString &user, const QString &folder, const QString &permission)
{
    if (!store.exists("SELECT Permission FROM Tbl_UserFolderPermission WHERE UserID = "_L1 + user +
                      " AND FolderID= "_L1 + folder))
        store.execute("INSERT INTO Tbl_UserFolderPermission(UserID,FolderID,Permission) VALUES ("_L1 + user +
                      ","_L1 + folder + ",'"_L1 + permission + "')"_L1);
    else
        store.execute("UPDATE Tbl_UserFolderPermission SET Permission ='"_L1 + permission +
                      "' WHERE UserID = "_L1 + user + " AND FolderID = "_L1 + folder);
}

/// The id of a folder, which is added when it is not there yet; Null when it cannot be added.
Value folderId(StoreSession &store, const QString &path)
{
    const QString lookup = "SELECT ID FROM Tbl_Folders WHERE [FolderName]='"_L1 + path + "'"_L1;
    try {
        const Value known = store.scalar(lookup);
        if (!known.isNull())
            return known;
        store.execute("INSERT INTO Tbl_Folders (FolderName) VALUES ('"_L1 + path + "')"_L1);
        return store.scalar(lookup);
    } catch (const Error &) {
        return {};
    }
}

} // namespace

void clsUsers::addFolders(const QString &connectionString, int id, std::span<const int> folders,
                          const QStringList &permissions, bool clearFirst)
{
    Q_ASSERT(qsizetype(folders.size()) == permissions.size());
    withStore(connectionString, [&](StoreSession &store) {
        const QString user = QString::number(id);
        if (clearFirst)
            store.execute("DELETE FROM Tbl_UserFolderPermission WHERE UserID="_L1 + user);
        for (std::size_t i = 0; i < folders.size(); ++i)
            writeFolder(store, user, QString::number(folders[i]), permissions[qsizetype(i)]);
    });
}

void clsUsers::addFoldersBatch(const QString &connectionString, const QString &userName,
                               jet::Recordset &records, QString &failed)
{
    Value user;
    QList<int> folders;
    QStringList permissions;
    withStore(connectionString, [&](StoreSession &store) {
        user = store.scalar("SELECT UserID FROM Tbl_Users WHERE [UserName]='"_L1 + userName + "'"_L1);
        if (user.isNull())
            raise(RuleViolation, unknownUser);
        if (records.recordCount() > 0)
            records.moveFirst();
        for (; !records.eof(); records.moveNext()) {
            const QString path = records.value(u"Name").toText();
            const Value folder = folderId(store, path);
            if (folder.isNull()) {
                failed += path + u',';
                continue;
            }
            folders.append(int(folder.toInteger()));
            permissions.append(records.value(u"Permission").toText());
        }
    });
    addFolders(connectionString, int(user.toInteger()), folders, permissions, false);
}

void clsUsers::addGlobalGroups(const QString &connectionString, int id, std::span<const int> groups)
{
    withStore(connectionString, [&](StoreSession &store) {
        const QString user = QString::number(id);
        store.execute("DELETE FROM Tbl_GlobalGroupsUsers WHERE UserID="_L1 + user);
        for (const int group : groups) {
            const QString groupId = QString::number(group);
            if (!store.exists("SELECT * FROM Tbl_GlobalGroupsUsers WHERE UserID ="_L1 + user +
                              " AND  GlobalGroupID ="_L1 + groupId))
                store.execute("INSERT INTO Tbl_GlobalgroupsUsers (UserID,GlobalGroupID) VALUES ("_L1 + user +
                              ","_L1 + groupId + ")"_L1);
        }
    });
}

void clsUsers::addRooms(const QString &connectionString, int id, std::span<const int> rooms)
{
    withStore(connectionString, [&](StoreSession &store) {
        const QString user = QString::number(id);
        store.execute("DELETE FROM Tbl_RoomUsers WHERE UserID="_L1 + user);
        for (const int room : rooms)
            store.execute("INSERT INTO Tbl_RoomUsers(UserID,RoomID) VALUES ("_L1 + user + ","_L1 +
                          QString::number(room) + ")"_L1);
    });
}

void clsUsers::addHW(const QString &connectionString, int id, std::span<const int> items)
{
    withStore(connectionString, [&](StoreSession &store) {
        const QString user = QString::number(id);
        store.execute("DELETE FROM Tbl_UserHW WHERE UserID="_L1 + user);
        for (const int item : items) {
            const QString itemId = QString::number(item);
            store.execute("DELETE FROM Tbl_UserHW WHERE HWID="_L1 + itemId);
            store.execute("INSERT INTO Tbl_UserHW (UserID,HWID) VALUES ("_L1 + user + ","_L1 + itemId +
                          ")"_L1);
        }
    });
}
