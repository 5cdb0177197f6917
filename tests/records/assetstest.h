#pragma once

#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsRooms.h"
#include "assets/clsSW.h"
#include "store/storetest.h"

/// What every reader with an id looks like.
template <typename Records>
using Reader = void (Records::*)(const QString &, jet::Recordset &, int);

/// Two users, two types of hardware, four items, two products and three rooms, the records of
/// each family from 1. Item 1 stands in room 1, item 2 with user 1, 3 and 4 are free.
class AssetsTest : public StoreTest
{
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        StoreSession store(connection);
        for (const char *statement : {
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (1,'anna','SRV01','Ärmel','Anna')",
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (2,'bert','SRV02')",
                 "INSERT INTO Tbl_HWType (Type,Manufacturer,Model,TypeNumber) "
                 "VALUES ('PC','Maker','M1','7')",
                 "INSERT INTO Tbl_HWType (Type,Manufacturer,Model) VALUES ('Monitor','Bolt','M2')",
                 "INSERT INTO Tbl_HW (HWTypeID,SerialNumber,WarrantyNumber,Usage) "
                 "VALUES (1,'S1','W1','Office')",
                 "INSERT INTO Tbl_HW (HWTypeID,SerialNumber,IPAddress,WorkStationName) "
                 "VALUES (1,'S2','10.0.0.2','WS02')",
                 "INSERT INTO Tbl_HW (HWTypeID,SerialNumber,Usage) VALUES (2,'S3','Lab')",
                 "INSERT INTO Tbl_HW (HWTypeID,SerialNumber,AssetNumber,CompanyPropertyNumber) "
                 "VALUES (2,'A4','as-4','CP4')",
                 "INSERT INTO Tbl_SW (Type,Manufacturer,Name,Version) "
                 "VALUES ('Office','Maker','Writer','1.0')",
                 "INSERT INTO Tbl_SW (Type,Manufacturer,Name) VALUES ('Driver','Bolt','Screen')",
                 "INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('101','Front')",
                 "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('102')",
                 "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('B 7')",
                 "INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (1,1)",
                 "INSERT INTO Tbl_UserHW (UserID,HWID) VALUES (1,2)",
                 "INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,1)",
                 "INSERT INTO Tbl_SWHW (SWID,HWID) VALUES (1,1)",
                 "INSERT INTO Tbl_SWHW (SWID,HWID) VALUES (1,2)",
             })
            store.execute(QString::fromUtf8(statement));
    }

    template <typename Records>
    Rows read(Records &records, Reader<Records> reader, int id)
    {
        jet::Recordset result;
        (records.*reader)(connection, result, id);
        return rowsOf(result);
    }

    template <typename Records>
    Rows read(Records &records, void (Records::*reader)(const QString &, jet::Recordset &))
    {
        jet::Recordset result;
        (records.*reader)(connection, result);
        EXPECT_EQ(result.state(), jet::StateOpen);
        return rowsOf(result);
    }

    Rows userHW() { return rows(u"SELECT HWID, UserID FROM Tbl_UserHW ORDER BY HWID, UserID"_s); }
    Rows roomHW() { return rows(u"SELECT HWID, RoomID FROM Tbl_RoomHW ORDER BY HWID, RoomID"_s); }
    Rows roomUsers() { return rows(u"SELECT RoomID, UserID FROM Tbl_RoomUsers ORDER BY RoomID, UserID"_s); }
    Rows swHW() { return rows(u"SELECT SWID, HWID FROM Tbl_SWHW ORDER BY SWID, HWID"_s); }

    clsHWType types;
    clsHW hardware;
    clsSW software;
    clsRooms rooms;
};
