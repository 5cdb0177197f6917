#include "viewtest.h"

#include "base/error.h"
#include "toolkit/banner.h"
#include "views/frmNewEdit.h"
#include "views/frmProperties.h"
#include "views/lists.h"
#include "views/modListSort.h"
#include "views/modRender.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

using DialogsTest = ViewTest;

constexpr frmNewEdit::Action groupAction{
    .caption = "Edit Global Group"_L1, .bannerPicture = 1, .hasServer = true};
constexpr frmNewEdit::Action folderAction{
    .caption = "Add New Folder"_L1, .bannerPicture = 4, .isFolder = true};

} // namespace

TEST_F(DialogsTest, SavingChangesTheRowWhereverItIsNow)
{
    frmDisplay *view =
        open(Mode::GlobalGroups, u"All Global Groups"_s, {u"ID"_s, u"Name"_s, u"Server"_s, u"Description"_s},
             {{Value(1), Value(u"Staff"_s), Value(u"DC"_s), Value(u"all"_s)},
              {Value(2), Value(u"Admins"_s), Value(u"DC"_s)}});
    const RowTarget target(*view->listDisplay, 0);
    frmNewEdit::Texts saved;
    frmNewEdit dialog(window.get(), groupAction, {u"Staff"_s, u"DC"_s, u"all"_s}, target,
                      [&](const QString &store, const frmNewEdit::Texts &texts) {
                          EXPECT_TRUE(store.contains(storePath()));
                          saved = texts;
                      });
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), u"Edit Global Group"_s);
    EXPECT_EQ(dialog.frameContainer->title(), u"Edit Global Group"_s);
    EXPECT_EQ(dialog.LblInfo->text(), u"Edit Global Group Staff"_s);
    EXPECT_EQ(dialog.picLogoContainer->picture(), 1);
    EXPECT_TRUE(dialog.txtServer->isEnabled());
    EXPECT_TRUE(dialog.cmdBrowse->isHidden());
    dialog.txtName->setText(u"Zoo"_s);
    modListSort::sortList(*view->listDisplay, 1); // Admins, Staff
    dialog.cmdOK->click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(saved.name, u"Zoo"_s);
    EXPECT_EQ(view->listDisplay->subItem(1, 1), u"Zoo"_s);
    EXPECT_EQ(view->listDisplay->subItem(0, 1), u"Admins"_s);
    EXPECT_EQ(view->listDisplay->itemText(1), u"1"_s);
}

TEST_F(DialogsTest, ARefusalKeepsTheDialogAndItsTexts)
{
    int tries = 0;
    frmDisplay *view = openUsers();
    frmNewEdit dialog(window.get(), folderAction, {}, RowTarget::appended(*view->listDisplay),
                      [&](const QString &, const frmNewEdit::Texts &texts) {
                          EXPECT_EQ(texts.name, u"C:\\Data\\"_s) << "A folder ends in a backslash.";
                          if (++tries == 1)
                              throwError(RuleViolation, u"It is there already"_s);
                      });
    dialog.show();
    EXPECT_FALSE(dialog.cmdBrowse->isHidden());
    EXPECT_FALSE(dialog.txtServer->isEnabled());
    QTest::keyClicks(dialog.txtName, u"C:\\Data"_s);
    expectBox(u"It is there already"_s, box::StopIcon);
    QTest::keyClick(dialog.txtName, Qt::Key_Return);
    verify();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(view->listDisplay->rowCount(), 2);
    dialog.cmdOK->click();
    EXPECT_FALSE(dialog.isVisible());
    ASSERT_EQ(view->listDisplay->rowCount(), 3);
    EXPECT_EQ(view->listDisplay->itemText(2), u"0"_s);
    EXPECT_EQ(view->listDisplay->subItem(2, 1), u"C:\\Data\\"_s);
}

TEST_F(DialogsTest, AFocusedButtonTakesEnter)
{
    frmNewEdit dialog(window.get(), folderAction, {}, {},
                      [](const QString &, const frmNewEdit::Texts &) { ADD_FAILURE() << "Saved."; });
    dialog.show();
    dialog.cmdCancel->setFocus();
    QTest::keyClick(dialog.cmdCancel, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(DialogsTest, ARowTargetOutlivesItsListAndItsFilling)
{
    frmDisplay *view = openUsers();
    const RowTarget edited(*view->listDisplay, 0);
    const RowTarget added = RowTarget::appended(*view->listDisplay);
    view->listDisplay->replaceRows(ListRows(5));
    edited.put({u"x"_s});
    EXPECT_EQ(view->listDisplay->rowCount(), 0) << "The row it meant is gone.";
    delete view;
    edited.put({u"x"_s});
    added.put({u"x"_s});
}

TEST_F(DialogsTest, ATabShowsTheCountsOfItsList)
{
    constexpr PropertyTab tabs[] = {PropertyTab::Users, PropertyTab::Hardware};
    auto *properties = new frmProperties(window.get(), tabs);
    jet::Recordset rows;
    fill(rows, {u"ID"_s, u"Hardware Type"_s}, {{Value(7), Value(u"PC"_s)}, {Value(8), Value(u"Disk"_s)}});
    modRender::renderList(*properties->list(PropertyTab::Hardware), rows);
    properties->LblInfo->setText(u"101"_s);
    properties->SetAction(Mode::Rooms);
    properties->show();
    EXPECT_EQ(properties->StatusBar->panelText(2), u"0 Record(s)"_s);
    EXPECT_EQ(properties->StatusBar->panelText(1), u"You are Viewing Database Objects"_s);
    properties->TabStrip->setCurrentIndex(1);
    EXPECT_EQ(properties->StatusBar->panelText(2), u"2 Record(s)"_s);
    EXPECT_EQ(properties->currentList()->picture(0, 1), 7);
    properties->currentList()->selectAll();
    EXPECT_EQ(properties->StatusBar->panelText(3), u"2 Object(s) Selected"_s);
    properties->currentList()->setContextColumn(1);
    properties->mnuSort->trigger();
    EXPECT_EQ(properties->currentList()->subItem(0, 1), u"Disk"_s);
    const QPointer<frmProperties> alive(properties);
    QTest::keyClick(properties->currentList(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(alive.isNull());
}
