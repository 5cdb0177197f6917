#include "folders/clsFolders.h"

#include "folders/folderstatements.h"
#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto folderExists = "The specified Folder already exists in the Database"_L1;
constexpr auto defaultPermissionExists = "The specified Default Permission already exists in the Database"_L1;

} // namespace

void clsFolders::Add(const QString &connectionString, const QString &path, const QString &description)
{
    const QString name = folderPath(path);
    writeUnlessFound(connectionString,
                     joined("SELECT * FROM Tbl_Folders WHERE FolderName ='{path}'"_L1, {{"path"_L1, name}}),
                     folderExists, insertFolder(name, description));
}

void clsFolders::update(const QString &connectionString, int id, const QString &path,
                        const QString &description)
{
    const QString name = folderPath(path);
    const QString idText = QString::number(id);
    writeUnlessFound(
        connectionString,
        joined("SELECT * FROM Tbl_Folders WHERE FolderName ='{path}' AND ID <>{id}"_L1,
               {{"path"_L1, name}, {"id"_L1, idText}}),
        folderExists,
        joined("UPDATE Tbl_Folders SET FolderName ='{path}',Description= '{description}' WHERE ID ={id}"_L1,
               {{"path"_L1, name}, {"description"_L1, description}, {"id"_L1, idText}}));
}

Report clsFolders::Delete(const QString &connectionString, std::span<const int> ids, const QStringList &names,
                          Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps,
                      {"DELETE * FROM Tbl_UserFolderPermission WHERE FolderID ={id}"_L1,
                       "DELETE * FROM Tbl_LocalGroupFolderPermission WHERE FolderID ={id}"_L1,
                       "DELETE * FROM Tbl_Folders WHERE ID ={id}"_L1});
}

void clsFolders::RemoveAllPermissions(const QString &connectionString, std::span<const int> ids)
{
    writeForEach(connectionString, ids,
                 {"DELETE * FROM Tbl_UserFolderPermission WHERE FolderID ={id}"_L1,
                  "DELETE * FROM Tbl_LocalGroupFolderPermission WHERE FolderID ={id}"_L1,
                  "DELETE * FROM Tbl_GlobalGroupFolderPermission WHERE FolderID ={id}"_L1});
}

void clsFolders::AddDefaultFolderPermission(const QString &connectionString, const QString &account,
                                            const QString &permission)
{
    writeUnlessFound(connectionString,
                     joined("SELECT * FROM Tbl_FolderDefaultPermissions WHERE Account ='{account}'"_L1,
                            {{"account"_L1, account}}),
                     defaultPermissionExists, insertDefaultFolderPermission(account, permission));
}

void clsFolders::updateDefaultFolderPermission(const QString &connectionString, int id,
                                               const QString &account, const QString &permission)
{
    const QString idText = QString::number(id);
    writeUnlessFound(
        connectionString,
        joined("SELECT * FROM Tbl_FolderDefaultPermissions WHERE [Account] ='{account}' AND ID <>{id}"_L1,
               {{"account"_L1, account}, {"id"_L1, idText}}),
        defaultPermissionExists,
        joined("UPDATE Tbl_FolderDefaultPermissions SET [Account] ='{account}',"
               "[Permission]= '{permission}' WHERE ID ={id}"_L1,
               {{"account"_L1, account}, {"permission"_L1, permission}, {"id"_L1, idText}}));
}

Report clsFolders::DeleteDefaultFolderPermissions(const QString &connectionString, std::span<const int> ids,
                                                  const QStringList &names, Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps,
                      {"DELETE * FROM Tbl_FolderDefaultPermissions WHERE ID ={id}"_L1});
}

void clsFolders::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT * FROM Tbl_Folders ORDER by FolderName ASC"_s);
}

void clsFolders::Find(const QString &connectionString, jet::Recordset &result, const QString &text)
{
    read(connectionString, result,
         joined("SELECT * from Tbl_Folders WHERE FolderName LIKE '%{text}%' ORDER by FolderName ASC"_L1,
                {{"text"_L1, text}}));
}

void clsFolders::getAllFolderDefaultPermissions(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT * FROM Tbl_FolderDefaultPermissions ORDER by [Account] ASC"_s);
}
