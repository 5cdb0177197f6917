#include "exchange/frmImport.h"
#include "messages/progresssteps.h"
#include "platform/jet/recordset.h"
#include "session/modRegistry.h"
#include "shell/commands.h"
#include "shelltest.h"
#include "store/storesession.h"
#include "toolkit/listview.h"
#include "toolkit/pointer.h"
#include "views/listpane.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

const QString quitQuestion = u"Do you really want to quit Kelvane?"_s;
constexpr int quitFlags = box::YesNo | box::QuestionIcon;

class MainWindowTest : public ShellTest
{
protected:
    /// Which toolbars are shown, by letter: main, display, modal.
    static QString toolbars()
    {
        const frmMain &window = mainForm();
        return (window.ToolbarMain->isVisible() ? u"M"_s : u""_s) +
               (window.ToolBarDisplay->isVisible() ? u"D"_s : u""_s) +
               (window.ToolBarModalDisplay->isVisible() ? u"X"_s : u""_s);
    }

    static QStringList menus()
    {
        QStringList shown;
        for (const QAction *action : mainForm().menuBar()->actions()) {
            if (action->isVisible())
                shown.append(action->objectName());
        }
        return shown;
    }

    static void reactivate()
    {
        QEvent event(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&mainForm(), &event);
        settle();
    }
};

const QStringList ownMenus{u"mnuGlobalGroups"_s, u"mnuLocalGroups"_s, u"mnuUsers"_s,     u"mnuFolders"_s,
                           u"mnuHardware"_s,     u"mnuSoftware"_s,    u"mnuRooms"_s,     u"mnuCustomQRY"_s,
                           u"mnuSearch"_s,       u"mnuReport"_s,      u"mnuWindowsNT"_s, u"mnuTools"_s,
                           u"mnuHelp"_s};
const QStringList menusOfView{u"mnuEditParent"_s, u"mnuView"_s,   u"mnuViewWindowsNT"_s, u"mnuReport"_s,
                              u"mnuTools"_s,      u"mnuWizard"_s, u"mnuWindow"_s};

} // namespace

// The window that was active before goes while Qt hands the main window its place. The fault shows under
// the address sanitizer: what is left of the progress window is read.
TEST_F(MainWindowTest, BecomesActiveAsTheProgressWindowGoes)
{
    start();
    for (int i = 0; i < 3; ++i) {
        {
            ProgressSteps steps(&mainForm());
            steps.phase(u"Batch"_s, 3);
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() != &mainForm(); }));
        }
        settle();
        EXPECT_EQ(QApplication::activeWindow(), &mainForm());
    }
}

TEST_F(MainWindowTest, NoKeepsTheSessionAsItIs)
{
    frmMain &window = start();
    trigger(u"mnuShowAllUsers"_s);
    settle();
    const QPointer<frmDisplay> view = activeView();
    ASSERT_TRUE(view);

    expectBox(quitQuestion, quitFlags, box::ResultNo);
    EXPECT_FALSE(window.close());
    settle();
    EXPECT_EQ(ended(), 0);
    EXPECT_TRUE(window.isVisible());
    ASSERT_TRUE(view);
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(view->listDisplay->rowCount(), 2);
    EXPECT_EQ(window.targetDisplay(), view);
}

TEST_F(MainWindowTest, YesEndsTheProcessWithoutAskingAView)
{
    frmMain &window = start();
    trigger(u"mnuShowAllUsers"_s);
    expectBox(quitQuestion, quitFlags, box::ResultYes);
    window.close();
    EXPECT_EQ(ended(), 1);
}

TEST_F(MainWindowTest, TheRealEndWritesTheStoreFirst)
{
    setProcessEnd({});
    const QString sql = u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('A 12')"_s;
    EXPECT_EXIT(
        {
            StoreSession store(connection());
            store.execute(sql);
            endProcess();
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(column(u"SELECT RoomNumber FROM Tbl_Rooms"_s), QStringList{u"A 12"_s});
}

TEST_F(MainWindowTest, TheLastEventDecidesWhichToolbarShows)
{
    start();
    EXPECT_EQ(toolbars(), u"M"_s);

    trigger(u"mnuShowAllUsers"_s);
    settle();
    EXPECT_EQ(toolbars(), u"D"_s);
    const QPointer<frmDisplay> first = activeView();
    EXPECT_EQ(mainForm().targetDisplay(), first);

    showOnlyToolbar(MainWindowLink::Toolbar::Main);
    reactivate();
    EXPECT_NE(toolbars(), u"DM"_s);

    trigger(u"mnuShowAllUsers"_s);
    settle();
    const QPointer<frmDisplay> second = activeView();
    ASSERT_NE(first, second);
    second->close();
    settle();
    EXPECT_EQ(toolbars(), u"D"_s) << "the other view came up";
    EXPECT_EQ(mainForm().targetDisplay(), first);

    mainForm().ToolBarModalDisplay->show();
    first->close();
    settle();
    EXPECT_EQ(toolbars(), u"MX"_s) << "a view leaves the modal list's toolbar alone";
    EXPECT_EQ(mainForm().targetDisplay(), nullptr);

    showOnlyToolbar(MainWindowLink::Toolbar::ModalDisplay);
    reactivate();
    EXPECT_EQ(toolbars(), u"M"_s);
}

TEST_F(MainWindowTest, MenuAndButtonOpenAllUsersAndGiveThePointerBack)
{
    start();
    for (const auto &[name, root] : {std::pair<QString, QObject *>{u"mnuShowAllUsers"_s, &mainForm()},
                                     {u"Users"_s, mainForm().ToolbarMain}}) {
        SCOPED_TRACE(qPrintable(name));
        trigger(name, root);
        settle();
        ASSERT_TRUE(activeView());
        EXPECT_EQ(activeView()->windowTitle(), u"All Users"_s);
        EXPECT_FALSE(isHourglassShown());
        EXPECT_EQ(mainForm().StatusBar->panelText(1), u"Ready"_s);
        mainForm().mdiArea().closeAllSubWindows();
        settle();
    }
    const QAction *button = find<QAction>(u"Users"_s, mainForm().ToolbarMain);
    EXPECT_EQ(button->toolTip(), u"View all Users"_s);
    EXPECT_FALSE(button->icon().pixmap(16).isNull()) << "the pictures are linked in";
}

TEST_F(MainWindowTest, ImportOpensItsDialog)
{
    start();
    whenShown<frmImport>([](frmImport &dialog) {
        EXPECT_EQ(dialog.parentWidget(), &mainForm());
        dialog.close();
    });
    trigger(u"mnuImport"_s);
}

TEST_F(MainWindowTest, TheWindowMenuIsThereWithTheViews)
{
    start();
    EXPECT_EQ(menus(), ownMenus);
    trigger(u"mnuShowAllUsers"_s);
    trigger(u"mnuShowAllUsers"_s);
    settle();
    EXPECT_EQ(menus(), menusOfView);

    auto *list = find<QMenu>(u"mnuWindowList"_s);
    Q_EMIT list->aboutToShow();
    ASSERT_EQ(list->actions().size(), 2);
    EXPECT_EQ(list->actions().at(1)->text(), u"All Users (2)"_s);
    EXPECT_TRUE(list->actions().at(1)->isChecked());
    const frmDisplay *second = activeView();
    list->actions().at(0)->trigger();
    settle();
    EXPECT_NE(activeView(), second);

    mainForm().mdiArea().closeAllSubWindows();
    settle();
    EXPECT_EQ(menus(), ownMenus);
}

TEST_F(MainWindowTest, TilingFillsTheAreaAndLeavesMinimizedViewsOut)
{
    start();
    for (int i = 0; i < 3; ++i)
        trigger(u"mnuShowAllUsers"_s);
    settle();
    const QList<QMdiSubWindow *> views = mainForm().mdiArea().subWindowList();
    ASSERT_EQ(views.size(), 3);
    const QSize room = mainForm().mdiArea().viewport()->size();

    trigger(u"mnuWindowTileHorizontally"_s);
    settle();
    for (const QMdiSubWindow *view : views)
        EXPECT_EQ(view->width(), room.width());
    EXPECT_EQ(views[0]->y(), 0);
    EXPECT_EQ(views[2]->geometry().bottom() + 1, room.height());
    EXPECT_EQ(views[1]->y(), views[0]->geometry().bottom() + 1);

    views[2]->showMinimized();
    trigger(u"mnuWindowTileVertically"_s);
    trigger(u"mnuWindowArrangeIcons"_s);
    settle();
    EXPECT_TRUE(views[2]->isMinimized());
    EXPECT_EQ(views[2]->geometry().bottom() + 1, room.height());
    EXPECT_EQ(views[0]->height(), room.height() - views[2]->height());
    EXPECT_EQ(views[1]->geometry().right() + 1, room.width());
    EXPECT_EQ(views[1]->x(), views[0]->geometry().right() + 1);
}

TEST_F(MainWindowTest, TheSidebarFollowsTheSettingAndDoesWhatTheMenusDo)
{
    frmMain &window = start();
    EXPECT_TRUE(window.picControlContainer->isVisible());
    for (const SidebarButton &button : sidebar()) {
        const auto *made = find<QToolButton>(button.name, window.picControlContainer);
        const auto *entry = find<QAction>(button.entry, &window);
        ASSERT_TRUE(made && entry) << button.name.data();
        EXPECT_EQ(made->isEnabled(), entry->isEnabled()) << button.name.data();
    }
    modRegistry::saveShowSideBar(false);
    window.prepareMainWindow();
    EXPECT_TRUE(window.picControlContainer->isHidden());
}

TEST_F(MainWindowTest, WhatIsToComeIsGreyAndSaysSo)
{
    start();
    const auto *entry = find<QAction>(u"mnuReportAllUsersList"_s);
    EXPECT_FALSE(entry->isEnabled());
    EXPECT_EQ(entry->toolTip(), u"Not yet implemented. Sorry for the Inconvenience"_s);
    trigger(u"mnuShowAllUsers"_s);
    settle();
    const auto *wizard = find<QAction>(u"mnuWizardRoom"_s);
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_FALSE(wizard->isEnabled());
}

TEST_F(MainWindowTest, KeysCloseTheViewAndOpenTheMenuBar)
{
    frmMain &window = start();
    trigger(u"mnuShowAllUsers"_s);
    settle();
    QTest::keyClick(&window, Qt::Key_F10);
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    settle();
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    window.activateWindow();
    settle();
    QTest::keyClick(activeView()->listDisplay, Qt::Key_F4, Qt::ControlModifier);
    settle();
    EXPECT_EQ(activeView(), nullptr);
    EXPECT_EQ(toolbars(), u"M"_s);
}

TEST_F(MainWindowTest, ClosingAViewRightAfterARefreshKeepsTheToolbar)
{
    start();
    for (int i = 0; i < 12; ++i) {
        find<QAction>(u"Users"_s, mainForm().ToolbarMain)->trigger();
        QTest::keyClick(activeView()->listDisplay, Qt::Key_F5);
        QTest::keyClick(activeView()->listDisplay, Qt::Key_Escape);
    }
    settle();
    EXPECT_EQ(toolbars(), u"M"_s);
    EXPECT_EQ(menus(), ownMenus);
}

TEST_F(MainWindowTest, ACascadeKeepsTheSizes)
{
    start();
    for (int i = 0; i < 3; ++i)
        trigger(u"mnuShowAllUsers"_s);
    settle();
    trigger(u"mnuWindowTileHorizontally"_s);
    const QList<QMdiSubWindow *> views = mainForm().mdiArea().subWindowList();
    views[0]->resize(500, 300);
    trigger(u"mnuWindowCascade"_s);
    EXPECT_EQ(views[0]->size(), QSize(500, 300));
    EXPECT_EQ(views[0]->pos(), QPoint(0, 0));
    EXPECT_EQ(views[2]->pos(), 2 * views[1]->pos());
}

TEST_F(MainWindowTest, TheAreaFollowsThePalette)
{
    frmMain &window = start();
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x2b, 0x2d, 0x30), QColor(0x23, 0x25, 0x28)));
    settle();
    const int dark = window.mdiArea().background().color().lightness();
    QApplication::setPalette(before);
    settle();
    EXPECT_LT(dark, 0x28);
    EXPECT_GT(window.mdiArea().background().color().lightness(), 0xc0);
}

TEST_F(MainWindowTest, TheStorePanelTakesTheRoomThatIsLeft)
{
    frmMain &window = start();
    for (const int width : {700, 1400}) {
        window.showNormal();
        window.resize(width, 500);
        settle();
        const StatusBar &bar = *window.StatusBar;
        EXPECT_EQ(bar.panelWidth(2), bar.width() - bar.panelWidth(1) - bar.panelWidth(3));
    }
}
