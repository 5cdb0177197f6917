#include "toolkit/listmodel.h"
#include "toolkit/listview.h"

#include <QTest>

#include <gtest/gtest.h>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int manyRows = 100'000;

ListRows roomRows(std::size_t &textBytes)
{
    ListRows rows(3);
    for (int i = 0; i < manyRows; ++i) {
        const int row = rows.addRow();
        const QString texts[] = {QString::number(i + 1), u"R%1"_s.arg(i, 5, 10, QChar(u'0')),
                                 u"Room on floor %1"_s.arg(i % 30)};
        for (int column = 0; column < 3; ++column) {
            rows.setText(row, column, texts[column]);
            textBytes += std::size_t(texts[column].toUtf8().size());
        }
    }
    return rows;
}

std::size_t allocated()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

TEST(ListSizeTest, ManyRowsCostAtMostFourTimesTheirTexts)
{
    if (allocated() == 0)
        GTEST_SKIP() << "The allocator in use does not tell.";
    ListView list;
    list.setColumns({u"ID"_s, u"RoomNumber"_s, u"Description"_s});
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));

    const std::size_t before = allocated();
    std::size_t textBytes = 0;
    list.setRows(roomRows(textBytes));
    list.setColumnPicture(1, 6);
    list.selectAll();
    list.viewport()->grab();
    QCoreApplication::processEvents();
    const std::size_t cost = allocated() - before;

    EXPECT_EQ(list.selectedCount(), manyRows);
    EXPECT_LE(cost, 4 * textBytes) << cost << " bytes for " << textBytes << " bytes of text";
    EXPECT_LE(list.rows().bytes(), 2 * textBytes);
}

TEST(ListSizeTest, SelectionIsRangesHoweverManyRows)
{
    std::size_t textBytes = 0;
    ListView list;
    list.setColumns({u"ID"_s, u"RoomNumber"_s, u"Description"_s});
    list.setRows(roomRows(textBytes));
    list.selectAll();
    EXPECT_EQ(list.selectionModel()->selection().size(), 1);
    list.setRowSelected(manyRows / 2, false);
    EXPECT_LE(list.selectionModel()->selection().size(), 3);
    EXPECT_EQ(list.selectedCount(), manyRows - 1);
    std::vector<int> reversed(manyRows);
    for (int i = 0; i < manyRows; ++i)
        reversed[std::size_t(i)] = manyRows - 1 - i;
    list.reorder(reversed);
    EXPECT_EQ(list.selectedCount(), manyRows - 1);
    EXPECT_FALSE(list.isRowSelected(manyRows - 1 - manyRows / 2));
}
