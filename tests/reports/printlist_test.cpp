#include "pdfpages.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "messages/frmProgress.h"
#include "platform/printing/pagedevice.h"
#include "platform/printing/printers.h"
#include "reports/frmSelectPrinter.h"
#include "reports/modPrint.h"
#include "support/scriptedsteps.h"
#include "support/windowtest.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int yesNo = box::YesNo | box::QuestionIcon;
const QString allColumns = u"Would you like to Print all Columns?"_s;
const QString pdfFilter = u"PDF Files | *.pdf"_s;
constexpr int rowsOnPage = 38;
constexpr double rowHeight = 4.152; // 8 points of Arial and 1 mm

/// Files of this process cannot grow beyond a size: as good as a full disk.
class SmallDisk final
{
public:
    explicit SmallDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

/// A view with a list, and a host with two printers that keep their jobs.
class PrintListTest : public WindowTest
{
protected:
    struct Job
    {
        QString printer;
        QString title;
        QByteArray document;
    };

    void SetUp() override
    {
        WindowTest::SetUp();
        registerHandlers(modPrint::handlers());
        m_printersBefore = printing::installPrinters(
            {[this] { return printers; }, [this] { return standard; },
             [this](const QString &printer, const QString &title, const QByteArray &document) {
                 if (int(jobs.size()) == refuseAfter)
                     throwError(PrinterError, "The Printer '"_L1 % printer % "' is gone."_L1);
                 jobs.append({printer, title, document});
             }});
        view.LblInfo->setText(u"All Rooms"_s);
        view.SetAction(Mode::Rooms);
    }

    void TearDown() override
    {
        printing::installPrinters(m_printersBefore);
        WindowTest::TearDown();
    }

    void fillRows(int count)
    {
        view.listDisplay->setColumns({u"ID"_s, u"Room"_s, u"TheDescriptionOfIt"_s, u"Floor"_s});
        for (int row = 1; row <= count; ++row) {
            const QString number = QString::number(row);
            view.listDisplay->addRow(u"77"_s, {u'r' + number, u'd' + number, u'f' + number});
        }
    }

    /// A person at the dialog.
    void choose(const QString &printer, const QString &copies = u"1"_s)
    {
        whenShown<frmSelectPrinter>([=](frmSelectPrinter &dialog) {
            dialog.cboPrinter->setEditText(printer);
            dialog.txtNumberOfCopies->setText(copies);
            QTest::mouseClick(dialog.cmdOK, Qt::LeftButton);
        });
    }

    void printTo(const QString &printer, const QString &copies = u"1"_s)
    {
        choose(printer, copies);
        view.run(Op::PrintData);
        settle();
        verify();
    }

    QList<PdfPage> printToPdf(const QString &copies = u"1"_s)
    {
        expectFile(CommonDialog::Kind::Save, pdfFilter, path(u"list"_s));
        expectBox(allColumns, yesNo, box::ResultYes);
        printTo(u"PDF file"_s, copies);
        return readPdf(pdf);
    }

    QStringList filesInFolder() const { return QDir(path(u"."_s)).entryList({u"list*"_s}, QDir::Files); }

    QStringList printers{u"Laser"_s, u"Plotter"_s};
    QString standard = u"Plotter"_s;
    int refuseAfter = -1;
    QList<Job> jobs;
    QString pdf = path(u"list.pdf"_s);
    frmDisplay view;

private:
    printing::Printers m_printersBefore;
};

} // namespace

TEST_F(PrintListTest, EverythingIsInItsPlaceOnThePage)
{
    fillRows(2);
    view.listDisplay->setText(1, 2, u"first\r\nlonger%1end"_s.arg(QString(60, u'x')));
    const QList<PdfPage> pages = printToPdf();
    ASSERT_EQ(pages.size(), 1);
    const PdfPage &page = pages[0];
    EXPECT_NEAR(page.width, 297, 0.3);
    EXPECT_NEAR(page.height, 210, 0.3);
    EXPECT_EQ(page.lines(), (QStringList{u"Kelvane Confidential Report 2 Record(s) - Page 1"_s,
                                         u"All Rooms"_s, u"Room.. TheDescriptio.. Floor.."_s, u"r1 d1 f1"_s,
                                         u"r2 first longer%1end f2"_s.arg(QString(60, u'x'))}));

    const double column = 272.0 / 3;
    const struct
    {
        const char *word;
        double left;
        double top;
    } places[] = {
        {"Kelvane", 15, 20 - 4.73},
        {"All", 15, 28 - 4.73},
        {"Room..", 15, 35 - 3.94},
        {"r1", 15, 38},
        {"TheDescriptio..", 15 + column, 35 - 3.94},
        {"d1", 15 + column, 38},
        {"Floor..", 15 + 2 * column, 35 - 3.94},
        {"f2", 15 + 2 * column, 38 + rowHeight},
    };
    for (const auto &place : places) {
        const PdfWord word = page.word(QString::fromLatin1(place.word));
        EXPECT_NEAR(word.left, place.left, 0.3) << place.word;
        EXPECT_NEAR(word.top, place.top, 0.3) << place.word;
    }
    double right = 0;
    for (const PdfWord &word : page.words)
        if (word.top < 20)
            right = std::max(right, word.right);
    EXPECT_NEAR(right, 282, 0.3);

    const QImage image = paintedPage(pdf, 1);
    ASSERT_FALSE(image.isNull());
    const auto isDark = [&](double x, double y) {
        // Within a tenth of a millimetre.
        for (int off = -2; off <= 2; ++off)
            if (qGray(image.pixel(int(x * dotsInMillimetre), int(y * dotsInMillimetre) + off)) < 200)
                return true;
        return false;
    };
    const double belowRow = 38 + rowHeight - 1;
    const double left[] = {10, 10, 10, 10, 15, 15};
    const double down[] = {20, 28, 36, 200, belowRow, belowRow + rowHeight};
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(isDark(left[i] + 0.3, down[i]) && isDark(150, down[i]) && isDark(286.7, down[i]))
            << down[i];
        EXPECT_FALSE(isDark(left[i] - 0.3, down[i]) || isDark(287.3, down[i])) << down[i];
        EXPECT_FALSE(isDark(286.7, down[i] + 0.7)) << down[i];
    }
}

TEST_F(PrintListTest, PagesBreakAndEachCopyBeginsAtPageOne)
{
    fillRows(2 * rowsOnPage);
    const QList<PdfPage> pages = printToPdf(u"2"_s);
    ASSERT_EQ(pages.size(), 4) << "No page without rows.";
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        const QStringList lines = pages[i].lines();
        EXPECT_EQ(lines.size(), 3 + rowsOnPage);
        EXPECT_EQ(lines.first(), u"Kelvane Confidential Report 76 Record(s) - Page %1"_s.arg(i % 2 + 1));
        const int first = i % 2 * rowsOnPage + 1;
        EXPECT_EQ(lines.value(3), u"r%1 d%1 f%1"_s.arg(first));
        EXPECT_NEAR(pages[i].word(u"r%1"_s.arg(first)).top, 38, 0.3);
        EXPECT_NEAR(pages[i].word(u"r%1"_s.arg(first + rowsOnPage - 1)).top, 38 + 37 * rowHeight, 0.3);
    }
}

TEST_F(PrintListTest, OnlyChosenColumnsArePrintedAndShareThePage)
{
    fillRows(1);
    expectBox(allColumns, yesNo, box::ResultNo);
    expectBox(u"Print Column Room ?"_s, yesNo, box::ResultYes);
    expectBox(u"Print Column TheDescriptionOfIt ?"_s, yesNo, box::ResultNo);
    expectBox(u"Print Column Floor ?"_s, yesNo, box::ResultYes);
    expectFile(CommonDialog::Kind::Save, pdfFilter, pdf);
    printTo(u"PDF file"_s);
    const QList<PdfPage> pages = readPdf(pdf);
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(pages[0].lines().mid(2), (QStringList{u"Room.. Floor.."_s, u"r1 f1"_s}));
    EXPECT_NEAR(pages[0].word(u"f1"_s).left, 15 + 136, 0.3);
}

TEST_F(PrintListTest, WithoutAColumnNothingIsPrinted)
{
    const QString noData = u"Warning! No Data to Print...."_s;
    fillRows(1);
    expectBox(allColumns, yesNo, box::ResultNo);
    for (const char *title : {"Room", "TheDescriptionOfIt", "Floor"})
        expectBox(u"Print Column %1 ?"_s.arg(QLatin1StringView(title)), yesNo, box::ResultNo);
    expectBox(noData, box::WarningIcon);
    printTo(u"Laser"_s);

    view.listDisplay->setColumns({u"ID"_s});
    view.listDisplay->addRow(u"1"_s);
    expectBox(allColumns, yesNo, box::ResultYes);
    expectBox(noData, box::WarningIcon);
    printTo(u"Laser"_s);
    EXPECT_TRUE(jobs.isEmpty());
}

TEST_F(PrintListTest, TheDialogOffersPrintersAndCopies)
{
    fillRows(1);
    whenShown<frmSelectPrinter>([](frmSelectPrinter &dialog) {
        QStringList names;
        for (int i = 0; i < dialog.cboPrinter->count(); ++i)
            names.append(dialog.cboPrinter->itemText(i));
        EXPECT_EQ(names, (QStringList{u"Laser"_s, u"Plotter"_s, u"PDF file"_s}));
        EXPECT_EQ(dialog.cboPrinter->currentText(), u"Plotter"_s);
        EXPECT_EQ(dialog.windowTitle(), u"Select Printer"_s);
        const auto copiesAfter = [&](QPushButton *button) {
            QTest::mouseClick(button, Qt::LeftButton);
            return dialog.txtNumberOfCopies->text();
        };
        EXPECT_EQ(copiesAfter(dialog.cmdSubtractCopy), u"1"_s);
        EXPECT_EQ(copiesAfter(dialog.cmdAddCopy), u"2"_s);
        EXPECT_EQ(copiesAfter(dialog.cmdSubtractCopy), u"1"_s);
        for (const char *text : {"0", "two", ""}) {
            dialog.txtNumberOfCopies->setText(QLatin1StringView(text));
            QTest::mouseClick(dialog.cmdOK, Qt::LeftButton);
            EXPECT_TRUE(dialog.isVisible()) << text;
        }
        EXPECT_EQ(copiesAfter(dialog.cmdAddCopy), u"1"_s);
        QTest::mouseClick(dialog.cmdCancel, Qt::LeftButton);
        EXPECT_TRUE(dialog.choice().cancelled);
        EXPECT_EQ(dialog.choice().copies, 1);
        EXPECT_TRUE(dialog.choice().printer.isEmpty());
    });
    for (int i = 0; i < 3; ++i)
        expectBox(u"Please enter the Number of Copies: a whole number from 1"_s, box::WarningIcon);
    view.run(Op::PrintData);
    EXPECT_TRUE(jobs.isEmpty());

    printers.clear();
    standard.clear();
    EXPECT_EQ(frmSelectPrinter(nullptr).cboPrinter->currentText(), u"PDF file"_s);
}

TEST_F(PrintListTest, EachPageIsAJobOfThePrinter)
{
    fillRows(rowsOnPage + 1);
    expectBox(allColumns, yesNo, box::ResultYes);
    printTo(u"Laser"_s, u"2"_s);
    ASSERT_EQ(jobs.size(), 4);
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(jobs[i].printer, u"Laser"_s);
        EXPECT_EQ(jobs[i].title, u"All Rooms"_s);
        QFile file(pdf);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(jobs[i].document);
        file.close();
        const QList<PdfPage> pages = readPdf(pdf);
        ASSERT_EQ(pages.size(), 1);
        EXPECT_TRUE(pages[0].lines().value(0).endsWith(u"Page %1"_s.arg(i % 2 + 1)));
        EXPECT_EQ(pages[0].lines().size(), i % 2 == 0 ? 3 + rowsOnPage : 4);
    }

    jobs.clear();
    expectBox(allColumns, yesNo, box::ResultYes);
    printTo(u"Nowhere"_s);
    EXPECT_EQ(jobs.value(0).printer, u"Plotter"_s) << "The current printer stays in place.";
}

TEST_F(PrintListTest, APrinterThatGoesAwayIsReportedAndEndsThePrinting)
{
    fillRows(3 * rowsOnPage);
    refuseAfter = 1;
    expectBox(allColumns, yesNo, box::ResultYes);
    expectBox(u"%1\r\nThe Printer 'Laser' is gone.\r\nPrint jobs sent before it: 1"_s.arg(PrinterError),
              box::StopIcon);
    printTo(u"Laser"_s);
    EXPECT_EQ(jobs.size(), 1);
}

TEST_F(PrintListTest, AFileThatCannotBeWrittenStaysAsItWas)
{
    fillRows(1000);
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("old");
    file.close();
    const auto expectStart = [&](int overwrite) {
        expectFile(CommonDialog::Kind::Save, pdfFilter, pdf);
        expectBox(u"The File %1 already exists. Overwrite?"_s.arg(pdf), box::YesNo | box::WarningIcon,
                  overwrite);
    };
    expectStart(box::ResultNo);
    printTo(u"PDF file"_s);

    expectStart(box::ResultYes);
    expectBox(allColumns, yesNo, box::ResultYes);
    expectBox(u"%1\r\nThe File '%2' could not be written: File too large"_s.arg(FileAccessError).arg(pdf),
              box::StopIcon);
    {
        const SmallDisk disk(30'000);
        printTo(u"PDF file"_s);
    }

    const QString nowhere = path(u"missing/list.pdf"_s);
    expectFile(CommonDialog::Kind::Save, pdfFilter, nowhere);
    expectBox(allColumns, yesNo, box::ResultYes);
    expectBox(u"%1\r\nThe File '%2' could not be written: No such file or directory"_s.arg(FileAccessError)
                  .arg(nowhere),
              box::StopIcon);
    printTo(u"PDF file"_s);

    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "old");
    EXPECT_EQ(filesInFolder(), QStringList{u"list.pdf"_s});
}

TEST_F(PrintListTest, CancelLeavesNoFileAndSendsNoFurtherJob)
{
    fillRows(3 * rowsOnPage);
    using printing::PageDevice;
    const auto cancelOnPageTwo = [&](PageDevice &&pages) {
        ScriptedSteps steps;
        steps.cancelAt = rowsOnPage + 5;
        expectBox(allColumns, yesNo, box::ResultYes);
        modPrint::printList(&view, *view.listDisplay, u"All Rooms"_s, pages, 2, steps);
        EXPECT_EQ(steps.phases.size(), 1);
        EXPECT_EQ(steps.items.last(), u"Page 2"_s);
    };
    cancelOnPageTwo(PageDevice(PageDevice::PdfFile{pdf, {}}));
    EXPECT_EQ(filesInFolder(), QStringList());
    cancelOnPageTwo(PageDevice(PageDevice::Printer{u"Laser"_s, {}}));
    EXPECT_EQ(jobs.size(), 1);
}
