#include "viewtest.h"

#include "session/modRegistry.h"
#include "toolkit/banner.h"
#include "toolkit/listview.h"
#include "views/family.h"
#include "views/openview.h"

#include <QLabel>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

using FrmDisplayTest = ViewTest;

void clickRow(const frmDisplay &view, int row, int column, Qt::KeyboardModifiers modifiers = {})
{
    const QModelIndex cell = view.listDisplay->model()->index(row, column);
    QTest::mouseClick(view.listDisplay->viewport(), Qt::LeftButton, modifiers,
                      view.listDisplay->visualRect(cell).center());
}

} // namespace

TEST_F(FrmDisplayTest, ActivationDressesTheWindow)
{
    frmDisplay *view = openUsers();
    EXPECT_TRUE(window->windowMenuShown());
    EXPECT_EQ(window->shownToolbars(), QStringList{u"ToolBarDisplay"_s});
    EXPECT_EQ(window->targetDisplay(), view);
    EXPECT_TRUE(view->listDisplay->hasFocus());
    EXPECT_EQ(view->windowTitle(), u"All Users"_s);
    EXPECT_EQ(view->StatusBar->panelText(1), u"You are Viewing Database Objects"_s);
    EXPECT_EQ(view->StatusBar->panelText(2), u"2 Record(s)"_s);
    EXPECT_EQ(view->listDisplay->picture(0, 1), 3);
    EXPECT_EQ(view->listDisplay->picture(0, 3), 14);
    EXPECT_EQ(view->listDisplay->picture(0, 4), 11);
}

TEST_F(FrmDisplayTest, TheViewThatIsActiveIsTheTarget)
{
    frmDisplay *first = openUsers(u"First"_s);
    frmDisplay *second = openUsers(u"Second"_s);
    EXPECT_EQ(window->targetDisplay(), second);
    window->mdiArea().setActiveSubWindow(first);
    EXPECT_EQ(window->targetDisplay(), first);
    EXPECT_TRUE(first->listDisplay->hasFocus());
}

TEST_F(FrmDisplayTest, EscapeClosesAndTheNextViewBringsItsToolbarBack)
{
    const QPointer<frmDisplay> first = openUsers(u"First"_s);
    const QPointer<frmDisplay> second = openUsers(u"Second"_s);
    QTest::keyClick(second->listDisplay, Qt::Key_Escape);
    settle();
    EXPECT_TRUE(second.isNull());
    EXPECT_EQ(window->targetDisplay(), first);
    EXPECT_EQ(window->shownToolbars(), QStringList{u"ToolBarDisplay"_s});
    EXPECT_TRUE(window->windowMenuShown());

    QTest::keyClick(first->listDisplay, Qt::Key_Escape);
    settle();
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(window->targetDisplay(), nullptr);
    EXPECT_EQ(window->shownToolbars(), QStringList{u"ToolbarMain"_s});
    EXPECT_FALSE(window->windowMenuShown());
    EXPECT_EQ(window->mainStatusBar().panelText(1), u"Ready"_s);
    EXPECT_EQ(viewCount(), 0);
}

TEST_F(FrmDisplayTest, FocusInTheListBringsTheToolbarBack)
{
    frmDisplay *view = openUsers();
    showOnlyToolbar(MainWindowLink::Toolbar::ModalDisplay);
    view->listDisplay->clearFocus();
    view->listDisplay->setFocus();
    EXPECT_EQ(window->shownToolbars(), QStringList{u"ToolBarDisplay"_s});
}

TEST_F(FrmDisplayTest, F5WidensANarrowedViewToAllObjects)
{
    int calls = 0;
    registerFamily(
        u"DisplayUsers",
        {.listAll =
             [&](frmDisplay *view) {
                 ++calls;
                 open(u"DisplayUsers", u"All Users"_s, {u"UserID"_s, u"LastName"_s},
                      {{Value(1), Value(u"A"_s)}, {Value(2), Value(u"B"_s)}, {Value(3), Value(u"C"_s)}},
                      view);
             },
         .operations = {}});
    frmDisplay *view = openUsers(u"User(s) of Global Group SRV\\Admins"_s);
    frmDisplay *other = openUsers(u"Other"_s);
    window->mdiArea().setActiveSubWindow(view);
    view->listDisplay->selectAll();
    QTest::keyClick(view->listDisplay, Qt::Key_F5);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(viewCount(), 2);
    EXPECT_EQ(view->listDisplay->rowCount(), 3);
    EXPECT_EQ(view->LblInfo->text(), u"All Users"_s);
    EXPECT_EQ(view->windowTitle(), u"All Users"_s);
    EXPECT_EQ(view->StatusBar->panelText(2), u"3 Record(s)"_s);
    EXPECT_EQ(view->StatusBar->panelText(3), u"0 Object(s) Selected"_s);
    EXPECT_EQ(view->listDisplay->picture(2, 1), 3);
    EXPECT_EQ(other->listDisplay->rowCount(), 2) << "Views do not watch one another.";
    registerFamily(u"DisplayUsers", {});
}

TEST_F(FrmDisplayTest, F5InAModeWithoutAListOfAllReadsNothing)
{
    frmDisplay *view = openUsers();
    view->SetAction(u"NTDisplayUsers"_s);
    view->listDisplay->removeRow(0);
    QTest::keyClick(view->listDisplay, Qt::Key_F5);
    EXPECT_EQ(view->listDisplay->rowCount(), 1);
    EXPECT_EQ(view->StatusBar->panelText(2), u"1 Record(s)"_s) << "It is prepared anew all the same.";
    EXPECT_EQ(view->StatusBar->panelText(1), u"You are Viewing Live System Objects"_s);
}

TEST_F(FrmDisplayTest, SelectedObjectsAreCounted)
{
    frmDisplay *view = openUsers();
    clickRow(*view, 0, 1);
    EXPECT_EQ(view->StatusBar->panelText(3), u"1 Object(s) Selected"_s);
    QTest::keyClick(view->listDisplay, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view->StatusBar->panelText(3), u"2 Object(s) Selected"_s);
    clickRow(*view, 0, 1, Qt::ControlModifier);
    EXPECT_EQ(view->StatusBar->panelText(3), u"1 Object(s) Selected"_s);
}

TEST_F(FrmDisplayTest, TheColumnOfTheLastPressIsKept)
{
    frmDisplay *view = openUsers();
    EXPECT_EQ(view->contextColumn(), 0);
    clickRow(*view, 1, 3);
    EXPECT_EQ(view->contextColumn(), 3);
    QTest::mouseClick(view->listDisplay->viewport(), Qt::LeftButton, {},
                      QPoint(5, view->listDisplay->viewport()->height() - 3));
    EXPECT_EQ(view->contextColumn(), 0);
}

TEST_F(FrmDisplayTest, GeometryOfTheFirstAndTheNextViews)
{
    frmDisplay *first = openUsers();
    EXPECT_EQ(first->pos(), QPoint(0, 0));
    EXPECT_EQ(first->size(), QSize(640, 480));
    EXPECT_EQ(first->picLogoContainer->width(), first->widget()->width());
    frmDisplay *second = openUsers();
    EXPECT_EQ(second->size(), QSize(640, 480));

    first->resize(700, 520);
    settle();
    EXPECT_NEAR(first->StatusBar->panelWidth(1), first->StatusBar->panelWidth(3), 2);
    EXPECT_GT(first->listDisplay->height(), 300);
    EXPECT_GT(first->listDisplay->width(), 670);
}

TEST_F(FrmDisplayTest, SettingsOfTheAppearance)
{
    modRegistry::saveShowGridLines(false);
    modRegistry::saveMaximizeWindows(true);
    frmDisplay *view = openUsers();
    EXPECT_FALSE(view->listDisplay->gridLines());
    EXPECT_TRUE(view->isMaximized());
    EXPECT_LE(std::abs(view->listDisplay->viewport()->width() - 4 * view->listDisplay->columnWidth(1)), 4)
        << "The columns fit the maximized window.";
    modRegistry::saveShowGridLines(true);
    modRegistry::saveMaximizeWindows(false);
    EXPECT_TRUE(frmDisplay().listDisplay->gridLines());
}

TEST_F(FrmDisplayTest, ControlsAreFoundByTheirNames)
{
    frmDisplay *view = openUsers();
    for (const char *name :
         {"picLogoContainer", "picContext", "LblInfo", "picNT", "listDisplay", "StatusBar"})
        EXPECT_NE(find<QWidget>(QString::fromLatin1(name), view), nullptr) << name;
    EXPECT_EQ(view->listDisplay->accessibleName(), u"All Users"_s);
}

TEST_F(FrmDisplayTest, TheMainWindowMayGoFirst)
{
    const QPointer<frmDisplay> view = openUsers();
    window.reset();
    EXPECT_TRUE(view.isNull());
    EXPECT_EQ(mainWindow(), nullptr);
}

TEST_F(FrmDisplayTest, FortyThousandRowsAreListedAndAllSelected)
{
    std::vector<Record> records;
    for (int i = 0; i < 40'000; ++i)
        records.push_back({Value(i + 1), Value(u"Room %1"_s.arg(i)), Value(u"Floor"_s)});
    frmDisplay *view =
        open(u"DisplayRooms", u"All Rooms"_s, {u"ID"_s, u"RoomNumber"_s, u"Description"_s}, records);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->StatusBar->panelText(2), u"40000 Record(s)"_s);
    EXPECT_EQ(view->listDisplay->picture(39'999, 1), 6);
    EXPECT_EQ(view->listDisplay->picture(39'999, 2), 12);
    QTest::keyClick(view->listDisplay, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view->StatusBar->panelText(3), u"40000 Object(s) Selected"_s);
    QTest::keyClick(view->listDisplay, Qt::Key_End);
    EXPECT_EQ(view->listDisplay->currentRow(), 39'999);
    EXPECT_EQ(view->StatusBar->panelText(3), u"1 Object(s) Selected"_s);
}
