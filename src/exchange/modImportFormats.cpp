#include "exchange/modImportFormats.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto globalGroupsHelp = "Please use following Data Format to Import Global Groups:\r\n\r\n"
                                  "GlobalGroupName 1;ServerName;Description 1\r\n"
                                  "GlobalGroupName 2;ServerName;Description 2\r\n"
                                  "...\r\n"
                                  "GlobalGroupName N;ServerName;Description N"_L1;
constexpr auto localGroupsHelp = "Please use following Data Format to Import Local Groups:\r\n\r\n"
                                 "LocalGroupName 1;ServerName;Description 1\r\n"
                                 "LocalGroupName 2;ServerName;Description 2\r\n"
                                 "...\r\n"
                                 "LocalGlobalGroupName N;ServerName;Description N"_L1;
constexpr auto usersHelp =
    "Please use following Data Format to Import Users:\r\n\r\n"
    "UserName1;ServerName1;FullName1;Comment1;UserComment1;HomeDirDrive1;HomeDir1;Profile1;ScriptPath1;"
    "AccountDisabled1;NoChangePassword1;PasswordNeverExpires1\r\n"
    "UserName2;ServerName2;FullName2;Comment2;UserComment2;HomeDirDrive2;HomeDir2;Profile2;ScriptPath2;"
    "AccountDisabled2;NoChangePassword2;PasswordNeverExpires2\r\n"
    "...\r\n"
    "UserNameN;ServerNameN;FullNameN;CommentN;UserCommentN;HomeDirDriveN;HomeDirN;ProfileN;ScriptPathN;"
    "AccountDisabledN;NoChangePasswordN;PasswordNeverExpiresN"_L1;
constexpr auto globalGroupUsersHelp = "Please use following Data Format to Import Global Group Users:\r\n\r\n"
                                      "GlobalGroupName 1;GlobalGroupServer 1;UserName 1;UserServer 1\r\n"
                                      "GlobalGroupName 1;GlobalGroupServer 1;UserName 2;UserServer 2\r\n"
                                      "...\r\n"
                                      "GlobalGroupName 1;GlobalGroupServer 1;UserName N;UserServer N\r\n"
                                      "GlobalGroupName 2;GlobalGroupServer 2;UserName 1;UserServer 1\r\n"
                                      "GlobalGroupName 2;GlobalGroupServer 2;UserName 2;UserServer 2\r\n"
                                      "...\r\n"
                                      "GlobalGroupName 2;GlobalGroupServer 2;UserName N;UserServer N\r\n"
                                      "...\r\n"
                                      "GlobalGroupName N;GlobalGroupServer N;UserName N;UserServer N"_L1;
constexpr auto localGroupMembersHelp =
    "Please use following Data Format to Import Local Group Members:\r\n\r\n"
    "LocalGroupName 1;LocalGroupServer 1;GlobalGroupName 1,GlobalGroupServer 1\r\n"
    "LocalGroupName 2;LocalGroupServer 2;GlobalGroupName 2;GlobalGroupServer 2\r\n"
    "...\r\n"
    "LocalGroupName N;LocalGroupServer N;GlobalGroupName N,GlobalGroupServer N"_L1;
constexpr auto foldersHelp = "Please use following Data Format to Import Folders:\r\n\r\n"
                             "Folder 1;Description 1\r\n"
                             "Folder 2;Description 2\r\n"
                             "...\r\n"
                             "Folder N;Description N"_L1;
constexpr auto permissionsHelp = "Please use following Data Format to Import Folder Permissions:\r\n\r\n"
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
                                 "Folder N;UserName N;Server N;Premission N"_L1;

constexpr auto noServer = "No Server Information on Line "_L1;

constexpr ImportField groupFields[] = {
    {.name = "Name"_L1, .whenEmpty = "No Group Name on Line "_L1},
    {.name = "Server"_L1, .whenEmpty = noServer},
    {.name = "Description"_L1, .isEscaped = true},
};

// The three flags go bare into the statement, so there is no user without them.
constexpr ImportField userFields[] = {
    {.name = "UserName"_L1, .whenEmpty = "No Username on Line "_L1},
    {.name = "ServerName"_L1, .whenEmpty = noServer},
    {.name = "FullName"_L1},
    {.name = "Comment"_L1},
    {.name = "UserComment"_L1},
    {.name = "HomeDirDrive"_L1},
    {.name = "HomeDir"_L1},
    {.name = "Profile"_L1},
    {.name = "ScriptPath"_L1},
    {.name = "AccDisabled"_L1, .whenEmpty = "No Value for Account Disabled on Line "_L1},
    {.name = "NoChangePwd"_L1, .whenEmpty = "No Value for No Change Password on Line "_L1},
    {.name = "NoExpirePwd"_L1, .whenEmpty = "No Value for Password Never Expires on Line "_L1},
};

constexpr ImportField globalGroupUserFields[] = {
    {.name = "GroupName"_L1, .whenEmpty = "No GroupName on Line "_L1},
    {.name = "GroupServer"_L1, .whenEmpty = "No GroupServer on Line "_L1},
    {.name = "UserName"_L1, .whenEmpty = "No UserName on Line "_L1},
    {.name = "UserServer"_L1, .whenEmpty = "No UserServer on Line "_L1},
};

constexpr ImportField localGroupMemberFields[] = {
    {.name = "LocalGroupName"_L1, .whenEmpty = "No Local Group Name on Line "_L1},
    {.name = "LocalGroupServer"_L1, .whenEmpty = "No Local Group Server on Line "_L1},
    {.name = "GlobalGroupName"_L1, .whenEmpty = "No Global Group Name on Line "_L1},
    {.name = "GlobalGroupServer"_L1, .whenEmpty = "No Global Group Server on Line "_L1},
};

constexpr ImportField folderFields[] = {
    {.name = "FolderName"_L1, .whenEmpty = "No Folder on Line "_L1},
    {.name = "Description"_L1},
};

constexpr QLatin1StringView permissions[] = {"CH"_L1, "R"_L1, "Full Control"_L1, "L"_L1};

constexpr ImportField permissionFields[] = {
    {.name = "FolderName"_L1, .whenEmpty = "No Folder on Line "_L1},
    {.name = "Name"_L1, .whenEmpty = "No User on Line "_L1},
    {.name = "Server"_L1, .whenEmpty = "No Server on Line "_L1},
    {.name = "Permission"_L1,
     .whenEmpty = "No Permission on Line "_L1,
     .words = permissions,
     .whenNoWord = "Permission not recognized on Line "_L1},
};

constexpr auto success = "The Operation was completed successfully"_L1;

constexpr ImportFormat formats[] = {
    {.type = "Global Groups (Root Data)"_L1,
     .help = globalGroupsHelp,
     .fields = groupFields,
     .updates = true,
     .objects = "Global Groups"_L1,
     .writing = "Writing Global Groups to DB. Please Wait."_L1,
     .success = success},
    {.type = "Local Groups (Root Data)"_L1,
     .help = localGroupsHelp,
     .fields = groupFields,
     .updates = true,
     .objects = "Local Groups"_L1,
     .writing = "Writing Local Groups to DB. Please Wait."_L1,
     .success = success},
    {.type = "Users (Root Data)"_L1,
     .help = usersHelp,
     .fields = userFields,
     .updates = true,
     .objects = "Users"_L1,
     .writing = "Writing Users to DB. Please Wait."_L1,
     .success = "The Operation was completed successfully\r\nYou may refresh your User Database View to see "
                "changes applied to your existing Users"_L1,
     .failureHeading = "Following User(s) generated Errors and could not be Imported:\r\n\r\n"_L1,
     .idField = "UserID"_L1},
    {.type = "Global Groups Users (Relationships)"_L1,
     .help = globalGroupUsersHelp,
     .fields = globalGroupUserFields,
     .objects = "Memberships"_L1,
     .writing = "Writing Membership to DB. Please Wait."_L1,
     .success = success},
    {.type = "Local Group - Global Groups (Relationships)"_L1,
     .help = localGroupMembersHelp,
     .fields = localGroupMemberFields,
     .objects = "Memberships"_L1,
     .writing = "Writing Membership to DB. Please Wait."_L1,
     .success = success},
    {.type = "Folders (Root Data)"_L1,
     .help = foldersHelp,
     .fields = folderFields,
     .updates = true,
     .objects = "Folders"_L1,
     .writing = "Writing Folders to DB. Please Wait."_L1,
     .success = success},
    {.type = "Folder Permissions (Relationships)"_L1,
     .help = permissionsHelp,
     .fields = permissionFields,
     .objects = "Permissions"_L1,
     .writing = "Writing Permissions to DB. Please Wait."_L1,
     .success = success},
};

} // namespace

std::span<const ImportFormat> importFormats()
{
    return formats;
}

const ImportFormat *importFormat(QStringView type)
{
    const auto *found =
        std::ranges::find_if(formats, [&](const ImportFormat &format) { return type == format.type; });
    return found == std::end(formats) ? nullptr : found;
}
