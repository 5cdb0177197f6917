#include "assets/clsHW.h"
#include "platform/jet/errors.h"
#include "support/companytest.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists =
    "A Hardware of the same Type with this Serial Number already exists in the Database."_L1;
constexpr auto allItems = "SELECT * FROM Tbl_HW ORDER BY ID"_L1;

/// Every member different, so that a value in the wrong column shows.
HWRecord item(const QString &serialNumber, int type = 1)
{
    return {.HWTypeID = type,
            .SerialNumber = serialNumber,
            .AssetNumber = u"AS-7"_s,
            .WarrantyNumber = u"W-7"_s,
            .CompanyPropertyNumber = u"CP-7"_s,
            .WorkStationName = u"WS07"_s,
            .Supplier = u"Acme Ltd"_s,
            .PurchaseDate = u"3/4/2005"_s,
            .Usage = u"Office"_s,
            .Status = u"In use"_s,
            .EUCD = 1,
            .Comments = u"a comment"_s,
            .Network = 0,
            .IPAddress = u"10.0.0.7"_s,
            .IPSubnet = u"255.255.255.0"_s};
}

QString itemRow(int id, const QString &serialNumber, int type = 1)
{
    return u"%1|%2|%3|AS-7|W-7|CP-7|WS07|Acme Ltd|3/4/2005|Office|In use|True|a comment|False|10.0.0.7|"
           "255.255.255.0"_s.arg(id)
               .arg(type)
               .arg(serialNumber);
}

class HWTest : public RecordTest
{
protected:
    clsHW hardware;
};

} // namespace

TEST_F(HWTest, AddAndUpdateWriteEveryColumn)
{
    hardware.Add(connection, {.SerialNumber = u"before"_s, .PurchaseDate = u"1/1/2000"_s, .Network = 1});
    hardware.Add(connection, item(u"SN-1"_s));
    EXPECT_EQ(rows(allItems), (Rows{u"1|0|before||||||1/1/2000|||False||True||"_s, itemRow(2, u"SN-1"_s)}));
    hardware.update(connection, 1, item(u"SN-2"_s, 3));
    EXPECT_EQ(rows(allItems), (Rows{itemRow(1, u"SN-2"_s, 3), itemRow(2, u"SN-1"_s)}));
}

TEST_F(HWTest, ASerialNumberIsTakenWithinItsType)
{
    hardware.Add(connection, item(u"SN-1"_s));
    hardware.Add(connection, item(u"SN-1"_s, 2));
    const Rows before = {itemRow(1, u"SN-1"_s), itemRow(2, u"SN-1"_s, 2)};
    EXPECT_EQ(rows(allItems), before);

    for (const CurrentError &error : {errorOf([&] { hardware.Add(connection, item(u"sn-1"_s)); }),
                                      errorOf([&] { hardware.update(connection, 2, item(u"SN-1"_s)); })}) {
        EXPECT_EQ(error.number, RuleViolation);
        EXPECT_EQ(error.description, alreadyExists);
    }
    EXPECT_EQ(rows(allItems), before);
    EXPECT_EQ(hardware.errorNumber(), RuleViolation);
    EXPECT_EQ(hardware.errorDescription(), alreadyExists);

    hardware.update(connection, 2, item(u"SN-1"_s, 2));
    EXPECT_EQ(rows(allItems), before);
    hardware.update(connection, 2, item(u"SN-3"_s));
    EXPECT_EQ(rows(allItems), (Rows{before[0], itemRow(2, u"SN-3"_s)})) << "only the number differs";
}

TEST_F(HWTest, WhatTheStoreCannotReadIsRefusedWithNothingWritten)
{
    hardware.Add(connection, item(u"SN-1"_s));
    const struct
    {
        const char *name;
        QString HWRecord::*member;
        QString value;
        int error = jet::SyntaxError;
    } cases[] = {
        {"serial number", &HWRecord::SerialNumber, u"it's"_s},
        {"asset number", &HWRecord::AssetNumber, u"it's"_s},
        {"warranty number", &HWRecord::WarrantyNumber, u"it's"_s},
        {"company property number", &HWRecord::CompanyPropertyNumber, u"it's"_s},
        {"workstation", &HWRecord::WorkStationName, u"it's"_s},
        {"supplier", &HWRecord::Supplier, u"it's"_s},
        {"usage", &HWRecord::Usage, u"it's"_s},
        {"status", &HWRecord::Status, u"it's"_s},
        {"comments", &HWRecord::Comments, u"it's"_s},
        {"address", &HWRecord::IPAddress, u"it's"_s},
        {"subnet", &HWRecord::IPSubnet, u"it's"_s},
        {"no date", &HWRecord::PurchaseDate, u""_s, jet::TypeMismatch},
        {"not a date", &HWRecord::PurchaseDate, u"13/32/2005"_s, jet::TypeMismatch},
    };
    for (const auto &c : cases) {
        HWRecord wrong = item(u"SN-2"_s);
        wrong.*c.member = c.value;
        EXPECT_EQ(errorOf([&] { hardware.Add(connection, wrong); }).number, c.error) << c.name;
        EXPECT_EQ(errorOf([&] { hardware.update(connection, 1, wrong); }).number, c.error) << c.name;
    }
    EXPECT_EQ(rows(allItems), Rows{itemRow(1, u"SN-1"_s)});
}

TEST_F(CompanyTest, GetAssignedRoom_GivesTheRoomOrNothing)
{
    clsHW hardware;
    QString number = u"before"_s;
    int room = 77;
    hardware.getAssignedRoom(connection, 62, number, room);
    EXPECT_EQ(number, u"B 7"_s);
    EXPECT_EQ(room, 81);
    hardware.getAssignedRoom(connection, 61, number, room);
    EXPECT_EQ(number, QString());
    EXPECT_EQ(room, 0);
}
