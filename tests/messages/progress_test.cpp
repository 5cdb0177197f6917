#include "base/steps.h"
#include "messages/frmProgress.h"
#include "messages/frmResult.h"
#include "messages/progresssteps.h"
#include "messages/reportbatch.h"
#include "support/windowtest.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class ProgressTest : public WindowTest
{
protected:
    static frmProgress *window() { return find<frmProgress>(u"frmProgress"_s); }
};

constexpr auto successText = "The Operation was completed successfully"_L1;

} // namespace

TEST_F(ProgressTest, TheWindowShowsPhasesAndItemsAndGoesWithTheWork)
{
    QWidget owner;
    {
        ProgressSteps steps(&owner);
        EXPECT_FALSE(window()->isVisible()) << "There is nothing to show yet.";
        steps.phase(u"Deleting Users"_s, 12);
        frmProgress *shown = window();
        EXPECT_TRUE(shown->isVisible());
        EXPECT_EQ(shown->parentWidget(), &owner);
        EXPECT_EQ(shown->LblInfo->text(), u"Deleting Users"_s);
        EXPECT_EQ(shown->frameStatus->title(), u"Status"_s);

        EXPECT_TRUE(steps.step(u"first"_s));
        EXPECT_TRUE(steps.step(u"CENTRAL\\<b>keller"_s));
        EXPECT_EQ(shown->windowTitle(), u"[2 of 12]"_s);
        EXPECT_EQ(shown->lblObject->text(), u"CENTRAL\\<b>keller"_s);
        EXPECT_EQ(shown->lblObject->textFormat(), Qt::PlainText);
        EXPECT_EQ(shown->ProgressBar->value(), 2);
        EXPECT_EQ(shown->ProgressBar->maximum(), 12);

        const int height = shown->height();
        EXPECT_TRUE(steps.step(QString(1'000'000, u'x')));
        EXPECT_LT(shown->lblObject->text().size(), 1000);
        EXPECT_LT(shown->height(), 2 * height) << "The window grows with its item.";

        steps.phase(u"Exporting User Settings"_s, 0);
        EXPECT_EQ(window(), shown);
        EXPECT_EQ(shown->LblInfo->text(), u"Exporting User Settings"_s);
        EXPECT_EQ(shown->lblObject->text(), QString());
    }
    settle();
    EXPECT_TRUE(findAll<frmProgress>(u"frmProgress"_s).isEmpty());
}

TEST_F(ProgressTest, AStrideShowsEachSoManyTheFirstAndTheLast)
{
    ProgressSteps steps(nullptr);
    steps.phase(u"Reading"_s, 25, 10);
    QStringList shown;
    for (int item = 1; item <= 25; ++item) {
        ASSERT_TRUE(steps.step(QString::number(item)));
        if (shown.isEmpty() || shown.last() != window()->lblObject->text())
            shown.append(window()->lblObject->text());
    }
    EXPECT_EQ(shown, (QStringList{u"1"_s, u"10"_s, u"20"_s, u"25"_s}));
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
            settle();
            ProgressSteps steps(nullptr, !allowed, allowed);
            steps.phase(u"Deleting Users"_s, 3);
            auto *shown = window();
            EXPECT_EQ(shown->ProgressBar->isVisible(), !allowed);
            EXPECT_TRUE(steps.step(u"first"_s));
            QTimer::singleShot(0, shown, [&] { row.cancel(*shown); });
            EXPECT_EQ(steps.step(u"second"_s), !allowed);
            EXPECT_TRUE(shown->isVisible()) << "The window belongs to the work.";
        }
    }
}

TEST_F(ProgressTest, AWaitShowsItsReasonAndCanBeCancelled)
{
    ProgressSteps steps(nullptr);
    steps.phase(u"Writing"_s, 3);
    EXPECT_TRUE(steps.wait(u"locked by 'x'"_s));
    EXPECT_EQ(window()->lblObject->text(), u"locked by 'x'"_s);
    QTimer::singleShot(0, window()->cmdCancel, &QPushButton::click);
    EXPECT_FALSE(steps.wait(u"locked by 'x'"_s));
}

TEST_F(ProgressTest, OnlyCancelTakesInput)
{
    QLineEdit other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    {
        ProgressSteps steps(&other);
        steps.phase(u"Deleting Users"_s, 2);
        QTest::mouseClick(other.windowHandle(), Qt::RightButton, {}, QPoint(3, 3));
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "A command could start inside the work.";
        EXPECT_TRUE(steps.step(u"first"_s));
    }
    settle();
    EXPECT_EQ(QApplication::activeWindow(), &other);
}

TEST_F(ProgressTest, ThreeEndsOfABatch)
{
    const QString heading = u"The following Users could not be deleted:"_s;
    QWidget owner;
    for (const Report::End end : {Report::End::Finished, Report::End::Cancelled}) {
        expectBox(successText, box::InformationIcon);
        reportBatch(&owner, {.done = 1, .failed = 0, .end = end, .text = {}}, heading);
        EXPECT_EQ(lastBoxOwner(), &owner);
    }
    const auto shown = [&](const Report &report) {
        reportBatch(&owner, report, heading);
        const auto *result = find<frmResult>(u"frmResult"_s);
        EXPECT_EQ(result->LblInfo->text(), u"Import/Export Result"_s);
        EXPECT_EQ(result->parentWidget(), &owner);
        return result->txtResult->toPlainText();
    };
    EXPECT_EQ(shown({.done = 1, .failed = 1, .end = Report::End::Finished, .text = u"CENTRAL\\anna\r\n"_s}),
              heading + u"\n\nCENTRAL\\anna\n"_s);
    EXPECT_EQ(shown({.done = 1, .failed = 0, .end = Report::End::Lost, .text = u"No space."_s}),
              u"The Operation was broken off because the Database can no longer be written.\n\n"_s + heading +
                  u"\n\nNo space."_s);
}
