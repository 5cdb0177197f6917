#include "base/errornumbers.h"
#include "messages/frmResult.h"
#include "messages/showresult.h"
#include "support/windowtest.h"

#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextBlock>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr auto saveFilter = "*.txt | *.txt"_L1;
constexpr int question = box::YesNo | box::WarningIcon;

class ResultTest : public WindowTest
{
protected:
    void TearDown() override
    {
        for (frmResult *open : findAll<frmResult>(u"frmResult"_s))
            open->close();
        WindowTest::TearDown();
    }

    static frmResult *show(const QString &text, QWidget *owner = nullptr)
    {
        showResult(owner, text, u"Import/Export Result"_s);
        return find<frmResult>(u"frmResult"_s);
    }

    void save(const QString &name)
    {
        expectFile(CommonDialog::Kind::Save, saveFilter, name.isEmpty() ? name : path(name));
        trigger(u"mnuFileSave"_s);
    }

    void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    [[nodiscard]] QByteArray read(const QString &name)
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    [[nodiscard]] QString overwrite(const QString &name)
    {
        return "The File "_L1 % path(name) % " already exists. Overwrite?"_L1;
    }
};

} // namespace

TEST_F(ResultTest, ShowsTextAndTitleModeless)
{
    frmResult *window = show(u"One\r\nTwo"_s);
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(window->windowTitle(), u"Kelvane 3.0"_s);
    EXPECT_EQ(window->LblInfo->text(), u"Import/Export Result"_s);
    EXPECT_EQ(window->txtResult->toPlainText(), u"One\nTwo"_s);
    EXPECT_EQ(window->mnuFile->title(), u"&File"_s);

    showResult(nullptr, u"Three"_s, u"Other"_s);
    EXPECT_EQ(findAll<frmResult>(u"frmResult"_s).size(), 1);
    EXPECT_EQ(window->txtResult->toPlainText(), u"Three"_s);

    trigger(u"mnuExit"_s);
    settle();
    EXPECT_TRUE(findAll<frmResult>(u"frmResult"_s).isEmpty());
}

TEST_F(ResultTest, AppearsOverItsOwnerAndStaysWhereItIsPut)
{
    QWidget owner;
    owner.setGeometry(300, 200, 200, 100);
    frmResult *window = show(u"One"_s, &owner);
    ASSERT_TRUE(window);
    const QRect screen = window->screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window->geometry().topLeft()));
    EXPECT_TRUE(window->geometry().contains(owner.geometry().center()));
    window->move(5, 7);
    showResult(&owner, u"Two"_s, u"Other"_s);
    EXPECT_EQ(window->pos(), QPoint(5, 7));
    window->close();
    settle();
}

TEST_F(ResultTest, SavesTheBytesAsTheyAre)
{
    const QStringList texts = {u"One\r\nTwo\r\n"_s, u"no break at the end"_s, u"Müller\u00a0数\nbare"_s,
                               u""_s};
    for (const QString &text : texts) {
        SCOPED_TRACE(qPrintable(text));
        show(text);
        QFile::remove(path(u"result.txt"_s));
        save(u"result.txt"_s);
        EXPECT_EQ(read(u"result.txt"_s), text.toUtf8());
    }
}

TEST_F(ResultTest, SavesWhatTheUserChanged)
{
    frmResult *window = show(u"One\r\nTwo"_s);
    QTest::keyClick(window->txtResult, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(window->txtResult, u"!"_s);
    QTest::keyClick(window->txtResult, Qt::Key_Return);
    save(u"result.txt"_s);
    EXPECT_EQ(read(u"result.txt"_s), "One\r\nTwo!\r\n");
}

TEST_F(ResultTest, AnExistingFileIsAskedAbout)
{
    show(u"new"_s);
    write(u"old.txt"_s, "old");

    expectBox(overwrite(u"old.txt"_s), question, box::ResultNo);
    save(u"old.txt"_s);
    EXPECT_EQ(lastBoxOwner(), find<frmResult>(u"frmResult"_s));
    EXPECT_EQ(read(u"old.txt"_s), "old");

    expectBox(overwrite(u"old.txt"_s), question, box::ResultYes);
    save(u"old.txt"_s);
    EXPECT_EQ(read(u"old.txt"_s), "new");
}

TEST_F(ResultTest, AnAttachmentIsSavedByItsOwnEntryAndGoesWithTheNextResult)
{
    showResult(nullptr, u"report"_s, u"Title"_s, {u"Save &lines..."_s, "a;\xc3\xa4\r\n"});
    auto *window = find<frmResult>(u"frmResult"_s);
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->mnuFileSaveAttachment->isVisible());
    EXPECT_EQ(window->mnuFileSaveAttachment->text(), u"Save &lines..."_s);
    write(u"lines.txt"_s, "old");
    expectBox(overwrite(u"lines.txt"_s), question, box::ResultYes);
    expectFile(CommonDialog::Kind::Save, saveFilter, path(u"lines.txt"_s));
    trigger(u"mnuFileSaveAttachment"_s);
    EXPECT_EQ(read(u"lines.txt"_s), "a;\xc3\xa4\r\n");
    show(u"another"_s);
    EXPECT_FALSE(window->mnuFileSaveAttachment->isVisible());
}

TEST_F(ResultTest, CancelSavesNothingAndAFolderThatIsNotThereIsReported)
{
    show(u"new"_s);
    save({});
    expectBox(u"%1\r\nThe File '%2' could not be written: No such file or directory"_s.arg(FileAccessError)
                  .arg(path(u"missing/result.txt"_s)),
              box::StopIcon);
    save(u"missing/result.txt"_s);
    EXPECT_FALSE(QFile::exists(path(u"missing"_s)));
}

TEST_F(ResultTest, ItsKeysSaveAndClose)
{
    frmResult *window = show(u"text"_s);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    expectFile(CommonDialog::Kind::Save, saveFilter, path(u"result.txt"_s));
    QTest::keyClick(window->txtResult, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(read(u"result.txt"_s), "text");
    QTest::keyClick(window->txtResult, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ResultTest, CountsAreBelowEachOther)
{
    frmResult *window = show(u"New Users:     \t\t1\r\nUpdated Users: \t\t1\r\nErrors encountered: \t1"_s);
    QSet<int> places;
    for (QTextBlock line = window->txtResult->document()->begin(); line.isValid(); line = line.next()) {
        QTextCursor count(line);
        count.movePosition(QTextCursor::EndOfBlock);
        places.insert(window->txtResult->cursorRect(count).left());
    }
    EXPECT_EQ(places.size(), 1);
}

TEST_F(ResultTest, ControlASelectsTheWholeText)
{
    frmResult *window = show(u"One\r\nTwo"_s);
    QTest::keyClick(window->txtResult, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(window->txtResult->textCursor().selectedText(), u"One\u2029Two"_s);
}

TEST_F(ResultTest, StaysAboveTheDialogThatShowedItAndOutlivesIt)
{
    QWidget main;
    QDialog dialog(&main);
    QTimer::singleShot(0, &dialog, [&] {
        frmResult *window = show(u"format help"_s, &dialog);
        EXPECT_EQ(window->parentWidget(), &dialog) << "else the dialog would block it";
        EXPECT_EQ(window->windowType(), Qt::Dialog) << "else the window manager lets it sink below its owner";
        dialog.accept();
    });
    whenShown<frmResult>([](frmResult &) {});
    whenShown<QDialog>([](QDialog &) {});
    dialog.exec();
    auto *window = find<frmResult>(u"frmResult"_s);
    ASSERT_TRUE(window);
    EXPECT_EQ(window->parentWidget(), &main);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->txtResult->toPlainText(), u"format help"_s);
}
