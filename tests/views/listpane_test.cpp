#include "viewtest.h"

#include "views/frmListFind.h"
#include "views/modListSort.h"

#include <QClipboard>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

using modListSort::ColumnType;

/// A list of one visible column.
void fillList(ListView &list, const QStringList &texts)
{
    list.setColumns({u"ID"_s, u"Text"_s});
    ListRows rows(2);
    for (const QString &text : texts) {
        const int row = rows.addRow();
        rows.setText(row, 0, QString::number(row + 1));
        rows.setText(row, 1, text);
    }
    list.setRows(std::move(rows));
}

QStringList texts(const ListView &list, int column = 1)
{
    QStringList shown;
    for (int row = 0; row < list.rowCount(); ++row)
        shown += list.text(row, column);
    return shown;
}

struct SortCase
{
    const char *name;
    ColumnType type;
    QStringList before;
    QStringList ascending;
    QStringList descending;
};

// clang-format off
const SortCase sortCases[] = {
    {"Numbers", ColumnType::Number, {u"10"_s, u"9"_s, u"-5"_s, u"-50"_s, u"0.5"_s},
     {u"-50"_s, u"-5"_s, u"0.5"_s, u"9"_s, u"10"_s}, {u"10"_s, u"9"_s, u"0.5"_s, u"-5"_s, u"-50"_s}},
    {"WhatIsNoNumberIsEmptyAndStaysInOrder", ColumnType::Number, {u""_s, u"7"_s, u"x"_s, u"-1"_s, u"a"_s},
     {u""_s, u"x"_s, u"a"_s, u"-1"_s, u"7"_s}, {u"7"_s, u"-1"_s, u""_s, u"x"_s, u"a"_s}},
    {"Dates", ColumnType::Date, {u"2/1/2004"_s, u"12/31/1999"_s, u"none"_s, u"2/1/2004 8:00:00 AM"_s},
     {u"none"_s, u"12/31/1999"_s, u"2/1/2004"_s, u"2/1/2004 8:00:00 AM"_s},
     {u"2/1/2004 8:00:00 AM"_s, u"2/1/2004"_s, u"12/31/1999"_s, u"none"_s}},
    {"TextsWithoutRegardToCaseAndStable", ColumnType::String, {u"b"_s, u"A"_s, u"a"_s, u"B"_s, u""_s},
     {u""_s, u"A"_s, u"a"_s, u"b"_s, u"B"_s}, {u"b"_s, u"B"_s, u"A"_s, u"a"_s, u""_s}},
    {"LongTextsDifferBehindTheirBeginning", ColumnType::String, {u"Department 2"_s, u"Department 1"_s, u"Department"_s},
     {u"Department"_s, u"Department 1"_s, u"Department 2"_s}, {u"Department 2"_s, u"Department 1"_s, u"Department"_s}},
    {"AccentsFoldTheirCase", ColumnType::String, {u"ÉB"_s, u"éa"_s, u"z"_s}, {u"z"_s, u"éa"_s, u"ÉB"_s}, {u"ÉB"_s, u"éa"_s, u"z"_s}},
    {"AllEmpty", ColumnType::String, {u""_s, u""_s}, {u""_s, u""_s}, {u""_s, u""_s}},
};
// clang-format on

class ListSortTest : public testing::TestWithParam<SortCase>
{
};

class ListPaneTest : public ViewTest
{
protected:
    void click(frmDisplay &view, int row, int column, Qt::MouseButton button = Qt::LeftButton)
    {
        const QModelIndex cell = view.listDisplay->model()->index(row, column);
        QTest::mouseClick(view.listDisplay->viewport(), button, {},
                          view.listDisplay->visualRect(cell).center());
    }
};

} // namespace

TEST_P(ListSortTest, EachSortTurnsTheOrder)
{
    const SortCase &c = GetParam();
    ListView list;
    fillList(list, c.before);
    EXPECT_EQ(modListSort::columnType(list, 1), c.type);
    modListSort::sortList(list, 1);
    EXPECT_EQ(texts(list), c.ascending);
    EXPECT_EQ(list.headingPicture(1), 1);
    // From the order of before again.
    ListView other;
    fillList(other, c.before);
    other.setSortOrder(Qt::AscendingOrder);
    modListSort::sortList(other, 1);
    EXPECT_EQ(texts(other), c.descending);
    EXPECT_EQ(other.headingPicture(1), 2);
}

INSTANTIATE_TEST_SUITE_P(Cases, ListSortTest, testing::ValuesIn(sortCases),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(ListSortTest, AnotherColumnTurnsTheOrderTooAndIdsSortAsTexts)
{
    ListView list;
    QStringList many;
    for (int i = 0; i < 11; ++i)
        many += QString::number(i);
    fillList(list, many);
    modListSort::sortList(list, 1);
    modListSort::sortList(list, 0);
    EXPECT_EQ(texts(list, 0).mid(0, 3), (QStringList{u"9"_s, u"8"_s, u"7"_s}));
    EXPECT_EQ(texts(list, 0).mid(8), (QStringList{u"11"_s, u"10"_s, u"1"_s}));
    EXPECT_EQ(list.headingPicture(1), 0);
}

TEST_F(ListPaneTest, CopySortAndFindActOnTheColumnOfTheLastPress)
{
    frmDisplay *view = openUsers();
    ListPane &list = *view->listDisplay;
    QGuiApplication::clipboard()->setText(u"before"_s);
    list.chooseRow(0);
    trigger(u"mnuEditCopy"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"before"_s) << "No column was chosen yet.";

    click(*view, 1, 3);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"burr"_s);
    QTest::keyClick(&list, Qt::Key_Right);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"SRV2"_s) << "The keys choose a column, too.";

    trigger(u"mnuEditSort"_s);
    trigger(u"mnuEditSort"_s);
    EXPECT_EQ(texts(list, 4), (QStringList{u"SRV2"_s, u"SRV1"_s}));
    EXPECT_EQ(list.currentRow(), 0) << "The row goes with its place.";

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.viewport()->height() - 3));
    EXPECT_EQ(list.contextColumn(), 0) << "A press beside the rows.";
}

TEST_F(ListPaneTest, ACharacterJumpsToTheFirstRowThatBeginsWithIt)
{
    frmDisplay *view = open(Mode::Rooms, u"All Rooms"_s, {u"ID"_s, u"RoomNumber"_s},
                            {{Value(1), Value(u"a1"_s)},
                             {Value(2), Value(u"Ä1"_s)},
                             {Value(3), Value(u"B1"_s)},
                             {Value(4), Value(u"b2"_s)}});
    view->listDisplay->selectAll();
    QTest::keyClicks(view->listDisplay, u"b"_s);
    EXPECT_EQ(view->listDisplay->selectedRows(), std::vector<int>{2});
    QTest::keyClicks(view->listDisplay, u"b"_s);
    EXPECT_EQ(view->listDisplay->currentRow(), 2) << "Always from the first row.";
    QTest::sendKeyEvent(QTest::Click, view->listDisplay, Qt::Key_Adiaeresis, u"ä"_s, {});
    EXPECT_EQ(view->listDisplay->currentRow(), 1);
    QTest::keyClicks(view->listDisplay, u"x"_s);
    EXPECT_EQ(view->listDisplay->selectedRows(), std::vector<int>{1}) << "Nothing begins with it.";
}

TEST_F(ListPaneTest, FindGoesFromHitToHitAndBeginsAgainAtTheTop)
{
    frmDisplay *view = open(Mode::Rooms, u"All Rooms"_s, {u"ID"_s, u"RoomNumber"_s, u"Description"_s},
                            {{Value(1), Value(u"101"_s), Value(u"Meeting"_s)},
                             {Value(2), Value(u"102"_s), Value(u"Store"_s)},
                             {Value(3), Value(u"103"_s), Value(u"big MEETING room"_s)}});
    ListPane &list = *view->listDisplay;
    whenShown<frmListFind>([&](frmListFind &window) {
        EXPECT_EQ(window.windowTitle(), u"Search by Description"_s);
        EXPECT_EQ(window.frameFind->title(), u"Search by Description"_s);
        EXPECT_EQ(window.lblStringToFind->text(), u"Description"_s);
        EXPECT_EQ(window.focusWidget(), window.txtStringToFind);
        QTest::keyClicks(window.txtStringToFind, u"meet"_s);
        QTest::keyClick(window.txtStringToFind, Qt::Key_Return);
        EXPECT_EQ(list.selectedRows(), std::vector<int>{0});
        QTest::keyClick(window.txtStringToFind, Qt::Key_Return);
        EXPECT_EQ(list.selectedRows(), std::vector<int>{2});
        expectBox(u"The Item you are looking for could not be found"_s, box::WarningIcon);
        window.cmdFind->click();
        verify();
        EXPECT_EQ(list.selectedCount(), 0);
        window.cmdFind->click();
        EXPECT_EQ(list.selectedRows(), std::vector<int>{0});
        QTest::keyClicks(window.txtStringToFind, u"i"_s);
        window.cmdFind->click();
        EXPECT_EQ(list.selectedRows(), std::vector<int>{0}) << "Another text starts at the top.";
        window.cmdCancel->click();
    });
    const QHeaderView *header = list.header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(2) + 20, header->height() / 2));
}
