#include "toolkit/listview.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "support/find.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ListRows numberedRows(int count)
{
    ListRows rows(4);
    for (int i = 0; i < count; ++i) {
        const int row = rows.addRow();
        rows.setText(row, 0, QString::number(i + 1));
        rows.setText(row, 1, u"Name %1"_s.arg(count - i, 6, 10, QChar(u'0')));
        rows.setText(row, 2, u"SERVER%1"_s.arg(i % 7));
        rows.setText(row, 3, u"Description of object %1"_s.arg(i));
    }
    return rows;
}

class ListViewTest : public testing::Test
{
protected:
    void SetUp() override
    {
        list.setColumns({u"ID"_s, u"Name"_s, u"Server"_s, u"Description"_s});
        list.resize(640, 300);
        list.spreadColumns();
        list.show();
        list.activateWindow();
        list.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
    }

    void click(int row, int column, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list.viewport(), button, modifiers, cell(row, column));
    }
    [[nodiscard]] QPoint cell(int row, int column) const
    {
        return list.visualRect(list.model()->index(row, column)).center();
    }

    ListView list;
    QAbstractItemModelTester tester{list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

using Rows = std::vector<int>;

} // namespace

TEST_F(ListViewTest, TheFirstColumnIsHiddenAndTheOthersShareTheWidth)
{
    list.setRows(numberedRows(3));
    list.spreadColumns();
    EXPECT_EQ(list.columnWidth(0), 0);
    EXPECT_TRUE(list.isColumnHidden(0));
    const int share = list.columnWidth(1);
    EXPECT_EQ(list.columnWidth(2), share);
    EXPECT_EQ(list.columnWidth(3), share);
    EXPECT_LE(list.viewport()->width() - 3 * share, 3);
    EXPECT_GE(list.viewport()->width() - 3 * share, 0);
}

TEST_F(ListViewTest, ManyRowsLeaveRoomForTheScrollBarOnly)
{
    list.setRows(numberedRows(1000));
    list.spreadColumns();
    QCoreApplication::processEvents();
    EXPECT_TRUE(list.verticalScrollBar()->isVisible());
    EXPECT_FALSE(list.horizontalScrollBar()->isVisible());
    EXPECT_LE(list.viewport()->width() - 3 * list.columnWidth(1), 3);
}

TEST_F(ListViewTest, AWidthOfZeroHidesAndAnotherShowsAgain)
{
    list.setColumnWidth(2, 0);
    EXPECT_TRUE(list.isColumnHidden(2));
    list.setColumnWidth(2, 77);
    EXPECT_FALSE(list.isColumnHidden(2));
    EXPECT_EQ(list.columnWidth(2), 77);
    EXPECT_EQ(list.addColumn(u"More"_s, 55), 4);
    EXPECT_EQ(list.columnWidth(4), 55);
    EXPECT_EQ(list.heading(4), u"More"_s);
}

TEST_F(ListViewTest, MouseAndKeysSelectManyRows)
{
    list.setRows(numberedRows(8));
    QSignalSpy changes(&list, &ListView::selectedChanged);
    click(1, 1);
    EXPECT_EQ(list.selectedRows(), Rows{1});
    click(4, 2, Qt::ShiftModifier);
    EXPECT_EQ(list.selectedRows(), (Rows{1, 2, 3, 4}));
    click(2, 1, Qt::ControlModifier);
    EXPECT_EQ(list.selectedRows(), (Rows{1, 3, 4}));
    EXPECT_EQ(list.selectedCount(), 3);
    EXPECT_TRUE(list.isRowSelected(3));
    EXPECT_FALSE(list.isRowSelected(2));
    click(3, 1, {}, Qt::RightButton);
    EXPECT_EQ(list.selectedCount(), 3) << "The menu acts on what is selected.";
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.selectedCount(), 8);
    EXPECT_GE(changes.count(), 4);
    EXPECT_EQ(list.currentRow(), 3);
}

TEST_F(ListViewTest, NothingIsCurrentUntilSomebodyChooses)
{
    list.setRows(numberedRows(5));
    list.clearFocus();
    list.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(list.currentRow(), -1);
    EXPECT_EQ(list.selectedCount(), 0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentRow(), 0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.selectedRows(), Rows{1});
}

TEST_F(ListViewTest, SelectionByProgram)
{
    list.setRows(numberedRows(50));
    list.setRowSelected(3);
    list.setRowSelected(40);
    list.setRowSelected(3, false);
    EXPECT_EQ(list.selectedRows(), Rows{40});
    EXPECT_EQ(list.currentRow(), -1);
    list.chooseRow(49);
    EXPECT_EQ(list.selectedRows(), Rows{49});
    EXPECT_EQ(list.currentRow(), 49);
    EXPECT_TRUE(list.viewport()->rect().contains(cell(49, 1)));
    list.setCurrentRow(2);
    EXPECT_EQ(list.selectedRows(), Rows{49});
    list.setCurrentRow(-1);
    EXPECT_EQ(list.currentRow(), -1);
}

TEST_F(ListViewTest, AFillEmptiesTheSelectionAndTellsIt)
{
    list.setRows(numberedRows(5));
    list.selectAll();
    QSignalSpy changes(&list, &ListView::selectedChanged);
    list.setRows(numberedRows(5));
    EXPECT_EQ(list.selectedCount(), 0);
    EXPECT_GE(changes.count(), 1);
}

TEST_F(ListViewTest, RemovedRowsLeaveTheOthersSelected)
{
    list.setRows(numberedRows(6));
    list.selectAll();
    list.removeRow(2);
    EXPECT_EQ(list.selectedCount(), 5);
    EXPECT_EQ(list.itemText(2), u"4"_s);
    list.removeRows(Rows{4, 0});
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(list.itemText(0), u"2"_s);
    EXPECT_EQ(list.itemText(2), u"5"_s);
    EXPECT_EQ(list.selectedCount(), 0);
}

TEST_F(ListViewTest, SortingKeepsSelectionAndCurrentWithTheirRows)
{
    list.setRows(numberedRows(100));
    list.setRowSelected(0);
    list.setRowSelected(1);
    list.setRowSelected(50);
    list.setCurrentRow(50);
    std::vector<int> reversed(100);
    for (int i = 0; i < 100; ++i)
        reversed[std::size_t(i)] = 99 - i;
    list.reorder(reversed);
    EXPECT_EQ(list.selectedRows(), (Rows{49, 98, 99}));
    EXPECT_EQ(list.currentRow(), 49);
    EXPECT_EQ(list.itemText(49), u"51"_s);
    EXPECT_EQ(list.itemText(0), u"100"_s);
}

TEST_F(ListViewTest, TheColumnUnderThePointer)
{
    list.setRows(numberedRows(3));
    QSignalSpy pressed(&list, &ListView::mousePressed);
    click(1, 2);
    click(0, 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.viewport()->height() - 5));
    ASSERT_EQ(pressed.count(), 3);
    EXPECT_EQ(pressed.at(0).at(1).toInt(), 2);
    EXPECT_EQ(pressed.at(1).at(1).toInt(), 1);
    EXPECT_EQ(pressed.at(2).at(1).toInt(), 0) << "No row there.";
    EXPECT_EQ(list.rowUnder(QPoint(5, list.viewport()->height() - 5)), -1);
}

TEST_F(ListViewTest, EventsOfMouseAndKeys)
{
    list.setRows(numberedRows(3));
    QSignalSpy columns(&list, &ListView::columnClicked);
    QSignalSpy enters(&list, &ListView::enterPressed);
    QSignalSpy typed(&list, &ListView::charTyped);
    QSignalSpy doubles(&list, &ListView::rowDoubleClicked);
    QSignalSpy menus(&list, &ListView::contextMenuAsked);

    QHeaderView *header = list.header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(2) + 20, header->height() / 2));
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::keyClick(&list, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(&list, 'm');
    QTest::keyClick(&list, 'c', Qt::ControlModifier);
    click(1, 1);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, cell(1, 1));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.viewport()->height() - 5));
    click(1, 1, {}, Qt::RightButton);
    QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(list.viewport(), &menuKey);

    ASSERT_EQ(columns.count(), 1);
    EXPECT_EQ(columns.at(0).at(0).toInt(), 2);
    EXPECT_EQ(enters.count(), 2);
    ASSERT_EQ(typed.count(), 1) << "A shortcut is no typed character.";
    EXPECT_EQ(typed.at(0).at(0).toString(), u"m"_s);
    ASSERT_EQ(doubles.count(), 1) << "Only on a row.";
    EXPECT_EQ(doubles.at(0).at(0).toInt(), 1);
    EXPECT_EQ(menus.count(), 3) << "Right button, Shift+F10, menu key.";
}

TEST_F(ListViewTest, GridLinesAreDrawn)
{
    list.setRows(numberedRows(3));
    const QImage without = list.viewport()->grab().toImage();
    list.setGridLines(true);
    EXPECT_NE(list.viewport()->grab().toImage(), without);
    list.setGridLines(false);
    EXPECT_EQ(list.viewport()->grab().toImage(), without);
}

TEST_F(ListViewTest, AllRowsAreOfOneHeight)
{
    ListRows rows = numberedRows(2);
    rows.setPicture(1, 1, 3);
    list.setRows(std::move(rows));
    EXPECT_EQ(list.visualRect(list.model()->index(0, 1)).height(),
              list.visualRect(list.model()->index(1, 1)).height());
    EXPECT_GE(list.visualRect(list.model()->index(0, 1)).height(), list.iconSize().height());
}

TEST_F(ListViewTest, IndexesThatAreNotThereAreRefused)
{
    list.setRows(numberedRows(2));
    const std::function<void()> steps[] = {
        [this] { static_cast<void>(list.text(2, 0)); },
        [this] { static_cast<void>(list.text(-1, 0)); },
        [this] { list.setText(0, 4, {}); },
        [this] { list.removeRow(2); },
        [this] { list.setPicture(0, -1, 1); },
        [this] { list.setCurrentRow(2); },
        [this] { list.ensureVisible(9); },
        [this] { static_cast<void>(list.columnWidth(4)); },
        [this] { list.setColumnPicture(4, 1); },
    };
    for (const auto &step : steps) {
        EXPECT_FALSE(attempt(step));
        EXPECT_EQ(currentError().number, IndexOutOfBounds);
    }
    EXPECT_EQ(list.rowCount(), 2);
}

TEST_F(ListViewTest, ReadingAgainKeepsWhatIsChosenAndTheWidths)
{
    list.setRows(numberedRows(100));
    list.setRowSelected(10);
    list.setRowSelected(20);
    list.setRowSelected(21);
    list.setCurrentRow(20);
    list.ensureVisible(99);
    const int scrolled = list.verticalScrollBar()->value();

    ListRows again = numberedRows(100);
    again.setText(10, 0, u"0"_s);
    list.replaceRows(std::move(again));
    EXPECT_EQ(list.selectedRows(), (Rows{20, 21})) << "A row without an id is not found again.";
    EXPECT_EQ(list.currentRow(), 20);
    EXPECT_EQ(list.verticalScrollBar()->value(), scrolled);
}

TEST_F(ListViewTest, LeftAndRightChooseAColumn)
{
    list.setRows(numberedRows(3));
    list.chooseRow(1);
    QSignalSpy chosen(&list, &ListView::columnChosen);
    QTest::keyClick(&list, Qt::Key_Right);
    QTest::keyClick(&list, Qt::Key_Right);
    QTest::keyClick(&list, Qt::Key_Right);
    QTest::keyClick(&list, Qt::Key_Left);
    EXPECT_EQ(chosen.count(), 3) << "There is no column right of the last.";
    EXPECT_EQ(chosen.at(2).at(0).toInt(), 2);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.selectedRows(), Rows{2});
    EXPECT_EQ(list.currentIndex().column(), 2) << "Up and down stay in the column.";
}

TEST_F(ListViewTest, TheIdsAreNotReadOut)
{
    list.setRows(numberedRows(1));
    EXPECT_TRUE(list.model()->index(0, 0).data(Qt::AccessibleTextRole).toString().trimmed().isEmpty());
    EXPECT_FALSE(list.model()->index(0, 0).data(Qt::AccessibleTextRole).toString().isEmpty());
    EXPECT_FALSE(list.model()->index(0, 1).data(Qt::AccessibleTextRole).isValid());
}

TEST(ListViewSpreadTest, ColumnsFollowTheWidthUntilSomebodySetsOne)
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *list = new ListView;
    list->setColumns({u"ID"_s, u"A"_s, u"B"_s});
    list->setRows(numberedRows(2));
    list->spreadColumns();
    layout->addWidget(list);
    window.resize(900, 400);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const auto share = [&] { return std::abs(list->viewport()->width() - 2 * list->columnWidth(1)); };
    EXPECT_TRUE(waitFor([&] { return share() <= 1; }));
    window.resize(700, 400);
    EXPECT_TRUE(waitFor([&] { return share() <= 1; }));
    list->header()->resizeSection(1, 60); // as the mouse does
    window.resize(800, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(list->columnWidth(1), 60);
}
