#include "views/viewmenus.h"

#include "toolkit/imagelist.h"
#include "views/families.h"
#include "views/menutree.h"

#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int copyKey = QKeyCombination(Qt::CTRL, Qt::Key_C).toCombined();
constexpr int addKey = QKeyCombination(Qt::CTRL, Qt::Key_N).toCombined();
constexpr int deleteKey = Qt::Key_Delete;
constexpr int propertiesKey = Qt::Key_F4;
constexpr int executeKey = QKeyCombination(Qt::CTRL, Qt::Key_E).toCombined();
constexpr int refreshKey = Qt::Key_F5;

// The cells are the modes in their order: groups (global, local), users, folders, default permissions,
// hardware types, hardware, rooms, software, queries, unknown; then the live ones: groups (global, local),
// users, folders, folder permissions, servers.
// clang-format off
constexpr ViewMenuEntry entries[] = {
    {{}, "mnuEditParent"_L1, "Edit"_L1, Op::None, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuEditParent"_L1, "mnuEditCopy"_L1, "Copy"_L1, Op::Copy, modes("xxxxxxxxxx.xxxxxx"), copyKey},
    {"mnuEditParent"_L1, "mnuEditSort"_L1, "Sort"_L1, Op::Sort, modes("xxxxxxxxxx.xxxxxx")},
    {"mnuEditParent"_L1, "mnuEditAddNew"_L1, "Add"_L1, Op::AddNew, modes("xxxxxxxxxx......."), addKey},
    {"mnuEditParent"_L1, "mnuEditEdit"_L1, "Edit"_L1, Op::Edit, modes("xxxxxxxxxx.......")},
    {"mnuEditParent"_L1, "mnuEditDelete"_L1, "Delete"_L1, Op::Delete, modes("xxxxxxxxxxxxxxxxx"), deleteKey},
    {"mnuEditParent"_L1, "mnuEditProperties"_L1, "Properties"_L1, Op::Properties, modes("xxxx.xxxx........"), propertiesKey},
    {"mnuEditParent"_L1, "mnuEditExecuteQuery"_L1, "Execute Custom Query"_L1, Op::ExecuteQuery, modes(".........x......."), executeKey},
    {{}, "mnuView"_L1, "Database View"_L1, Op::None, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuView"_L1, "mnuViewGlobalGroups"_L1, "Global Groups"_L1, Op::ViewGlobalGroups, modes(".xxx.............")},
    {"mnuView"_L1, "mnuViewLocalGroups"_L1, "Local Groups"_L1, Op::ViewLocalGroups, modes("x.xx.............")},
    {"mnuView"_L1, "mnuViewUsers"_L1, "Users"_L1, Op::ViewUsers, modes("xx.x.xxx.........")},
    {"mnuView"_L1, "mnuViewFolders"_L1, "Folders"_L1, Op::ViewFolders, modes("xxx..............")},
    {"mnuView"_L1, "mnuViewRooms"_L1, "Rooms"_L1, Op::ViewRooms, modes("..x..xx..........")},
    {"mnuView"_L1, "mnuViewHardware"_L1, "Hardware"_L1, Op::ViewHardware, modes("..x..x.x.........")},
    {"mnuView"_L1, "mnuViewSoftware"_L1, "Software"_L1, Op::ViewSW, modes("..x...x..........")},
    {"mnuView"_L1, "mnuViewRefresh"_L1, "Refresh"_L1, Op::ViewRefresh, modes("xxxxx.x.........."), refreshKey},
    {{}, "mnuViewWindowsNT"_L1, "Live View"_L1, Op::None, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuViewWindowsNT"_L1, "mnuViewNTGlobalGroups"_L1, "Global Groups"_L1, Op::ViewNTGlobalGroups, modes(".x..........x...x")},
    {"mnuViewWindowsNT"_L1, "mnuViewNTLocalGroups"_L1, "Local Groups"_L1, Op::ViewNTLocalGroups, modes("................x")},
    {"mnuViewWindowsNT"_L1, "mnuViewNTUsers"_L1, "Users"_L1, Op::ViewNTUsers, modes("xx.........xx...x")},
    {"mnuViewWindowsNT"_L1, "mnuViewNTExtendedUserInformation"_L1, "Extended User Information"_L1, Op::ViewNTExtendedUserInformation, modes("..x..........x...")},
    {"mnuViewWindowsNT"_L1, "mnuViewNTFolderPermissions"_L1, "Folder Permissions"_L1, Op::ViewNTFolderPermissions, modes(".xxx........xx...")},
    {{}, "mnuReport"_L1, "Report"_L1, Op::None, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuReport"_L1, "mnuReportGlobalGroups"_L1, "Global Groups"_L1, Op::None, modes(".xxx.............")},
    {"mnuReportGlobalGroups"_L1, "mnuReportGlobalGroupsPreview"_L1, "Preview"_L1, Op::ReportGlobalGroupsPreview, modes(".xxx.............")},
    {"mnuReportGlobalGroups"_L1, "mnuReportGlobalGroupsPrint"_L1, "Print"_L1, Op::ReportGlobalGroupsPrint, modes(".xxx.............")},
    {"mnuReport"_L1, "mnuReportLocalGroups"_L1, "Local Groups"_L1, Op::None, modes("x.xx.............")},
    {"mnuReportLocalGroups"_L1, "mnuReportLocalGroupsPreview"_L1, "Preview"_L1, Op::ReportLocalGroupsPreview, modes("x.xx.............")},
    {"mnuReportLocalGroups"_L1, "mnuReportLocalGroupsPrint"_L1, "Print"_L1, Op::ReportLocalGroupsPrint, modes("x.xx.............")},
    {"mnuReport"_L1, "mnuReportUsers"_L1, "Users"_L1, Op::None, modes("xx.x...xx........")},
    {"mnuReportUsers"_L1, "mnuReportUsersPreview"_L1, "Preview"_L1, Op::ReportUsersPreview, modes("xx.x...xx........")},
    {"mnuReportUsers"_L1, "mnuReportUsersPrint"_L1, "Print"_L1, Op::ReportUsersPrint, modes("xx.x...xx........")},
    {"mnuReport"_L1, "mnuReportFolders"_L1, "Folders"_L1, Op::None, modes("xxx..............")},
    {"mnuReportFolders"_L1, "mnuReportFoldersPreview"_L1, "Preview"_L1, Op::ReportFoldersPreview, modes("xxx..............")},
    {"mnuReportFolders"_L1, "mnuReportFoldersPrint"_L1, "Print"_L1, Op::ReportFoldersPrint, modes("xxx..............")},
    {"mnuReport"_L1, "mnuReportHardware"_L1, "Hardware"_L1, Op::None, modes("..x....xx........")},
    {"mnuReportHardware"_L1, "mnuReportHardwarePreview"_L1, "Preview"_L1, Op::ReportHardwarePreview, modes("..x....xx........")},
    {"mnuReportHardware"_L1, "mnuReportHardwarePrint"_L1, "Print"_L1, Op::ReportHardwarePrint, modes("..x....xx........")},
    {"mnuReport"_L1, "mnuReportSoftware"_L1, "Software"_L1, Op::None, modes("..x...x..........")},
    {"mnuReportSoftware"_L1, "mnuReportSoftwarePreview"_L1, "Preview"_L1, Op::ReportSoftwarePreview, modes("..x...x..........")},
    {"mnuReportSoftware"_L1, "mnuReportSoftwarePrint"_L1, "Print"_L1, Op::ReportSoftwarePrint, modes("..x...x..........")},
    {"mnuReport"_L1, "mnuReportAll"_L1, "All Related Objects"_L1, Op::None, modes("xxxx..xxx........")},
    {"mnuReportAll"_L1, "mnuReportAllPreview"_L1, "Preview"_L1, Op::ReportAllPreview, modes("xxxx..xxx........")},
    {"mnuReportAll"_L1, "mnuReportAllPrint"_L1, "Print"_L1, Op::ReportAllPrint, modes("xxxx..xxx........")},
    {{}, "mnuTools"_L1, "Tools"_L1, Op::None, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuTools"_L1, "mnuToolsImport"_L1, "Import"_L1, Op::None, modes("xx.x.......xxx...")},
    {"mnuToolsImport"_L1, "mnuToolsImportSelected"_L1, "Selected Objects from Live System"_L1, Op::ImportObjects, modes("...........xxx...")},
    {"mnuToolsImport"_L1, "mnuToolsImportUserMembership"_L1, "User Relationships from Live System"_L1, Op::ImportUserRelationships, modes("xx.........xx....")},
    {"mnuToolsImport"_L1, "mnuToolsImportGlobalGroupsMemberships"_L1, "Global Group Relationships from Live System"_L1, Op::ImportGlobalGroups, modes(".x..........x....")},
    {"mnuToolsImport"_L1, "mnuToolsImportFolderPermissions"_L1, "Folder Permissions from Live System"_L1, Op::ImportFolderPermissions, modes("...x.............")},
    {"mnuToolsImport"_L1, "mnuToolsImportSubFolders"_L1, "Subfolders from Live System"_L1, Op::ImportSubFolders, modes("...x.............")},
    {"mnuTools"_L1, "mnuToolSexport"_L1, "Export"_L1, Op::None, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuToolSexport"_L1, "mnuToolsExportToNT"_L1, "Selected Objects to Live System"_L1, Op::ExportToNT, modes("xxxx.............")},
    {"mnuToolSexport"_L1, "mnuToolsExportToFile"_L1, "Data To File"_L1, Op::ExportToFile, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuToolSexport"_L1, "mnuToolsExportUserMemberShips"_L1, "User Relationships to Live System"_L1, Op::ExportUserMemberships, modes("xx...............")},
    {"mnuToolSexport"_L1, "mnuToolsExportGlobalGroupsMemberships"_L1, "Global Group Relationships to Live System"_L1, Op::ExportGlobalGroupMemberships, modes(".x...............")},
    {"mnuToolSexport"_L1, "mnuToolsExportFolderPermissions"_L1, "Folder Permissions to Live System"_L1, Op::ExportFolderPermission, modes("xxxx.............")},
    {"mnuTools"_L1, "mnuToolsMemberships"_L1, "Relationships"_L1, Op::None, modes("xx.x.......xx....")},
    {"mnuToolsMemberships"_L1, "mnuToolsRemoveGroupUsers"_L1, "Remove User Relationships from Database"_L1, Op::RemoveUsers, modes("xx.........x.....")},
    {"mnuToolsMemberships"_L1, "mnuToolsRemoveLocalGroupGlobalGroups"_L1, "Remove Global Group Relationships from Database"_L1, Op::RemoveGlobalGroups, modes(".x..........x....")},
    {"mnuToolsMemberships"_L1, "mnuToolsDeleteDBFolderPermissions"_L1, "Remove Folder Permissions from Database"_L1, Op::DeleteDBFolderPermission, modes(".xxx.............")},
    {"mnuTools"_L1, "mnuToolsMiscellaneous"_L1, "Live System"_L1, Op::None, modes(".xxx.............")},
    {"mnuToolsMiscellaneous"_L1, "mnuToolsFolderExplorer"_L1, "Launch Explorer"_L1, Op::ExploreFolder, modes("...x.............")},
    {"mnuToolsMiscellaneous"_L1, "mnuToolsDeleteNTFolderPermissions"_L1, "Revoke Folder Permissions from Live System"_L1, Op::DeleteFolderPermissions, modes(".xxx.............")},
    {"mnuToolsMiscellaneous"_L1, "mnuToolsRemoveFiles"_L1, "Remove File(s)"_L1, Op::RemoveFiles, modes("...x.............")},
    {"mnuToolsMiscellaneous"_L1, "mnuToolsRemoveFolder"_L1, "Remove Folder(s)"_L1, Op::RemoveFolders, modes("...x.............")},
    {"mnuTools"_L1, "mnuToolsPrint"_L1, "Print"_L1, Op::PrintData, modes("xxxxxxxxxxxxxxxxx")},
    {{}, "mnuWizard"_L1, "Relationships"_L1, Op::None, modes("xxxxxxxxxxxxxxxxx")},
    {"mnuWizard"_L1, "mnuWizardGlobalGroup"_L1, "Global Groups"_L1, Op::WizardGlobalGroups, modes(".xx..............")},
    {"mnuWizard"_L1, "mnuWizardLocalGroup"_L1, "Local Groups"_L1, Op::WizardLocalGroups, modes("x................")},
    {"mnuWizard"_L1, "mnuWizardUser"_L1, "Users"_L1, Op::WizardUsers, modes("xx....xx.........")},
    {"mnuWizard"_L1, "mnuWizardRoom"_L1, "Rooms"_L1, Op::WizardRoom, modes("..x...x..........")},
    {"mnuWizard"_L1, "mnuWizardHardware"_L1, "Hardware"_L1, Op::WizardHardware, modes("..x....xx........")},
    {"mnuWizard"_L1, "mnuWizardFolderPermission"_L1, "Folder Permissions"_L1, Op::WizardFolderPermission, modes("xxx..............")},
    {"mnuWizard"_L1, "mnuWizardFolderGlobalGroupPermission"_L1, "Global Group Permissions"_L1, Op::WizardGlobalGroupFolderPermission, modes("...x.............")},
    {"mnuWizard"_L1, "mnuWizardFolderLocalGroupPermission"_L1, "Local Group Permissions"_L1, Op::WizardLocalGroupFolderPermission, modes("...x.............")},
    {"mnuWizard"_L1, "mnuWizardFolderUserPermission"_L1, "User Permissions"_L1, Op::WizardUserFolderPermission, modes("...x.............")},
    {"mnuWizard"_L1, "mnuWizardSoftware"_L1, "Software"_L1, Op::WizardSW, modes("......x..........")},
};

constexpr ViewToolbarButton buttons[] = {
    {"GlobalGroups"_L1, 1, "View Global Groups"_L1, Op::ViewGlobalGroups, modes(".xxx.............")},
    {"LocalGroups"_L1, 2, "View Local Groups"_L1, Op::ViewLocalGroups, modes("x.xx.............")},
    {"Users"_L1, 3, "View Users"_L1, Op::ViewUsers, modes("xx.x.xxxx........")},
    {"Folders"_L1, 4, "View Folders"_L1, Op::ViewFolders, modes("xxx..............")},
    {"Hardware"_L1, 5, "View Hardware"_L1, Op::ViewHardware, modes("..x..x.xx........")},
    {"Software"_L1, 8, "View Software"_L1, Op::ViewSW, modes("..x...x..........")},
    {"Rooms"_L1, 6, "View Rooms"_L1, Op::ViewRooms, modes("..x...x..........")},
    {"SaveView"_L1, 10, "Save this View"_L1, Op::ExportToFile, modes("xxxxxxxxxxxxxxxxx")},
    {"PrintView"_L1, 11, "Print this View"_L1, Op::PrintData, modes("xxxxxxxxxxxxxxxxx")},
};
// clang-format on

} // namespace

std::span<const ViewMenuEntry> viewMenuEntries()
{
    return entries;
}

std::span<const ViewToolbarButton> viewToolbarButtons()
{
    return buttons;
}

ViewMenus::ViewMenus(QWidget *owner, QToolBar &toolbar) : QObject(owner)
{
    m_menus = buildMenuTree(
        *owner, viewMenuEntries(), [](const ViewMenuEntry &entry) { return entry.op == Op::None; },
        [this](const ViewMenuEntry &entry, QAction &action) { add(&action, entry.op, entry.modes); });
    for (const ViewToolbarButton &button : buttons) {
        QAction *action =
            toolbar.addAction(imageLists().ImageListToolbar.icon(button.picture), button.tooltip);
        action->setObjectName(button.key);
        add(action, button.op, button.modes);
    }
    dress(nullptr);
}

void ViewMenus::add(QAction *action, Op op, ModeSet modes)
{
    m_entries.push_back({action, op, modes});
    if (op != Op::None)
        connect(action, &QAction::triggered, this, [this, op] {
            if (m_target)
                m_target->run(op);
        });
}

void ViewMenus::dress(CommandTarget *target)
{
    m_target = target;
    const std::optional<Mode> given = target ? target->mode() : std::nullopt;
    // A view without a mode has the menus of one of unknown rows.
    const Mode mode = given.value_or(Mode::Unknown);
    for (const Entry &entry : m_entries) {
        const bool shown = target && contains(entry.modes, mode);
        const bool works = entry.op == Op::None || isOfTheList(entry.op) || entry.op == Op::ViewRefresh ||
                           handlerOf(mode, entry.op);
        entry.action->setVisible(shown);
        entry.action->setEnabled(shown && works);
        const QString plain = entry.action->text();
        entry.action->setToolTip(works ? plain : plain % u'\n' % notYetImplemented());
    }
}
