#include "folders/modFolders.h"

#include "folders/clsFolders.h"
#include "folders/frmFolderDefaultPermissions.h"
#include "views/frmNewEdit.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

constexpr frmNewEdit::Action newAction{.caption = "Add New Folder"_L1, .bannerPicture = 4, .isFolder = true};
constexpr frmNewEdit::Action editAction{.caption = "Edit Folder"_L1, .bannerPicture = 4, .isFolder = true};

void newFolder(const CommandContext &context)
{
    modRender::showNewEdit(context.owner, newAction, {}, context.newRow(),
                           [](const QString &connectionString, const frmNewEdit::Texts &texts) {
                               clsFolders().Add(connectionString, texts.name, texts.description);
                           });
}

void editFolder(const CommandContext &context)
{
    modRender::showNewEdit(
        context.owner, editAction, {.name = context.subItem(1), .description = context.subItem(2)},
        context.target(), [id = context.id](const QString &connectionString, const frmNewEdit::Texts &texts) {
            clsFolders().update(connectionString, id, texts.name, texts.description);
        });
}

void newDefaultPermission(const CommandContext &context)
{
    frmFolderDefaultPermissions dialog(
        context.owner, context.newRow(),
        [](const QString &connectionString, const QString &account, const QString &permission) {
            clsFolders().AddDefaultFolderPermission(connectionString, account, permission);
        });
    dialog.exec();
}

void editDefaultPermission(const CommandContext &context)
{
    frmFolderDefaultPermissions dialog(context.owner, context.target(),
                                       [id = context.id](const QString &connectionString,
                                                         const QString &account, const QString &permission) {
                                           clsFolders().updateDefaultFolderPermission(connectionString, id,
                                                                                      account, permission);
                                       });
    dialog.load(context.subItem(1), context.subItem(2));
    dialog.exec();
}

} // namespace

std::span<const OpRow> modFolders::handlers()
{
    constexpr Mode folders = Mode::Folders;
    constexpr Mode defaults = Mode::FolderDefaultPermissions;
    static const OpRow table[] = {
        {folders, Op::ListAll, listAll<&clsFolders::getAll>(folders, "All Folders"_L1)},
        {folders, Op::AddNew, newFolder},
        {folders, Op::Edit, editFolder},
        {folders, Op::Delete,
         deleteSelected<&clsFolders::Delete>(u"Deleting Folders"_s,
                                             u"The following Folders could not be deleted:"_s)},
        {folders, Op::Properties,
         properties({{PropertyTab::GlobalGroups, readOf<&clsFolders::getGlobalGroups>},
                     {PropertyTab::LocalGroups, readOf<&clsFolders::getLocalGroups>},
                     {PropertyTab::Users, readOf<&clsFolders::getUsers>}})},
        {folders, Op::ViewUsers, related<&clsFolders::getUsers>(Mode::Users, "User Permission(s) for "_L1)},
        {folders, Op::ViewGlobalGroups,
         related<&clsFolders::getGlobalGroups>(Mode::GlobalGroups, "Global Group Permission(s) for "_L1)},
        {folders, Op::ViewLocalGroups,
         related<&clsFolders::getLocalGroups>(Mode::LocalGroups, "Local Group Permission(s) for "_L1)},

        {defaults, Op::ListAll,
         listAll<&clsFolders::getAllFolderDefaultPermissions>(
             defaults, "All Folder Default Permissions. System Accounts are Language dependent!"_L1)},
        {defaults, Op::AddNew, newDefaultPermission},
        {defaults, Op::Edit, editDefaultPermission},
        {defaults, Op::Delete,
         deleteSelected<&clsFolders::DeleteDefaultFolderPermissions>(
             u"Deleting Default Permissions"_s,
             u"The following Default Permissions could not be deleted:"_s)},
    };
    return table;
}
