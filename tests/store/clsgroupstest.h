#pragma once

#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "storetest.h"

#include <functional>

/// Where the rows of the two kinds of groups lie, and what is said of them.
struct GroupNames
{
    QString groups;
    QString id;
    QString users;
    QString permissions;
    QString alreadyExists;
    QString notFound;
};

inline GroupNames namesOf(const clsGlobalGroups &)
{
    return {u"Tbl_GlobalGroups"_s,
            u"GlobalGroupID"_s,
            u"Tbl_GlobalGroupsUsers"_s,
            u"Tbl_GlobalGroupFolderPermission"_s,
            u"Cannot add/edit Global Group. The Global Group already exists in the Database"_s,
            u" Global Group not found"_s};
}

inline GroupNames namesOf(const clsLocalGroups &)
{
    return {u"Tbl_LocalGroups"_s,
            u"LocalGroupID"_s,
            u"Tbl_LocalGroupsUsers"_s,
            u"Tbl_LocalGroupFolderPermission"_s,
            u"Cannot add/edit Local Group. The Local Group already exists in the Database"_s,
            u" Local Group not found"_s};
}

inline void readUsers(clsGlobalGroups &groups, const QString &connection, int id, jet::Recordset &result)
{
    groups.getUsers(connection, result, id);
}

inline void readUsers(clsLocalGroups &groups, const QString &connection, int id, jet::Recordset &result)
{
    groups.getUsers(connection, id, result);
}

inline void readNames(clsGlobalGroups &groups, const QString &connection, jet::Recordset &result)
{
    groups.getAllGlobalGroupNames(connection, result);
}

inline void readNames(clsLocalGroups &groups, const QString &connection, jet::Recordset &result)
{
    groups.getAllLocalGroupNames(connection, result);
}

/// What both kinds of groups do, told once.
template <typename Groups>
class GroupTwins : public StoreTest
{
protected:
    int add(const QString &name, const QString &server, const QString &description = {})
    {
        int id = 0;
        groups.Add(connection, server, name, description, id);
        return id;
    }

    /// Two groups, three users, two folders and no relationship.
    void fillStore()
    {
        StoreSession store(connection);
        for (const QString &statement : std::initializer_list<QString>{
                 "INSERT INTO "_L1 + names.groups +
                     " (Name,Server,Description) VALUES ('Staff','SRV01','All')"_L1,
                 "INSERT INTO "_L1 + names.groups + " (Name,Server) VALUES ('Admins','SRV02')"_L1,
                 u"INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (1,'anna','SRV01','Ärmel','Anna')"_s,
                 u"INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (2,'bert','SRV02','Zorn','Bert')"_s,
                 u"INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (3,'cleo','SRV01')"_s,
                 u"INSERT INTO Tbl_Folders (FolderName,Description) VALUES ('D:\\Data\\','Data')"_s,
                 u"INSERT INTO Tbl_Folders (FolderName) VALUES ('D:\\Admin\\')"_s,
             })
            store.execute(statement);
    }

    Rows all()
    {
        jet::Recordset result;
        groups.getAll(connection, result);
        return rowsOf(result);
    }

    Rows allNames()
    {
        jet::Recordset result;
        readNames(groups, connection, result);
        return rowsOf(result);
    }

    Rows usersOf(int id)
    {
        jet::Recordset result;
        readUsers(groups, connection, id, result);
        return rowsOf(result);
    }

    Rows foldersOf(int id)
    {
        jet::Recordset result;
        groups.getFolders(connection, result, id);
        return rowsOf(result);
    }

    /// Group and user of each row.
    Rows memberships()
    {
        return rows("SELECT "_L1 + names.id + ", UserID FROM "_L1 + names.users + " ORDER BY "_L1 + names.id +
                    ", UserID"_L1);
    }

    /// Group, folder and permission of each row.
    Rows permissions()
    {
        return rows("SELECT "_L1 + names.id + ", FolderID, Permission FROM "_L1 + names.permissions +
                    " ORDER BY "_L1 + names.id + ", FolderID"_L1);
    }

    Groups groups;
    GroupNames names = namesOf(groups);
};

using GroupClasses = testing::Types<clsGlobalGroups, clsLocalGroups>;

struct GroupClassNames
{
    template <typename Groups>
    static std::string GetName(int)
    {
        return std::is_same_v<Groups, clsGlobalGroups> ? "Global" : "Local";
    }
};
