#include "assets/clsHW.h"
#include "platform/jet/errors.h"
#include "support/companytest.h"

using namespace Qt::StringLiterals;
using namespace company;

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

class HWRecordTest : public RecordTest
{
protected:
    clsHW hardware;
};

class HWTest : public CompanyTest
{
protected:
    clsHW hardware;
};

} // namespace

TEST_F(HWRecordTest, AddAndUpdateWriteEveryColumn)
{
    hardware.Add(connection, {.SerialNumber = u"before"_s, .PurchaseDate = u"1/1/2000"_s, .Network = 1});
    hardware.Add(connection, item(u"SN-1"_s));
    EXPECT_EQ(rows(allItems), (Rows{u"1|0|before||||||1/1/2000|||False||True||"_s, itemRow(2, u"SN-1"_s)}));
    hardware.update(connection, 1, item(u"SN-2"_s, 3));
    EXPECT_EQ(rows(allItems), (Rows{itemRow(1, u"SN-2"_s, 3), itemRow(2, u"SN-1"_s)}));
}

TEST_F(HWRecordTest, ASerialNumberIsTakenWithinItsType)
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

TEST_F(HWRecordTest, WhatTheStoreCannotReadIsRefusedWithNothingWritten)
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

TEST_F(HWTest, ReadersGiveTheirRows)
{
    // clang-format off
    expectRows(hardware, {
        {"getAll", &clsHW::getAll, 0, {hw66, hw65, hw64, hw63, hw62, hw61}},
        {"getUnAssigned", &clsHW::getUnAssigned, 0, {hw66, hw65}},
        {"getOfType", &clsHW::getOfType, 51,
         {u"62|PC Maker M1 7|S8|-|P2|-|10.2"_s, u"61|PC Maker M1 7|S9|W1|P1|Office|10.1"_s}},
        {"getRoom", &clsHW::getRoom, 64, {room102, room7}},
        {"getNotRoom", &clsHW::getNotRoom, 62, {room101, room102}},
        {"getUser", &clsHW::getUser, 63, {bert, rolf}},
        {"getNotUser", &clsHW::getNotUser, 61, {anna, bert}},
        {"getSW", &clsHW::getSW, 61, {writer1, writer2}},
        {"getNotSW", &clsHW::getNotSW, 61, {driver, zed, calc}},
        {"getNotSW", &clsHW::getNotSW, 62, {driver, zed, writer1, writer2}},
        {"GetByID", &clsHW::GetByID, 62, {u"62|51|S8|A2|-|P2|WS2|-|-|-|-|False|-|False|10.2|-|PC Maker M1 7"_s}},
        {"getUser of none", &clsHW::getUser, 66, {}},
    });
    // clang-format on
    hardware.addSW(connection, 66, QList<int>{71, 72, 73, 74, 75});
    expectRows(hardware, {{"getSW of all", &clsHW::getSW, 66, {driver, zed, calc, writer1, writer2}}});
}

TEST_F(HWTest, DistinctTextsOfferWhatIsInUse)
{
    run(u"UPDATE Tbl_HW SET Supplier = 'of ' & Usage, Status = Usage & ' ok'"_s);
    const auto texts = [&](auto reader) {
        Rows found = rowsFrom([&](auto &result) { (hardware.*reader)(connection, result); });
        for (QString &row : found)
            row = row.toLower();
        return found;
    };
    EXPECT_EQ(texts(&clsHW::getUsage), (Rows{u"0|-"_s, u"0|lab"_s, u"0|office"_s}));
    EXPECT_EQ(texts(&clsHW::getSuppliers), (Rows{u"0|of "_s, u"0|of lab"_s, u"0|of office"_s}));
    EXPECT_EQ(texts(&clsHW::getStatus), (Rows{u"0| ok"_s, u"0|lab ok"_s, u"0|office ok"_s}));
}

TEST_F(HWTest, GetAssignedRoom_GivesTheRoomOrNothing)
{
    QString number = u"before"_s;
    int room = 77;
    hardware.getAssignedRoom(connection, 62, number, room);
    EXPECT_EQ(number, u"B 7"_s);
    EXPECT_EQ(room, 81);
    hardware.getAssignedRoom(connection, 61, number, room);
    EXPECT_EQ(number, QString());
    EXPECT_EQ(room, 0);
}

TEST_F(HWTest, Find_TakesANullForAnyText)
{
    const struct
    {
        const char *name;
        QStringList texts; // serial number, workstation, address, asset, company property
        QStringList ids;
        QStringList idsOfType;
    } cases[] = {
        // clang-format off
        {"nothing asked",             {{}, {}, {}, {}, {}}, {u"66"_s, u"65"_s, u"64"_s, u"63"_s, u"62"_s, u"61"_s}, {u"61"_s, u"62"_s}},
        {"part of a serial number",   {u"s9"_s, {}, {}, {}, {}}, {u"66"_s, u"61"_s}, {u"61"_s}},
        {"part of a workstation",     {{}, u"s1"_s, {}, {}, {}}, {u"66"_s, u"65"_s, u"64"_s, u"63"_s, u"61"_s}, {u"61"_s}},
        {"part of an address",        {{}, {}, u"0.1"_s, {}, {}}, {u"66"_s, u"65"_s, u"64"_s, u"63"_s, u"61"_s}, {u"61"_s}},
        {"an asset",                  {{}, {}, {}, u"a1"_s, {}}, {u"66"_s, u"65"_s, u"64"_s, u"63"_s, u"61"_s}, {u"61"_s}},
        {"a company property",        {{}, {}, {}, {}, u"p1"_s}, {u"66"_s, u"65"_s, u"64"_s, u"63"_s, u"61"_s}, {u"61"_s}},
        {"all five",                  {u"s"_s, u"ws2"_s, u"10.2"_s, u"a2"_s, u"p2"_s}, {u"66"_s, u"65"_s, u"64"_s, u"63"_s, u"62"_s}, {u"62"_s}},
        // clang-format on
    };
    const auto found = [&](int type, const QStringList &texts) {
        QStringList ids = rowsFrom([&](auto &result) {
            hardware.Find(connection, result, type, texts[0], texts[1], texts[2], texts[3], texts[4]);
            EXPECT_EQ(result.fields().count(), 6);
        });
        for (QString &row : ids)
            row = row.section(u'|', 0, 0);
        return ids;
    };
    for (const auto &c : cases) {
        EXPECT_EQ(found(0, c.texts), c.ids) << c.name;
        QStringList ofType = found(51, c.texts);
        ofType.sort();
        EXPECT_EQ(ofType, c.idsOfType) << c.name;
    }
    EXPECT_EQ(found(99, cases[0].texts), QStringList());
}

TEST_F(HWTest, AnItemStandsInARoomOrWithAUser)
{
    const Rows software = content("Tbl_SWHW");
    hardware.addRooms(connection, 61, QList<int>{83, 82}, false);
    EXPECT_EQ(content("Tbl_RoomHW"), (Rows{u"81|62"_s, u"81|64"_s, u"82|61"_s, u"82|64"_s, u"83|61"_s}));
    EXPECT_EQ(content("Tbl_UserHW"), (Rows{u"11|63"_s, u"12|63"_s}));
    EXPECT_EQ(content("Tbl_SWHW"), software);

    hardware.addUsers(connection, 61, QList<int>{13, 12});
    EXPECT_EQ(content("Tbl_RoomHW"), (Rows{u"81|62"_s, u"81|64"_s, u"82|64"_s}));
    EXPECT_EQ(content("Tbl_UserHW"), (Rows{u"11|63"_s, u"12|61"_s, u"12|63"_s, u"13|61"_s}));

    hardware.addUsers(connection, 61, QList<int>{11});
    EXPECT_EQ(content("Tbl_UserHW"), (Rows{u"11|61"_s, u"11|63"_s, u"12|63"_s}));
}

TEST_F(HWTest, AnEmptyListClearsItsOwnSideAlone)
{
    const Rows users = content("Tbl_UserHW");
    hardware.addRooms(connection, 61, QList<int>(), false);
    EXPECT_EQ(content("Tbl_UserHW"), users);
    EXPECT_EQ(content("Tbl_SWHW").size(), 4);
    hardware.addUsers(connection, 62, QList<int>());
    EXPECT_EQ(content("Tbl_RoomHW").size(), 3);
    hardware.addRooms(connection, 62, QList<int>(), true);
    EXPECT_EQ(content("Tbl_RoomHW"), (Rows{u"81|64"_s, u"82|64"_s}));
    EXPECT_EQ(content("Tbl_SWHW"), (Rows{u"71|61"_s, u"72|61"_s, u"72|63"_s}));
    hardware.addUsers(connection, 63, QList<int>());
    EXPECT_EQ(content("Tbl_UserHW"), Rows{u"11|61"_s});
}

TEST_F(HWTest, AddSW_GivesTheItemItsOnlySoftware)
{
    hardware.addSW(connection, 61, QList<int>{75, 71});
    EXPECT_EQ(content("Tbl_SWHW"), (Rows{u"71|61"_s, u"72|63"_s, u"73|62"_s, u"75|61"_s}));
    hardware.addSW(connection, 61, QList<int>());
    EXPECT_EQ(content("Tbl_SWHW"), (Rows{u"72|63"_s, u"73|62"_s}));
}
