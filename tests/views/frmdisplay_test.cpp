#include "viewtest.h"

#include "session/modRegistry.h"
#include "toolkit/banner.h"
#include "toolkit/listview.h"
#include "views/families.h"
#include "views/modRender.h"
#include "views/openview.h"

#include <QHeaderView>

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

TEST_F(FrmDisplayTest, F5WidensANarrowedViewToAllObjectsAndKeepsWhatIsChosen)
{
    int calls = 0;
    const OpRow listAll[] = {
        {Mode::Users, Op::ListAll, [&](const CommandContext &context) {
             ++calls;
             open(Mode::Users, u"All Users"_s,
                  {u"UserID"_s, u"LastName"_s, u"FirstName"_s, u"UserName"_s, u"ServerName"_s},
                  {{Value(9), Value(u"Abel"_s)}, {Value(11), Value(u"Ames"_s)}, {Value(12)}}, context.view);
         }}};
    registerHandlers(listAll);
    frmDisplay *view = openUsers(u"User(s) of Global Group SRV\\Admins"_s);
    frmDisplay *other = openUsers(u"Other"_s);
    window->mdiArea().setActiveSubWindow(view);
    view->listDisplay->chooseRow(0);
    view->listDisplay->header()->resizeSection(2, 55);
    QTest::keyClick(view->listDisplay, Qt::Key_F5);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(viewCount(), 2);
    EXPECT_EQ(view->listDisplay->rowCount(), 3);
    EXPECT_EQ(view->LblInfo->text(), u"All Users"_s);
    EXPECT_EQ(view->windowTitle(), u"All Users"_s);
    EXPECT_EQ(view->StatusBar->panelText(2), u"3 Record(s)"_s);
    EXPECT_EQ(view->listDisplay->selectedRows(), std::vector<int>{1}) << "Ames, wherever he is now.";
    EXPECT_EQ(view->listDisplay->columnWidth(2), 55);
    EXPECT_EQ(view->listDisplay->picture(2, 1), 3);
    EXPECT_EQ(other->listDisplay->rowCount(), 2) << "Views do not watch one another.";

    view->SetAction(Mode::NTUsers);
    QTest::keyClick(view->listDisplay, Qt::Key_F5);
    EXPECT_EQ(calls, 1) << "A mode without a list of all reads nothing.";
    EXPECT_EQ(view->StatusBar->panelText(1), u"You are Viewing Live System Objects"_s)
        << "It is prepared anew all the same.";
    const OpRow none[] = {{Mode::Users, Op::ListAll, {}}};
    registerHandlers(none);
}

TEST_F(FrmDisplayTest, WhatAnOperationLacksIsSaidBeforeItRuns)
{
    int ran = 0;
    const auto count = [&ran](const CommandContext &) { ++ran; };
    const OpRow rows[] = {{Mode::Users, Op::Edit, count},
                          {Mode::Users, Op::Properties, count},
                          {Mode::Users, Op::Delete, count}};
    registerHandlers(rows);
    frmDisplay *view = openUsers();
    const QString select = u"Please select an Item from list"_s;
    const QString notYet = u"Not yet implemented. Sorry for the Inconvenience"_s;
    const auto refused = [&](Op op, const QString &text, int flags) {
        expectBox(text, flags);
        view->run(op);
        verify();
        EXPECT_EQ(ran, 0);
    };
    refused(Op::Properties, select, box::WarningIcon);
    refused(Op::Edit, select, box::WarningIcon);
    refused(Op::Delete, select, box::WarningIcon);
    refused(Op::WizardUsers, notYet, box::Ok);

    view->listDisplay->chooseRow(view->listDisplay->addRow(u"0"_s, {u"New"_s}));
    refused(Op::Edit, u"Please refresh this view by pressing F5 to edit the selected object"_s,
            box::WarningIcon);
    refused(Op::ViewRooms, select, box::WarningIcon);

    view->listDisplay->chooseRow(0);
    refused(Op::ViewUsers, notYet, box::Ok);
    refused(Op::ViewGlobalGroups, u"The opration you requested has not been implemented yet"_s, box::Ok);
    const QString question =
        u"Warning! The selected Root Object(s) and all its Relationships will be deleted. This operation "
        "cannot be undone\r\nAre you sure to delete the selected Root Object(s)?"_s;
    expectBox(question, box::YesNo | box::WarningIcon, box::ResultNo);
    view->run(Op::Delete);
    EXPECT_EQ(ran, 0);
    QTest::keyClick(view->listDisplay, Qt::Key_Return);
    EXPECT_EQ(ran, 1) << "Enter shows the properties.";
    for (const OpRow &row : rows) {
        const OpRow none[] = {{row.mode, row.op, {}}};
        registerHandlers(none);
    }
}

TEST_F(FrmDisplayTest, AHandlerGetsTheRowAndTheNameOfItsObject)
{
    CommandContext got;
    const OpRow rows[] = {
        {Mode::Users, Op::ViewRooms, [&](const CommandContext &context) { got = context; }}};
    registerHandlers(rows);
    frmDisplay *view = openUsers();
    view->listDisplay->chooseRow(1);
    view->run(Op::ViewRooms);
    EXPECT_EQ(got.id, 12);
    EXPECT_EQ(got.name, u"SRV2\\burr"_s);
    EXPECT_EQ(got.view, view);
    EXPECT_EQ(got.owner, window.get());
    const OpRow none[] = {{Mode::Users, Op::ViewRooms, {}}};
    registerHandlers(none);
}

TEST_F(FrmDisplayTest, ADrillDownWithOtherColumnsIsNotEdited)
{
    int edited = 0;
    const OpRow rows[] = {{Mode::LocalGroups, Op::Edit, [&](const CommandContext &) { ++edited; }}};
    registerHandlers(rows);
    const QString title = u"Local Group(s) for User SRV\\anna"_s;
    frmDisplay *view =
        open(Mode::LocalGroups, title, {u"ID"_s, u"LocalGroup"_s, u"Description"_s, u"GlobalGroup"_s},
             {{Value(7), Value(u"SRV\\Printers"_s), Value(u"All"_s), Value(u"Staff"_s)}});
    view->listDisplay->chooseRow(0);
    expectBox(u"Please refresh this view by pressing F5 to edit the selected object"_s, box::WarningIcon);
    view->run(Op::Edit);
    EXPECT_EQ(edited, 0) << "The columns would go into the wrong fields.";
    EXPECT_EQ(modRender::objectName(Mode::LocalGroups, *view->listDisplay, 0), u"SRV\\Printers"_s);
    const OpRow none[] = {{Mode::LocalGroups, Op::Edit, {}}};
    registerHandlers(none);
}

TEST_F(FrmDisplayTest, ViewsOfOneTitleAreNumberedAndCascade)
{
    const frmDisplay *first = openUsers();
    const frmDisplay *second = openUsers();
    const frmDisplay *third = openUsers();
    EXPECT_EQ(first->windowTitle(), u"All Users"_s);
    EXPECT_EQ(second->windowTitle(), u"All Users (2)"_s);
    EXPECT_EQ(third->windowTitle(), u"All Users (3)"_s);
    EXPECT_EQ(second->LblInfo->text(), u"All Users"_s);
    EXPECT_EQ(second->pos() - first->pos(), third->pos() - second->pos());
    EXPECT_GT(second->y(), 0);
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
        open(Mode::Rooms, u"All Rooms"_s, {u"ID"_s, u"RoomNumber"_s, u"Description"_s}, records);
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
