#include "assetstest.h"
#include "platform/jet/errors.h"

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

using HWRecordTest = StoreTest;
using HWTest = AssetsTest;

} // namespace

TEST_F(HWRecordTest, AddAndUpdateWriteEveryColumn)
{
    clsHW hardware;
    hardware.Add(connection, {.SerialNumber = u"before"_s, .PurchaseDate = u"1/1/2000"_s, .Network = 1});
    hardware.Add(connection, item(u"SN-1"_s));
    EXPECT_EQ(rows(allItems), (Rows{u"1|0|before||||||1/1/2000|||False||True||"_s, itemRow(2, u"SN-1"_s)}));
    hardware.update(connection, 1, item(u"SN-2"_s, 3));
    EXPECT_EQ(rows(allItems), (Rows{itemRow(1, u"SN-2"_s, 3), itemRow(2, u"SN-1"_s)}));
}

TEST_F(HWRecordTest, ASerialNumberIsTakenWithinItsType)
{
    clsHW hardware;
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
}

TEST_F(HWRecordTest, WhatTheStoreCannotReadIsRefusedWithNothingWritten)
{
    clsHW hardware;
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

TEST_F(HWRecordTest, DistinctTextsOfferWhatIsInUse)
{
    clsHW hardware;
    for (const auto &[serial, text] :
         {std::pair{u"1"_s, u"Zorn"_s}, {u"2"_s, u"acme"_s}, {u"3"_s, u"ACME"_s}})
        hardware.Add(connection, {.SerialNumber = serial,
                                  .Supplier = text,
                                  .PurchaseDate = u"1/1/2000"_s,
                                  .Usage = u"u "_s + text,
                                  .Status = u"s "_s + text});
    run(u"INSERT INTO Tbl_HW (HWTypeID,SerialNumber) VALUES (1,'4')"_s);
    const auto texts = [&](auto reader) {
        jet::Recordset result;
        (hardware.*reader)(connection, result);
        Rows found = rowsOf(result);
        for (QString &row : found)
            row = row.toLower();
        return found;
    };
    EXPECT_EQ(texts(&clsHW::getSuppliers), (Rows{u"0|-"_s, u"0|acme"_s, u"0|zorn"_s}));
    EXPECT_EQ(texts(&clsHW::getUsage), (Rows{u"0|-"_s, u"0|u acme"_s, u"0|u zorn"_s}));
    EXPECT_EQ(texts(&clsHW::getStatus), (Rows{u"0|-"_s, u"0|s acme"_s, u"0|s zorn"_s}));
}

TEST_F(HWTest, ReadersGiveTheirRows)
{
    const QString anna = u"1|Ärmel|Anna|anna|SRV01"_s;
    const QString bert = u"2|-|-|bert|SRV02"_s;
    const struct
    {
        const char *name;
        Reader<clsHW> reader;
        int id;
        Rows rows;
    } cases[] = {
        {"getOfType",
         &clsHW::getOfType,
         1,
         {u"1|PC Maker M1 7|S1|W1|-|Office|-"_s, u"2|PC Maker M1 7|S2|-|-|-|10.0.0.2"_s}},
        {"getRoom", &clsHW::getRoom, 1, {u"1|101|Front"_s}},
        {"getRoom of none", &clsHW::getRoom, 2, {}},
        {"getNotRoom", &clsHW::getNotRoom, 1, {u"2|102|-"_s, u"3|B 7|-"_s}},
        {"getNotRoom of none", &clsHW::getNotRoom, 2, {u"1|101|Front"_s, u"2|102|-"_s, u"3|B 7|-"_s}},
        {"getUser", &clsHW::getUser, 2, {anna}},
        {"getUser of none", &clsHW::getUser, 1, {}},
        {"getNotUser", &clsHW::getNotUser, 2, {bert}},
        {"getNotUser of none", &clsHW::getNotUser, 1, {bert, anna}},
        {"getSW", &clsHW::getSW, 1, {u"1|Office|Maker|Writer|1.0"_s}},
        {"getNotSW", &clsHW::getNotSW, 1, {u"2|Driver|Bolt|Screen|-"_s}},
        {"getNotSW of none",
         &clsHW::getNotSW,
         3,
         {u"2|Driver|Bolt|Screen|-"_s, u"1|Office|Maker|Writer|1.0"_s}},
        {"GetByID",
         &clsHW::GetByID,
         2,
         {u"2|1|S2|-|-|-|WS02|-|-|-|-|False|-|False|10.0.0.2|-|PC Maker M1 7"_s}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(read(hardware, c.reader, c.id), c.rows) << c.name;

    const QString free4 = u"4|Monitor Bolt M2 |A4|CP4|-|-"_s;
    const QString free3 = u"3|Monitor Bolt M2 |S3|-|Lab|-"_s;
    EXPECT_EQ(read(hardware, &clsHW::getAll),
              (Rows{free4, free3, u"1|PC Maker M1 7|S1|-|Office|-"_s, u"2|PC Maker M1 7|S2|-|-|10.0.0.2"_s}));
    Rows unassigned = read(hardware, &clsHW::getUnAssigned);
    unassigned.sort();
    EXPECT_EQ(unassigned, (Rows{free3, free4}));
}

TEST_F(HWTest, GetAssignedRoom_GivesTheRoomOrNothing)
{
    QString number = u"before"_s;
    int room = 77;
    hardware.getAssignedRoom(connection, 1, number, room);
    EXPECT_EQ(number, u"101"_s);
    EXPECT_EQ(room, 1);
    hardware.getAssignedRoom(connection, 2, number, room);
    EXPECT_EQ(number, QString());
    EXPECT_EQ(room, 0);
}

TEST_F(HWTest, Find_TakesANullForAnyText)
{
    const struct
    {
        const char *name;
        int type;
        QStringList texts; // serial number, workstation, address, asset, company property
        QStringList ids;
    } cases[] = {
        {"nothing asked", 0, {{}, {}, {}, {}, {}}, {u"4"_s, u"1"_s, u"2"_s, u"3"_s}},
        {"part of a serial number", 0, {u"s"_s, {}, {}, {}, {}}, {u"1"_s, u"2"_s, u"3"_s}},
        {"another workstation", 0, {{}, u"WS9"_s, {}, {}, {}}, {u"4"_s, u"1"_s, u"3"_s}},
        {"another address", 0, {{}, {}, u"10.9"_s, {}, {}}, {u"4"_s, u"1"_s, u"3"_s}},
        {"another asset", 0, {{}, {}, {}, u"9"_s, {}}, {u"1"_s, u"2"_s, u"3"_s}},
        {"another company property", 0, {{}, {}, {}, {}, u"9"_s}, {u"1"_s, u"2"_s, u"3"_s}},
        {"all five", 0, {u"a"_s, u"x"_s, u"x"_s, u"AS"_s, u"p4"_s}, {u"4"_s}},
        {"a type and a text", 2, {u"s"_s, {}, {}, {}, {}}, {u"3"_s}},
        {"a type without items", 9, {{}, {}, {}, {}, {}}, {}},
    };
    for (const auto &c : cases) {
        jet::Recordset result;
        hardware.Find(connection, result, c.type, c.texts[0], c.texts[1], c.texts[2], c.texts[3], c.texts[4]);
        EXPECT_EQ(result.fields().count(), 6) << c.name;
        QStringList ids;
        for (; !result.eof(); result.moveNext())
            ids += result.value(0).toText();
        EXPECT_EQ(ids, c.ids) << c.name;
    }
}

TEST_F(HWTest, AnItemStandsInARoomOrWithAUser)
{
    hardware.addRooms(connection, 2, QList<int>{3}, false);
    EXPECT_EQ(roomHW(), (Rows{u"1|1"_s, u"2|3"_s}));
    EXPECT_EQ(userHW(), Rows());
    EXPECT_EQ(swHW(), (Rows{u"1|1"_s, u"1|2"_s}));

    hardware.addUsers(connection, 2, QList<int>{2});
    EXPECT_EQ(roomHW(), Rows{u"1|1"_s});
    EXPECT_EQ(userHW(), Rows{u"2|2"_s});

    hardware.addUsers(connection, 2, QList<int>{1});
    EXPECT_EQ(userHW(), Rows{u"2|1"_s});
}

TEST_F(HWTest, AnEmptyListClearsItsOwnSideAlone)
{
    hardware.addRooms(connection, 2, QList<int>(), false);
    EXPECT_EQ(userHW(), Rows{u"2|1"_s});
    hardware.addUsers(connection, 1, QList<int>());
    EXPECT_EQ(roomHW(), Rows{u"1|1"_s});
    hardware.addRooms(connection, 1, QList<int>(), true);
    EXPECT_EQ(roomHW(), Rows());
    EXPECT_EQ(swHW(), Rows{u"1|2"_s});
    hardware.addUsers(connection, 2, QList<int>());
    EXPECT_EQ(userHW(), Rows());
    hardware.addSW(connection, 2, QList<int>());
    EXPECT_EQ(swHW(), Rows());
}

TEST_F(HWTest, AddSW_GivesTheItemItsOnlySoftware)
{
    hardware.addSW(connection, 1, QList<int>{2, 1});
    hardware.addSW(connection, 2, QList<int>{2});
    EXPECT_EQ(swHW(), (Rows{u"1|1"_s, u"2|1"_s, u"2|2"_s}));
}

TEST_F(HWTest, Delete_LeavesTheRelationshipsBehind)
{
    hardware.Delete(connection, 1);
    EXPECT_EQ(rows(u"SELECT ID FROM Tbl_HW ORDER BY ID"_s), (Rows{u"2"_s, u"3"_s, u"4"_s}));
    EXPECT_EQ(roomHW(), Rows{u"1|1"_s});
    EXPECT_EQ(swHW(), (Rows{u"1|1"_s, u"1|2"_s}));
    EXPECT_EQ(read(rooms, &clsRooms::getHW, 1), Rows());
}
