#pragma once

#include "support/recordtest.h"

/// The company of CompanyTest. Its ids rise against every order that is asked for, and no two
/// tables share one. In each relationship table some id of either side has two rows and others
/// have rows, too, so that whatever a statement leaves out shows.
namespace company {

struct Table
{
    const char *columns;
    std::initializer_list<const char *> rows;
};

// clang-format off
inline const Table tables[] = {
    {"Tbl_Users (UserID,UserName,ServerName,LastName,FirstName)",
     {"11,'rolf','SRV01','Zorn','Rolf'", "12,'bert','SRV02','Ärmel','Bert'", "13,'anna','SRV01',Null,Null"}},
    {"Tbl_GlobalGroups (ID,Name,Server,Description)",
     {"21,'Staff','DC01','All'", "22,'Guests','DC02',Null", "23,'Admins','DC01',Null"}},
    {"Tbl_LocalGroups (ID,Name,Server,Description)",
     {"31,'Staff','SRV01','All'", "32,'Guests','SRV02',Null", "33,'Admins','SRV01',Null"}},
    {"Tbl_Folders (ID,FolderName,Description)",
     {R"(41,'D:\Data\','Data')", R"(42,'D:\Common\',Null)", R"(43,'D:\Admin\',Null)", R"(44,'C:\Tools\',Null)"}},
    {"Tbl_HWType (ID,Type,Manufacturer,Model,TypeNumber)",
     {"51,'PC','Maker','M1','7'", "52,'PC','MAKER','M1','5'", "53,'pc','Maker','L9','9'", "54,'PC',Null,'M9','9'",
      "55,'Monitor','Zeta','M9',Null"}},
    {"Tbl_HW (ID,HWTypeID,SerialNumber,WorkStationName,IPAddress,AssetNumber,CompanyPropertyNumber,WarrantyNumber,Usage)",
     {"61,51,'S9','WS1','10.1','A1','P1','W1','Office'", "62,51,'S8','WS2','10.2','A2','P2',Null,Null",
      "63,52,'S7',Null,Null,Null,Null,Null,'Lab'", "64,53,'S6',Null,Null,Null,Null,Null,'LAB'",
      "65,54,'S5',Null,Null,Null,Null,Null,Null", "66,55,Null,Null,Null,Null,Null,Null,Null"}},
    {"Tbl_SW (ID,Type,Manufacturer,Name,Version)",
     {"71,'Office','Maker','Writer','2'", "72,'Office','MAKER','Writer','1'", "73,'OFFICE','Maker','Calc','9'",
      "74,'Office',Null,'Zed','9'", "75,'Driver','Zeta','Zed',Null"}},
    {"Tbl_Rooms (ID,RoomNumber,Description)", {"81,'B 7','Store'", "82,'102',Null", "83,'101','Front'"}},
    {"Tbl_GlobalGroupsUsers (GlobalGroupID,UserID)", {"21,11", "21,12", "22,12", "23,13"}},
    {"Tbl_LocalGroupsUsers (LocalGroupID,UserID)", {"31,11", "31,12", "32,12", "33,13"}},
    {"Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID)", {"31,21", "32,21", "32,22", "33,23"}},
    {"Tbl_UserFolderPermission (UserID,FolderID,Permission)", {"11,44,'R'", "12,41,'L'", "12,42,'CH'", "13,42,'R'"}},
    {"Tbl_LocalGroupFolderPermission (LocalGroupID,FolderID,Permission)",
     {"31,41,'R'", "31,42,'CH'", "32,43,'L'", "33,43,'R'"}},
    {"Tbl_GlobalGroupFolderPermission (GlobalGroupID,FolderID,Permission)",
     {"21,41,'CH'", "21,42,'L'", "22,43,'R'", "23,43,'CH'"}},
    {"Tbl_UserHW (UserID,HWID)", {"11,61", "11,63", "12,63"}},
    {"Tbl_RoomHW (RoomID,HWID)", {"81,62", "81,64", "82,64"}},
    {"Tbl_RoomUsers (RoomID,UserID)", {"81,11", "81,12", "82,12", "83,13"}},
    {"Tbl_SWHW (SWID,HWID)", {"71,61", "72,61", "72,63", "73,62"}},
};
// clang-format on

// What most readers give of the rows.
inline const QString rolf = QStringLiteral("11|Zorn|Rolf|rolf|SRV01");
inline const QString bert = QStringLiteral("12|Ärmel|Bert|bert|SRV02");
inline const QString anna = QStringLiteral("13|-|-|anna|SRV01");
inline const QString globalStaff = QStringLiteral("21|Staff|DC01|All");
inline const QString globalGuests = QStringLiteral("22|Guests|DC02|-");
inline const QString globalAdmins = QStringLiteral("23|Admins|DC01|-");
inline const QString localStaff = QStringLiteral("31|Staff|SRV01|All");
inline const QString localGuests = QStringLiteral("32|Guests|SRV02|-");
inline const QString localAdmins = QStringLiteral("33|Admins|SRV01|-");
inline const QString data = QStringLiteral("41|D:\\Data\\|Data");
inline const QString common = QStringLiteral("42|D:\\Common\\|-");
inline const QString admin = QStringLiteral("43|D:\\Admin\\|-");
inline const QString tools = QStringLiteral("44|C:\\Tools\\|-");
inline const QString hw61 = QStringLiteral("61|PC Maker M1 7|S9|P1|Office|10.1");
inline const QString hw62 = QStringLiteral("62|PC Maker M1 7|S8|P2|-|10.2");
inline const QString hw63 = QStringLiteral("63|PC MAKER M1 5|S7|-|Lab|-");
inline const QString hw64 = QStringLiteral("64|pc Maker L9 9|S6|-|LAB|-");
inline const QString hw65 = QStringLiteral("65|PC  M9 9|S5|-|-|-");
inline const QString hw66 = QStringLiteral("66|Monitor Zeta M9 |-|-|-|-");
inline const QString writer2 = QStringLiteral("71|Office|Maker|Writer|2");
inline const QString writer1 = QStringLiteral("72|Office|MAKER|Writer|1");
inline const QString calc = QStringLiteral("73|OFFICE|Maker|Calc|9");
inline const QString zed = QStringLiteral("74|Office|-|Zed|9");
inline const QString driver = QStringLiteral("75|Driver|Zeta|Zed|-");
inline const QString room7 = QStringLiteral("81|B 7|Store");
inline const QString room102 = QStringLiteral("82|102|-");
inline const QString room101 = QStringLiteral("83|101|Front");

} // namespace company

/// A company in the store: people, groups, folders, hardware, software and rooms.
class CompanyTest : public RecordTest
{
protected:
    void SetUp() override
    {
        static const QTemporaryDir models;
        const QString model = models.filePath(QStringLiteral("model.mdb"));
        if (!QFile::exists(model))
            makeCompany(model);
        ASSERT_TRUE(QFile::copy(model, path));
    }

private:
    static void makeCompany(const QString &model)
    {
        makeFreshStore(model);
        StoreSession session(jet::connectionString(model));
        for (const company::Table &table : company::tables) {
            for (const char *row : table.rows)
                session.execute(QStringLiteral("INSERT INTO %1 VALUES (%2)")
                                    .arg(QString::fromUtf8(table.columns), QString::fromUtf8(row)));
        }
        session.close();
    }
};
