#include "assets/clsHW.h"
#include "assets/clsHWType.h"
#include "assets/clsSW.h"
#include "support/companytest.h"

using namespace Qt::StringLiterals;
using namespace company;

namespace {

class ProductsTest : public CompanyTest
{
protected:
    /// The distinct texts, whose case is that of any of the rows.
    template <typename Records>
    Rows texts(Records &records, void (Records::*reader)(const QString &, jet::Recordset &))
    {
        Rows found = rowsFrom([&](auto &result) { (records.*reader)(connection, result); });
        for (QString &row : found)
            row = row.toLower();
        return found;
    }

    clsSW software;
    clsHWType types;
    clsHW hardware;
};

} // namespace

TEST_F(ProductsTest, ReadersOfSoftwareGiveTheirRows)
{
    // clang-format off
    expectRows(software, {
        {"getAll", &clsSW::getAll, 0, {driver + u"|-", zed + u"|-", calc + u"|-", writer1 + u"|-", writer2 + u"|-"}},
        {"getDisplayNames", &clsSW::getDisplayNames, 0,
         {u"75|Driver Zeta Zed "_s, u"74|Office  Zed 9"_s, u"73|OFFICE Maker Calc 9"_s, u"72|Office MAKER Writer 1"_s,
          u"71|Office Maker Writer 2"_s}},
        {"getHW", &clsSW::getHW, 72, {hw63, hw61}},
        {"getNotHW", &clsSW::getNotHW, 72, {hw66, hw65, hw64, hw62}},
        {"getUsers", &clsSW::getUsers, 72, {bert, rolf, rolf}},
        {"getUsers of none", &clsSW::getUsers, 75, {}},
    });
    // clang-format on
    EXPECT_EQ(texts(software, &clsSW::getTypes), (Rows{u"0|driver"_s, u"0|office"_s}));
    EXPECT_EQ(texts(software, &clsSW::getManufacturers), (Rows{u"0|-"_s, u"0|maker"_s, u"0|zeta"_s}));
}

TEST_F(ProductsTest, UsersOfSoftwareAreOrderedByAllTheirNames)
{
    run(u"UPDATE Tbl_Users SET LastName = 'Same', FirstName = 'Same' WHERE UserID < 13"_s);
    run(u"UPDATE Tbl_Users SET LastName = 'same', FirstName = 'Early' WHERE UserID = 13"_s);
    run(u"INSERT INTO Tbl_UserHW (UserID,HWID) VALUES (13,63)"_s);
    expectRows(software, {{"getUsers",
                           &clsSW::getUsers,
                           72,
                           {u"13|same|Early|anna|SRV01"_s, u"12|Same|Same|bert|SRV02"_s,
                            u"11|Same|Same|rolf|SRV01"_s, u"11|Same|Same|rolf|SRV01"_s}}});
}

TEST_F(ProductsTest, AddHW_MakesTheItemsTheOnlyOnes)
{
    software.addHW(connection, 72, QList<int>{66, 61});
    EXPECT_EQ(content("Tbl_SWHW"), (Rows{u"71|61"_s, u"72|61"_s, u"72|66"_s, u"73|62"_s}));
    software.addHW(connection, 72, QList<int>());
    EXPECT_EQ(content("Tbl_SWHW"), (Rows{u"71|61"_s, u"73|62"_s}));
}

TEST_F(ProductsTest, ReadersOfTypesGiveTheirRows)
{
    const Rows all = {u"55|Monitor|Zeta|M9|-|-"_s, u"54|PC|-|M9|9|-"_s, u"53|pc|Maker|L9|9|-"_s,
                      u"52|PC|MAKER|M1|5|-"_s, u"51|PC|Maker|M1|7|-"_s};
    // clang-format off
    expectRows(types, {
        {"getAll", &clsHWType::getAll, 0, all},
        {"getDisplayList", &clsHWType::getDisplayList, 0,
         {u"55|Monitor Zeta M9 "_s, u"54|PC  M9 9"_s, u"53|pc Maker L9 9"_s, u"52|PC MAKER M1 5"_s,
          u"51|PC Maker M1 7"_s}},
    });
    // clang-format on
    EXPECT_EQ(texts(types, &clsHWType::getTypes), (Rows{u"0|monitor"_s, u"0|pc"_s}));
    EXPECT_EQ(texts(types, &clsHWType::getManufacturers), (Rows{u"0|-"_s, u"0|maker"_s, u"0|zeta"_s}));

    const auto found = [&](const QString &type, const QString &manufacturer, const QString &model) {
        return rowsFrom([&](auto &result) { types.Find(connection, result, type, manufacturer, model); });
    };
    EXPECT_EQ(found({}, {}, {}), (Rows{all[0], all[2], all[3], all[4]})) << "a Null is never found";
    EXPECT_EQ(found(u"P"_s, {}, {}), all.last(3));
    EXPECT_EQ(found({}, u"et"_s, {}), all.first(1));
    EXPECT_EQ(found({}, {}, u"m1"_s), all.last(2));
}
