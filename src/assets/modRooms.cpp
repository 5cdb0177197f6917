#include "assets/modRooms.h"

#include "assets/clsRooms.h"
#include "views/frmNewEdit.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

constexpr frmNewEdit::Action newAction{
    .caption = "Add New Room"_L1, .bannerPicture = 6, .nameLabel = "Room Number"_L1};
constexpr frmNewEdit::Action editAction{.caption = "Edit Room"_L1, .bannerPicture = 6};

void newRoom(const CommandContext &context)
{
    modRender::showNewEdit(context.owner, newAction, {}, context.newRow(),
                           [](const QString &connectionString, const frmNewEdit::Texts &texts) {
                               clsRooms().Add(connectionString, texts.name, texts.description);
                           });
}

void editRoom(const CommandContext &context)
{
    modRender::showNewEdit(
        context.owner, editAction, {.name = context.subItem(1), .description = context.subItem(2)},
        context.target(), [id = context.id](const QString &connectionString, const frmNewEdit::Texts &texts) {
            clsRooms().update(connectionString, id, texts.name, texts.description);
        });
}

} // namespace

std::span<const OpRow> modRooms::handlers()
{
    static const OpRow table[] = {
        {Mode::Rooms, Op::ListAll, listAll<&clsRooms::getAll>(Mode::Rooms, "All Rooms"_L1)},
        {Mode::Rooms, Op::AddNew, newRoom},
        {Mode::Rooms, Op::Edit, editRoom},
        {Mode::Rooms, Op::Delete,
         deleteSelected<&clsRooms::Delete>(u"Deleting Rooms"_s,
                                           u"The following Rooms could not be deleted:"_s)},
        {Mode::Rooms, Op::Properties,
         properties({{PropertyTab::Users, readOf<&clsRooms::getUsers>},
                     {PropertyTab::Hardware, readOf<&clsRooms::getHW>}})},
        {Mode::Rooms, Op::ViewUsers, related<&clsRooms::getUsers>(Mode::Users, "User(s)in Room "_L1)},
        {Mode::Rooms, Op::ViewHardware, related<&clsRooms::getHW>(Mode::HW, "Hardware in Room "_L1)},
    };
    return table;
}
