#include "viewtest.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "toolkit/listview.h"
#include "toolkit/pointer.h"
#include "views/openview.h"

#include <QLabel>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

using OpenViewTest = ViewTest;

const QStringList fields{u"ID"_s, u"Name"_s, u"Server"_s, u"Description"_s};

} // namespace

TEST_F(OpenViewTest, TheWholePathOfAView)
{
    QString readingText;
    bool hourglass = false;
    QString connectionRead;
    frmDisplay *view = openView(
        window.get(), nullptr, Mode::GlobalGroups, u"All Global Groups"_s,
        [&](const QString &connectionString, jet::Recordset &recordset) {
            readingText = window->mainStatusBar().panelText(1);
            hourglass = isHourglassShown();
            connectionRead = connectionString;
            fill(recordset, fields, {{Value(1), Value(u"Admins"_s), Value(u"SRV"_s), Value(u"text"_s)}});
        });
    EXPECT_EQ(readingText, u"Reading Data. Please stand by"_s);
    EXPECT_TRUE(hourglass);
    EXPECT_TRUE(connectionRead.contains(storePath()));

    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(window->mdiArea().activeSubWindow(), view);
    EXPECT_EQ(view->mode(), Mode::GlobalGroups);
    EXPECT_EQ(view->LblInfo->text(), u"All Global Groups"_s);
    EXPECT_EQ(view->windowTitle(), u"All Global Groups"_s);
    EXPECT_EQ(view->listDisplay->rowCount(), 1);
    EXPECT_EQ(view->listDisplay->picture(0, 1), 1) << "The mode's picture.";
    EXPECT_EQ(view->listDisplay->picture(0, 2), 11);
    EXPECT_EQ(view->listDisplay->picture(0, 3), 12);
    EXPECT_EQ(view->StatusBar->panelText(2), u"1 Record(s)"_s);
    EXPECT_EQ(window->mainStatusBar().panelText(1), u"Ready"_s);
    EXPECT_FALSE(isHourglassShown());
}

TEST_F(OpenViewTest, NoRowsAreToldAndANewViewIsNotShown)
{
    expectBox(u"The requested query did not return data"_s, 64);
    EXPECT_EQ(open(Mode::Rooms, u"All Rooms"_s, fields, {}), nullptr);
    EXPECT_EQ(viewCount(), 0);
    EXPECT_EQ(window->shownToolbars(), QStringList{u"ToolbarMain"_s});
    EXPECT_EQ(window->mainStatusBar().panelText(1), u"Ready"_s);
}

TEST_F(OpenViewTest, NoRowsInAnOpenViewLeaveItsModeAndHeadings)
{
    frmDisplay *view = openUsers();
    expectBox(u"The requested query did not return data"_s, 64);
    EXPECT_EQ(open(Mode::Users, u"Other"_s, fields, {}, view), nullptr);
    EXPECT_EQ(viewCount(), 1);
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(view->mode(), Mode::Users);
    EXPECT_EQ(view->LblInfo->text(), u"All Users"_s);
    EXPECT_EQ(view->listDisplay->rowCount(), 0);
    EXPECT_EQ(view->listDisplay->heading(1), u"Name"_s);
}

TEST_F(OpenViewTest, AFailedReadIsToldAndLeavesTheListAsItWas)
{
    frmDisplay *view = openUsers();
    const ReadRows fails = [](const QString &, jet::Recordset &) {
        throwError(-2147467259, u"The file is locked."_s);
    };
    expectBox(u"-2147467259\r\nThe file is locked."_s, 16);
    EXPECT_EQ(openView(window.get(), view, Mode::Rooms, u"All Rooms"_s, fails), nullptr);
    EXPECT_EQ(view->mode(), Mode::Users);
    EXPECT_EQ(view->listDisplay->rowCount(), 2);
    expectBox(u"-2147467259\r\nThe file is locked."_s, 16);
    EXPECT_EQ(openView(window.get(), nullptr, Mode::Rooms, u"All Rooms"_s, fails), nullptr);
    EXPECT_EQ(viewCount(), 1);
    EXPECT_EQ(window->mainStatusBar().panelText(1), u"Ready"_s);
}

TEST_F(OpenViewTest, TheStoreIsReadThroughTheSettings)
{
    execute(u"INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('R1','first')"_s);
    const ReadRows read = [](const QString &connectionString, jet::Recordset &recordset) {
        jet::Connection connection;
        connection.open(connectionString);
        recordset.open(u"SELECT ID, RoomNumber, Description FROM Tbl_Rooms"_s, connection);
    };
    frmDisplay *view = openView(window.get(), nullptr, Mode::Rooms, u"All Rooms"_s, read);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->listDisplay->subItem(0, 1), u"R1"_s);
    EXPECT_EQ(view->listDisplay->picture(0, 1), 6);
}
