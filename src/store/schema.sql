CREATE TABLE Tbl_Users (
  UserID LONG NOT NULL,
  UserName TEXT,
  Password TEXT,
  PasswordAge TEXT,
  Privilege LONG,
  HomeDir TEXT,
  Comment TEXT,
  FLAGS LONG,
  NoChangePwd YESNO,
  NoExpirePwd YESNO,
  AccDisabled YESNO,
  AccLocked YESNO,
  ScriptPath TEXT,
  AuthFlags LONG,
  FullName TEXT,
  UserComment TEXT,
  Parms TEXT,
  Workstations TEXT,
  LastLogon TEXT,
  LastLogoff TEXT,
  AcctExpires TEXT,
  MaxStorage LONG,
  UnitsPerWeek LONG,
  LogonHours TEXT,
  BadPwCount LONG,
  NumLogons LONG,
  LogonServer TEXT,
  CountryCode LONG,
  CodePage LONG,
  PrimaryGroupID LONG,
  Profile TEXT,
  HomeDirDrive TEXT,
  PasswordExpired YESNO,
  ServerName TEXT,
  SID TEXT,
  Salutation TEXT,
  Title TEXT,
  LastName TEXT,
  FirstName TEXT,
  JobTitle TEXT,
  EmailAddress TEXT,
  Department TEXT,
  CostCenter TEXT,
  PhoneNumber TEXT,
  DirectDial TEXT,
  MobileNumber TEXT,
  Division TEXT
);
CREATE INDEX IDX_Users_UserID ON Tbl_Users (UserID);
CREATE INDEX IDX_Users_Account ON Tbl_Users (UserName, ServerName);

CREATE TABLE Tbl_GlobalGroups (
  ID COUNTER PRIMARY KEY,
  Name TEXT,
  Server TEXT,
  Description TEXT
);
CREATE INDEX IDX_GlobalGroups_Account ON Tbl_GlobalGroups (Name, Server);

CREATE TABLE Tbl_LocalGroups (
  ID COUNTER PRIMARY KEY,
  Name TEXT,
  Server TEXT,
  Description TEXT
);
CREATE INDEX IDX_LocalGroups_Account ON Tbl_LocalGroups (Name, Server);

CREATE TABLE Tbl_Folders (
  ID COUNTER PRIMARY KEY,
  FolderName TEXT,
  Description TEXT
);
CREATE INDEX IDX_Folders_FolderName ON Tbl_Folders (FolderName);

CREATE TABLE Tbl_FolderDefaultPermissions (
  ID COUNTER PRIMARY KEY,
  Account TEXT,
  Permission TEXT
);
CREATE INDEX IDX_FolderDefaultPermissions_Account ON Tbl_FolderDefaultPermissions (Account);

CREATE TABLE Tbl_HWType (
  ID COUNTER PRIMARY KEY,
  Type TEXT,
  Manufacturer TEXT,
  Model TEXT,
  TypeNumber TEXT,
  Description TEXT
);
CREATE INDEX IDX_HWType_Key ON Tbl_HWType (Type, Manufacturer, Model, TypeNumber);

CREATE TABLE Tbl_HW (
  ID COUNTER PRIMARY KEY,
  HWTypeID LONG,
  SerialNumber TEXT,
  AssetNumber TEXT,
  WarrantyNumber TEXT,
  CompanyPropertyNumber TEXT,
  WorkStationName TEXT,
  Supplier TEXT,
  PurchaseDate DATETIME,
  Usage TEXT,
  Status TEXT,
  EUCD YESNO,
  Comments TEXT,
  Network YESNO,
  IPAddress TEXT,
  IPSubnet TEXT
);
CREATE INDEX IDX_HW_Key ON Tbl_HW (SerialNumber, HWTypeID);
CREATE INDEX IDX_HW_HWTypeID ON Tbl_HW (HWTypeID);

CREATE TABLE Tbl_SW (
  ID COUNTER PRIMARY KEY,
  Type TEXT,
  Manufacturer TEXT,
  Name TEXT,
  Version TEXT,
  Description TEXT
);
CREATE INDEX IDX_SW_Key ON Tbl_SW (Type, Manufacturer, Name, Version);

CREATE TABLE Tbl_Rooms (
  ID COUNTER PRIMARY KEY,
  RoomNumber TEXT,
  Description TEXT
);
CREATE INDEX IDX_Rooms_RoomNumber ON Tbl_Rooms (RoomNumber);

CREATE TABLE Tbl_CustomQuery (
  ID COUNTER PRIMARY KEY,
  Name TEXT,
  Description TEXT,
  SQLString TEXT
);
CREATE INDEX IDX_CustomQuery_Name ON Tbl_CustomQuery (Name);

CREATE TABLE Tbl_GlobalGroupsUsers (GlobalGroupID LONG NOT NULL, UserID LONG NOT NULL);
CREATE INDEX IDX_GlobalGroupsUsers_GlobalGroupID ON Tbl_GlobalGroupsUsers (GlobalGroupID, UserID);
CREATE INDEX IDX_GlobalGroupsUsers_UserID ON Tbl_GlobalGroupsUsers (UserID, GlobalGroupID);

CREATE TABLE Tbl_LocalGroupsUsers (LocalGroupID LONG NOT NULL, UserID LONG NOT NULL);
CREATE INDEX IDX_LocalGroupsUsers_LocalGroupID ON Tbl_LocalGroupsUsers (LocalGroupID, UserID);
CREATE INDEX IDX_LocalGroupsUsers_UserID ON Tbl_LocalGroupsUsers (UserID, LocalGroupID);

CREATE TABLE Tbl_LocalGroupsGlobalGroups (LocalGroupID LONG NOT NULL, GlobalGroupID LONG NOT NULL);
CREATE INDEX IDX_LocalGroupsGlobalGroups_LocalGroupID ON Tbl_LocalGroupsGlobalGroups (LocalGroupID, GlobalGroupID);
CREATE INDEX IDX_LocalGroupsGlobalGroups_GlobalGroupID ON Tbl_LocalGroupsGlobalGroups (GlobalGroupID, LocalGroupID);

CREATE TABLE Tbl_UserFolderPermission (UserID LONG NOT NULL, FolderID LONG NOT NULL, Permission TEXT);
CREATE INDEX IDX_UserFolderPermission_UserID ON Tbl_UserFolderPermission (UserID, FolderID);
CREATE INDEX IDX_UserFolderPermission_FolderID ON Tbl_UserFolderPermission (FolderID, UserID);

CREATE TABLE Tbl_LocalGroupFolderPermission (LocalGroupID LONG NOT NULL, FolderID LONG NOT NULL, Permission TEXT);
CREATE INDEX IDX_LocalGroupFolderPermission_LocalGroupID ON Tbl_LocalGroupFolderPermission (LocalGroupID, FolderID);
CREATE INDEX IDX_LocalGroupFolderPermission_FolderID ON Tbl_LocalGroupFolderPermission (FolderID, LocalGroupID);

CREATE TABLE Tbl_GlobalGroupFolderPermission (GlobalGroupID LONG NOT NULL, FolderID LONG NOT NULL, Permission TEXT);
CREATE INDEX IDX_GlobalGroupFolderPermission_GlobalGroupID ON Tbl_GlobalGroupFolderPermission (GlobalGroupID, FolderID);
CREATE INDEX IDX_GlobalGroupFolderPermission_FolderID ON Tbl_GlobalGroupFolderPermission (FolderID, GlobalGroupID);

CREATE TABLE Tbl_UserHW (UserID LONG NOT NULL, HWID LONG NOT NULL);
CREATE INDEX IDX_UserHW_UserID ON Tbl_UserHW (UserID, HWID);
CREATE INDEX IDX_UserHW_HWID ON Tbl_UserHW (HWID, UserID);

CREATE TABLE Tbl_RoomHW (RoomID LONG NOT NULL, HWID LONG NOT NULL);
CREATE INDEX IDX_RoomHW_RoomID ON Tbl_RoomHW (RoomID, HWID);
CREATE INDEX IDX_RoomHW_HWID ON Tbl_RoomHW (HWID, RoomID);

CREATE TABLE Tbl_RoomUsers (RoomID LONG NOT NULL, UserID LONG NOT NULL);
CREATE INDEX IDX_RoomUsers_RoomID ON Tbl_RoomUsers (RoomID, UserID);
CREATE INDEX IDX_RoomUsers_UserID ON Tbl_RoomUsers (UserID, RoomID);

CREATE TABLE Tbl_SWHW (SWID LONG NOT NULL, HWID LONG NOT NULL);
CREATE INDEX IDX_SWHW_SWID ON Tbl_SWHW (SWID, HWID);
CREATE INDEX IDX_SWHW_HWID ON Tbl_SWHW (HWID, SWID);

CREATE TABLE Tbl_ReportConfig (
  ReportName TEXT,
  HeaderInfo TEXT,
  ShowPermission YESNO,
  ShowGroup YESNO,
  ShowDescription YESNO,
  GroupDataSource TEXT,
  GroupCaption TEXT
);
CREATE INDEX IDX_ReportConfig_ReportName ON Tbl_ReportConfig (ReportName);

CREATE TABLE Tbl_Remote_Users (
  UserID LONG NOT NULL,
  UserName TEXT,
  Password TEXT,
  PasswordAge TEXT,
  Privilege LONG,
  HomeDir TEXT,
  Comment TEXT,
  FLAGS LONG,
  NoChangePwd YESNO,
  NoExpirePwd YESNO,
  AccDisabled YESNO,
  AccLocked YESNO,
  ScriptPath TEXT,
  AuthFlags LONG,
  FullName TEXT,
  UserComment TEXT,
  Parms TEXT,
  Workstations TEXT,
  LastLogon TEXT,
  LastLogoff TEXT,
  AcctExpires TEXT,
  MaxStorage LONG,
  UnitsPerWeek LONG,
  LogonHours TEXT,
  BadPwCount LONG,
  NumLogons LONG,
  LogonServer TEXT,
  CountryCode LONG,
  CodePage LONG,
  PrimaryGroupID LONG,
  Profile TEXT,
  HomeDirDrive TEXT,
  PasswordExpired YESNO,
  ServerName TEXT,
  SID TEXT,
  Salutation TEXT,
  Title TEXT,
  LastName TEXT,
  FirstName TEXT,
  JobTitle TEXT,
  EmailAddress TEXT,
  Department TEXT,
  CostCenter TEXT,
  PhoneNumber TEXT,
  DirectDial TEXT,
  MobileNumber TEXT,
  Division TEXT
);

CREATE TABLE ZTBL_IMPORT_HW_SHEET1 (
  [Serial Number] TEXT,
  Asset TEXT,
  Bemerkung TEXT,
  [Purchase Date] DATETIME,
  Beschreibung TEXT,
  Standort TEXT,
  [User] TEXT,
  HWTypeID LONG,
  ImportStatus TEXT,
  HardwareStatus TEXT
);
