#include "support/windowtest.h"
#include "sync/modUsers.h"
#include "toolkit/listview.h"
#include "views/family.h"
#include "views/frmDisplay.h"

#include <QLabel>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class UserListsTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        for (const char *statement : {
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName,LastName,FirstName) "
                 "VALUES (1,'anna','SRV01','Ärmel','Anna')",
                 "INSERT INTO Tbl_Users (UserID,UserName,ServerName) VALUES (2,'bert','SRV02')",
                 "INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('Staff','DC01')",
                 "INSERT INTO Tbl_LocalGroups (Name,Server) VALUES ('Printers','SRV01')",
                 "INSERT INTO Tbl_Folders (FolderName) VALUES ('D:\\Data\\')",
                 "INSERT INTO Tbl_HWType (Type,Manufacturer,Model,TypeNumber) VALUES ('PC','Maker','M','7')",
                 "INSERT INTO Tbl_HW (HWTypeID,SerialNumber) VALUES (1,'S1')",
                 "INSERT INTO Tbl_SW (Type,Name) VALUES ('Office','Writer')",
                 "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('101')",
                 "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID,UserID) VALUES (1,1)",
                 "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES (1,1)",
                 "INSERT INTO Tbl_UserFolderPermission (UserID,FolderID,Permission) VALUES (1,1,'CH')",
                 "INSERT INTO Tbl_UserHW (UserID,HWID) VALUES (1,1)",
                 "INSERT INTO Tbl_SWHW (SWID,HWID) VALUES (1,1)",
                 "INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,1)",
             })
            execute(QString::fromUtf8(statement));
    }

    void TearDown() override
    {
        for (frmDisplay *view : views())
            delete view;
        WindowTest::TearDown();
    }

    static QList<frmDisplay *> views()
    {
        QList<frmDisplay *> found;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *view = qobject_cast<frmDisplay *>(window))
                found.append(view);
        }
        return found;
    }
};

} // namespace

TEST_F(UserListsTest, EachListOpensItsView)
{
    const QString name = u"SRV01\\anna"_s;
    const struct
    {
        std::function<void()> list;
        QString title;
        QString mode;
        QString firstCells; ///< of the first row
        int rows;
    } cases[] = {
        {[] { modUsers::listAllUsers(nullptr); }, u"All Users"_s, u"DisplayUsers"_s, u"2|"_s, 2},
        {[] { modUsers::findUsers(nullptr, u"AN"_s, u"ärm"_s); }, u"User(s) - search criteria = AN ärm"_s,
         u"DisplayUsers"_s, u"1|Ärmel"_s, 1},
        {[&] { modUsers::listUserFolders(nullptr, 1, name); }, u"Permission(s) for User SRV01\\anna"_s,
         u"DisplayFolders"_s, u"1|D:\\Data\\"_s, 1},
        {[&] { modUsers::listUserSW(nullptr, 1, name); }, u"Software for User SRV01\\anna"_s, u"DisplaySW"_s,
         u"1|Office"_s, 1},
        {[&] { modUsers::listUserRooms(nullptr, 1, name); }, u"Room(s) for User SRV01\\anna"_s,
         u"DisplayRooms"_s, u"1|101"_s, 1},
        {[&] { modUsers::listUserGlobalGroups(nullptr, 1, name); }, u"Global Group(s) for User SRV01\\anna"_s,
         u"DisplayGlobalGroups"_s, u"1|Staff"_s, 1},
        {[&] { modUsers::listUserLocalGroups(nullptr, 1, name); }, u"Local Group(s) for User SRV01\\anna"_s,
         u"DisplayLocalGroups"_s, u"1|SRV01\\Printers"_s, 1},
        {[&] { modUsers::listUserHW(nullptr, 1, name); }, u"Hardware for User SRV01\\anna"_s, u"DisplayHW"_s,
         u"1|PC Maker M 7"_s, 1},
        {[] { modUsers::listUsersByHW(nullptr, 1, u"PC Maker"_s); }, u"Users that have Hardware PC Maker"_s,
         u"DisplayUsers"_s, u"1|Ärmel"_s, 1},
    };
    for (const auto &c : cases) {
        c.list();
        ASSERT_EQ(views().size(), 1) << c.title.toStdString();
        frmDisplay *view = views().first();
        EXPECT_TRUE(view->isVisible());
        EXPECT_EQ(view->LblInfo->text(), c.title);
        EXPECT_EQ(view->action(), c.mode) << c.title.toStdString();
        ASSERT_EQ(view->listDisplay->rowCount(), c.rows) << c.title.toStdString();
        EXPECT_EQ(view->listDisplay->itemText(0) + u'|' + view->listDisplay->subItem(0, 1), c.firstCells);
        delete view;
    }
}

TEST_F(UserListsTest, NothingToShowIsTold)
{
    expectBox(u"The requested query did not return data"_s, box::InformationIcon);
    modUsers::listUserRooms(nullptr, 2, u"SRV02\\bert"_s);
    EXPECT_TRUE(views().isEmpty());
}

TEST_F(UserListsTest, TheRegisteredFamilyRefreshesAGivenView)
{
    modUsers::registerFamily();
    const DisplayFamily *family = familyOf(u"DisplayUsers");
    ASSERT_TRUE(family && family->listAll);
    modUsers::listUserGlobalGroups(nullptr, 1, u"SRV01\\anna"_s);
    ASSERT_EQ(views().size(), 1);
    family->listAll(views().first());
    ASSERT_EQ(views().size(), 1) << "The view is filled anew, no other is opened.";
    EXPECT_EQ(views().first()->LblInfo->text(), u"All Users"_s);
    EXPECT_EQ(views().first()->listDisplay->rowCount(), 2);
}
