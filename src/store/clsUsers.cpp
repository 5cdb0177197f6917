#include "store/clsUsers.h"

#include "store/statement.h"
#include "store/storesession.h"
#include "store/userstatements.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists = "Cannot Add/Edit User. User already exists in the Database"_L1;

} // namespace

void clsUsers::getStructure(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT TOP 1 * FROM Tbl_Users"_s);
}

void clsUsers::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(
        connectionString, result,
        u"SELECT UserID, LastName, FirstName, UserName, [ServerName] from Tbl_Users ORDER by LastName ASC"_s);
}

void clsUsers::getByUserNameAndServer(const QString &connectionString, jet::Recordset &result,
                                      const QString &name, const QString &server)
{
    read(connectionString, result,
         joined("SELECT * FROM Tbl_Users WHERE [UserName]='{name}' AND [ServerName]='{server}'"_L1,
                {{"name"_L1, name}, {"server"_L1, server}}));
}

void clsUsers::getUserByID(const QString &connectionString, int id, jet::Recordset &result)
{
    read(connectionString, result, withId("SELECT * FROM Tbl_Users WHERE [UserID] ={id}"_L1, id));
}

void clsUsers::Find(const QString &connectionString, jet::Recordset &result, const QString &lastName,
                    const QString &userName)
{
    read(connectionString, result,
         joined("SELECT UserID, LastName, FirstName, UserName, ServerName from Tbl_Users "
                "WHERE (LastName LIKE '%{lastName}%' OR LastName is Null) "
                "AND (UserName LIKE '%{userName}%' OR UserName is Null) ORDER by LastName ASC"_L1,
                {{"lastName"_L1, lastName}, {"userName"_L1, userName}}));
}

void clsUsers::getAllLoginNames(const QString &connectionString, jet::Recordset &result)
{
    read(
        connectionString, result,
        u"SELECT UserID, [ServerName] & '\\' &  [UserName] as UserName from Tbl_Users ORDER by UserName ASC"_s);
}

void clsUsers::Add(const QString &connectionString, UserRecord &user)
{
    withWrites(connectionString, [&](StoreSession &store) {
        if (user.UserID == 0)
            user.UserID = nextUserId(store);
        if (store.exists(
                joined("SELECT * FROM Tbl_Users WHERE [UserName] ='{name}' AND [ServerName]='{server}'"_L1,
                       {{"name"_L1, user.UserName}, {"server"_L1, user.ServerName}})))
            throwError(RuleViolation, alreadyExists);
        store.execute(UserInsert(userColumns()).with(userValues(user)));
    });
}

void clsUsers::update(const QString &connectionString, const UserRecord &user)
{
    withWrites(connectionString, [&](StoreSession &store) {
        const QString id = QString::number(user.UserID);
        if (store.exists(joined("SELECT * FROm Tbl_Users WHERE [UserName]='{name}' "
                                "AND [ServerName]  = '{server}' AND  [UserID] <> {id}"_L1,
                                {{"name"_L1, user.UserName}, {"server"_L1, user.ServerName}, {"id"_L1, id}})))
            throwError(RuleViolation, alreadyExists);
        const QList<QString> values = userValues(user);
        store.execute(updateUser(userColumns().subspan(1), std::span(values).subspan(1)) +
                      " WHERE [UserID]="_L1 + id);
    });
}

Report clsUsers::Delete(const QString &connectionString, std::span<const int> ids, const QStringList &names,
                        Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps, {"DELETE * FROM Tbl_Users WHERE UserID ={id}"_L1});
}

void clsUsers::RemoveFolderPermissions(const QString &connectionString, std::span<const int> ids)
{
    writeForEach(connectionString, ids, {"DELETE * FROM Tbl_UserFolderPermission WHERE UserID ={id}"_L1});
}

void clsUsers::TestConnection(const QString &connectionString)
{
    withStore(connectionString, [](StoreSession &) {});
}

void clsUsers::Import(const QString &connectionString)
{
    withWrites(connectionString, [](StoreSession &store) {
        store.executeSkippingErrors(u"DROP TABLE Tbl_Users"_s);
        store.execute(
            u"SELECT Tbl_Remote_Users.* INTO Tbl_Users FROM Tbl_Remote_Users WHERE UserName <>''"_s);
    });
}
