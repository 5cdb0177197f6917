#include "folders/folderstatements.h"

#include "store/statement.h"

using namespace Qt::StringLiterals;

QString folderPath(const QString &path)
{
    return path.endsWith(u'\\') ? path : path + u'\\';
}

QString insertFolder(const QString &path, const QString &description)
{
    return joined("INSERT INTO Tbl_Folders (FolderName,Description) VALUES ('{path}','{description}')"_L1,
                  {{"path"_L1, path}, {"description"_L1, description}});
}

QString insertDefaultFolderPermission(const QString &account, const QString &permission)
{
    return joined("INSERT INTO Tbl_FolderDefaultPermissions ([Account],[Permission]) "
                  "VALUES ('{account}','{permission}')"_L1,
                  {{"account"_L1, account}, {"permission"_L1, permission}});
}
