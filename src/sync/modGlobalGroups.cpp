#include "sync/modGlobalGroups.h"

#include "store/clsGlobalGroups.h"
#include "views/frmNewEdit.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

constexpr frmNewEdit::Action newAction{
    .caption = "Add New Global Group"_L1, .bannerPicture = 1, .hasServer = true};
constexpr frmNewEdit::Action editAction{
    .caption = "Edit Global Group"_L1, .bannerPicture = 1, .hasServer = true};

void newGroup(const CommandContext &context)
{
    modRender::showNewEdit(context.owner, newAction, {}, context.newRow(),
                           [](const QString &connectionString, const frmNewEdit::Texts &texts) {
                               int id = 0;
                               clsGlobalGroups().Add(connectionString, texts.server, texts.name,
                                                     texts.description, id);
                           });
}

void editGroup(const CommandContext &context)
{
    modRender::showNewEdit(
        context.owner, editAction,
        {.name = context.subItem(1), .server = context.subItem(2), .description = context.subItem(3)},
        context.target(), [id = context.id](const QString &connectionString, const frmNewEdit::Texts &texts) {
            clsGlobalGroups().update(connectionString, id, texts.server, texts.name, texts.description);
        });
}

} // namespace

std::span<const OpRow> modGlobalGroups::handlers()
{
    static const OpRow table[] = {
        {Mode::GlobalGroups, Op::ListAll,
         listAll<&clsGlobalGroups::getAll>(Mode::GlobalGroups, "All Global Groups"_L1)},
        {Mode::GlobalGroups, Op::AddNew, newGroup},
        {Mode::GlobalGroups, Op::Edit, editGroup},
        {Mode::GlobalGroups, Op::Delete,
         deleteSelected<&clsGlobalGroups::Delete>(u"Deleting Global Groups"_s,
                                                  u"The following Global Groups could not be deleted:"_s)},
        {Mode::GlobalGroups, Op::Properties,
         properties({{PropertyTab::LocalGroups, readOf<&clsGlobalGroups::getLocalGroups>},
                     {PropertyTab::Users, readOf<&clsGlobalGroups::getUsers>},
                     {PropertyTab::Folders, readOf<&clsGlobalGroups::getFolders>}})},
        {Mode::GlobalGroups, Op::ViewUsers,
         related<&clsGlobalGroups::getUsers>(Mode::Users, "User(s) of Global Group "_L1)},
        {Mode::GlobalGroups, Op::ViewLocalGroups,
         related<&clsGlobalGroups::getLocalGroups>(Mode::LocalGroups, "Local Group(s) for Global Group "_L1)},
        {Mode::GlobalGroups, Op::ViewFolders,
         related<&clsGlobalGroups::getFolders>(Mode::Folders, "Permission(s) for Global Group "_L1)},
    };
    return table;
}
