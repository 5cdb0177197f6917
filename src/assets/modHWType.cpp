#include "assets/modHWType.h"

#include "assets/choices.h"
#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/frmSWHWType.h"
#include "session/connectionstring.h"
#include "store/clsUsers.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

constexpr frmSWHWType::Action newAction{.caption = "Add New Hardware Type"_L1,
                                        .bannerPicture = 7,
                                        .typeLabel = "Hardware Type"_L1,
                                        .nameLabel = "Model"_L1,
                                        .versionLabel = "Type Number"_L1};

constexpr frmSWHWType::Action asEdit(frmSWHWType::Action action)
{
    action.caption = "Edit Hardware Type"_L1;
    return action;
}

void fill(frmSWHWType &dialog)
{
    fillChoices<&clsHWType::getTypes>(*dialog.cboType);
    fillChoices<&clsHWType::getManufacturers>(*dialog.cboManufacturer);
}

void newRow(const CommandContext &context)
{
    frmSWHWType dialog(context.owner, newAction, context.newRow(),
                       [](const QString &connectionString, const frmSWHWType::Texts &texts) {
                           clsHWType().Add(connectionString, texts[0], texts[1], texts[2], texts[3],
                                           texts[4]);
                       });
    fill(dialog);
    dialog.exec();
}

void editRow(const CommandContext &context)
{
    frmSWHWType dialog(context.owner, asEdit(newAction), context.target(),
                       [id = context.id](const QString &connectionString, const frmSWHWType::Texts &texts) {
                           clsHWType().update(connectionString, id, texts[0], texts[1], texts[2], texts[3],
                                              texts[4]);
                       });
    fill(dialog);
    dialog.load(
        {context.subItem(1), context.subItem(2), context.subItem(3), context.subItem(4), context.subItem(5)});
    dialog.exec();
}

/// What the question before a delete adds: the hardware of a type is not deleted with it.
QString itemsLeftBehind(const CommandContext &context)
{
    const int items = clsHWType().countItems(getConnectionString(), context.selectedIds());
    if (items == 0)
        return {};
    return u"%1 hardware item(s) of the selected type(s) stay in the Database and will be listed under "
           "\"All Unassigned Hardware\" only."_s.arg(items);
}

} // namespace

void modHWType::newHWType(QWidget *owner)
{
    newRow({.mode = Mode::HWType, .owner = owner});
}

std::span<const OpRow> modHWType::handlers()
{
    static const OpRow table[] = {
        {Mode::HWType, Op::ListAll, listAll<&clsHWType::getAll>(Mode::HWType, "All Hardware Types"_L1)},
        {Mode::HWType, Op::AddNew, newRow},
        {Mode::HWType, Op::Edit, editRow},
        {Mode::HWType, Op::Delete,
         deleteSelected<&clsHWType::Delete>(u"Deleting Hardware Types"_s,
                                            u"The following Hardware Types could not be deleted:"_s),
         Needs::Selection, itemsLeftBehind},
        {Mode::HWType, Op::Properties,
         properties({{PropertyTab::Users, readOf<&clsUsers::getByHardwareType>},
                     {PropertyTab::Hardware, readOf<&clsHW::getOfType>},
                     {PropertyTab::Rooms, readOf<&clsRooms::getByHardwareType>}})},
        {Mode::HWType, Op::ViewUsers,
         related<&clsUsers::getByHardwareType>(Mode::Users, "Users that have Hardware "_L1)},
        {Mode::HWType, Op::ViewHardware, related<&clsHW::getOfType>(Mode::HW, "Hardware of Type "_L1)},
        {Mode::HWType, Op::ViewRooms,
         related<&clsRooms::getByHardwareType>(Mode::Rooms, "Rooms that have Hardware "_L1)},
    };
    return table;
}
