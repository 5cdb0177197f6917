#pragma once

#include "folders/clsFolders.h"
#include "store/storetest.h"

class FoldersTest : public StoreTest
{
protected:
    Rows allFolders() { return rows(u"SELECT ID, FolderName, Description FROM Tbl_Folders ORDER BY ID"_s); }

    Rows defaults()
    {
        jet::Recordset records;
        folders.getAllFolderDefaultPermissions(connection, records);
        return rowsOf(records);
    }

    /// Kind and id of the account, folder and permission of each row of the three tables.
    Rows permissions()
    {
        return rows(u"SELECT 'user ' & UserID, FolderID, Permission FROM Tbl_UserFolderPermission "
                    "ORDER BY UserID, FolderID, Permission"_s) +
               rows(u"SELECT 'local ' & LocalGroupID, FolderID, Permission "
                    "FROM Tbl_LocalGroupFolderPermission ORDER BY LocalGroupID, FolderID, Permission"_s) +
               rows(u"SELECT 'global ' & GlobalGroupID, FolderID, Permission "
                    "FROM Tbl_GlobalGroupFolderPermission ORDER BY GlobalGroupID, FolderID, Permission"_s);
    }

    clsFolders folders;
};

/// Two folders; on the first a user, a local and a global group have a permission, and a second
/// user reaches it through the global group, which is in the local one.
class FolderAccountsTest : public FoldersTest
{
protected:
    void SetUp() override
    {
        FoldersTest::SetUp();
        StoreSession store(connection);
        for (const char *statement : {
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (1,'anna','SRV01','Ärmel','Anna')",
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (2,'bert','SRV02','Zorn','Bert')",
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (3,'cleo','SRV01')",
                 "INSERT INTO Tbl_LocalGroups (Name,Server,Description) VALUES ('Printers','SRV01','Print')",
                 "INSERT INTO Tbl_LocalGroups (Name,Server) VALUES ('Data','SRV02')",
                 "INSERT INTO Tbl_GlobalGroups (Name,Server,Description) VALUES ('Staff','DC01','All')",
                 "INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('Admins','DC01')",
                 "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID,UserID) VALUES (1,2)",
                 "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES (1,1)",
                 "INSERT INTO Tbl_Folders (FolderName,Description) VALUES ('D:\\Data\\','Data')",
                 "INSERT INTO Tbl_Folders (FolderName) VALUES ('D:\\Admin\\')",
                 "INSERT INTO Tbl_UserFolderPermission (UserID,FolderID,Permission) VALUES (1,1,'R')",
                 "INSERT INTO Tbl_LocalGroupFolderPermission (LocalGroupID,FolderID,Permission) "
                 "VALUES (1,1,'CH')",
                 "INSERT INTO Tbl_GlobalGroupFolderPermission (GlobalGroupID,FolderID,Permission) "
                 "VALUES (1,1,'L')",
             })
            store.execute(QString::fromUtf8(statement));
    }
};
