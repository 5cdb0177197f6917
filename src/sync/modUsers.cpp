#include "sync/modUsers.h"

#include "session/connectionstring.h"
#include "store/clsUsers.h"
#include "sync/frmUser.h"
#include "toolkit/messagebox.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

void newUser(const CommandContext &context)
{
    frmUser(context.owner, frmUser::Action::NewUser, context.newRow()).exec();
}

void editUser(const CommandContext &context)
{
    jet::Recordset user;
    clsUsers().getUserByID(getConnectionString(), context.id, user);
    if (user.recordCount() == 0) {
        messageBox(context.owner, u"The requested query did not return data"_s, box::InformationIcon);
        return;
    }
    // The store writes a user by the id: the others who have it would be overwritten.
    if (user.recordCount() > 1)
        throwError(RuleViolation,
                   u"%1 users have the UserID %2, so none of them can be edited. Import one of them "
                   "with another UserID first."_s.arg(user.recordCount())
                       .arg(context.id));
    frmUser dialog(context.owner, frmUser::Action::EditUser, context.target());
    dialog.load(user);
    dialog.exec();
}

} // namespace

std::span<const OpRow> modUsers::handlers()
{
    static const OpRow table[] = {
        {Mode::Users, Op::ListAll, listAll<&clsUsers::getAll>(Mode::Users, "All Users"_L1)},
        {Mode::Users, Op::AddNew, newUser},
        {Mode::Users, Op::Edit, editUser},
        {Mode::Users, Op::Delete,
         deleteSelected<&clsUsers::Delete>(u"Deleting Users"_s,
                                           u"The following Users could not be deleted:"_s)},
        {Mode::Users, Op::Properties,
         properties({{PropertyTab::GlobalGroups, readOf<&clsUsers::getGlobalGroups>},
                     {PropertyTab::LocalGroups, readOf<&clsUsers::getLocalGroups>},
                     {PropertyTab::Folders, readOf<&clsUsers::getAllFolders>},
                     {PropertyTab::Hardware, readOf<&clsUsers::getHW>},
                     {PropertyTab::Rooms, readOf<&clsUsers::getRooms>},
                     {PropertyTab::Software, readOf<&clsUsers::getSW>}})},
        {Mode::Users, Op::ViewGlobalGroups,
         related<&clsUsers::getGlobalGroups>(Mode::GlobalGroups, "Global Group(s) for User "_L1)},
        {Mode::Users, Op::ViewLocalGroups,
         related<&clsUsers::getLocalGroups>(Mode::LocalGroups, "Local Group(s) for User "_L1)},
        {Mode::Users, Op::ViewFolders,
         related<&clsUsers::getAllFolders>(Mode::Folders, "Permission(s) for User "_L1)},
        {Mode::Users, Op::ViewRooms, related<&clsUsers::getRooms>(Mode::Rooms, "Room(s) for User "_L1)},
        {Mode::Users, Op::ViewHardware, related<&clsUsers::getHW>(Mode::HW, "Hardware for User "_L1)},
        {Mode::Users, Op::ViewSW, related<&clsUsers::getSW>(Mode::SW, "Software for User "_L1)},
    };
    return table;
}
