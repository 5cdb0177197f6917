#include "base/error.h"
#include "messages/guard.h"
#include "messages/status.h"
#include "support/windowtest.h"
#include "toolkit/imagelist.h"
#include "toolkit/pointer.h"
#include "toolkit/statusbar.h"

#include <QTimer>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

class GuardTest : public WindowTest
{
};

class StatusTest : public WindowTest
{
protected:
    void TearDown() override
    {
        showHourglass(false);
        WindowTest::TearDown();
    }
};

} // namespace

TEST_F(GuardTest, ShowsWhatAHandlerRaises)
{
    struct Case
    {
        const char *name;
        void (*handler)();
        const char *text;
    };
    const Case cases[] = {
        {"rule", [] { throwError(RuleViolation, u"A Room is taken"_s); }, "1973\r\nA Room is taken"},
        {"engine", [] { throwError(-2147217900, u"Syntax error near 'FORM'"_s); },
         "-2147217900\r\nSyntax error near 'FORM'"},
        {"memory", [] { throw std::bad_alloc(); }, "7\r\nOut of memory"},
        {"library", [] { throw std::runtime_error("broken"); }, "1973\r\nbroken"},
    };
    QWidget owner;
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        expectBox(QString::fromLatin1(row.text), box::StopIcon);
        guarded(&owner, row.handler);
        verify();
        EXPECT_EQ(lastBoxOwner(), &owner);
    }
    guarded(nullptr, [] {});
    auto closing = std::make_unique<QWidget>();
    expectBox(u"1973\r\nclosed"_s, box::StopIcon);
    guarded(closing.get(), [&] {
        closing.reset();
        throwError(RuleViolation, u"closed"_s);
    });
    EXPECT_EQ(lastBoxOwner(), nullptr) << "The handler deleted the owner.";
}

TEST_F(StatusTest, TextsPicturesHourglassAndCaption)
{
    struct Case
    {
        const char *name;
        void (*show)();
        const char *text;
        int picture;
        bool hourglass;
        bool caption;
    };
    constexpr Case cases[] = {
        {"reading", showStatusReading, "Reading Data. Please stand by", 17, true, false},
        {"writing", showStatusWriting, "Writing Data. Please stand by", 17, true, true},
        {"printing", showStatusPrinting, "Printing Data. Please stand by", 9, false, true},
        {"ready", showStatusReady, "Ready", 18, false, true},
    };
    QWidget window;
    StatusBar bar(3);
    setStatusTarget(&bar, &window);
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        showHourglass(false);
        window.setWindowTitle(u"before"_s);
        bar.setPanelPicture(1, imageLists().ImageListToolbar, 9);
        row.show();
        EXPECT_EQ(bar.panelText(1), QString::fromLatin1(row.text));
        EXPECT_EQ(bar.panelPicture(1), row.picture);
        EXPECT_EQ(isHourglassShown(), row.hourglass);
        EXPECT_EQ(window.windowTitle(), row.caption ? u"Kelvane 3.0"_s : u"before"_s);
    }
}

TEST_F(StatusTest, ReadyLeavesTheHourglassToWhoeverFinishes)
{
    showStatusReading();
    showStatusReady();
    EXPECT_TRUE(isHourglassShown());
}

TEST_F(StatusTest, WorksOnWhenTheBarHasGone)
{
    {
        StatusBar bar(3);
        setStatusTarget(&bar, nullptr);
    }
    bool ran = false;
    QTimer::singleShot(0, qApp, [&] { ran = true; });
    showStatusReady();
    EXPECT_TRUE(ran) << "A status call lets the windows paint.";
}
