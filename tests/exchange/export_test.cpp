#include "base/error.h"
#include "exchange/modExport.h"
#include "exchange/modImport.h"
#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "support/windowtest.h"
#include "sync/modGlobalGroups.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <QDir>
#include <QFile>
#include <QLabel>

#include <csignal>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

const QString titleQuestion = u"Would you like to export also the Title of this View?"_s;
constexpr auto filter = "Text Files | *.txt"_L1;

class ExportTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        registerHandlers(modExport::handlers());
        view = std::make_unique<frmDisplay>();
        view->SetAction(Mode::Rooms);
        view->LblInfo->setText(u"All Rööms"_s);
    }

    void TearDown() override
    {
        view.reset();
        WindowTest::TearDown();
    }

    void expectQuestions(const QString &name, int title)
    {
        expectFile(CommonDialog::Kind::Save, filter, path(name));
        expectBox(titleQuestion, box::YesNo | box::QuestionIcon, title);
    }

    /// Fails with a reason that begins so.
    void exportWithout(const QString &name, const QString &reason)
    {
        SCOPED_TRACE(qPrintable(name));
        expectQuestions(name, box::ResultNo);
        expectBox("Error(s) occoured while exporting Data\r\nThe File '"_L1 + path(name) +
                      "' could not be written: "_L1 + reason,
                  box::StopIcon);
        view->run(Op::ExportToFile);
        verify();
    }

    QByteArray exported(int title = box::ResultNo)
    {
        QFile file(path(u"list.txt"_s));
        file.remove();
        expectQuestions(u"list.txt"_s, title);
        expectBox(u"The Data has been successfully exported"_s, box::InformationIcon);
        view->run(Op::ExportToFile);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    std::unique_ptr<frmDisplay> view;
};

/// No file of the process grows beyond so many bytes.
class FullDisk final
{
public:
    explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit full{bytes, m_limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_limit{};
    void (*m_handler)(int);
};

} // namespace

TEST_F(ExportTest, TheFileIsTheListAsItIsShown)
{
    ListPane &list = *view->listDisplay;
    list.setColumns({u"ID"_s, u"Nümber"_s, u"Description"_s});
    EXPECT_EQ(exported(), "ID;N\xfcmber;Description\r\n") << "an empty list";

    list.addRow(u"1"_s, {u"101"_s, u"a;b"_s});
    list.addRow(u"2"_s, {u"20\u20ac"_s, u"“Größe” ÿ"_s});
    list.addRow(u"3"_s, {QString(), u"two\r\nlines"_s});
    list.chooseRow(1);
    const QByteArray first = "1;101;a;b\r\n";
    const QByteArray second = "2;20\x80;\x93Gr\xf6\xdf"
                              "e\x94 \xff\r\n";
    const QByteArray third = "3;;two\r\nlines\r\n";
    EXPECT_EQ(exported(box::ResultYes),
              "All R\xf6\xf6ms\r\nID;N\xfcmber;Description\r\n" + first + second + third);
    list.reorder(std::vector{2, 1, 0});
    EXPECT_EQ(exported(), "ID;N\xfcmber;Description\r\n" + third + second + first);

    list.setColumns({u"One"_s});
    list.addRow(u"1"_s);
    EXPECT_EQ(exported(), "One\r\n1\r\n");
}

TEST_F(ExportTest, CharactersThatTheFileCannotHoldAreCounted)
{
    view->listDisplay->setColumns({u"ID"_s, u"Name"_s});
    view->listDisplay->addRow(u"1"_s, {u"Łódź 数 \U0001f600!"_s});
    expectQuestions(u"list.txt"_s, box::ResultNo);
    expectBox(u"The Data has been successfully exported"_s, box::InformationIcon);
    expectBox(u"4 Character(s) do not exist in the encoding of the File and were replaced by '?'"_s,
              box::WarningIcon);
    view->run(Op::ExportToFile);
    QFile file(path(u"list.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "ID;Name\r\n1;?\xf3"
                              "d? ? ?!\r\n");
}

TEST_F(ExportTest, EveryModeOffersItAndACancelIsSilent)
{
    for (int mode = 0; mode < modeCount; ++mode) {
        view->SetAction(Mode(mode));
        expectFile(CommonDialog::Kind::Save, filter, QString());
        view->run(Op::ExportToFile);
        verify();
    }
}

TEST_F(ExportTest, WhateverFailsLeavesTheOldFile)
{
    QFile old(path(u"old.txt"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    const auto content = [&] {
        EXPECT_TRUE(old.open(QIODevice::ReadOnly));
        const QByteArray bytes = old.readAll();
        old.close();
        return bytes;
    };
    const QString overwrite = "The File "_L1 + old.fileName() + " already exists. Overwrite?"_L1;
    view->listDisplay->setColumns({u"ID"_s, u"Name"_s});
    for (int row = 0; row < 20'000; ++row)
        view->listDisplay->addRow(QString::number(row), {u"a name of usual length"_s});

    expectFile(CommonDialog::Kind::Save, filter, old.fileName());
    expectBox(overwrite, box::YesNo | box::WarningIcon, box::ResultNo);
    view->run(Op::ExportToFile);
    verify();

    exportWithout(u"missing/list.txt"_s, u"No such file or directory"_s);
    for (const rlim_t room : {1'000, 300'000}) { // before and after the first bytes are on the disk
        const FullDisk disk(room);
        expectBox(overwrite, box::YesNo | box::WarningIcon, box::ResultYes);
        exportWithout(u"old.txt"_s, u"File too large"_s);
    }
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(QDir(path(QString())).entryList({u"old*"_s}), QStringList{u"old.txt"_s}) << "nothing beside it";
}

TEST_F(ExportTest, WhatAnImportBroughtInIsExportedAndImportedAgain)
{
    modGlobalGroups::registerImports();
    const QByteArray lines = "Staff;SRV01;All M\xfcnchen\r\nGuests;SRV01;\r\nAdmins;SRV02;it's \x80\r\n";
    const auto import = [&](const QByteArray &bytes) {
        QFile file(path(u"groups.txt"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        expectBox(u"Importing the selected Data will update Entries already in the database\r\n"
                  "Would you like to update existing data?"_s,
                  box::YesNoCancel | box::WarningIcon, box::ResultYes);
        expectBox(u"The Operation was completed successfully"_s, box::InformationIcon);
        modImport::importFile(nullptr, u"Global Groups (Root Data)"_s, file.fileName());
        verify();
    };
    const auto list = [&] {
        jet::Connection store;
        store.open(connection());
        jet::Recordset rows;
        rows.open(u"SELECT Name, Server, Description FROM Tbl_GlobalGroups ORDER BY ID"_s, store);
        modRender::renderList(*view->listDisplay, rows);
        return exported();
    };
    import(lines);
    const QByteArray file = list();
    EXPECT_EQ(file, "Name;Server;Description\r\n" + lines);
    execute(u"DELETE * FROM Tbl_GlobalGroups"_s);
    import(file.sliced(file.indexOf('\n') + 1));
    EXPECT_EQ(list(), file);
}
