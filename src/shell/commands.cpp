#include "shell/commands.h"

#include "assets/modHW.h"
#include "exchange/modImport.h"
#include "messages/guard.h"
#include "session/help.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmOptions.h"
#include "shell/modCompact.h"
#include "toolkit/imagelist.h"
#include "views/families.h"
#include "views/menutree.h"

#include <QGroupBox>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void importFromFile(frmMain &window)
{
    modImport::showImport(&window);
}

void listUnassigned(frmMain &window)
{
    modHW::listUnassigned(&window);
}

void introduction(frmMain &)
{
    openHelp(u"intro.html"_s);
}

void manual(frmMain &)
{
    openHelp(u"manual.html"_s);
}

void options(frmMain &window)
{
    frmOptions dialog(window);
    dialog.exec();
}

void about(frmMain &window)
{
    frmAbout box(&window);
    box.exec();
}

constexpr Command showAll(Mode mode)
{
    return {Command::Kind::Run, mode, Op::ListAll, nullptr};
}
constexpr Command addNew(Mode mode)
{
    return {Command::Kind::Run, mode, Op::AddNew, nullptr};
}
constexpr Command call(void (*function)(frmMain &))
{
    return {Command::Kind::Call, Mode::Unknown, Op::None, function};
}
constexpr Command toCome{Command::Kind::ToCome, Mode::Unknown, Op::None, nullptr};

// clang-format off
constexpr MenuEntry menuTable[] = {
    {{}, "mnuGlobalGroups"_L1, "Global Groups"_L1, {}},
    {"mnuGlobalGroups"_L1, "mnuShowAllGlobalGroups"_L1, "Show All"_L1, showAll(Mode::GlobalGroups)},
    {"mnuGlobalGroups"_L1, "mnuAddNewGlobalGroup"_L1, "Add New"_L1, addNew(Mode::GlobalGroups)},
    {"mnuGlobalGroups"_L1, "mnuWizardGlobalGroupsLocalGroups"_L1, "Local Groups Wizard"_L1, toCome},
    {"mnuGlobalGroups"_L1, "mnuConfigGlobalGroupUsers"_L1, "Users Wizard"_L1, toCome},
    {"mnuGlobalGroups"_L1, "mnuConfigGlobalGroupFolders"_L1, "Folder Permission Wizard"_L1, toCome},
    {{}, "mnuLocalGroups"_L1, "Local Groups"_L1, {}},
    {"mnuLocalGroups"_L1, "mnuShowAllLocalGroups"_L1, "Show All"_L1, showAll(Mode::LocalGroups)},
    {"mnuLocalGroups"_L1, "mnuAddNewLocalGroup"_L1, "Add New"_L1, addNew(Mode::LocalGroups)},
    {"mnuLocalGroups"_L1, "mnuConfigLocalGroupUser"_L1, "User Wizard"_L1, toCome},
    {"mnuLocalGroups"_L1, "mnuConfigLocalGroupGlobalGroup"_L1, "Global Groups Wizard"_L1, toCome},
    {"mnuLocalGroups"_L1, "mnuConfigLocalGroupFolders"_L1, "Folder Permission Wizard"_L1, toCome},
    {{}, "mnuUsers"_L1, "Users"_L1, {}},
    {"mnuUsers"_L1, "mnuShowAllUsers"_L1, "Show All"_L1, showAll(Mode::Users)},
    {"mnuUsers"_L1, "mnuUserAddNew"_L1, "Add New"_L1, addNew(Mode::Users)},
    {"mnuUsers"_L1, "mnuShowAllUsersExtended"_L1, "Show Extended Live System List"_L1, toCome},
    {"mnuUsers"_L1, "mnuWizardUserGlobalGroup"_L1, "GlobalGroups Wizard"_L1, toCome},
    {"mnuUsers"_L1, "mnuConfigUserFolders"_L1, "Folder Permission Wizard"_L1, toCome},
    {"mnuUsers"_L1, "mnuWizardSetUserRoom"_L1, "Room Wizard"_L1, toCome},
    {"mnuUsers"_L1, "mnuWizardUserHW"_L1, "Hardware Wizard"_L1, toCome},
    {{}, "mnuFolders"_L1, "Folders"_L1, {}},
    {"mnuFolders"_L1, "mnuShowAllFolders"_L1, "Show All"_L1, showAll(Mode::Folders)},
    {"mnuFolders"_L1, "mnuAddNewFolder"_L1, "Add New"_L1, addNew(Mode::Folders)},
    {"mnuFolders"_L1, "mnuImportFolders"_L1, "Import..."_L1, toCome},
    {"mnuFolders"_L1, "mnuRenameFolder"_L1, "Rename Folder..."_L1, toCome},
    {"mnuFolders"_L1, "mnuFolderListContents"_L1, "List Folder Contents..."_L1, toCome},
    {"mnuFolders"_L1, "mnuFolderDefaultPermissions"_L1, "Default Permissions"_L1, {}},
    {"mnuFolderDefaultPermissions"_L1, "mnuFodlerDefaultPermissionsShowAll"_L1, "Show All"_L1, showAll(Mode::FolderDefaultPermissions)},
    {"mnuFolderDefaultPermissions"_L1, "mnuFolderDefaultPermissionsAdd"_L1, "Add New"_L1, addNew(Mode::FolderDefaultPermissions)},
    {"mnuFolders"_L1, "mnuFolderGlobalGroupWizard"_L1, "Global Group Permission Wizard"_L1, toCome},
    {"mnuFolders"_L1, "mnuFolderLocalGroupWizard"_L1, "Local Group Permission Wizard"_L1, toCome},
    {"mnuFolders"_L1, "mnuFolderUserPermissionWizard"_L1, "User Permission Wizard"_L1, toCome},
    {{}, "mnuHardware"_L1, "Hardware"_L1, {}},
    {"mnuHardware"_L1, "mnuShowAllHardware"_L1, "Show All"_L1, showAll(Mode::HW)},
    {"mnuHardware"_L1, "mnuShowAllHardwareUnassigned"_L1, "Show Unassigned"_L1, call(listUnassigned)},
    {"mnuHardware"_L1, "mnuAddNewHardware"_L1, "Add New"_L1, addNew(Mode::HW)},
    {"mnuHardware"_L1, "mnuWizardHWRoom"_L1, "Room Wizard"_L1, toCome},
    {"mnuHardware"_L1, "mnuWizardHWUser"_L1, "User Wizard"_L1, toCome},
    {"mnuHardware"_L1, "mnuWizardHWSW"_L1, "Software Wizard"_L1, toCome},
    {"mnuHardware"_L1, "mnuHardwareTypes"_L1, "Hardwaretypes"_L1, {}},
    {"mnuHardwareTypes"_L1, "mnuShowAllHardwareTypes"_L1, "Show All"_L1, showAll(Mode::HWType)},
    {"mnuHardwareTypes"_L1, "mnuAddNewHardwareType"_L1, "Add New"_L1, addNew(Mode::HWType)},
    {{}, "mnuSoftware"_L1, "Software"_L1, {}},
    {"mnuSoftware"_L1, "mnuShowAllSoftware"_L1, "Show All"_L1, showAll(Mode::SW)},
    {"mnuSoftware"_L1, "mnuAddNewSoftware"_L1, "Add New"_L1, addNew(Mode::SW)},
    {"mnuSoftware"_L1, "mnuWizardSWHW"_L1, "Hardware Wizard"_L1, toCome},
    {{}, "mnuRooms"_L1, "Rooms"_L1, {}},
    {"mnuRooms"_L1, "mnuShowAllRooms"_L1, "Show All"_L1, showAll(Mode::Rooms)},
    {"mnuRooms"_L1, "mnuAddNewRoom"_L1, "Add New"_L1, addNew(Mode::Rooms)},
    {"mnuRooms"_L1, "mnuWizardRoomUser"_L1, "User Wizard"_L1, toCome},
    {"mnuRooms"_L1, "mnuWizardAddRoomHardware"_L1, "Hardware Wizard"_L1, toCome},
    {{}, "mnuCustomQRY"_L1, "Custom Queries"_L1, {}},
    {"mnuCustomQRY"_L1, "mnuExecuteQuery"_L1, "Execute"_L1, {}},
    {"mnuExecuteQuery"_L1, "mnuQueries"_L1, "Empty"_L1, toCome},
    {"mnuCustomQRY"_L1, "mnuAddNewQRY"_L1, "Add New"_L1, addNew(Mode::QRY)},
    {"mnuCustomQRY"_L1, "mnuViewAllQRY"_L1, "Show All"_L1, showAll(Mode::QRY)},
    {{}, "mnuSearch"_L1, "Search"_L1, {}},
    {"mnuSearch"_L1, "mnuSearchGlobalGroups"_L1, "Global Groups"_L1, toCome},
    {"mnuSearch"_L1, "mnuSearchLocalGroups"_L1, "Local Groups"_L1, toCome},
    {"mnuSearch"_L1, "mnuSerchUsers"_L1, "Users"_L1, toCome},
    {"mnuSearch"_L1, "mnuSearchFolders"_L1, "Folders"_L1, toCome},
    {"mnuSearch"_L1, "mnuSearchHardwareType"_L1, "Hardware Type"_L1, toCome},
    {"mnuSearch"_L1, "mnuSearchHardware"_L1, "Hardware"_L1, toCome},
    {"mnuSearch"_L1, "mnuSearchRooms"_L1, "Rooms"_L1, toCome},
    {{}, "mnuReport"_L1, "Report"_L1, {}},
    {"mnuReport"_L1, "mnuReportAllGlobalGroups"_L1, "All Global Groups"_L1, {}},
    {"mnuReportAllGlobalGroups"_L1, "mnuReportAllGlobalgroupsList"_L1, "List"_L1, toCome},
    {"mnuReportAllGlobalGroups"_L1, "mnuReportAllGlobalGroupsDetails"_L1, "Details"_L1, toCome},
    {"mnuReport"_L1, "mnuReportAllLocalGroups"_L1, "All Local Groups"_L1, {}},
    {"mnuReportAllLocalGroups"_L1, "mnuReportAllLocalGroupsList"_L1, "List"_L1, toCome},
    {"mnuReportAllLocalGroups"_L1, "mnuReportAllLocalGroupsDetails"_L1, "Details"_L1, toCome},
    {"mnuReport"_L1, "mnuReportAllUsers"_L1, "All Users"_L1, {}},
    {"mnuReportAllUsers"_L1, "mnuReportAllUsersList"_L1, "List"_L1, toCome},
    {"mnuReportAllUsers"_L1, "mnuReportAllUsersDetail"_L1, "Details"_L1, toCome},
    {"mnuReport"_L1, "mnuReportAllFolders"_L1, "All Folders"_L1, {}},
    {"mnuReportAllFolders"_L1, "mnuReportAllFoldersList"_L1, "List"_L1, toCome},
    {"mnuReportAllFolders"_L1, "mnuReportAllFoldersDetail"_L1, "Detail"_L1, toCome},
    {"mnuReport"_L1, "mnuReportAllHardware"_L1, "All Hardware"_L1, {}},
    {"mnuReportAllHardware"_L1, "mnuReportAllHardwareList"_L1, "List"_L1, toCome},
    {"mnuReportAllHardware"_L1, "mnuReportAllHardwareDetails"_L1, "Details"_L1, toCome},
    {"mnuReport"_L1, "mnuReportAllSoftware"_L1, "All Software"_L1, {}},
    {"mnuReportAllSoftware"_L1, "mnuReportAllSoftwareList"_L1, "List"_L1, toCome},
    {"mnuReportAllSoftware"_L1, "mnuReportAllSoftwareDetails"_L1, "Details"_L1, toCome},
    {"mnuReport"_L1, "mnuReportAllRooms"_L1, "All Rooms"_L1, {}},
    {"mnuReportAllRooms"_L1, "mnuReportAllRoomsList"_L1, "List"_L1, toCome},
    {"mnuReportAllRooms"_L1, "mnuReportAllRoomsDetails"_L1, "Details"_L1, toCome},
    {"mnuReport"_L1, "mnuReportAllObjects"_L1, "All Objects"_L1, {}},
    {"mnuReportAllObjects"_L1, "mnuReportAllPermissionObjectsList"_L1, "List"_L1, toCome},
    {"mnuReportAllObjects"_L1, "mnuReportAllPermissionObjectsDetail"_L1, "Details"_L1, toCome},
    {{}, "mnuWindowsNT"_L1, "Live View"_L1, {}},
    {"mnuWindowsNT"_L1, "mnuNTShowServers"_L1, "Servers"_L1, toCome},
    {"mnuWindowsNT"_L1, "mnuNTShowGlobalGroups"_L1, "Global Groups"_L1, toCome},
    {"mnuWindowsNT"_L1, "mnuNTShowLocalGroups"_L1, "Local Groups"_L1, toCome},
    {"mnuWindowsNT"_L1, "mnuNTShowUsers"_L1, "Users"_L1, toCome},
    {{}, "mnuTools"_L1, "Tools"_L1, {}},
    {"mnuTools"_L1, "mnuImport"_L1, "Import from File..."_L1, call(importFromFile)},
    {"mnuTools"_L1, "mnuOptions"_L1, "Options..."_L1, call(options)},
    {"mnuTools"_L1, "mnuToolCompactDatabase"_L1, "Compact Database"_L1, call(compactDatabase)},
    {{}, "mnuHelp"_L1, "&Help"_L1, {}},
    {"mnuHelp"_L1, "mnuHelpOverView"_L1, "Introduction"_L1, call(introduction)},
    {"mnuHelp"_L1, "mnuHelpUserManual"_L1, "User Manual"_L1, call(manual), Qt::Key_F1},
    {"mnuHelp"_L1, "mnuAbout"_L1, "About"_L1, call(about)},
};

constexpr ToolbarButton toolbarTable[] = {
    {"GlobalGroups"_L1, 1, "View all Global Groups"_L1, showAll(Mode::GlobalGroups)},
    {"LocalGroups"_L1, 2, "View all Local Groups"_L1, showAll(Mode::LocalGroups)},
    {"Users"_L1, 3, "View all Users"_L1, showAll(Mode::Users)},
    {"Folders"_L1, 4, "View all Folders"_L1, showAll(Mode::Folders)},
    {"Hardware"_L1, 5, "View Hardware"_L1, showAll(Mode::HW)},
    {"Rooms"_L1, 6, "View Rooms"_L1, showAll(Mode::Rooms)},
    {"HardwareTypes"_L1, 7, "View Hardware Types"_L1, showAll(Mode::HWType)},
    {"SW"_L1, 8, "View Software"_L1, showAll(Mode::SW)},
    {"Search"_L1, 9, "Search for Groups, Users, Folders etc."_L1, toCome},
};

constexpr auto live = "Live View"_L1;
constexpr auto add = "Add"_L1;
constexpr auto search = "Search"_L1;
constexpr SidebarButton sidebarTable[] = {
    {"frameNT"_L1, live, "cmdNTServers"_L1, "Servers"_L1, 16, "mnuNTShowServers"_L1},
    {"frameNT"_L1, live, "cmdNTGlobalGroups"_L1, "Global Groups"_L1, 1, "mnuNTShowGlobalGroups"_L1},
    {"frameNT"_L1, live, "cmdNTLocalGroups"_L1, "Local Groups"_L1, 2, "mnuNTShowLocalGroups"_L1},
    {"frameNT"_L1, live, "cmdNTUsers"_L1, "Users"_L1, 3, "mnuNTShowUsers"_L1},
    {"frameAdd"_L1, add, "cmdAddUser"_L1, "User"_L1, 3, "mnuUserAddNew"_L1},
    {"frameAdd"_L1, add, "cmdAddRoom"_L1, "Room"_L1, 6, "mnuAddNewRoom"_L1},
    {"frameAdd"_L1, add, "cmdAddHardware"_L1, "Hardware"_L1, 5, "mnuAddNewHardware"_L1},
    {"frameAdd"_L1, add, "cmdAddGlobalGroup"_L1, "Global Group"_L1, 1, "mnuAddNewGlobalGroup"_L1},
    {"frameAdd"_L1, add, "cmdAddLocalGroup"_L1, "Local Group"_L1, 2, "mnuAddNewLocalGroup"_L1},
    {"frameAdd"_L1, add, "cmdAddFolder"_L1, "Folder"_L1, 4, "mnuAddNewFolder"_L1},
    {"frameSearch"_L1, search, "cmdSearchRooms"_L1, "Rooms"_L1, 6, "mnuSearchRooms"_L1},
    {"frameSearch"_L1, search, "cmdSearchHardware"_L1, "Hardware"_L1, 5, "mnuSearchHardware"_L1},
    {"frameSearch"_L1, search, "cmdSearchFolders"_L1, "Folders"_L1, 4, "mnuSearchFolders"_L1},
    {"frameSearch"_L1, search, "cmdSearchUsers"_L1, "Users"_L1, 3, "mnuSerchUsers"_L1},
    {"frameSearch"_L1, search, "cmdSearchLocalGroups"_L1, "Local Groups"_L1, 2, "mnuSearchLocalGroups"_L1},
    {"frameSearch"_L1, search, "cmdSearchGlobalgroups"_L1, "Global Groups"_L1, 1, "mnuSearchGlobalGroups"_L1},
};
// clang-format on

const Command &commandOf(QLatin1StringView entry)
{
    const auto *const found = std::ranges::find(menuTable, entry, &MenuEntry::name);
    Q_ASSERT(found != std::end(menuTable));
    return found->command;
}

/// Connects what is clicked, an action or a button, with its command.
template <typename Clicked, typename Signal>
void serve(frmMain &window, Clicked &clicked, Signal signal, const Command &command,
           const QString &plain = {})
{
    const bool works = command.works();
    clicked.setEnabled(works);
    if (!works)
        clicked.setToolTip(plain.isEmpty() ? notYetImplemented() : plain % u'\n' % notYetImplemented());
    QObject::connect(&clicked, signal, &window,
                     [&window, command] { guarded(&window, [&] { command.run(window); }); });
}

} // namespace

bool Command::works() const
{
    switch (kind) {
    case Kind::Run:
        return bool(handlerOf(mode, op));
    case Kind::ToCome:
        return false;
    case Kind::Menu:
    case Kind::Call:
        break;
    }
    return true;
}

void Command::run(frmMain &window) const
{
    switch (kind) {
    case Kind::Run:
        runWithoutList(&window, mode, op);
        break;
    case Kind::Call:
        call(window);
        break;
    case Kind::Menu:
    case Kind::ToCome:
        break;
    }
}

std::span<const MenuEntry> mainMenu()
{
    return menuTable;
}

std::span<const ToolbarButton> mainToolbar()
{
    return toolbarTable;
}

std::span<const SidebarButton> sidebar()
{
    return sidebarTable;
}

QList<QMenu *> buildMenus(frmMain &window, std::span<const MenuEntry> entries)
{
    return buildMenuTree(
        window, entries, [](const MenuEntry &entry) { return entry.command.kind == Command::Kind::Menu; },
        [&](const MenuEntry &entry, QAction &action) {
            if (entry.command.kind != Command::Kind::Menu)
                serve(window, action, &QAction::triggered, entry.command);
        });
}

void fillToolbar(frmMain &window, QToolBar &toolbar, std::span<const ToolbarButton> buttons)
{
    for (const ToolbarButton &button : buttons) {
        QAction *action =
            toolbar.addAction(imageLists().ImageListToolbar.icon(button.picture), button.tooltip);
        action->setObjectName(button.key);
        serve(window, *action, &QAction::triggered, button.command, button.tooltip);
    }
}

void fillSidebar(frmMain &window, QBoxLayout &layout, std::span<const SidebarButton> buttons)
{
    QGroupBox *frame = nullptr;
    for (const SidebarButton &entry : buttons) {
        if (!frame || frame->objectName() != entry.frame) {
            frame = new QGroupBox(entry.frameCaption);
            frame->setObjectName(entry.frame);
            auto *column = new QVBoxLayout(frame);
            column->setContentsMargins(4, 4, 4, 4);
            column->setSpacing(0);
            layout.addWidget(frame);
        }
        auto *button = new QToolButton;
        button->setObjectName(entry.name);
        button->setText(entry.caption);
        button->setIcon(imageLists().ImageListToolbar.icon(entry.picture));
        button->setIconSize(imageLists().ImageListList.imageSize());
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setAccessibleName(entry.frameCaption % u' ' % entry.caption);
        serve(window, *button, &QToolButton::clicked, commandOf(entry.entry));
        frame->layout()->addWidget(button);
    }
}
