#pragma once

#include "support/recordtest.h"

/// What CompanyTest seeds. Ids rise against every order in which rows are asked for, and no two
/// tables share one. In each relationship table some id of either side has two rows, and some
/// two rows belong to others: what a statement leaves out shows.
namespace company {

constexpr const char *seed[] = {
    "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) VALUES (11,'rolf','SRV01','Zorn','Rolf')",
    "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) VALUES (12,'bert','SRV02','Ärmel','Bert')",
    "INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (13,'anna','SRV01')",
    "INSERT INTO Tbl_GlobalGroups (ID,Name,Server,Description) VALUES (21,'Staff','DC01','All')",
    "INSERT INTO Tbl_GlobalGroups (ID,Name,Server) VALUES (22,'Guests','DC02')",
    "INSERT INTO Tbl_GlobalGroups (ID,Name,Server) VALUES (23,'Admins','DC01')",
    "INSERT INTO Tbl_LocalGroups (ID,Name,Server,Description) VALUES (31,'Staff','SRV01','All')",
    "INSERT INTO Tbl_LocalGroups (ID,Name,Server) VALUES (32,'Guests','SRV02')",
    "INSERT INTO Tbl_LocalGroups (ID,Name,Server) VALUES (33,'Admins','SRV01')",
    "INSERT INTO Tbl_Folders (ID,FolderName,Description) VALUES (41,'D:\\Data\\','Data')",
    "INSERT INTO Tbl_Folders (ID,FolderName) VALUES (42,'D:\\Common\\')",
    "INSERT INTO Tbl_Folders (ID,FolderName) VALUES (43,'D:\\Admin\\')",
    "INSERT INTO Tbl_Folders (ID,FolderName) VALUES (44,'C:\\Tools\\')",
    "INSERT INTO Tbl_HWType (ID,Type,Manufacturer,Model,TypeNumber) VALUES (51,'PC','Maker','M1','7')",
    "INSERT INTO Tbl_HWType (ID,Type,Manufacturer,Model,TypeNumber) VALUES (52,'PC','MAKER','M1','5')",
    "INSERT INTO Tbl_HWType (ID,Type,Manufacturer,Model,TypeNumber) VALUES (53,'pc','Maker','L9','9')",
    "INSERT INTO Tbl_HWType (ID,Type,Model,TypeNumber) VALUES (54,'PC','M9','9')",
    "INSERT INTO Tbl_HWType (ID,Type,Manufacturer,Model) VALUES (55,'Monitor','Zeta','M9')",
    "INSERT INTO Tbl_HW (ID,HWTypeID,SerialNumber,WorkStationName,IPAddress,AssetNumber,CompanyPropertyNumber,WarrantyNumber,Supplier,Usage,Status) "
    "VALUES (61,51,'S9','WS1','10.1','A1','P1','W1','Zorn','Office','New')",
    "INSERT INTO Tbl_HW (ID,HWTypeID,SerialNumber,WorkStationName,IPAddress,AssetNumber,CompanyPropertyNumber,Supplier,Status) "
    "VALUES (62,51,'S8','WS2','10.2','A2','P2','acme','used')",
    "INSERT INTO Tbl_HW (ID,HWTypeID,SerialNumber,Supplier,Usage,Status) VALUES (63,52,'S7','ACME','Lab','USED')",
    "INSERT INTO Tbl_HW (ID,HWTypeID,SerialNumber,Usage) VALUES (64,53,'S6','LAB')",
    "INSERT INTO Tbl_HW (ID,HWTypeID,SerialNumber) VALUES (65,54,'S5')",
    "INSERT INTO Tbl_HW (ID,HWTypeID) VALUES (66,55)",
    "INSERT INTO Tbl_SW (ID,Type,Manufacturer,Name,Version) VALUES (71,'Office','Maker','Writer','2')",
    "INSERT INTO Tbl_SW (ID,Type,Manufacturer,Name,Version) VALUES (72,'Office','MAKER','Writer','1')",
    "INSERT INTO Tbl_SW (ID,Type,Manufacturer,Name,Version) VALUES (73,'OFFICE','Maker','Calc','9')",
    "INSERT INTO Tbl_SW (ID,Type,Name,Version) VALUES (74,'Office','Zed','9')",
    "INSERT INTO Tbl_SW (ID,Type,Manufacturer,Name) VALUES (75,'Driver','Zeta','Zed')",
    "INSERT INTO Tbl_Rooms (ID,RoomNumber,Description) VALUES (81,'B 7','Store')",
    "INSERT INTO Tbl_Rooms (ID,RoomNumber) VALUES (82,'102')",
    "INSERT INTO Tbl_Rooms (ID,RoomNumber,Description) VALUES (83,'101','Front')",
};

struct Relationship
{
    const char *columns;
    std::initializer_list<const char *> rows;
};

inline const Relationship relationships[] = {
    {"Tbl_GlobalGroupsUsers (GlobalGroupID,UserID)", {"21,11", "21,12", "22,12", "23,13"}},
    {"Tbl_LocalGroupsUsers (LocalGroupID,UserID)", {"31,11", "31,12", "32,12", "33,13"}},
    {"Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID)", {"31,21", "32,21", "32,22", "33,23"}},
    {"Tbl_UserFolderPermission (UserID,FolderID,Permission)", {"11,44,'R'", "12,41,'L'", "12,42,'CH'", "13,42,'R'"}},
    {"Tbl_LocalGroupFolderPermission (LocalGroupID,FolderID,Permission)", {"31,41,'R'", "31,42,'CH'", "32,43,'L'", "33,43,'R'"}},
    {"Tbl_GlobalGroupFolderPermission (GlobalGroupID,FolderID,Permission)", {"21,41,'CH'", "21,42,'L'", "22,43,'R'", "23,43,'CH'"}},
    {"Tbl_UserHW (UserID,HWID)", {"11,61", "11,63", "12,63"}},
    {"Tbl_RoomHW (RoomID,HWID)", {"81,62", "81,64", "82,64"}},
    {"Tbl_RoomUsers (RoomID,UserID)", {"81,11", "81,12", "82,12", "83,13"}},
    {"Tbl_SWHW (SWID,HWID)", {"71,61", "72,61", "72,63", "73,62"}},
};

// The rows as most readers give them, here in the order of ids.
#define ROW(name, text) inline const QString name = QStringLiteral(text)
ROW(rolf, "11|Zorn|Rolf|rolf|SRV01");
#undef ROW
} // namespace company
