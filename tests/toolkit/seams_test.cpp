#include "base/error.h"
#include "support/windowtest.h"
#include "toolkit/clipboard.h"
#include "toolkit/pointer.h"
#include "toolkit/yield.h"

#include <QClipboard>
#include <QDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest-spi.h>

using namespace Qt::StringLiterals;

namespace {

struct BoxCase
{
    const char *name;
    int flags;
    QStringList buttons; // in the order of the box
    std::vector<int> results;
    int closed;
};

class MessageBoxTest : public WindowTest, public testing::WithParamInterface<BoxCase>
{
};

const BoxCase boxCases[] = {
    {"Stop", box::StopIcon, {u"OK"_s}, {1}, 1},
    {"OkCancel", box::OkCancel + box::WarningIcon, {u"OK"_s, u"Cancel"_s}, {1, 2}, 2},
    {"YesNo", box::YesNo + box::QuestionIcon, {u"Yes"_s, u"No"_s}, {6, 7}, 7},
    {"YesNoCancel", box::YesNoCancel + box::WarningIcon, {u"Yes"_s, u"No"_s, u"Cancel"_s}, {6, 7, 2}, 2},
};

} // namespace

TEST_P(MessageBoxTest, ButtonsAndResults)
{
    setMessageBoxHandler({});
    const BoxCase &c = GetParam();
    for (qsizetype i = 0; i < c.buttons.size(); ++i) {
        whenShown<QDialog>([&](QDialog &dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"Kelvane"_s);
            QStringList captions;
            for (QPushButton *button : dialog.findChildren<QPushButton *>())
                captions += button->text().remove(u'&');
            EXPECT_EQ(QSet<QString>(captions.begin(), captions.end()),
                      QSet<QString>(c.buttons.begin(), c.buttons.end()));
            for (QPushButton *button : dialog.findChildren<QPushButton *>())
                if (button->text().remove(u'&') == c.buttons.at(i))
                    QTest::mouseClick(button, Qt::LeftButton);
        });
        EXPECT_EQ(messageBox(nullptr, u"Text"_s, c.flags), c.results[std::size_t(i)]);
    }
    whenShown<QDialog>([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(messageBox(nullptr, u"Text"_s, c.flags), c.closed);
    whenShown<QDialog>([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_EQ(messageBox(nullptr, u"Text"_s, c.flags), c.results.front())
        << "The first button is the default.";
}

INSTANTIATE_TEST_SUITE_P(Boxes, MessageBoxTest, testing::ValuesIn(boxCases),
                         [](const auto &info) { return std::string(info.param.name); });

using SeamsTest = WindowTest;

TEST_F(SeamsTest, TextIsNoMarkupAndTheHourglassIsOffWhileTheBoxAsks)
{
    setMessageBoxHandler({});
    showHourglass(true);
    whenShown<QDialog>([](QDialog &dialog) {
        EXPECT_FALSE(isHourglassShown());
        const auto *label = find<QLabel>(u"qt_msgbox_label"_s, &dialog);
        ASSERT_NE(label, nullptr);
        EXPECT_EQ(label->text(), u"<b>1973</b>\ntext"_s);
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        dialog.reject();
    });
    messageBox(nullptr, u"<b>1973</b>\r\ntext"_s, box::StopIcon);
    EXPECT_TRUE(isHourglassShown());
    showHourglass(false);
}

TEST_F(SeamsTest, TheScriptReportsAnUnexpectedAWrongAndAMissingBox)
{
    Script script;
    int answer = 0;
    EXPECT_NONFATAL_FAILURE(answer = messageBox(nullptr, u"Sure?"_s, box::YesNo + box::WarningIcon),
                            "Unexpected box");
    EXPECT_EQ(answer, box::ResultNo);
    script.expectBox(u"Delete?"_s, 52, box::ResultYes);
    EXPECT_NONFATAL_FAILURE(answer = messageBox(nullptr, u"Really?"_s, 52), "Expected box: \"Delete?\"");
    EXPECT_EQ(answer, box::ResultNo);
    script.expectBox(u"Delete?"_s, 52, box::ResultYes);
    EXPECT_NONFATAL_FAILURE(script.verify(), "never came");
    script.expectBox(u"Delete?"_s, 52, box::ResultYes);
    EXPECT_EQ(messageBox(nullptr, u"Delete?"_s, 52), box::ResultYes);
    ASSERT_EQ(script.asked().size(), 3U);
    EXPECT_EQ(script.asked()[1], (Script::Box{u"Really?"_s, 52}));
}

TEST_F(SeamsTest, TheWatchReportsWindowsThatNobodyWaitsForAndThatNeverCome)
{
    {
        WindowWatch watch;
        watch.expect(
            "QDialog", [](QWidget *) { return false; }, [](QWidget *) {});
        EXPECT_NONFATAL_FAILURE(watch.verify(), "was not shown: QDialog");
    }
    QDialog dialog;
    whenShown<QDialog>([](QDialog &) {});
    EXPECT_NONFATAL_FAILURE(dialog.exec(), "Left open");
    EXPECT_FALSE(dialog.isVisible());

    EXPECT_NONFATAL_FAILURE(dialog.exec(), "Unexpected window: QDialog");
    EXPECT_FALSE(dialog.isVisible()) << "It is closed, or the tests would hang.";
}

TEST_F(SeamsTest, FileDialogs)
{
    CommonDialog dialog;
    dialog.filter = u"Text Files | *.txt"_s;
    dialog.fileName = u"before.txt"_s;
    expectFile(CommonDialog::Kind::Save, u"Text Files | *.txt"_s, path(u"list.txt"_s));
    dialog.showSave(nullptr);
    EXPECT_EQ(dialog.fileName, path(u"list.txt"_s));

    expectFile(CommonDialog::Kind::Open, u"Text Files | *.txt"_s, {});
    EXPECT_FALSE(attempt([&] { dialog.showOpen(nullptr); }));
    EXPECT_EQ(currentError().number, CancelError);
    EXPECT_EQ(dialog.fileName, path(u"list.txt"_s)) << "Cancel changes nothing.";

    QString offered;
    setCommonDialogHandler([&](const CommonDialog &shown, CommonDialog::Kind) {
        offered = shown.fileName;
        return QString();
    });
    CommonDialog next;
    EXPECT_FALSE(attempt([&] { next.showOpen(nullptr); }));
    EXPECT_EQ(offered, QFileInfo(path(u"list.txt"_s)).path()) << "The folder of the last choice.";
    EXPECT_EQ(next.fileName, QString());
}

TEST_F(SeamsTest, TheHourglassIsAStateAndScopesBringItBack)
{
    showHourglass(true);
    showHourglass(true);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    showHourglass(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    showHourglass(false);
    {
        const Hourglass outer;
        {
            const Hourglass inner;
            const PointerScope normal(false);
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        }
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(SeamsTest, ABoxBelongsToItsOwnerWhichIsActiveAgainAfterwards)
{
    setMessageBoxHandler({});
    QWidget other;
    QWidget window;
    auto *owner = new QPushButton(&window);
    window.show();
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    whenShown<QDialog>([&](QDialog &dialog) {
        EXPECT_EQ(dialog.parentWidget(), &window);
        dialog.reject();
    });
    messageBox(owner, u"Text"_s, box::StopIcon);
    settle();
    EXPECT_EQ(QApplication::activeWindow(), &window);
}

TEST_F(SeamsTest, PaintingPaints)
{
    class Painted final : public QWidget
    {
    public:
        int times = 0;

    protected:
        void paintEvent(QPaintEvent *) override { ++times; }
    } widget;
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    const int before = widget.times;
    widget.update();
    paintNow();
    EXPECT_GT(widget.times, before);
}

TEST_F(SeamsTest, TheClipboardHoldsTheText)
{
    setClipboardText(u"first"_s);
    setClipboardText(u"SRV\\möller"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"SRV\\möller"_s);
    setClipboardText({});
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u""_s);
}
