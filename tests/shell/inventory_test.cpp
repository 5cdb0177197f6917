#include "shelltest.h"

#include "assets/frmHW.h"
#include "assets/frmSWHWType.h"
#include "folders/frmFolderDefaultPermissions.h"
#include "sync/frmUser.h"
#include "toolkit/banner.h"
#include "views/families.h"
#include "views/frmNewEdit.h"
#include "views/frmProperties.h"
#include "views/frmSelectServer.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto deleteQuestion = "Warning! The selected Root Object(s) and all its Relationships will be "
                                "deleted. This operation cannot be "
                                "undone\r\nAre you sure to delete the selected Root Object(s)?"_L1;
constexpr auto incomplete =
    "The input is incomplete. Please provide the requested Data. Only Description Fields "
    "are not mandatory"_L1;

/// A session on a store in which everything belongs to everything.
class InventoryTest : public ShellTest
{
protected:
    void SetUp() override
    {
        ShellTest::SetUp();
        for (const char *sql :
             {"INSERT INTO Tbl_GlobalGroups (Name,Server,Description) VALUES ('Staff','DC','All')",
              "INSERT INTO Tbl_LocalGroups (Name,Server,Description) VALUES ('Printers','SRV','All')",
              "INSERT INTO Tbl_Folders (FolderName,Description) VALUES ('D:\\Data\\','Data')",
              "INSERT INTO Tbl_FolderDefaultPermissions (Account,Permission) VALUES "
              "('BUILTIN\\Administrators','R')",
              "INSERT INTO Tbl_HWType (Type,Manufacturer,Model,TypeNumber,Description) VALUES "
              "('PC','M','X','1','d')",
              "INSERT INTO Tbl_HW (HWTypeID,SerialNumber,Supplier,PurchaseDate,Status) VALUES "
              "(1,'S1','Shop',#3/4/2005#,'new')",
              "INSERT INTO Tbl_SW (Type,Manufacturer,Name,Version,Description) VALUES "
              "('Office','M','Writer','2','d')",
              "INSERT INTO Tbl_Rooms (RoomNumber,Description) VALUES ('101','Front')",
              "INSERT INTO Tbl_CustomQuery (Name,Description,SQLString) VALUES ('q','d','SELECT 1')",
              "INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID,UserID) VALUES (1,1)",
              "INSERT INTO Tbl_LocalGroupsUsers (LocalGroupID,UserID) VALUES (1,1)",
              "INSERT INTO Tbl_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES (1,1)",
              "INSERT INTO Tbl_UserFolderPermission (UserID,FolderID,Permission) VALUES (1,1,'R')",
              "INSERT INTO Tbl_LocalGroupFolderPermission (LocalGroupID,FolderID,Permission) VALUES "
              "(1,1,'CH')",
              "INSERT INTO Tbl_GlobalGroupFolderPermission (GlobalGroupID,FolderID,Permission) VALUES "
              "(1,1,'CH')",
              "INSERT INTO Tbl_UserHW (UserID,HWID) VALUES (1,1)",
              "INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (1,1)",
              "INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,1)",
              "INSERT INTO Tbl_SWHW (SWID,HWID) VALUES (1,1)"})
            execute(QString::fromLatin1(sql));
        start();
    }

    /// The view of all objects of a mode with its first row chosen.
    frmDisplay *openAll(Mode mode)
    {
        runWithoutList(&mainForm(), mode, Op::ListAll);
        settle();
        frmDisplay *view = activeView();
        if (view && view->listDisplay->rowCount() > 0)
            view->listDisplay->chooseRow(0);
        return view;
    }

    /// The texts of the row of a list.
    static QString row(const frmDisplay &view, int row)
    {
        QStringList cells;
        for (int column = 0; column < view.listDisplay->columnCount(); ++column)
            cells += view.listDisplay->text(row, column);
        return cells.join(u'|');
    }
    static QString lastRow(const frmDisplay &view) { return row(view, view.listDisplay->rowCount() - 1); }
};

constexpr Mode databaseModes[] = {
    Mode::GlobalGroups, Mode::LocalGroups, Mode::Users, Mode::Folders, Mode::FolderDefaultPermissions,
    Mode::HWType,       Mode::HW,          Mode::Rooms, Mode::SW,      Mode::QRY};

} // namespace

// Every cell of the matrix that belongs to the store: what the menus offer runs, and what runs is offered.
TEST_F(InventoryTest, EveryCellOfTheMatrixWorksForEveryMode)
{
    const auto isOfTheStore = [](Op op) {
        return op == Op::AddNew || op == Op::Edit || op == Op::Delete || op == Op::Properties ||
               (op >= Op::ViewGlobalGroups && op <= Op::ViewSW);
    };
    QHash<int, ModeSet> offered;
    for (const ViewMenuEntry &entry : viewMenuEntries())
        if (isOfTheStore(entry.op))
            offered[int(entry.op)] |= entry.modes;
    for (const ViewToolbarButton &button : viewToolbarButtons())
        if (isOfTheStore(button.op))
            offered[int(button.op)] |= button.modes;
    for (const Mode mode : databaseModes) {
        EXPECT_TRUE(handlerOf(mode, Op::ListAll)) << int(mode);
        for (auto cell = offered.cbegin(); cell != offered.cend(); ++cell) {
            EXPECT_EQ(bool(handlerOf(mode, Op(cell.key()))), contains(cell.value(), mode))
                << "mode " << int(mode) << ", operation " << cell.key();
        }
    }
}

TEST_F(InventoryTest, EveryDrillDownLeadsToWhatBelongsToTheObject)
{
    for (const Mode mode : databaseModes) {
        frmDisplay *source = openAll(mode);
        ASSERT_NE(source, nullptr) << int(mode);
        for (int op = int(Op::ViewGlobalGroups); op <= int(Op::ViewSW); ++op) {
            if (!handlerOf(mode, Op(op)))
                continue;
            source->listDisplay->chooseRow(0);
            source->run(Op(op));
            settle();
            frmDisplay *target = activeView();
            ASSERT_NE(target, source) << "mode " << int(mode) << ", operation " << op;
            EXPECT_GE(target->listDisplay->rowCount(), 1) << qPrintable(target->windowTitle());
            EXPECT_TRUE(
                target->LblInfo->text().endsWith(modRender::objectName(mode, *source->listDisplay, 0)))
                << qPrintable(target->LblInfo->text());
            delete target;
        }
        if (handlerOf(mode, Op::Properties)) {
            source->run(Op::Properties);
            settle();
            auto *properties = dynamic_cast<frmProperties *>(find<QWidget>(u"frmProperties"_s));
            ASSERT_NE(properties, nullptr);
            for (const PropertyTab tab : properties->tabs())
                EXPECT_GE(properties->list(tab)->rowCount(), 1)
                    << "mode " << int(mode) << ", tab " << int(tab);
            delete properties;
        }
        delete source;
    }
}

TEST_F(InventoryTest, EveryKindIsDeletedWithItsQuestion)
{
    // Without its type an item is not listed.
    std::vector<Mode> modes(std::begin(databaseModes), std::end(databaseModes));
    std::ranges::reverse(modes);
    for (const Mode mode : modes) {
        frmDisplay *view = openAll(mode);
        const int before = view->listDisplay->rowCount();
        expectBox(deleteQuestion, box::YesNo | box::WarningIcon, box::ResultYes);
        if (before == 1)
            expectBox(u"The requested query did not return data"_s, box::InformationIcon);
        view->run(Op::Delete);
        verify();
        EXPECT_EQ(view->listDisplay->rowCount(), before - 1) << int(mode);
        delete view;
    }
}

TEST_F(InventoryTest, GroupsAndFoldersAreAddedAndEdited)
{
    const struct
    {
        Mode mode;
        QString caption;
        QString added;
        QString edited;
    } cases[] = {
        {Mode::GlobalGroups, u"Add New Global Group"_s, u"0|Name|SRV|Text"_s, u"1|Other|DC|All"_s},
        {Mode::LocalGroups, u"Add New Local Group"_s, u"0|Name|SRV|Text"_s, u"1|Other|SRV|All"_s},
        {Mode::Folders, u"Add New Folder"_s, u"0|Name\\|Text"_s, u"1|Other\\|Data"_s},
    };
    for (const auto &c : cases) {
        frmDisplay *view = openAll(c.mode);
        whenShown<frmNewEdit>([&](frmNewEdit &dialog) {
            EXPECT_EQ(dialog.windowTitle(), c.caption);
            dialog.txtName->setText(u"Name"_s);
            dialog.txtServer->setText(u"SRV"_s);
            dialog.txtDescription->setText(u"Text"_s);
            dialog.cmdOK->click();
        });
        view->run(Op::AddNew);
        EXPECT_EQ(lastRow(*view), c.added);
        view->listDisplay->chooseRow(0);
        whenShown<frmNewEdit>([](frmNewEdit &dialog) {
            dialog.txtName->setText(u"Other"_s);
            dialog.cmdOK->click();
        });
        view->run(Op::Edit);
        EXPECT_EQ(row(*view, 0), c.edited);
        view->run(Op::ViewRefresh);
        EXPECT_EQ(view->listDisplay->rowCount(), 2) << "Both are in the store.";
        delete view;
    }
}

TEST_F(InventoryTest, CataloguesAreAddedAndEdited)
{
    for (const auto &[mode, caption, first] : {std::tuple{Mode::HWType, u"Add New Hardware Type"_s, u"PC"_s},
                                               std::tuple{Mode::SW, u"Add New Software"_s, u"Office"_s}}) {
        frmDisplay *view = openAll(mode);
        whenShown<frmSWHWType>([&](frmSWHWType &dialog) {
            EXPECT_EQ(dialog.windowTitle(), caption);
            EXPECT_EQ(dialog.cboType->itemText(0), first) << "What the store has can be chosen.";
            EXPECT_EQ(dialog.cboManufacturer->count(), 1);
            dialog.cboType->setEditText(u"Kind"_s);
            dialog.txtModelName->setText(u"Model"_s);
            dialog.cmdOK->click();
        });
        view->run(Op::AddNew);
        EXPECT_EQ(lastRow(*view), u"0|Kind||Model||"_s);
        view->listDisplay->chooseRow(0);
        whenShown<frmSWHWType>([&](frmSWHWType &dialog) {
            EXPECT_EQ(dialog.cboType->currentText(), first);
            dialog.txtDescription->setText(u"changed"_s);
            dialog.cmdOK->click();
        });
        view->run(Op::Edit);
        EXPECT_EQ(view->listDisplay->subItem(0, 5), u"changed"_s);
        delete view;
    }
}

TEST_F(InventoryTest, UsersOfOneIdAreNotEdited)
{
    execute(u"INSERT INTO Tbl_Users (UserID,LastName,UserName,ServerName) VALUES (1,'Aal','aal','SRV')"_s);
    frmDisplay *view = openAll(Mode::Users);
    expectBox(
        u"1973\r\n2 users have the UserID 1, so none of them can be edited. Import one of them with another "
        "UserID first."_s,
        box::StopIcon);
    view->run(Op::Edit);
}

TEST_F(InventoryTest, AnItemKeepsItsTypeWhereTwoReadTheSameAndNeedsOneWhereItIsGone)
{
    execute(u"INSERT INTO Tbl_HWType (Type,Manufacturer,Model,TypeNumber) VALUES ('PC M','X','1','')"_s);
    execute(u"UPDATE Tbl_HWType SET Type='PC', Manufacturer='M X', Model='1', TypeNumber='' WHERE ID=1"_s);
    execute(u"UPDATE Tbl_HW SET HWTypeID = 2"_s);
    frmDisplay *view = openAll(Mode::HW);
    whenShown<frmHW>([](frmHW &dialog) { dialog.cmdOK->click(); });
    view->run(Op::Edit);
    EXPECT_EQ(column(u"SELECT HWTypeID FROM Tbl_HW"_s), QStringList{u"2"_s});
    execute(u"UPDATE Tbl_HW SET HWTypeID = 99"_s);
    whenShown<frmHW>([this](frmHW &dialog) {
        expectBox(u"Please select a Hardware Type from the List"_s, box::WarningIcon);
        dialog.cmdOK->click();
        verify();
        dialog.reject();
    });
    view->run(Op::Edit);
}

TEST_F(InventoryTest, AMemoThatNobodyChangedIsSavedAsItWas)
{
    const QString comment = u"first\r\nsecond\u00a0line"_s;
    execute("UPDATE Tbl_HW SET Comments = '"_L1 + comment + u'\'');
    frmDisplay *view = openAll(Mode::HW);
    whenShown<frmHW>([](frmHW &dialog) { dialog.cmdOK->click(); });
    view->run(Op::Edit);
    EXPECT_EQ(column(u"SELECT Comments FROM Tbl_HW"_s), QStringList{comment});
}

TEST_F(InventoryTest, AnApostropheThatIsNotEscapedFailsAndLosesNothing)
{
    frmDisplay *view = openAll(Mode::Rooms);
    whenShown<frmNewEdit>([this](frmNewEdit &dialog) {
        dialog.txtName->setText(u"O'Neill"_s);
        dialog.txtDescription->setText(u"Corner"_s);
        expectBox(
            u"Syntax error (missing operator) in query expression '[RoomNumber] ='O'Neill''. Near 'Neill' "
            "at 48."_s,
            box::StopIcon);
        dialog.cmdOK->click();
        verify();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.txtDescription->text(), u"Corner"_s);
        dialog.cmdCancel->click();
    });
    view->run(Op::AddNew);
    EXPECT_EQ(view->listDisplay->rowCount(), 1);
}

TEST_F(InventoryTest, DefaultPermissionsRefuseWhatIsIncomplete)
{
    frmDisplay *view = openAll(Mode::FolderDefaultPermissions);
    whenShown<frmFolderDefaultPermissions>([this](frmFolderDefaultPermissions &dialog) {
        EXPECT_EQ(dialog.cboUserName->currentText(), u"BUILTIN\\Administrators"_s);
        EXPECT_EQ(dialog.cboPermission->currentText(), u"R"_s);
        dialog.cboPermission->setEditText(u"L"_s);
        expectBox(incomplete, box::WarningIcon);
        dialog.cmdSave->click();
        verify();
        EXPECT_EQ(dialog.focusWidget(), dialog.cboPermission);
        dialog.cboPermission->setEditText(u"Full Control"_s);
        dialog.cmdSave->click();
    });
    view->run(Op::Edit);
    EXPECT_EQ(row(*view, 0), u"1|BUILTIN\\Administrators|Full Control"_s);
}

TEST_F(InventoryTest, HardwareChecksItsInputAtTheField)
{
    frmDisplay *view = openAll(Mode::HW);
    whenShown<frmHW>([this](frmHW &dialog) {
        EXPECT_EQ(dialog.LblInfo->text(), u"Add New Hardware"_s);
        const auto refused = [&](const QString &text, QStringView column) {
            expectBox(text, box::WarningIcon);
            dialog.cmdOK->click();
            verify();
            EXPECT_EQ(dialog.focusWidget(), dialog.form().field(column)) << qPrintable(text);
        };
        refused(u"Please select a Hardware Type from the List"_s, u"HWType");
        dialog.form().setText(u"HWType", u"PC M X 1"_s);
        refused(u"Please insert the Purchase Date"_s, u"PurchaseDate");
        dialog.form().button("cmdToday"_L1)->click();
        EXPECT_FALSE(dialog.form().text(u"PurchaseDate").isEmpty());
        refused(u"Please insert the Serial Number"_s, u"SerialNumber");
        dialog.form().setText(u"SerialNumber", u"S1"_s);
        expectBox(u"A Hardware of the same Type with this Serial Number already exists in the Database."_s,
                  box::StopIcon);
        dialog.cmdOK->click();
        verify();
        dialog.form().setText(u"SerialNumber", u"S2"_s);
        dialog.form().setText(u"EUCD", u"1"_s);
        dialog.cmdOK->click();
    });
    view->run(Op::AddNew);
    EXPECT_EQ(lastRow(*view), u"0|PC M X 1|S2|||"_s);
    EXPECT_EQ(column(u"SELECT EUCD FROM Tbl_HW WHERE SerialNumber='S2'"_s), QStringList{u"True"_s});

    view->listDisplay->chooseRow(0);
    whenShown<frmHW>([](frmHW &dialog) {
        EXPECT_EQ(dialog.form().text(u"HWType"), u"PC M X 1"_s);
        EXPECT_EQ(dialog.form().text(u"PurchaseDate"), u"3/4/2005"_s);
        EXPECT_EQ(dialog.form().text(u"SelectedSupplier"), u"Shop"_s);
        dialog.form().setText(u"HWType", u"no such type"_s);
        dialog.form().setText(u"Usage", u"Lab"_s);
        dialog.cmdOK->click();
    });
    view->run(Op::Edit);
    EXPECT_EQ(column(u"SELECT HWTypeID & Usage FROM Tbl_HW WHERE SerialNumber='S1'"_s),
              QStringList{u"1Lab"_s})
        << "The type of the item stays where the text is not in the list.";
    EXPECT_EQ(view->listDisplay->subItem(view->listDisplay->currentRow(), 1), u"PC M X 1"_s);
}

TEST_F(InventoryTest, AUserIsAddedAndEditedWithEveryColumn)
{
    const QString question = u"Would you like to export the User Settings to your Live System?"_s;
    frmDisplay *view = openAll(Mode::Users);
    whenShown<frmUser>([&](frmUser &dialog) {
        EXPECT_EQ(dialog.LblInfo->text(), u"Add New User"_s);
        EXPECT_EQ(dialog.TabStrip->count(), 4);
        expectBox(u"You must specify at least Username and Server"_s, box::WarningIcon);
        dialog.cmdSave->click();
        verify();
        EXPECT_EQ(dialog.focusWidget(), dialog.form().field(u"UserName"));
        dialog.form().setText(u"UserName", u"new"_s);
        dialog.form().setText(u"ServerName", u"SRV"_s);
        dialog.form().setText(u"FLAGS", u""_s);
        expectBox(u"Flags: '' is not a whole number."_s, box::StopIcon);
        dialog.cmdSave->click();
        verify();
        EXPECT_EQ(dialog.focusWidget(), dialog.form().field(u"FLAGS"));
        dialog.form().setText(u"FLAGS", u"513"_s);
        dialog.form().setText(u"LastName", u"New"_s);
        dialog.form().setText(u"AccLocked", u"1"_s);
        expectBox(question, box::YesNo | box::WarningIcon, box::ResultNo);
        dialog.cmdSave->click();
    });
    view->run(Op::AddNew);
    EXPECT_EQ(lastRow(*view), u"0|New||new|SRV"_s);
    EXPECT_EQ(column(u"SELECT FLAGS & AccLocked & UserID FROM Tbl_Users WHERE UserName='new'"_s),
              QStringList{u"513True3"_s});

    whenShown<frmUser>([&](frmUser &dialog) {
        dialog.form().setText(u"UserName", u"other"_s);
        dialog.form().setText(u"ServerName", u"SRV"_s);
        dialog.form().setText(u"UserID", u"1"_s);
        expectBox(u"The UserID 1 belongs to another user already. 0 asks for the next free one."_s,
                  box::StopIcon);
        dialog.cmdSave->click();
        verify();
        dialog.cmdClose->click();
    });
    view->run(Op::AddNew);
    EXPECT_EQ(view->listDisplay->rowCount(), 3) << "Two users of one id would be edited as one.";

    view->run(Op::ViewRefresh);
    QTest::keyClicks(view->listDisplay, u"k"_s);
    whenShown<frmUser>([&](frmUser &dialog) {
        dialog.form().setText(u"FirstName", u"Ute"_s);
        dialog.form().setText(u"ServerName", u"SRV"_s);
        expectBox(question, box::YesNo | box::WarningIcon, box::ResultNo);
        dialog.cmdSave->click();
    });
    view->run(Op::Edit);
    EXPECT_EQ(column(u"SELECT FirstName FROM Tbl_Users WHERE UserName='keller' AND FLAGS = 0"_s),
              QStringList{u"Ute"_s})
        << "A row that came without numbers can be saved.";
    // Every field gets a text of its own; saving and loading again must give each back.
    QHash<QString, QString> typed;
    whenShown<frmUser>([&](frmUser &dialog) {
        EXPECT_EQ(dialog.LblInfo->text(), u"SRV\\keller Edit User"_s);
        int i = 0;
        for (QLineEdit *line : dialog.TabStrip->findChildren<QLineEdit *>()) {
            if (line->objectName().startsWith("txt"_L1) && (line->text().isEmpty() || line->text() == u"0"))
                line->setText(QString::number(1000 + ++i));
            if (line->objectName().startsWith("txt"_L1))
                typed.insert(line->objectName(), line->text());
        }
        EXPECT_GT(typed.size(), 30);
        expectBox(question, box::YesNo | box::WarningIcon, box::ResultYes);
        whenShown<frmSelectServer>([](frmSelectServer &server) {
            EXPECT_EQ(server.cboServer->count(), 0);
            server.cmdCancel->click();
        });
        dialog.cmdSave->click();
    });
    view->run(Op::Edit);
    settle();
    EXPECT_EQ(view->listDisplay->subItem(view->listDisplay->currentRow(), 2), u"Ute"_s);
    whenShown<frmUser>([&](frmUser &dialog) {
        for (auto field = typed.cbegin(); field != typed.cend(); ++field)
            EXPECT_EQ(dialog.findChild<QLineEdit *>(field.key())->text(), field.value())
                << qPrintable(field.key());
        dialog.cmdClose->click();
    });
    view->run(Op::Edit);
}
