#include "exchange/modImport.h"

#include "exchange/frmImport.h"
#include "messages/showresult.h"
#include "platform/desktop/desktop.h"
#include "toolkit/messagebox.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto notYetImplemented = "Not yet implemented. Sorry for the Inconvenience"_L1;

QHash<QString, modImport::Reader> &readers()
{
    static QHash<QString, modImport::Reader> registered;
    return registered;
}

constexpr modImport::ImportType types[] = {
    {"Global Groups (Root Data)"_L1, "Please use following Data Format to Import Global Groups:\r\n\r\n"
                                     "GlobalGroupName 1;ServerName;Description 1\r\n"
                                     "GlobalGroupName 2;ServerName;Description 2\r\n"
                                     "...\r\n"
                                     "GlobalGroupName N;ServerName;Description N"_L1},
    {"Local Groups (Root Data)"_L1, "Please use following Data Format to Import Local Groups:\r\n\r\n"
                                    "LocalGroupName 1;ServerName;Description 1\r\n"
                                    "LocalGroupName 2;ServerName;Description 2\r\n"
                                    "...\r\n"
                                    "LocalGlobalGroupName N;ServerName;Description N"_L1},
    {"Users (Root Data)"_L1,
     "Please use following Data Format to Import Users:\r\n\r\n"
     "UserName1;ServerName1;FullName1;Comment1;UserComment1;HomeDirDrive1;HomeDir1;Profile1;ScriptPath1;"
     "AccountDisabled1;NoChangePassword1;PasswordNeverExpires1\r\n"
     "UserName2;ServerName2;FullName2;Comment2;UserComment2;HomeDirDrive2;HomeDir2;Profile2;ScriptPath2;"
     "AccountDisabled2;NoChangePassword2;PasswordNeverExpires2\r\n"
     "...\r\n"
     "UserNameN;ServerNameN;FullNameN;CommentN;UserCommentN;HomeDirDriveN;HomeDirN;ProfileN;ScriptPathN;"
     "AccountDisabledN;NoChangePasswordN;PasswordNeverExpiresN"_L1},
    {"Global Groups Users (Relationships)"_L1,
     "Please use following Data Format to Import Global Group Users:\r\n\r\n"
     "GlobalGroupName 1;GlobalGroupServer 1;UserName 1;UserServer 1\r\n"
     "GlobalGroupName 1;GlobalGroupServer 1;UserName 2;UserServer 2\r\n"
     "...\r\n"
     "GlobalGroupName 1;GlobalGroupServer 1;UserName N;UserServer N\r\n"
     "GlobalGroupName 2;GlobalGroupServer 2;UserName 1;UserServer 1\r\n"
     "GlobalGroupName 2;GlobalGroupServer 2;UserName 2;UserServer 2\r\n"
     "...\r\n"
     "GlobalGroupName 2;GlobalGroupServer 2;UserName N;UserServer N\r\n"
     "...\r\n"
     "GlobalGroupName N;GlobalGroupServer N;UserName N;UserServer N"_L1},
    {"Local Group - Global Groups (Relationships)"_L1,
     "Please use following Data Format to Import Local Group Members:\r\n\r\n"
     "LocalGroupName 1;LocalGroupServer 1;GlobalGroupName 1,GlobalGroupServer 1\r\n"
     "LocalGroupName 2;LocalGroupServer 2;GlobalGroupName 2;GlobalGroupServer 2\r\n"
     "...\r\n"
     "LocalGroupName N;LocalGroupServer N;GlobalGroupName N,GlobalGroupServer N"_L1},
    {"Folders (Root Data)"_L1, "Please use following Data Format to Import Folders:\r\n\r\n"
                               "Folder 1;Description 1\r\n"
                               "Folder 2;Description 2\r\n"
                               "...\r\n"
                               "Folder N;Description N"_L1},
    {"Folder Permissions (Relationships)"_L1,
     "Please use following Data Format to Import Folder Permissions:\r\n\r\n"
     "Folder 1;UserName 1;Server 1;Premission 1\r\n"
     "Folder 1;UserName 2;Server 2;Premission 2\r\n"
     "...\r\n"
     "Folder 1;UserName N;Server N;Premission N\r\n"
     "Folder 2;UserName 1;Server 1;Premission 1\r\n"
     "Folder 2;UserName 2;Server 2;Premission 2\r\n"
     "...\r\n"
     "Folder 2;UserName N;Server N;Premission N\r\n"
     "Folder N;UserName 1;Server 1;Premission 1\r\n"
     "Folder N;UserName 2;Server 2;Premission 2\r\n"
     "...\r\n"
     "Folder N;UserName N;Server N;Premission N"_L1},
};

void warn(QWidget *owner, const QString &text)
{
    messageBox(owner, text, box::Ok | box::WarningIcon);
}

/// Tells what is wrong with the name of the data file, if anything is.
bool isDataFile(QWidget *owner, const QString &path)
{
    if (path.isEmpty())
        warn(owner, u"Please specify the Data File"_s);
    else if (const QFileInfo file(path); !file.isFile())
        warn(owner, u"The File you specified could not be found"_s);
    else
        return true;
    return false;
}

} // namespace

namespace modImport {

void registerReader(QLatin1StringView typeName, Reader reader)
{
    Q_ASSERT(importType(QString(typeName)));
    readers().insert(typeName, reader);
}

std::span<const ImportType> importTypes()
{
    return types;
}

const ImportType *importType(QStringView name)
{
    const auto found = std::ranges::find_if(types, [&](const ImportType &type) { return name == type.name; });
    return found == std::end(types) ? nullptr : found;
}

void showImport(QWidget *owner)
{
    frmImport dialog(owner);
    for (const ImportType &type : types)
        dialog.addType(type.name, readers().contains(type.name) ? QString() : notYetImplemented);
    dialog.cboImportType->setCurrentIndex(-1);
    dialog.exec();
}

void startImport(QWidget *owner, const QString &typeName, const QString &path)
{
    if (!isDataFile(owner, path))
        return;
    if (messageBox(owner, u"Are you sure you want to start the selected Import?"_s,
                   box::YesNo | box::WarningIcon) != box::ResultYes)
        return;
    if (const Reader read = readers().value(typeName))
        read(owner, path);
    else
        warn(owner, u"Please Select the Import Type"_s);
}

void previewFile(QWidget *owner, const QString &path)
{
    if (isDataFile(owner, path) && !desktop::openDocument(path))
        warn(owner, "The File '"_L1 + path + "' could not be opened: there is no program for it."_L1);
}

void showFormat(QWidget *owner, const QString &typeName)
{
    const ImportType *type = importType(typeName);
    showResult(owner, type ? type->format : "The Information you requested could not be found."_L1,
               u"Import Format Information"_s);
}

} // namespace modImport
