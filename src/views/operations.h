#pragma once

#include <QtGlobal>

/// What can be done with the rows of a list. Which mode offers which operation is the table of
/// views/viewmenus.cpp; what it does is what a family registers (views/families.h).
enum class Op : quint8 {
    None,

    // The list's own: they work in every mode.
    Copy,
    Sort,
    ViewRefresh,

    AddNew,
    Edit,
    Delete,
    Properties,
    ExecuteQuery,
    /// The view of all objects of a mode: on no menu of a view; ViewRefresh and the main window run it.
    ListAll,

    ViewGlobalGroups,
    ViewLocalGroups,
    ViewUsers,
    ViewFolders,
    ViewRooms,
    ViewHardware,
    ViewSW,

    ViewNTGlobalGroups,
    ViewNTLocalGroups,
    ViewNTUsers,
    ViewNTExtendedUserInformation,
    ViewNTFolderPermissions,

    ReportGlobalGroupsPreview,
    ReportGlobalGroupsPrint,
    ReportLocalGroupsPreview,
    ReportLocalGroupsPrint,
    ReportUsersPreview,
    ReportUsersPrint,
    ReportFoldersPreview,
    ReportFoldersPrint,
    ReportHardwarePreview,
    ReportHardwarePrint,
    ReportSoftwarePreview,
    ReportSoftwarePrint,
    ReportAllPreview,
    ReportAllPrint,

    ImportObjects,
    ImportUserRelationships,
    ImportGlobalGroups,
    ImportFolderPermissions,
    ImportSubFolders,
    ExportToNT,
    ExportToFile,
    ExportUserMemberships,
    ExportGlobalGroupMemberships,
    ExportFolderPermission,
    RemoveUsers,
    RemoveGlobalGroups,
    DeleteDBFolderPermission,
    ExploreFolder,
    DeleteFolderPermissions,
    RemoveFiles,
    RemoveFolders,
    PrintData,

    WizardGlobalGroups,
    WizardLocalGroups,
    WizardUsers,
    WizardRoom,
    WizardHardware,
    WizardFolderPermission,
    WizardGlobalGroupFolderPermission,
    WizardLocalGroupFolderPermission,
    WizardUserFolderPermission,
    WizardSW,

    Count
};

/// What an operation asks of the list before it runs. The list answers what is missing, the same way for
/// every family.
enum class Needs : quint8 {
    Nothing,
    StoredRow,   ///< a current row with an id of the store
    EditableRow, ///< the same, with another message
    Selection,   ///< at least one selected row
};
/// What it asks unless a family registers it with something else.
[[nodiscard]] constexpr Needs needsOf(Op op)
{
    if (op == Op::Edit)
        return Needs::EditableRow;
    if (op == Op::Properties || (op >= Op::ViewGlobalGroups && op <= Op::ViewSW))
        return Needs::StoredRow;
    if (op == Op::Delete)
        return Needs::Selection;
    return Needs::Nothing;
}

/// Copying and sorting are the list's own: they work in every mode and need no family.
[[nodiscard]] constexpr bool isOfTheList(Op op)
{
    return op == Op::Copy || op == Op::Sort;
}
