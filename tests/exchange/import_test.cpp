#include "base/error.h"
#include "exchange/frmImport.h"
#include "exchange/modImport.h"
#include "exchange/modImportSteps.h"
#include "folders/modFolders.h"
#include "messages/frmProgress.h"
#include "messages/frmResult.h"
#include "platform/desktop/desktop.h"
#include "platform/jet/connection.h"
#include "session/modRegistry.h"
#include "store/clsUsers.h"
#include "support/windowtest.h"
#include "sync/modGlobalGroups.h"
#include "sync/modLocalGroups.h"
#include "sync/modUsers.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int warningYesNo = box::YesNo | box::WarningIcon;
constexpr int warningYesNoCancel = box::YesNoCancel | box::WarningIcon;
const QString startQuestion = u"Are you sure you want to start the selected Import?"_s;
const QString updateQuestion = u"Importing the selected Data will update Entries already in the database\r\n"
                               "Would you like to update existing data?"_s;
const QString success =
    u"The Operation was completed successfully\r\nYou may refresh your User Database View "
    "to see changes applied to your existing Users"_s;
const QString usersType = u"Users (Root Data)"_s;
const QString allUsers =
    u"SELECT ServerName & '\\' & UserName & ' ' & FullName FROM Tbl_Users ORDER BY UserID"_s;

QByteArray line(const char *name, const char *fullName, const char *server = "SRV01")
{
    return QByteArray(name) + ';' + server + ';' + fullName +
           ";comment;;H:;\\\\SRV01\\Home;;logon.bat;0;1;0\r\n";
}

class ImportTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        modGlobalGroups::registerImports();
        modLocalGroups::registerImports();
        modUsers::registerImports();
        modFolders::registerImports();
    }

    void TearDown() override
    {
        for (frmResult *window : findAll<frmResult>(u"frmResult"_s))
            window->close();
        WindowTest::TearDown();
    }

    QString write(const QByteArray &bytes) const
    {
        QFile file(path(u"users.txt"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    /// A person at the dialog: picks the type, names the file, presses Import and Close.
    void import(const QString &type, const QString &fileName)
    {
        whenShown<frmImport>([=](frmImport &dialog) {
            dialog.cboImportType->setCurrentText(type);
            dialog.txtFileName->setText(fileName);
            QTest::mouseClick(dialog.cmdOK, Qt::LeftButton);
            EXPECT_TRUE(dialog.isVisible()) << "The dialog stays open after an import.";
            EXPECT_TRUE(dialog.cmdOK->isEnabled());
            QTest::mouseClick(dialog.cmdCancel, Qt::LeftButton);
        });
        modImport::showImport(nullptr);
    }

    void importUsers(const QByteArray &bytes, int updateAnswer)
    {
        expectBox(startQuestion, warningYesNo, box::ResultYes);
        expectBox(updateQuestion, warningYesNoCancel, updateAnswer);
        import(usersType, write(bytes));
    }

    void importUsersWell(const QByteArray &bytes, int updateAnswer)
    {
        expectBox(startQuestion, warningYesNo, box::ResultYes);
        expectBox(updateQuestion, warningYesNoCancel, updateAnswer);
        expectBox(success, box::InformationIcon);
        import(usersType, write(bytes));
        verify();
    }

    /// Presses Cancel in the middle of the phase.
    void cancelIn(const QString &phase)
    {
        whenShown<frmProgress>([phase](frmProgress &progress) {
            auto *timer = new QTimer(&progress);
            QObject::connect(timer, &QTimer::timeout, &progress, [phase, &progress] {
                if (progress.LblInfo->text() == phase && progress.ProgressBar->value() > 1)
                    progress.cmdCancel->click();
            });
            timer->start(0);
        });
    }

    /// The text of the result window, line ends as the text box shows them.
    static QString resultText()
    {
        const QList<frmResult *> windows = findAll<frmResult>(u"frmResult"_s);
        if (windows.isEmpty())
            return {};
        EXPECT_EQ(windows.first()->LblInfo->text(), u"Import/Export Result"_s);
        return windows.first()->txtResult->toPlainText();
    }
};

} // namespace

TEST_F(ImportTest, OffersTheSevenTypesAndNoneIsChosen)
{
    whenShown<frmImport>([](frmImport &dialog) {
        QStringList types;
        for (int i = 0; i < dialog.cboImportType->count(); ++i)
            types.append(dialog.cboImportType->itemText(i));
        EXPECT_EQ(types, (QStringList{u"Global Groups (Root Data)"_s, u"Local Groups (Root Data)"_s,
                                      u"Users (Root Data)"_s, u"Global Groups Users (Relationships)"_s,
                                      u"Local Group - Global Groups (Relationships)"_s,
                                      u"Folders (Root Data)"_s, u"Folder Permissions (Relationships)"_s}));
        EXPECT_EQ(dialog.cboImportType->currentText(), QString());
        EXPECT_EQ(dialog.cboImportType->accessibleName(), u"Import Type"_s);
        EXPECT_EQ(dialog.windowTitle(), u"Import from File"_s);
        EXPECT_EQ(dialog.LblInfo->text(), u"Import Data From File"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    modImport::showImport(nullptr);
}

TEST_F(ImportTest, IncompleteInputIsRefusedInOrder)
{
    const QString file = write(line("anna", "Anna"));
    expectBox(u"Please specify the Data File"_s, box::WarningIcon);
    import(usersType, QString());
    expectBox(u"The File you specified could not be found"_s, box::WarningIcon);
    import(usersType, path(u"missing.txt"_s));
    expectBox(u"The File you specified could not be found"_s, box::WarningIcon);
    import(usersType, path(QString()));
    expectBox(startQuestion, warningYesNo, box::ResultNo);
    import(QString(), file);
    expectBox(startQuestion, warningYesNo, box::ResultYes);
    expectBox(u"Please Select the Import Type"_s, box::WarningIcon);
    import(QString(), file);
    EXPECT_EQ(column(allUsers), QStringList());
}

TEST_F(ImportTest, FiveLinesWithTheThirdBad)
{
    importUsers(line("anna", "Anna Ärmel") + line("bert", "Bert") + line("", "Nobody") +
                    line("dora", "Dora") + line("emil", "Émile"),
                box::ResultYes);
    EXPECT_EQ(column(allUsers), (QStringList{u"SRV01\\anna Anna Ärmel"_s, u"SRV01\\bert Bert"_s,
                                             u"SRV01\\dora Dora"_s, u"SRV01\\emil Émile"_s}));
    EXPECT_EQ(resultText(), "Following Errors were encountered in File\n"_L1 + path(u"users.txt"_s) +
                                "\n\n\nNo Username on Line 3\n\n"_L1);
    EXPECT_EQ(column(u"SELECT UserID FROM Tbl_Users WHERE Comment = 'comment' AND UserComment = '' AND "
                     "HomeDirDrive = 'H:' AND HomeDir = '\\\\SRV01\\Home' AND Profile = '' AND "
                     "ScriptPath = 'logon.bat' AND AccDisabled = False AND NoChangePwd = True AND "
                     "NoExpirePwd = False"_s)
                  .size(),
              4);
}

// One file a type with every fault a line can have: what the report says, what is in the store, and what can
// be saved to be mended.
TEST_F(ImportTest, EveryTypeWritesItsGoodLinesAndReportsTheOthers)
{
    const QByteArray groups = "Staff;SRV01;All; really\r\n;SRV01;a\nGuests;;b\nGuests\n\nBare;SRV01\n"
                              " Staff ;SRV02;it's \xc3\xa4\nO'Neil;SRV01;c\nTwice;S;1\nTwice;S;2";
    const QString groupErrors = u"No Group Name on Line 2\nNo Server Information on Line 3\n"
                                "No Server Information on Line 4\n\n\nSRV01\\O'Neil Syntax error"_s;
    const QByteArray refusedGroups = ";SRV01;a\r\nGuests;;b\r\nGuests\r\nO'Neil;SRV01;c\r\n";
    const QStringList writtenGroups = {u"Staff|SRV01|All"_s, u"Bare|SRV01|"_s, u" Staff |SRV02|it's ä"_s,
                                       u"Twice|S|2"_s};
    const struct
    {
        QString type;
        QByteArray file;
        QString errors;
        QByteArray refused;
        QString written; ///< a query
        QStringList rows;
    } cases[] = {
        {u"Global Groups (Root Data)"_s, groups, groupErrors, refusedGroups,
         u"SELECT Name & '|' & Server & '|' & Description FROM Tbl_GlobalGroups ORDER BY ID"_s,
         writtenGroups},
        {u"Local Groups (Root Data)"_s, groups, groupErrors, refusedGroups,
         u"SELECT Name & '|' & Server & '|' & Description FROM Tbl_LocalGroups ORDER BY ID"_s, writtenGroups},
        {usersType,
         "\n" + line("anna", "Anna") + "bert;;x\nbert\ncleo;SRV01\ndora;SRV01;a;b;c;d;e;f;g;0;0\n" +
             line("emil", "Emil") + ";\n" + line("fred", "it's"),
         u"No Server Information on Line 3\nNo Server Information on Line 4\n"
         "No Value for Account Disabled on Line 5\nNo Value for Password Never Expires on Line 6\n"
         "No Username on Line 8\n\nFollowing User(s) generated Errors and could not be Imported:\n\n"
         "SRV01\\fred Syntax error\n"_s,
         "bert;;x\r\nbert\r\ncleo;SRV01\r\ndora;SRV01;a;b;c;d;e;f;g;0;0\r\n;\r\n" + line("fred", "it's"),
         allUsers,
         {u"SRV01\\anna Anna"_s, u"SRV01\\emil Emil"_s}},
        {u"Global Groups Users (Relationships)"_s,
         "staff;srv01;ANNA;SRV01\n;SRV01;anna;SRV01\nStaff;;anna;SRV01\nStaff;SRV01;;SRV01\n"
         "Staff;SRV01;anna\nStaff;SRV01;nobody;SRV01\nNone;SRV01;anna;SRV01\nStaff;SRV01;o'x;SRV01\n"
         "Staff;SRV01;emil;SRV01\nStaff;SRV01;anna;SRV01",
         u"No GroupName on Line 2\nNo GroupServer on Line 3\nNo UserName on Line 4\nNo UserServer on Line 5\n"
         "\n\n\nSRV01\\Staff\tSRV01\\nobody User not found\n\n\tSRV01\\None Global Group not found\n"
         "SRV01\\Staff SRV01\\o'x Syntax error"_s,
         ";SRV01;anna;SRV01\r\nStaff;;anna;SRV01\r\nStaff;SRV01;;SRV01\r\nStaff;SRV01;anna\r\n"
         "Staff;SRV01;nobody;SRV01\r\nNone;SRV01;anna;SRV01\r\nStaff;SRV01;o'x;SRV01\r\n",
         u"SELECT GlobalGroupID & '|' & UserID FROM Tbl_GlobalGroupsUsers"_s,
         {u"1|1"_s, u"1|2"_s}},
        {u"Local Group - Global Groups (Relationships)"_s,
         "Bare;SRV01;Staff;SRV01\n;SRV01;Staff;SRV01\nBare;;Staff;SRV01\nBare;SRV01;;SRV01\n"
         "Bare;SRV01;Staff,SRV01\nBare;SRV01;None;SRV01\nNone;SRV01;Staff;SRV01",
         u"No Local Group Name on Line 2\nNo Local Group Server on Line 3\nNo Global Group Name on Line 4\n"
         "No Global Group Server on Line 5\n\n\n\nSRV01\\Bare\tSRV01\\None Global Group not found\n\n\t"
         "SRV01\\None Local Group not found"_s,
         ";SRV01;Staff;SRV01\r\nBare;;Staff;SRV01\r\nBare;SRV01;;SRV01\r\nBare;SRV01;Staff,SRV01\r\n"
         "Bare;SRV01;None;SRV01\r\nNone;SRV01;Staff;SRV01\r\n",
         u"SELECT LocalGroupID & '|' & GlobalGroupID FROM Tbl_LocalGroupsGlobalGroups"_s,
         {u"2|1"_s}},
        {u"Folders (Root Data)"_s,
         "C:\\Data;first\nD:\\\n;x\nE:\\It;don't\nF:\\;last;more",
         u"No Folder on Line 3\n\n\nE:\\It\\ could not be added to DB"_s,
         ";x\r\nE:\\It;don't\r\n",
         u"SELECT FolderName & '|' & Description FROM Tbl_Folders ORDER BY ID"_s,
         {u"C:\\Data\\|first"_s, u"D:\\|"_s, u"F:\\|last"_s}},
        {u"Folder Permissions (Relationships)"_s,
         "C:\\Data;Bare;SRV01;CH\nC:\\Data;anna;SRV01;Full Control\n;anna;SRV01;R\nD:\\;;SRV01;R\n"
         "D:\\;anna;;R\nD:\\;anna;SRV01\nD:\\;anna;SRV01;ch\nG:\\;anna;SRV01;L\nD:\\;nobody;SRV01;R\n"
         "D:\\;anna;SRV01;L;more",
         u"No Folder on Line 3\nNo User on Line 4\nNo Server on Line 5\nNo Permission on Line 6\n"
         "Permission not recognized on Line 7\n\n\nG:\\ not in DB\n"
         "SRV01\\nobody is not a Local Group and not a User in DB"_s,
         ";anna;SRV01;R\r\nD:\\;;SRV01;R\r\nD:\\;anna;;R\r\nD:\\;anna;SRV01\r\nD:\\;anna;SRV01;ch\r\n"
         "G:\\;anna;SRV01;L\r\nD:\\;nobody;SRV01;R\r\n",
         u"SELECT LocalGroupID & '|' & Permission FROM Tbl_LocalGroupFolderPermission UNION ALL "
         "SELECT FolderID & '|' & Permission FROM Tbl_UserFolderPermission"_s,
         {u"2|CH"_s, u"1|Full Control"_s, u"2|L"_s}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(qPrintable(c.type));
        const ImportFormat *format = importFormat(c.type);
        ASSERT_TRUE(format);
        if (format->updates)
            expectBox(updateQuestion, warningYesNoCancel, box::ResultYes);
        modImport::importFile(nullptr, c.type, write(c.file));
        EXPECT_EQ(column(c.written), c.rows);
        QString shown = resultText();
        shown.replace(QRegularExpression(u"Syntax error[^\n]*"_s), u"Syntax error"_s);
        EXPECT_EQ(shown, "Following Errors were encountered in File\n"_L1 + path(u"users.txt"_s) +
                             "\n\n\n"_L1 + c.errors);
        QFile saved(path(u"refused.txt"_s));
        saved.remove();
        expectFile(CommonDialog::Kind::Save, u"*.txt | *.txt"_s, saved.fileName());
        trigger(u"mnuFileSaveAttachment"_s);
        ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
        EXPECT_EQ(saved.readAll(), c.refused);
    }
}

TEST_F(ImportTest, AFileOfFaultsIsReportedInPart)
{
    importUsers(QByteArray(";\n").repeated(30'000), box::ResultYes);
    EXPECT_TRUE(resultText().endsWith(u"\nNo Username on Line 10000\nand 20000 more Line(s)\n\n"_s));
}

TEST_F(ImportTest, FieldsThatAreTooLongOrNoTextAreRefusedWithTheirLine)
{
    const std::string longest(255, 'x');
    importUsers(line("anna", longest.c_str()) + line("bert", (longest + 'x').c_str()) +
                    QByteArray(line("cleo", "A#B")).replace('#', '\0') + QByteArray(3'000'000, ';') + '\n' +
                    line("dora", std::string(3'000'000, 'y').c_str()) + line("emil", "Emil"),
                box::ResultYes);
    EXPECT_EQ(column(u"SELECT UserName FROM Tbl_Users ORDER BY UserID"_s),
              (QStringList{u"anna"_s, u"emil"_s}));
    EXPECT_TRUE(resultText().contains(u"\n\n\nField longer than 255 Characters on Line 2\n"
                                      "Field with a Null Character on Line 3\nLine too long on Line 4\n"
                                      "Line too long on Line 5\n\n"_s))
        << resultText().toStdString();
}

TEST_F(ImportTest, TheDialogHasTheResultAndEnterPressesTheFocusedButton)
{
    const QString file = write(";\n");
    expectBox(startQuestion, warningYesNo, box::ResultYes);
    expectBox(updateQuestion, warningYesNoCancel, box::ResultYes);
    whenShown<frmImport>([&](frmImport &dialog) {
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        dialog.cboImportType->setCurrentText(usersType);
        dialog.txtFileName->setText(file);
        dialog.txtFileName->setFocus();
        QTest::keyClick(dialog.txtFileName, Qt::Key_Return); // Import is the default
        EXPECT_EQ(lastBoxOwner(), &dialog);
        auto *result = find<frmResult>(u"frmResult"_s);
        EXPECT_EQ(result->parentWidget(), &dialog);
        EXPECT_TRUE(QTest::qWaitForWindowActive(result));

        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        dialog.cmdCancel->setFocus();
        EXPECT_TRUE(dialog.cmdCancel->isDefault());
        EXPECT_FALSE(dialog.cmdOK->isDefault()) << "Two buttons look like the default.";
        QTest::keyClick(dialog.cmdCancel, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    modImport::showImport(nullptr);
}

TEST_F(ImportTest, ALostStoreIsSaidInFrontOfTheCounts)
{
    const ImportFormat &format = *importFormat(usersType);
    modImportSteps::ImportLines lines(format);
    Report report;
    report.end = Report::End::Lost;
    report.added = 12;
    report.text = u"SRV01\\bert Syntax error"_s;
    report.note = u"There isn't enough disk space."_s;
    modImportSteps::reportImport(nullptr, u"users.txt"_s, format, report, lines);
    EXPECT_EQ(resultText(),
              u"The Import was broken off because the Database can no longer be written.\n\nThere isn't "
              "enough disk space.\n\nNew Users:              12\nUpdated Users:          0\n"
              "Errors encountered:     0\n\nFollowing Errors were encountered in File\nusers.txt\n\n\n\n"
              "Following User(s) generated Errors and could not be Imported:\n\nSRV01\\bert Syntax error"_s);
}

TEST_F(ImportTest, WhatTheStoreRefusesIsNamedBelowTheBadLines)
{
    importUsers(line("anna", "Anna O'Brien") + line("bert", "Bert") + ";\n", box::ResultYes);
    EXPECT_EQ(column(allUsers), QStringList{u"SRV01\\bert Bert"_s});
    EXPECT_TRUE(
        resultText().contains(u"No Username on Line 3\n\nFollowing User(s) generated Errors and could "
                              "not be Imported:\n\nSRV01\\anna "_s))
        << resultText().toStdString();
}

TEST_F(ImportTest, YesUpdatesKnownUsersAndNoLeavesThem)
{
    importUsersWell(line("anna", "Anna"), box::ResultYes);

    importUsersWell(line("ANNA", "Anna Two") + line("bert", "Bert"), box::ResultNo);
    EXPECT_EQ(column(allUsers), (QStringList{u"SRV01\\anna Anna"_s, u"SRV01\\bert Bert"_s}));

    importUsersWell(line("anna", "Anna Two"), box::ResultYes);
    EXPECT_EQ(column(u"SELECT FullName FROM Tbl_Users WHERE UserName = 'anna'"_s),
              QStringList{u"Anna Two"_s});
    EXPECT_EQ(column(u"SELECT COUNT(*) FROM Tbl_Users"_s), QStringList{u"2"_s});
}

TEST_F(ImportTest, CancelledQuestionReadsNothing)
{
    importUsers(line("anna", "Anna") + "bad line\n", box::ResultCancel);
    EXPECT_EQ(column(allUsers), QStringList());
    EXPECT_EQ(resultText(), QString());
}

TEST_F(ImportTest, EmptyFileIsASuccess)
{
    importUsersWell("", box::ResultYes);
    EXPECT_EQ(column(allUsers), QStringList());
}

TEST_F(ImportTest, OldFilesInWindows1252AreRead)
{
    importUsersWell(line("anna", "J\xfcrgen \x8ei\x9eka"), box::ResultYes);
    EXPECT_EQ(column(allUsers), QStringList{u"SRV01\\anna Jürgen Žižka"_s});
}

TEST_F(ImportTest, MissingStoreIsToldOnce)
{
    modRegistry::saveDataBase(path(u"nowhere.mdb"_s));
    const QString file = write(line("anna", "Anna") + line("bert", "Bert"));
    expectBox(startQuestion, warningYesNo, box::ResultYes);
    expectBox(updateQuestion, warningYesNoCancel, box::ResultYes);
    QString description;
    EXPECT_FALSE(attempt([&] { clsUsers().TestConnection(jet::connectionString(path(u"nowhere.mdb"_s))); }));
    description = QString::number(currentError().number) + "\r\n"_L1 + currentError().description;
    expectBox(description, box::StopIcon);
    import(usersType, file);
}

TEST_F(ImportTest, CancelWhileReadingWritesNothingAndReportsWhatWasFound)
{
    cancelIn(u"Reading Data from File. Please Wait."_s);
    QByteArray lines = ";\n";
    for (int i = 0; i < 2000; ++i)
        lines += line(("user" + std::to_string(i)).c_str(), "User");
    importUsers(lines, box::ResultYes);
    EXPECT_EQ(column(allUsers), QStringList());
    EXPECT_TRUE(resultText().startsWith(u"The Import was cancelled."_s)) << resultText().toStdString();
    EXPECT_TRUE(resultText().contains(u"No Username on Line 1\n"_s)) << resultText().toStdString();
}

TEST_F(ImportTest, CancelWhileWritingKeepsAndTellsWhatIsWritten)
{
    QByteArray lines;
    for (int i = 0; i < 2000; ++i)
        lines += line(("user" + std::to_string(i)).c_str(), "User");
    cancelIn(u"Writing Users to DB. Please Wait."_s);
    importUsers(lines, box::ResultYes);
    const int written = column(u"SELECT COUNT(*) FROM Tbl_Users"_s).value(0).toInt();
    EXPECT_GT(written, 0);
    EXPECT_LT(written, 2000);
    EXPECT_TRUE(resultText().startsWith(u"The Import was cancelled."_s)) << resultText().toStdString();
    EXPECT_TRUE(resultText().contains(u"New Users:              %1\n"_s.arg(written)))
        << resultText().toStdString();
}

TEST_F(ImportTest, ManyLinesAreImportedAndTheWindowLives)
{
    constexpr int count = 40'000;
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += line(("user" + std::to_string(i)).c_str(), "Jürgen User");
    int turns = 0;
    QElapsedTimer clock;
    clock.start();
    QTimer alive;
    QObject::connect(&alive, &QTimer::timeout, &alive, [&] { ++turns; });
    alive.start(0);
    importUsersWell(lines, box::ResultYes);
    EXPECT_GT(turns, clock.elapsed() / 500) << "Events got hardly a turn.";
    EXPECT_EQ(column(u"SELECT COUNT(*) FROM Tbl_Users"_s), QStringList{QString::number(count)});
    EXPECT_EQ(column(u"SELECT MAX(UserID) FROM Tbl_Users"_s), QStringList{QString::number(count)});
}

TEST_F(ImportTest, ARefusedNameCanBeCorrectedAtOnce)
{
    expectBox(u"The File you specified could not be found"_s, box::WarningIcon);
    whenShown<frmImport>([&](frmImport &dialog) {
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        EXPECT_EQ(dialog.focusWidget(), dialog.cboImportType);
        dialog.txtFileName->setFocus();
        QTest::keyClicks(dialog.txtFileName, path(u"missing.txt"_s));
        QTest::keyClick(dialog.txtFileName, Qt::Key_Return);
        EXPECT_EQ(dialog.focusWidget(), dialog.txtFileName);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    });
    modImport::showImport(nullptr);
}

TEST_F(ImportTest, TheOtherButtons)
{
    const QString file = write("a;b\n");
    QUrl opened;
    const desktop::Opener before = desktop::installOpener([&](const QUrl &url) {
        opened = url;
        return true;
    });
    expectFile(CommonDialog::Kind::Open, u"All Files | *.*"_s, QString());
    expectFile(CommonDialog::Kind::Open, u"All Files | *.*"_s, file);
    whenShown<frmImport>([&](frmImport &dialog) {
        dialog.txtFileName->setText(u"as it was"_s);
        QTest::mouseClick(dialog.cmdBrowse, Qt::LeftButton);
        EXPECT_EQ(dialog.txtFileName->text(), u"as it was"_s) << "A cancelled choice changes nothing.";
        QTest::mouseClick(dialog.cmdBrowse, Qt::LeftButton);
        EXPECT_EQ(dialog.txtFileName->text(), file);
        QTest::mouseClick(dialog.cmdPreview, Qt::LeftButton);
        EXPECT_EQ(opened.toLocalFile(), file);

        const auto information = [&](const QString &type) {
            dialog.cboImportType->setCurrentIndex(dialog.cboImportType->findText(type));
            QTest::mouseClick(dialog.cmdInfo, Qt::LeftButton);
            const auto *window = find<frmResult>(u"frmResult"_s);
            EXPECT_EQ(window->LblInfo->text(), u"Import Format Information"_s);
            return window->txtResult->toPlainText();
        };
        EXPECT_EQ(information(QString()), u"The Information you requested could not be found."_s);
        EXPECT_EQ(information(u"Folders (Root Data)"_s),
                  u"Please use following Data Format to Import Folders:\n\nFolder 1;Description 1\n"
                  "Folder 2;Description 2\n...\nFolder N;Description N"_s);
        QStringList formats;
        for (const ImportFormat &format : importFormats())
            formats.append(information(format.type));
        EXPECT_EQ(formats.removeDuplicates(), 0) << "Two types show the same format.";
        QTest::mouseClick(dialog.cmdCancel, Qt::LeftButton);
    });
    modImport::showImport(nullptr);
    desktop::installOpener(before);
}
