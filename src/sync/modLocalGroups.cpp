#include "sync/modLocalGroups.h"

#include "folders/clsFolders.h"
#include "store/clsGlobalGroups.h"
#include "store/clsLocalGroups.h"
#include "store/clsUsers.h"
#include "views/frmNewEdit.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

constexpr frmNewEdit::Action newAction{
    .caption = "Add New Local Group"_L1, .bannerPicture = 2, .hasServer = true};
constexpr frmNewEdit::Action editAction{
    .caption = "Edit Local Group"_L1, .bannerPicture = 2, .hasServer = true};

void newGroup(const CommandContext &context)
{
    modRender::showNewEdit(context.owner, newAction, {}, context.newRow(),
                           [](const QString &connectionString, const frmNewEdit::Texts &texts) {
                               int id = 0;
                               clsLocalGroups().Add(connectionString, texts.server, texts.name,
                                                    texts.description, id);
                           });
}

void editGroup(const CommandContext &context)
{
    modRender::showNewEdit(
        context.owner, editAction,
        {.name = context.subItem(1), .server = context.subItem(2), .description = context.subItem(3)},
        context.target(), [id = context.id](const QString &connectionString, const frmNewEdit::Texts &texts) {
            clsLocalGroups().update(connectionString, id, texts.server, texts.name, texts.description);
        });
}

} // namespace

std::span<const OpRow> modLocalGroups::handlers()
{
    static const OpRow table[] = {
        {Mode::LocalGroups, Op::ListAll,
         listAll<&clsLocalGroups::getAll>(Mode::LocalGroups, "All Local Group(s)"_L1)},
        {Mode::LocalGroups, Op::AddNew, newGroup},
        {Mode::LocalGroups, Op::Edit, editGroup},
        {Mode::LocalGroups, Op::Delete,
         deleteSelected<&clsLocalGroups::Delete>(u"Deleting Local Groups"_s,
                                                 u"The following Local Groups could not be deleted:"_s)},
        {Mode::LocalGroups, Op::Properties,
         properties({{PropertyTab::GlobalGroups, readOf<&clsLocalGroups::getGlobalGroups>},
                     {PropertyTab::Users, readOf<&clsLocalGroups::getUsers>},
                     {PropertyTab::Folders, readOf<&clsLocalGroups::getFolders>}})},
        {Mode::LocalGroups, Op::ViewUsers,
         related<&clsUsers::getLocalGroupMembers>(Mode::Users, "User(s) of Local Group "_L1)},
        {Mode::LocalGroups, Op::ViewGlobalGroups,
         related<&clsGlobalGroups::getLocalGroupMembers>(Mode::GlobalGroups,
                                                         "Global Group(s) of Local Group "_L1)},
        {Mode::LocalGroups, Op::ViewFolders,
         related<&clsFolders::getLocalGroupMembers>(Mode::Folders, "Permission(s) for Local Group "_L1)},
    };
    return table;
}
