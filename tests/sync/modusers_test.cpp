#include "support/windowtest.h"
#include "sync/modUsers.h"
#include "toolkit/listview.h"
#include "views/families.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"

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

TEST_F(UserListsTest, EachDrillDownOpensItsView)
{
    registerHandlers(modUsers::handlers());
    runWithoutList(nullptr, Mode::Users, Op::ListAll);
    ASSERT_EQ(views().size(), 1);
    frmDisplay *users = views().first();
    ASSERT_EQ(users->listDisplay->rowCount(), 2);
    EXPECT_EQ(users->LblInfo->text(), u"All Users"_s);
    const int anna = users->listDisplay->itemText(0) == u"1"_s ? 0 : 1;
    const struct
    {
        Op op;
        QString title;
        Mode mode;
        QString firstCells; ///< of the one row
    } cases[] = {
        {Op::ViewFolders, u"Permission(s) for User SRV01\\anna"_s, Mode::Folders, u"1|D:\\Data\\"_s},
        {Op::ViewSW, u"Software for User SRV01\\anna"_s, Mode::SW, u"1|Office"_s},
        {Op::ViewRooms, u"Room(s) for User SRV01\\anna"_s, Mode::Rooms, u"1|101"_s},
        {Op::ViewGlobalGroups, u"Global Group(s) for User SRV01\\anna"_s, Mode::GlobalGroups, u"1|Staff"_s},
        {Op::ViewLocalGroups, u"Local Group(s) for User SRV01\\anna"_s, Mode::LocalGroups,
         u"1|SRV01\\Printers"_s},
        {Op::ViewHardware, u"Hardware for User SRV01\\anna"_s, Mode::HW, u"1|PC Maker M 7"_s},
    };
    for (const auto &c : cases) {
        users->listDisplay->chooseRow(anna);
        users->run(c.op);
        ASSERT_EQ(views().size(), 2) << c.title.toStdString();
        frmDisplay *view = views().first() == users ? views().last() : views().first();
        EXPECT_TRUE(view->isVisible());
        EXPECT_EQ(view->LblInfo->text(), c.title);
        EXPECT_EQ(view->mode(), c.mode) << c.title.toStdString();
        ASSERT_EQ(view->listDisplay->rowCount(), 1) << c.title.toStdString();
        EXPECT_EQ(view->listDisplay->itemText(0) + u'|' + view->listDisplay->subItem(0, 1), c.firstCells);
        delete view;
    }
    expectBox(u"The requested query did not return data"_s, box::InformationIcon);
    users->listDisplay->chooseRow(1 - anna);
    users->run(Op::ViewRooms);
    EXPECT_EQ(views().size(), 1) << "Nothing to show is no view.";
}
