#include "shelltest.h"

#include "toolkit/banner.h"
#include "views/frmListFind.h"
#include "views/frmNewEdit.h"
#include "views/frmProperties.h"
#include "views/listpane.h"

#include <QLineEdit>
#include <QTabWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr auto deleteQuestion = "Warning! The selected Root Object(s) and all its Relationships will be "
                                "deleted. This operation cannot be "
                                "undone\r\nAre you sure to delete the selected Root Object(s)?"_L1;

class RoomsTest : public ShellTest
{
protected:
    void SetUp() override
    {
        ShellTest::SetUp();
        for (const char *sql :
             {"INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('101','Front')",
              "INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('102','Store')",
              "INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('103',Null)",
              "INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,1)",
              "INSERT INTO Tbl_HWType (Type,Manufacturer,Model,TypeNumber) VALUES ('PC','M','X','1')",
              "INSERT INTO Tbl_HW (HWTypeID,SerialNumber) VALUES (1,'S1')",
              "INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (1,1)"})
            execute(QString::fromLatin1(sql));
    }

    frmDisplay *openRooms()
    {
        start();
        trigger(u"mnuShowAllRooms"_s);
        settle();
        return activeView();
    }

    QStringList rooms() { return column(u"SELECT RoomNumber FROM Tbl_Rooms ORDER BY RoomNumber"_s); }
};

} // namespace

// A room from its making to its end, by menus and keys.
TEST_F(RoomsTest, AreAddedEditedAndDeleted)
{
    frmDisplay *view = openRooms();
    ListPane &list = *view->listDisplay;
    EXPECT_EQ(view->windowTitle(), u"All Rooms"_s);
    ASSERT_EQ(list.rowCount(), 3);

    whenShown<frmNewEdit>([](frmNewEdit &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Add New Room"_s);
        EXPECT_EQ(dialog.lblName->text(), u"Room Number"_s);
        EXPECT_EQ(dialog.picLogoContainer->picture(), 6);
        QTest::keyClicks(dialog.txtName, u"104"_s);
        QTest::keyClicks(dialog.txtDescription, u"New"_s);
        QTest::keyClick(dialog.txtDescription, Qt::Key_Return);
    });
    QTest::keyClick(&list, Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(list.rowCount(), 4);
    EXPECT_EQ(list.subItem(3, 1), u"104"_s);
    EXPECT_EQ(list.itemText(3), u"0"_s) << "The store's id is not known before F5.";

    whenShown<frmNewEdit>([this](frmNewEdit &dialog) {
        dialog.txtName->setText(u"101"_s);
        expectBox(u"A Room with the same Number alredy exists in the Database"_s, box::StopIcon);
        dialog.cmdOK->click();
        EXPECT_TRUE(dialog.isVisible());
        dialog.txtName->setText(u"O'Neill"_s);
        dialog.cmdCancel->click();
    });
    trigger(u"mnuEditAddNew"_s);
    EXPECT_EQ(list.rowCount(), 4);

    QTest::keyClick(&list, Qt::Key_F5);
    list.chooseRow(3);
    whenShown<frmNewEdit>([](frmNewEdit &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Edit Room"_s);
        EXPECT_EQ(dialog.lblName->text(), u"Name"_s);
        EXPECT_EQ(dialog.txtDescription->text(), u"New"_s);
        dialog.txtName->setText(u"105"_s);
        dialog.cmdOK->click();
    });
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                       list.visualRect(list.model()->index(3, 1)).center());
    EXPECT_EQ(list.subItem(3, 1), u"105"_s);
    EXPECT_EQ(rooms(), (QStringList{u"101"_s, u"102"_s, u"103"_s, u"105"_s}));

    mainForm().activateWindow(); // as a window manager does after a dialog
    settle();
    list.chooseRow(1);
    list.setRowSelected(3);
    expectBox(deleteQuestion, box::YesNo | box::WarningIcon, box::ResultNo);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(rooms().size(), 4);
    expectBox(deleteQuestion, box::YesNo | box::WarningIcon, box::ResultYes);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(rooms(), (QStringList{u"101"_s, u"103"_s}));
    EXPECT_EQ(list.rowCount(), 2);
    EXPECT_EQ(view->StatusBar->panelText(2), u"2 Record(s)"_s);
}

TEST_F(RoomsTest, LeadToTheirUsersAndHardwareAndBack)
{
    frmDisplay *view = openRooms();
    view->listDisplay->chooseRow(0);
    trigger(u"mnuViewUsers"_s);
    settle();
    EXPECT_EQ(activeView()->windowTitle(), u"User(s)in Room 101"_s);
    EXPECT_EQ(activeView()->listDisplay->rowCount(), 1);
    activeView()->listDisplay->chooseRow(0);
    trigger(u"mnuViewRooms"_s);
    settle();
    EXPECT_EQ(activeView()->windowTitle(), u"Room(s) for User \\keller"_s);

    mainForm().mdiArea().setActiveSubWindow(view);
    trigger(u"mnuViewHardware"_s);
    settle();
    EXPECT_EQ(activeView()->windowTitle(), u"Hardware in Room 101"_s);
    activeView()->listDisplay->chooseRow(0);
    trigger(u"mnuViewRooms"_s);
    settle();
    EXPECT_EQ(activeView()->windowTitle(), u"Room(s) for Hardware PC M X 1 SN: S1"_s);
    EXPECT_EQ(activeView()->listDisplay->subItem(0, 1), u"101"_s);
}

TEST_F(RoomsTest, ShowTheirPropertiesOnEnter)
{
    frmDisplay *view = openRooms();
    view->listDisplay->chooseRow(0);
    QTest::keyClick(view->listDisplay, Qt::Key_Return);
    settle();
    auto *properties = dynamic_cast<frmProperties *>(find<QWidget>(u"frmProperties"_s));
    ASSERT_NE(properties, nullptr);
    EXPECT_EQ(properties->LblInfo->text(), u"101"_s);
    EXPECT_EQ(properties->TabStrip->count(), 2);
    EXPECT_EQ(properties->list(PropertyTab::Users)->subItem(0, 1), u"Keller"_s);
    EXPECT_EQ(properties->list(PropertyTab::Hardware)->subItem(0, 2), u"S1"_s);
    properties->close();
}

TEST_F(RoomsTest, AddingFromTheMainWindowChangesNoList)
{
    frmDisplay *view = openRooms();
    whenShown<frmNewEdit>([](frmNewEdit &dialog) {
        dialog.txtName->setText(u"200"_s);
        dialog.cmdOK->click();
    });
    find<QToolButton>(u"cmdAddRoom"_s)->click();
    EXPECT_EQ(rooms().size(), 4);
    EXPECT_EQ(view->listDisplay->rowCount(), 3);
}
