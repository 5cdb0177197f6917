#pragma once

#include "platform/jet/deleterules.h"

/// The rows of relationship tables and what they relate: a row of a root table takes the rows that tell of it
/// along when it is deleted. On a delete only: an id that is changed is no one's business but the
/// statement's.
inline constexpr jet::DeleteRule relationships[] = {
    {"Tbl_GlobalGroupsUsers", "GlobalGroupID", "Tbl_GlobalGroups", "ID"},
    {"Tbl_GlobalGroupsUsers", "UserID", "Tbl_Users", "UserID"},
    {"Tbl_LocalGroupsUsers", "LocalGroupID", "Tbl_LocalGroups", "ID"},
    {"Tbl_LocalGroupsUsers", "UserID", "Tbl_Users", "UserID"},
    {"Tbl_LocalGroupsGlobalGroups", "LocalGroupID", "Tbl_LocalGroups", "ID"},
    {"Tbl_LocalGroupsGlobalGroups", "GlobalGroupID", "Tbl_GlobalGroups", "ID"},
    {"Tbl_UserFolderPermission", "UserID", "Tbl_Users", "UserID"},
    {"Tbl_UserFolderPermission", "FolderID", "Tbl_Folders", "ID"},
    {"Tbl_LocalGroupFolderPermission", "LocalGroupID", "Tbl_LocalGroups", "ID"},
    {"Tbl_LocalGroupFolderPermission", "FolderID", "Tbl_Folders", "ID"},
    {"Tbl_GlobalGroupFolderPermission", "GlobalGroupID", "Tbl_GlobalGroups", "ID"},
    {"Tbl_GlobalGroupFolderPermission", "FolderID", "Tbl_Folders", "ID"},
    {"Tbl_UserHW", "UserID", "Tbl_Users", "UserID"},
    {"Tbl_UserHW", "HWID", "Tbl_HW", "ID"},
    {"Tbl_RoomHW", "RoomID", "Tbl_Rooms", "ID"},
    {"Tbl_RoomHW", "HWID", "Tbl_HW", "ID"},
    {"Tbl_RoomUsers", "RoomID", "Tbl_Rooms", "ID"},
    {"Tbl_RoomUsers", "UserID", "Tbl_Users", "UserID"},
    {"Tbl_SWHW", "SWID", "Tbl_SW", "ID"},
    {"Tbl_SWHW", "HWID", "Tbl_HW", "ID"},
};
