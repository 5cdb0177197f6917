#include "shelltest.h"

#include "queries/frmCustomQuery.h"
#include "queries/frmQueryBuilder.h"
#include "queries/modCustomQuery.h"
#include "views/listpane.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString question =
    u"Warning: By Executing a Query you can Change and/or Delete Data.\r\nAre you sure to continue?"_s;
constexpr int questionFlags = box::YesNo | box::WarningIcon;

class QueriesTest : public ShellTest
{
protected:
    void answerYes() { expectBox(question, questionFlags, box::ResultYes); }
};

} // namespace

TEST(StatementTest, TheTableBehindFromTellsTheMode)
{
    const struct
    {
        QString statement;
        Mode mode;
    } cases[] = {
        {u"select * from tbl_users where [LastName] like 'A%'"_s, Mode::Users},
        {u"SELECT * FROM [Tbl_HW]"_s, Mode::HW},
        {u"SELECT * FROM (Tbl_Rooms INNER JOIN Tbl_HW ON 1=1)"_s, Mode::Rooms},
        {u"SELECT 1 FROM Tbl_HWType, Tbl_HW"_s, Mode::Unknown}, // the comma belongs to the word
        {u"SELECT 1 FROM Tbl_RoomHW"_s, Mode::Unknown},
        {u"UPDATE Tbl_Users SET LastName = 'x'"_s, Mode::Unknown},
    };
    for (const auto &c : cases)
        EXPECT_EQ(modCustomQuery::modeOfStatement(c.statement), c.mode) << qPrintable(c.statement);
    EXPECT_EQ(modCustomQuery::normalized(u"  SELECT   *    FROM  x "_s), u"SELECT * FROM x"_s);
}

TEST_F(QueriesTest, AreSavedShownInTheMenuAndRun)
{
    frmMain &window = start();
    EXPECT_FALSE(find<QAction>(u"mnuQueries"_s)->isEnabled()) << "Empty.";
    whenShown<frmCustomQuery>([this](frmCustomQuery &dialog) {
        dialog.txtName->setText(u"Lost"_s);
        dialog.txtDescription->setText(u"Users by name"_s);
        dialog.txtQRY->setPlainText(
            u"\n SELECT UserID, LastName\nFORM Tbl_Users WHERE LastName = 'Keller'"_s);
        answerYes();
        expectBox(
            u"-2147217900\r\nSyntax error (missing operator) in query expression 'LastName  FORM'. Near 'FORM' at 26."_s,
            box::StopIcon);
        dialog.cmdExecute->click();
        EXPECT_EQ(dialog.txtQRY->textCursor().selectedText(), u"FORM"_s) << "The mistake is selected.";
        dialog.txtQRY->setPlainText(u"SELECT  UserID, LastName  FROM Tbl_Users\nWHERE LastName = 'Keller'"_s);
        answerYes();
        dialog.cmdExecute->click();
        verify();
        dialog.cmdOK->click();
    });
    trigger(u"mnuAddNewQRY"_s);
    ASSERT_NE(activeView(), nullptr);
    EXPECT_EQ(activeView()->windowTitle(), u"Users by name"_s);
    EXPECT_EQ(activeView()->mode(), Mode::Users);
    EXPECT_GT(activeView()->listDisplay->columnWidth(0), 0) << "The first field of a query is shown.";
    window.mdiArea().closeAllSubWindows();
    settle();

    window.buildQueryMenu();
    answerYes();
    trigger(u"mnuQueries"_s);
    settle();
    ASSERT_NE(activeView(), nullptr);
    EXPECT_EQ(activeView()->listDisplay->subItem(0, 1), u"Keller"_s);
}

TEST_F(QueriesTest, WhatIsNoSelectIsDoneAndSaysThatItShowsNothing)
{
    frmMain &window = start();
    answerYes();
    expectBox(u"The requested query did not return data"_s, box::InformationIcon);
    modCustomQuery::run(&window, u"UPDATE Tbl_Users SET FirstName = 'x' WHERE UserID = 1"_s, {});
    EXPECT_EQ(column(u"SELECT FirstName FROM Tbl_Users WHERE UserID = 1"_s), QStringList{u"x"_s});
    EXPECT_EQ(activeView(), nullptr);
    expectBox(question, questionFlags, box::ResultNo);
    modCustomQuery::run(&window, u"DELETE * FROM Tbl_Users"_s, {});
    EXPECT_EQ(column(u"SELECT UserID FROM Tbl_Users"_s).size(), 2);
}

TEST_F(QueriesTest, TheBuilderPutsAStatementTogetherByEnter)
{
    start();
    frmQueryBuilder builder(&mainForm(), connection());
    builder.show();
    builder.setText(u""_s);
    const auto enter = [](QComboBox &combo, const QString &text) {
        combo.setEditText(text);
        QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    };
    enter(*builder.cboSQLStatements, u"SELECT"_s);
    EXPECT_EQ(builder.focusWidget(), builder.cboTables);
    EXPECT_GE(builder.cboTables->findText(u"Tbl_Rooms"_s), 0);
    enter(*builder.cboSQLStatements, u"*"_s);
    enter(*builder.cboSQLStatements, u"FROM"_s);
    enter(*builder.cboTables, u"Tbl_Rooms"_s);
    EXPECT_EQ(builder.cboFields->itemText(1), u"RoomNumber"_s);
    enter(*builder.cboSQLStatements, u"WHERE"_s);
    EXPECT_EQ(builder.focusWidget(), builder.cboFields);
    enter(*builder.cboFields, u"RoomNumber"_s);
    EXPECT_EQ(builder.text(), u" SELECT  *  FROM  [Tbl_Rooms]  WHERE  [Tbl_Rooms].[RoomNumber] "_s);
    QTest::keyClick(builder.txtQRY, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(builder.txtQRY, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(builder.text(), u" SELECT  *  FROM  [Tbl_Rooms]  WHERE "_s) << "One level of undo.";
    builder.cmdReset->click();
    EXPECT_TRUE(builder.text().isEmpty());
}
