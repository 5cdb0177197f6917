#include "assets/modSW.h"

#include "assets/choices.h"
#include "assets/clsSW.h"
#include "assets/frmSWHWType.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

namespace {

constexpr frmSWHWType::Action newAction{.caption = "Add New Software"_L1,
                                        .bannerPicture = 8,
                                        .typeLabel = "Software Type"_L1,
                                        .nameLabel = "Software Name"_L1,
                                        .versionLabel = "Version Number"_L1};

constexpr frmSWHWType::Action asEdit(frmSWHWType::Action action)
{
    action.caption = "Edit Software"_L1;
    return action;
}

void fill(frmSWHWType &dialog)
{
    fillChoices<&clsSW::getTypes>(*dialog.cboType);
    fillChoices<&clsSW::getManufacturers>(*dialog.cboManufacturer);
}

void newRow(const CommandContext &context)
{
    frmSWHWType dialog(context.owner, newAction, context.newRow(),
                       [](const QString &connectionString, const frmSWHWType::Texts &texts) {
                           clsSW().Add(connectionString, texts[0], texts[1], texts[2], texts[3], texts[4]);
                       });
    fill(dialog);
    dialog.exec();
}

void editRow(const CommandContext &context)
{
    frmSWHWType dialog(context.owner, asEdit(newAction), context.target(),
                       [id = context.id](const QString &connectionString, const frmSWHWType::Texts &texts) {
                           clsSW().update(connectionString, id, texts[0], texts[1], texts[2], texts[3],
                                          texts[4]);
                       });
    fill(dialog);
    dialog.load(
        {context.subItem(1), context.subItem(2), context.subItem(3), context.subItem(4), context.subItem(5)});
    dialog.exec();
}

} // namespace

std::span<const OpRow> modSW::handlers()
{
    static const OpRow table[] = {
        {Mode::SW, Op::ListAll, listAll<&clsSW::getAll>(Mode::SW, "Complete Software List"_L1)},
        {Mode::SW, Op::AddNew, newRow},
        {Mode::SW, Op::Edit, editRow},
        {Mode::SW, Op::Delete,
         deleteSelected<&clsSW::Delete>(u"Deleting Software"_s,
                                        u"The following Software could not be deleted:"_s)},
        {Mode::SW, Op::Properties,
         properties({{PropertyTab::Users, readOf<&clsSW::getUsers>},
                     {PropertyTab::Hardware, readOf<&clsSW::getHW>}})},
        {Mode::SW, Op::ViewUsers, related<&clsSW::getUsers>(Mode::Users, "Users of Software "_L1)},
        {Mode::SW, Op::ViewHardware, related<&clsSW::getHW>(Mode::HW, "Hardware for Software "_L1)},
    };
    return table;
}
