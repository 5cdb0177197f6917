#include "base/error.h"
#include "session/connectionstring.h"
#include "session/modRegistry.h"
#include "shelltest.h"
#include "store/clsUsers.h"
#include "support/workstation.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class StartTest : public ShellTest
{
protected:
    /// What the start says when the store does not open.
    static QString storeMessage()
    {
        EXPECT_FALSE(attempt([] { clsUsers().TestConnection(getConnectionString()); }));
        return currentError().description %
               "\r\n\r\nThe connection to the database could not be established\r\n"
               "Check your settings in the Main Menu under Tools > Options..."_L1;
    }

    static QString panel(int number) { return mainForm().StatusBar->panelText(number); }
};

using AboutTest = StartTest;

} // namespace

TEST_F(StartTest, TheStartWindowRunsOutBeforeAnythingElse)
{
    expectNoNetwork();
    startMain([this](frmAbout &window) {
        EXPECT_TRUE(window.isModal());
        EXPECT_TRUE(window.cmdOK->isHidden());
        EXPECT_TRUE(window.cmdVisitWebSite->isHidden());
        EXPECT_EQ(window.TimerClose->interval(), 5000);
        EXPECT_EQ(window.LblInfo->text(), u"Kelvane Version 3.0 Build 253"_s);
        EXPECT_TRUE(asked().empty());
        EXPECT_TRUE(findAll<frmMain>(u"frmMain"_s).isEmpty());
    });
    settle();
    EXPECT_EQ(asked().size(), 2u);
    EXPECT_TRUE(mainForm().isVisible());
    EXPECT_FALSE(mainForm().isModal());
    EXPECT_EQ(mainForm().windowTitle(), u"Kelvane 3.0"_s);
    EXPECT_EQ(mainForm().frameGeometry(), mainForm().screen()->availableGeometry());
    EXPECT_EQ(panel(1), u"Ready"_s);
    EXPECT_EQ(mainForm().StatusBar->panelPicture(1), 18);
    EXPECT_EQ(panel(2), storePath());
    EXPECT_EQ(mainForm().StatusBar->panelPicture(2), 2);
    EXPECT_EQ(panel(3), u"PDC:  Domain: "_s);
    EXPECT_EQ(mainForm().StatusBar->panelPicture(3), 1);
}

TEST_F(StartTest, AKnownNetworkIsNotWarnedAbout)
{
    net::installApi(std::make_unique<Workstation>(u"HEADOFFICE"_s, u"\\\\CENTRAL"_s));
    startMain();
    settle();
    EXPECT_EQ(panel(3), u"PDC: CENTRAL Domain: HEADOFFICE"_s);
}

TEST_F(StartTest, WithoutAControllerTheDefaultIsShown)
{
    modRegistry::saveDefaultDC(u"BACKUP"_s);
    start();
    EXPECT_EQ(panel(3), u"PDC: BACKUP Domain: "_s);
}

TEST_F(StartTest, AStoreThatDoesNotOpenIsReportedAndTheMainWindowAppears)
{
    QFile damaged(path(u"damaged.mdb"_s));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no store at all");
    damaged.close();

    for (const QString &store : {path(u"missing.mdb"_s), damaged.fileName(), QString()}) {
        SCOPED_TRACE(qPrintable(store));
        modRegistry::saveDataBase(store);
        const QString message = storeMessage();
        EXPECT_TRUE(store.isEmpty() || message.contains(store)) << qPrintable(message);
        expectNoNetwork();
        expectBox(message, box::StopIcon);
        startMain();
        settle();
        verify();
        EXPECT_TRUE(mainForm().isVisible());
        EXPECT_EQ(panel(1), u"Ready"_s);
        EXPECT_EQ(panel(2), store);
        delete &mainForm();
    }
    EXPECT_FALSE(QFile::exists(path(u"missing.mdb"_s)));
}

TEST_F(StartTest, SettingsCountFromTheNextActivation)
{
    frmMain &window = start();
    modRegistry::saveDataBase(u"/srv/other.mdb"_s);
    modRegistry::saveDefaultDC(u"BACKUP"_s);
    EXPECT_EQ(panel(2), storePath());

    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitFor([&] { return other.isActiveWindow(); }));
    window.activateWindow();
    ASSERT_TRUE(waitFor([&] { return window.isActiveWindow(); }));
    settle();
    EXPECT_EQ(panel(2), u"/srv/other.mdb"_s);
    EXPECT_EQ(panel(3), u"PDC: BACKUP Domain: "_s);
}

TEST_F(StartTest, MainLeavesTheApplicationAsItWas)
{
    QGuiApplication::setQuitOnLastWindowClosed(true);
    bool quit = false;
    const auto watch = QObject::connect(qApp, &QCoreApplication::aboutToQuit, [&] { quit = true; });
    start();
    QObject::disconnect(watch);
    EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
    EXPECT_FALSE(quit);
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

TEST_F(AboutTest, OpensWithItsButtonsAndClosesByItself)
{
    start();
    whenShown<frmAbout>([](frmAbout &window) {
        EXPECT_TRUE(window.isModal());
        EXPECT_TRUE(window.cmdOK->isVisible());
        EXPECT_TRUE(window.cmdVisitWebSite->isVisible());
        EXPECT_TRUE(waitFor([&] { return window.windowTitle() == u"About Kelvane 3.0"_s; }));
        EXPECT_EQ(window.TimerClose->interval(), 5000);
        letTimeRunOut(window);
        EXPECT_FALSE(window.isVisible());
    });
    trigger(u"mnuAbout"_s);
}

TEST_F(AboutTest, OkAndTheWebSite)
{
    start();
    QList<QUrl> opened;
    desktop::installOpener([&](const QUrl &url) {
        opened.append(url);
        return true;
    });
    whenShown<frmAbout>([](frmAbout &window) {
        QTest::mouseClick(window.cmdVisitWebSite, Qt::LeftButton);
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    trigger(u"mnuAbout"_s);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened.first().scheme(), u"https"_s);
}

TEST(DesktopTest, PathsBecomeFilesAndAddressesStay)
{
    QList<QUrl> opened;
    desktop::installOpener([&](const QUrl &url) {
        opened.append(url);
        return !url.isLocalFile();
    });
    EXPECT_TRUE(desktop::openDocument(u"https://www.kelvane.example/a#b"_s));
    EXPECT_FALSE(desktop::openDocument(u"/srv/100% #1.txt"_s));
    desktop::installOpener({});
    EXPECT_FALSE(desktop::openDocument(u"/srv/plan.txt"_s));
    EXPECT_EQ(opened, (QList<QUrl>{QUrl(u"https://www.kelvane.example/a#b"_s),
                                   QUrl::fromLocalFile(u"/srv/100% #1.txt"_s)}));
}
