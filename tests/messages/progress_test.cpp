#include "base/error.h"
#include "messages/batch.h"
#include "messages/frmProgress.h"
#include "messages/frmResult.h"
#include "messages/modProgress.h"
#include "support/windowtest.h"
#include "toolkit/listview.h"

#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

class ProgressTest : public WindowTest
{
protected:
    void TearDown() override
    {
        endProgress();
        WindowTest::TearDown();
    }

    static frmProgress *window() { return find<frmProgress>(u"frmProgress"_s); }
};

constexpr auto successText = "The Operation was completed successfully"_L1;

} // namespace

TEST_F(ProgressTest, WindowShowsTitleItemAndPosition)
{
    startProgress(1, 12, u"Deleting Users"_s, true, true);
    frmProgress *shown = window();
    ASSERT_TRUE(shown);
    EXPECT_TRUE(shown->isVisible());
    EXPECT_FALSE(shown->isModal());
    EXPECT_EQ(shown->windowTitle(), u"Progress"_s);
    EXPECT_EQ(shown->LblInfo->text(), u"Deleting Users"_s);
    EXPECT_EQ(shown->frameStatus->title(), u"Status"_s);
    EXPECT_EQ(shown->ProgressBar->minimum(), 1);
    EXPECT_EQ(shown->ProgressBar->maximum(), 12);

    EXPECT_FALSE(stepProgress(u"CENTRAL\\<b>keller"_s, 5));
    EXPECT_EQ(shown->windowTitle(), u"[5 of 12]"_s);
    EXPECT_EQ(shown->lblObject->text(), u"CENTRAL\\<b>keller"_s);
    EXPECT_EQ(shown->lblObject->textFormat(), Qt::PlainText);
    EXPECT_EQ(shown->ProgressBar->value(), 5);

    endProgress();
    settle();
    EXPECT_TRUE(findAll<frmProgress>(u"frmProgress"_s).isEmpty());
}

TEST_F(ProgressTest, AnEndlessItemIsCut)
{
    startProgress(1, 2, u"Reading"_s, true, true);
    const int height = window()->height();
    EXPECT_FALSE(stepProgress(QString(1'000'000, u'x'), 1));
    EXPECT_TRUE(window()->lblObject->text().startsWith(u"xxxxxxxx"_s));
    EXPECT_TRUE(window()->lblObject->text().endsWith(u"x\u2026"_s));
    EXPECT_LT(window()->lblObject->text().size(), 1000);
    EXPECT_LT(window()->height(), 2 * height) << "The window grows with its item.";
    EXPECT_FALSE(stepProgress(u"short"_s, 2));
    EXPECT_EQ(window()->lblObject->text(), u"short"_s);
}

TEST_F(ProgressTest, ASecondStartTakesOverTheWindow)
{
    startProgress(1, 12, u"Deleting Users"_s, true, false);
    EXPECT_FALSE(stepProgress(u"first"_s, 12));
    startProgress(1, 3, u"Exporting User Settings"_s, false, true);
    ASSERT_EQ(findAll<frmProgress>(u"frmProgress"_s).size(), 1);
    EXPECT_EQ(window()->LblInfo->text(), u"Exporting User Settings"_s);
    EXPECT_EQ(window()->lblObject->text(), QString());
    EXPECT_EQ(window()->ProgressBar->value(), 1);
    EXPECT_FALSE(window()->ProgressBar->isVisible());
    EXPECT_TRUE(window()->cmdCancel->isEnabled());
}

TEST_F(ProgressTest, EveryWayToCancelIsTheButton)
{
    struct Case
    {
        const char *name;
        void (*cancel)(frmProgress &);
    };
    constexpr Case cases[] = {
        {"button", [](frmProgress &shown) { QTest::mouseClick(shown.cmdCancel, Qt::LeftButton); }},
        {"Esc", [](frmProgress &shown) { QTest::keyClick(&shown, Qt::Key_Escape); }},
        {"close box", [](frmProgress &shown) { shown.close(); }},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        for (const bool allowed : {false, true}) {
            startProgress(1, 3, u"Deleting Users"_s, true, allowed);
            row.cancel(*window());
            EXPECT_EQ(isProgressCancelled(), allowed);
            EXPECT_EQ(stepProgress(u"next"_s, 2), allowed);
            EXPECT_TRUE(window()->isVisible()) << "the window belongs to the batch";
            endProgress();
            settle();
            EXPECT_FALSE(isProgressCancelled());
        }
    }
}

TEST_F(ProgressTest, CountsSelectedRows)
{
    ListView list;
    list.setColumns({u"ID"_s, u"Name"_s});
    for (int row = 0; row < 5; ++row)
        list.addRow(QString::number(row), {u"name"_s});
    EXPECT_EQ(countSelected(list), 0);
    list.setRowSelected(1);
    list.setRowSelected(4);
    EXPECT_EQ(countSelected(list), 2);
}

TEST_F(ProgressTest, CancelAfterTheFirstOfThreeLeavesTheFirstDone)
{
    QStringList done;
    expectBox(successText, box::InformationIcon);

    Batch batch(3, u"Deleting Users"_s);
    for (const QString &name : {u"first"_s, u"second"_s, u"third"_s}) {
        const bool goOn = batch.item(name, [&] {
            done.append(name);
            window()->cmdCancel->click();
        });
        if (!goOn)
            break;
    }
    EXPECT_TRUE(batch.isCancelled());
    batch.report(u"The following Users could not be deleted:"_s);

    EXPECT_EQ(done, QStringList{u"first"_s});
    EXPECT_EQ(batch.done(), 1);
    EXPECT_EQ(batch.failed(), 0);
    EXPECT_FALSE(isProgressCancelled());
}

TEST_F(ProgressTest, FailuresAreCollectedInOneResult)
{
    Batch batch(4, u"Deleting Users"_s);
    EXPECT_TRUE(batch.item(u"good"_s, [] {}));
    EXPECT_TRUE(batch.item(u"raises"_s, [] { throwError(RuleViolation, u"no"_s); }));
    EXPECT_TRUE(batch.item(
        u"sets"_s, [] { currentError().set(Error(9010, u"no access"_s)); }, u"CENTRAL\\sets"_s));
    EXPECT_TRUE(batch.item(u"good again"_s, [] {}));
    EXPECT_EQ(batch.done(), 2);
    EXPECT_EQ(batch.failed(), 2);
    batch.report(u"The following Users could not be deleted:"_s);
    settle();

    EXPECT_TRUE(findAll<frmProgress>(u"frmProgress"_s).isEmpty());
    auto *result = find<frmResult>(u"frmResult"_s);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->LblInfo->text(), u"Import/Export Result"_s);
    EXPECT_EQ(result->txtResult->toPlainText(),
              u"The following Users could not be deleted:\n\nraises\nCENTRAL\\sets\n"_s);
    result->close();
}

TEST_F(ProgressTest, ABatchThatBreaksOffClosesItsWindow)
{
    try {
        const Batch batch(2, u"Deleting Users"_s);
        throw Error(7, u"out"_s);
    } catch (const Error &) {
    }
    settle();
    EXPECT_TRUE(findAll<frmProgress>(u"frmProgress"_s).isEmpty());
}
