#include "assets/modHW.h"

#include "assets/clsHW.h"
#include "assets/frmHW.h"
#include "session/connectionstring.h"
#include "toolkit/messagebox.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

void newHW(const CommandContext &context)
{
    frmHW dialog(
        context.owner, frmHW::Action::NewHW, context.newRow(),
        [](const QString &connectionString, const HWRecord &item) { clsHW().Add(connectionString, item); });
    dialog.exec();
}

void editHW(const CommandContext &context)
{
    jet::Recordset item;
    clsHW().GetByID(getConnectionString(), item, context.id);
    if (item.recordCount() == 0) {
        messageBox(context.owner, u"The requested query did not return data"_s, box::InformationIcon);
        return;
    }
    frmHW dialog(context.owner, frmHW::Action::EditHW, context.target(),
                 [id = context.id](const QString &connectionString, const HWRecord &changed) {
                     clsHW().update(connectionString, id, changed);
                 });
    dialog.load(item);
    dialog.exec();
}

} // namespace

void modHW::listUnassigned(QWidget *owner)
{
    openView(owner, nullptr, Mode::HW, u"All Unassigned Hardware"_s, readAll<&clsHW::getUnAssigned>);
}

std::span<const OpRow> modHW::handlers()
{
    static const OpRow table[] = {
        {Mode::HW, Op::ListAll, listAll<&clsHW::getAll>(Mode::HW, "All Hardware"_L1)},
        {Mode::HW, Op::AddNew, newHW},
        {Mode::HW, Op::Edit, editHW},
        {Mode::HW, Op::Delete,
         deleteSelected<&clsHW::Delete>(u"Deleting Hardware"_s,
                                        u"The following Hardware could not be deleted:"_s)},
        {Mode::HW, Op::Properties,
         properties({{PropertyTab::Users, readOf<&clsHW::getUser>},
                     {PropertyTab::Rooms, readOf<&clsHW::getRoom>},
                     {PropertyTab::Software, readOf<&clsHW::getSW>}})},
        {Mode::HW, Op::ViewUsers, related<&clsHW::getUser>(Mode::Users, "User(s) of Hardware "_L1)},
        {Mode::HW, Op::ViewRooms, related<&clsHW::getRoom>(Mode::Rooms, "Room(s) for Hardware "_L1)},
        {Mode::HW, Op::ViewSW, related<&clsHW::getSW>(Mode::SW, "Software for Hardware "_L1)},
    };
    return table;
}
