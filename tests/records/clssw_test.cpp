#include "assetstest.h"

using SWTest = AssetsTest;
using HWTypeTest = AssetsTest;

TEST_F(SWTest, ReadersGiveTheirRows)
{
    EXPECT_EQ(read(software, &clsSW::getAll),
              (Rows{u"2|Driver|Bolt|Screen|-|-"_s, u"1|Office|Maker|Writer|1.0|-"_s}));
    EXPECT_EQ(read(software, &clsSW::getDisplayNames),
              (Rows{u"2|Driver Bolt Screen "_s, u"1|Office Maker Writer 1.0"_s}));
    EXPECT_EQ(read(software, &clsSW::getHW, 1),
              (Rows{u"1|PC Maker M1 7|S1|-|Office|-"_s, u"2|PC Maker M1 7|S2|-|-|10.0.0.2"_s}));
    EXPECT_EQ(read(software, &clsSW::getHW, 2), Rows());
    EXPECT_EQ(read(software, &clsSW::getNotHW, 1).size(), 2);
    EXPECT_EQ(read(software, &clsSW::getNotHW, 2).size(), 4);

    software.Add(connection, u"OFFICE"_s, u"Bolt"_s, u"Calc"_s, u"2"_s, u"sheets"_s);
    EXPECT_EQ(read(software, &clsSW::getTypes).size(), 2);
    EXPECT_EQ(read(software, &clsSW::getManufacturers), (Rows{u"0|Bolt"_s, u"0|Maker"_s}));
}

TEST_F(SWTest, GetUsers_ListsAUserOnceForEachItem)
{
    run(u"INSERT INTO Tbl_UserHW (UserID,HWID) VALUES (1,3)"_s);
    software.addHW(connection, 2, QList<int>{2, 3});
    const QString anna = u"1|Ärmel|Anna|anna|SRV01"_s;
    EXPECT_EQ(read(software, &clsSW::getUsers, 2), (Rows{anna, anna}));
    EXPECT_EQ(read(software, &clsSW::getUsers, 1), Rows{anna});
}

TEST_F(SWTest, AddHW_MakesTheItemsTheOnlyOnes)
{
    software.addHW(connection, 2, QList<int>{1});
    software.addHW(connection, 1, QList<int>{3, 1});
    EXPECT_EQ(swHW(), (Rows{u"1|1"_s, u"1|3"_s, u"2|1"_s}));
    software.addHW(connection, 1, QList<int>());
    EXPECT_EQ(swHW(), Rows{u"2|1"_s});
}

TEST_F(SWTest, Delete_LeavesTheRelationshipsBehind)
{
    software.Delete(connection, 1);
    EXPECT_EQ(swHW(), (Rows{u"1|1"_s, u"1|2"_s}));
    EXPECT_EQ(read(hardware, &clsHW::getSW, 1), Rows());
}

TEST_F(HWTypeTest, ReadersGiveTheirRows)
{
    EXPECT_EQ(read(types, &clsHWType::getAll), (Rows{u"2|Monitor|Bolt|M2|-|-"_s, u"1|PC|Maker|M1|7|-"_s}));
    run(u"INSERT INTO Tbl_HWType (Type,Model) VALUES ('pc','M3')"_s);
    EXPECT_EQ(read(types, &clsHWType::getDisplayList),
              (Rows{u"2|Monitor Bolt M2 "_s, u"3|pc  M3 "_s, u"1|PC Maker M1 7"_s}));
    EXPECT_EQ(read(types, &clsHWType::getTypes).size(), 2);
    EXPECT_EQ(read(types, &clsHWType::getManufacturers), (Rows{u"0|-"_s, u"0|Bolt"_s, u"0|Maker"_s}));

    const auto found = [&](const QString &type, const QString &manufacturer, const QString &model) {
        jet::Recordset result;
        types.Find(connection, result, type, manufacturer, model);
        return rowsOf(result);
    };
    EXPECT_EQ(found(u"P"_s, u"make"_s, u"1"_s), Rows{u"1|PC|Maker|M1|7|-"_s});
    EXPECT_EQ(found(u"P"_s, {}, u"2"_s), Rows());
    EXPECT_EQ(found({}, {}, {}).size(), 2) << "a Null is never found";
}

TEST_F(HWTypeTest, Delete_HidesTheHardwareOfTheType)
{
    types.Delete(connection, 1);
    EXPECT_EQ(rows(u"SELECT ID FROM Tbl_HW"_s).size(), 4);
    EXPECT_EQ(read(hardware, &clsHW::getAll).size(), 2);
}
