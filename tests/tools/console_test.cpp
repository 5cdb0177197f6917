#include "console.h"

#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "platform/settings/settings.h"
#include "session/modRegistry.h"
#include "store/storefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sstream>

using namespace Qt::StringLiterals;

namespace {

struct Answer
{
    int status = 0;
    std::string out;
    std::string complaints;
};

class ConsoleTest : public testing::Test
{
protected:
    Answer run(const QStringList &arguments, const std::string &input = {})
    {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream complaints;
        Console console{in, out, complaints};
        const int status = runCommand(QStringList{u"kelvane-store"_s} + arguments, console);
        return {status, out.str(), complaints.str()};
    }

    Answer sql(const std::string &input)
    {
        if (!QFile::exists(path))
            createStore(path);
        return run({u"sql"_s, path}, input);
    }

    qint64 number(const QString &statement)
    {
        jet::Connection connection;
        connection.open(jet::connectionString(path));
        jet::Recordset result;
        result.open(statement, connection);
        return result.value(0).toInteger();
    }

    QTemporaryDir folder;
    QString path = folder.filePath("plan.mdb"_L1);
};

} // namespace

TEST_F(ConsoleTest, Create_MakesAnEmptyStoreOrASample)
{
    EXPECT_EQ(run({u"create"_s, path}).status, ExitDone);
    EXPECT_EQ(number(u"SELECT Count(*) FROM Tbl_Users"_s), 0);

    path = folder.filePath("sample.mdb"_L1);
    EXPECT_EQ(run({u"create"_s, path, u"--sample"_s, u"30"_s}).status, ExitDone);
    EXPECT_EQ(number(u"SELECT Count(*) FROM Tbl_Users"_s), 30);
}

TEST_F(ConsoleTest, Create_LeavesAFileThatIsThereAlone)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    const Answer answer = run({u"create"_s, path});
    EXPECT_EQ(answer.status, ExitRefused);
    EXPECT_NE(answer.complaints.find("plan.mdb"), std::string::npos) << answer.complaints;
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "mine");
}

TEST_F(ConsoleTest, Sql_AnswersEachStatementInOrder)
{
    const Answer answer = sql("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('A \"1\"')\n"
                              "\n"
                              "  \r\n"
                              "SELECT ID, RoomNumber, Description FROM Tbl_Rooms\r\n"
                              "SELECT * FROM Tbl_Nowhere\n"
                              "SELECT ID FROM Tbl_Rooms WHERE ID = 2");
    EXPECT_EQ(answer.status, ExitRefused);
    EXPECT_EQ(answer.complaints, "");
    std::istringstream lines(answer.out);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, R"({"ok":true})");
    std::getline(lines, line);
    EXPECT_EQ(line, R"({"columns":["ID","RoomNumber","Description"],"rows":[[1,"A \"1\"",null]]})");
    std::getline(lines, line);
    const QJsonObject error = QJsonDocument::fromJson(QByteArray::fromStdString(line))["error"_L1].toObject();
    EXPECT_EQ(error["number"_L1].toInt(), -2147217865);
    EXPECT_TRUE(error["text"_L1].toString().contains("Tbl_Nowhere"_L1));
    std::getline(lines, line);
    EXPECT_EQ(line, R"({"columns":["ID"],"rows":[]})");
    EXPECT_FALSE(std::getline(lines, line));
}

TEST_F(ConsoleTest, Sql_WritesEveryKindOfValue)
{
    const Answer answer =
        sql("INSERT INTO Tbl_HW (HWTypeID,SerialNumber,PurchaseDate,EUCD) VALUES (-7,'\xC3\x84\\',#3/4/2005 "
            "14:30:00#,1)\n"
            "SELECT HWTypeID, HWTypeID / 2 AS Half, SerialNumber, PurchaseDate, EUCD, Network, Usage FROM "
            "Tbl_HW\n");
    EXPECT_EQ(answer.status, ExitDone);
    EXPECT_NE(answer.out.find("[-7,-3.5,\"\xC3\x84\\\\\",\"2005-03-04 14:30:00\",true,false,null]"),
              std::string::npos)
        << answer.out;
}

TEST_F(ConsoleTest, Sql_KeepsWhatWasWrittenBeforeARefusal)
{
    EXPECT_EQ(sql("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('1')\nrubbish\n"
                  "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('2')\n")
                  .status,
              ExitRefused);
    EXPECT_EQ(number(u"SELECT Count(*) FROM Tbl_Rooms"_s), 2);
}

TEST_F(ConsoleTest, Sql_RefusesWhatIsNoUtf8AndPassesOverAMark)
{
    const Answer answer = sql("\xEF\xBB\xBFINSERT INTO Tbl_Rooms (RoomNumber) VALUES ('K\xC3\xBC')\r\n"
                              "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('K\xFC')\n"
                              "SELECT 'cut off\xC3\n"
                              "SELECT RoomNumber FROM Tbl_Rooms\n");
    EXPECT_EQ(answer.status, ExitRefused);
    const std::string refused =
        R"({"error":{"number":-2147217900,"text":"The statement is no valid UTF-8."}})";
    EXPECT_EQ(answer.out, R"({"ok":true})"
                          "\n" +
                              refused + "\n" + refused +
                              "\n"
                              R"({"columns":["RoomNumber"],"rows":[["K)"
                              "\xC3\xBC"
                              R"("]]})"
                              "\n");
}

TEST_F(ConsoleTest, Sql_RefusesAMissingStore)
{
    const Answer answer = run({u"sql"_s, path}, "SELECT 1\n");
    EXPECT_EQ(answer.status, ExitRefused);
    EXPECT_EQ(answer.out, "");
    EXPECT_NE(answer.complaints.find("plan.mdb"), std::string::npos) << answer.complaints;
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ConsoleTest, Check_TellsFindingsAndTheStatusOfAScript)
{
    createStore(path);
    const Answer sound = run({u"check"_s, path});
    EXPECT_EQ(sound.status, ExitDone);
    EXPECT_EQ(sound.out, "The store is in order.\n");

    sql("DROP INDEX IDX_SWHW_HWID ON Tbl_SWHW\nINSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,1)\n");
    const Answer broken = run({u"check"_s, path});
    EXPECT_EQ(broken.status, ExitFindings);
    EXPECT_EQ(broken.out, "Index IDX_SWHW_HWID of table Tbl_SWHW is missing.\n"
                          "Table Tbl_RoomUsers: 1 row has a RoomID that is not in Tbl_Rooms.\n"
                          "Table Tbl_RoomUsers: 1 row has a UserID that is not in Tbl_Users.\n");
    EXPECT_EQ(broken.complaints, "");

    const Answer unreadable = run({u"check"_s, folder.path()});
    EXPECT_EQ(unreadable.status, ExitUnreadable);
    EXPECT_EQ(unreadable.out, "");
    EXPECT_NE(unreadable.complaints.find(folder.path().toStdString()), std::string::npos)
        << unreadable.complaints;
}

TEST_F(ConsoleTest, Check_RepairsWhatHasLostAnEnd)
{
    sql("INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,1)\n");
    const Answer repaired = run({u"check"_s, path, u"--repair"_s});
    EXPECT_EQ(repaired.status, ExitDone);
    EXPECT_EQ(repaired.out, "The store as it was is kept in " + folder.path().toStdString() +
                                "/plan-before-repair.mdb.\n"
                                "Table Tbl_RoomUsers: removed 1 row whose RoomID is not in Tbl_Rooms.\n"
                                "The store is in order.\n");
    EXPECT_EQ(run({u"check"_s, path}).out, "The store is in order.\n");

    sql("DROP INDEX IDX_SWHW_HWID ON Tbl_SWHW\nINSERT INTO Tbl_Rooms (ID) VALUES (1)\n"
        "INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (1,1)\n");
    EXPECT_EQ(run({u"check"_s, path, u"--repair"_s}).status, ExitFindings) << "an index is still missing";
    sql("INSERT INTO Tbl_RoomHW (RoomID,HWID) VALUES (1,1)\nDELETE * FROM Tbl_Rooms\n");
    EXPECT_EQ(number(u"SELECT Count(*) FROM Tbl_RoomHW"_s), 0);
    EXPECT_EQ(run({u"check"_s, folder.path(), u"--repair"_s}).status, ExitUnreadable);
}

TEST_F(ConsoleTest, Use_ChoosesTheStoreThatTheProgramOpens)
{
    settings::setFolder(folder.path());
    EXPECT_EQ(run({u"use"_s}).status, ExitNoStore);

    createStore(path);
    EXPECT_EQ(run({u"use"_s, QDir::current().relativeFilePath(path)}).status, ExitDone);
    EXPECT_EQ(modRegistry::getDataBase(), path);
    const Answer chosen = run({u"use"_s});
    EXPECT_EQ(chosen.status, ExitDone);
    EXPECT_EQ(chosen.out, path.toStdString() + '\n');

    const QString other = settings::fileOf(u"Kelvane"_s);
    for (const QString &noStore : {other, folder.filePath("absent.mdb"_L1), folder.path()}) {
        const Answer refused = run({u"use"_s, noStore});
        EXPECT_EQ(refused.status, ExitRefused);
        EXPECT_NE(refused.complaints.find(noStore.toStdString()), std::string::npos) << refused.complaints;
    }
    EXPECT_EQ(modRegistry::getDataBase(), path);
    settings::setFolder({});
}

TEST_F(ConsoleTest, RefusesArgumentsThatMakeNoSense)
{
    const std::pair<QStringList, std::string> nonsense[] = {
        {{}, "a command is missing"},
        {{u"create"_s}, "create takes one path"},
        {{u"sql"_s, path, path}, "sql takes one path"},
        {{u"check"_s}, "check takes one path"},
        {{u"use"_s, path, path}, "use takes one path"},
        {{u"destroy"_s, path}, "there is no command 'destroy'"},
        {{u"create"_s, path, u"--sample"_s}, "--sample"},
        {{u"create"_s, path, u"--sample"_s, u"many"_s}, "not 'many'"},
        {{u"create"_s, path, u"--sample"_s, u"-1"_s}, "not '-1'"},
        {{u"create"_s, path, u"30"_s}, "create takes one path"},
        {{u"create"_s, path, u"--force"_s}, "force"},
        {{u"check"_s, path, u"--sample"_s, u"30"_s}, "check does not take --sample"},
        {{u"sql"_s, path, u"--repair"_s}, "sql does not take --repair"},
    };
    for (const auto &[arguments, says] : nonsense) {
        SCOPED_TRACE(arguments.join(u' ').toStdString());
        const Answer answer = run(arguments);
        EXPECT_EQ(answer.status, ExitUsage);
        EXPECT_NE(answer.complaints.find(says), std::string::npos) << answer.complaints;
        EXPECT_EQ(answer.out, "");
        EXPECT_FALSE(QFile::exists(path));
    }
}

TEST_F(ConsoleTest, HelpAndVersionAreNoComplaints)
{
    for (const auto &[option, says] :
         {std::pair("--help", "reports what is wrong"), {"--version", "3.0.253"}}) {
        const Answer answer = run({QString::fromLatin1(option)});
        EXPECT_EQ(answer.status, ExitDone);
        EXPECT_NE(answer.out.find(says), std::string::npos) << answer.out;
        EXPECT_EQ(answer.complaints, "");
    }
}

TEST_F(ConsoleTest, Sql_WaitsForTheNextStatementWithNothingPending)
{
    createStore(path);
    QProcess process;
    process.start(QStringLiteral(KELVANE_STORE), {u"sql"_s, path});
    process.write("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('1')\n");
    ASSERT_TRUE(process.waitForReadyRead());
    EXPECT_EQ(process.readAllStandardOutput(), "{\"ok\":true}\n");

    // It still runs, and another user of the store sees the row and may write.
    sql("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('2')\n");
    EXPECT_EQ(number(u"SELECT Count(*) FROM Tbl_Rooms"_s), 2);

    // The same behind a statement that is refused.
    process.write(
        "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('3')\nINSERT INTO Tbl_Rooms (Nope) VALUES (1)\n");
    QByteArray answers;
    while (answers.count('\n') < 2 && process.waitForReadyRead())
        answers += process.readAllStandardOutput();
    EXPECT_TRUE(answers.contains("error")) << answers.toStdString();
    sql("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('4')\n");
    EXPECT_EQ(number(u"SELECT Count(*) FROM Tbl_Rooms"_s), 4);

    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), ExitRefused);
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
