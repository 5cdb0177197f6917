#include "platform/jet/errors.h"
#include "store/clsUsers.h"
#include "support/recordtest.h"
#include "support/scriptedsteps.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList fileFields =
    u"UserID UserName ServerName FullName Comment UserComment HomeDirDrive HomeDir "
    "Profile ScriptPath AccDisabled NoChangePwd NoExpirePwd"_s.split(u' ');

QStringList fileLine(const QString &id, const QString &name, const QString &server,
                     const QString &comment = {})
{
    return {id, name, server, u"Full "_s + name, comment, {}, u"H:"_s, {}, {}, {}, u"0"_s, u"1"_s, u"0"_s};
}

class UserBatchTest : public RecordTest
{
protected:
    void importLines(const QList<QStringList> &lines, bool leaveExisting = false)
    {
        jet::Recordset records;
        makeRecords(records, fileFields, lines);
        take(users.AddBatchFromFile(connection, records, leaveExisting, steps));
    }

    /// As from the live system: all columns up to SID, numbers 0 where nothing is given.
    void importLive(const QList<QHash<QString, QString>> &accounts, bool leaveExisting = false)
    {
        jet::Recordset structure;
        users.getStructure(connection, structure);
        jet::Recordset records;
        for (int i = 0; i < structure.fields().count(); ++i)
            records.fields().append(structure.fields().item(i).name(), jet::FieldType::Variant, 0);
        records.open();
        for (const auto &account : accounts) {
            records.addNew();
            for (int i = 0; i < records.fields().count(); ++i) {
                const bool isText = structure.fields().item(i).type() == jet::FieldType::Text ||
                                    structure.fields().item(i).type() == jet::FieldType::Memo;
                const QString value = account.value(records.fields().item(i).name());
                if (isText)
                    records.fields().item(i).setValue(value);
                else
                    records.fields().item(i).setValue(value.toInt());
            }
        }
        take(users.AddBatch(connection, records, leaveExisting, steps));
    }

    void take(const Report &report)
    {
        added += report.added;
        updated += report.updated;
        failed += report.failed;
        text += report.text;
        note = report.note;
        end = report.end;
    }

    void expectCounts(int wantAdded, int wantUpdated, int wantFailed)
    {
        EXPECT_EQ(added, wantAdded);
        EXPECT_EQ(updated, wantUpdated);
        EXPECT_EQ(failed, wantFailed) << text.toStdString();
    }

    clsUsers users;
    int added = 0;
    int updated = 0;
    int failed = 0;
    QString text;
    QString note;
    Report::End end = Report::End::Finished;
    ScriptedSteps steps;
};

} // namespace

TEST_F(UserBatchTest, AddBatchFromFile_NumbersTheUsersOfAnEmptyStore)
{
    importLines({fileLine(u"0"_s, u"anna"_s, u"SRV01"_s), fileLine(u"0"_s, u"bert"_s, u"SRV01"_s),
                 fileLine(u"1105"_s, u"cleo"_s, u"SRV01"_s), fileLine(u"0"_s, u"dora"_s, u"SRV01"_s)});
    expectCounts(4, 0, 0);
    EXPECT_EQ(text, QString());
    EXPECT_EQ(
        rows(u"SELECT UserID, UserName, FullName, HomeDirDrive, AccDisabled, NoChangePwd FROM Tbl_Users "
             "ORDER BY UserID"_s),
        (Rows{u"1|anna|Full anna|H:|False|True"_s, u"2|bert|Full bert|H:|False|True"_s,
              u"1105|cleo|Full cleo|H:|False|True"_s, u"1106|dora|Full dora|H:|False|True"_s}));
}

TEST_F(UserBatchTest, TakenIdIsReplacedAndCountsAsNewAndAsError)
{
    importLive({{{u"UserID"_s, u"500"_s}, {u"UserName"_s, u"anna"_s}, {u"ServerName"_s, u"SRV01"_s}},
                {{u"UserID"_s, u"500"_s}, {u"UserName"_s, u"anna"_s}, {u"ServerName"_s, u"SRV02"_s}}});
    expectCounts(2, 0, 1);
    EXPECT_EQ(text, "SRV02\\anna a new UserID has been generated. This User may cause Problems when "
                    "Re-Importing Account Settings from Live System.\r\n"_L1);
    EXPECT_EQ(rows(u"SELECT UserID, ServerName FROM Tbl_Users ORDER BY UserID"_s),
              (Rows{u"500|SRV01"_s, u"501|SRV02"_s}));
}

TEST_F(UserBatchTest, TakenIdIsNotTestedForAKnownUser)
{
    const QList<QHash<QString, QString>> accounts = {
        {{u"UserID"_s, u"500"_s}, {u"UserName"_s, u"anna"_s}, {u"ServerName"_s, u"SRV01"_s}},
        {{u"UserID"_s, u"500"_s}, {u"UserName"_s, u"anna"_s}, {u"ServerName"_s, u"SRV02"_s}}};
    importLive(accounts);
    importLive(accounts);
    expectCounts(2, 2, 1);
    EXPECT_EQ(rows(u"SELECT UserID, ServerName FROM Tbl_Users ORDER BY ServerName"_s),
              (Rows{u"500|SRV01"_s, u"500|SRV02"_s}));
}

TEST_F(UserBatchTest, AnIdIsNewForZeroAndNothingAndRefusedForWhatIsNoId)
{
    importLines({fileLine(u"0"_s, u"anna"_s, u"S"_s), fileLine({}, u"bert"_s, u"S"_s),
                 fileLine(u"abc"_s, u"cleo"_s, u"S"_s), fileLine(u"3000000000"_s, u"dora"_s, u"S"_s),
                 fileLine(u" 0 "_s, u"emil"_s, u"S"_s), fileLine(u"True"_s, u"fred"_s, u"S"_s),
                 fileLine(u"0.4"_s, u"gina"_s, u"S"_s)});
    expectCounts(3, 0, 4);
    EXPECT_EQ(rows(u"SELECT UserID, UserName FROM Tbl_Users ORDER BY UserID"_s),
              (Rows{u"1|anna"_s, u"2|bert"_s, u"3|emil"_s}));
    EXPECT_EQ(text, "S\\cleo 'abc' is no UserID.\r\nS\\dora '3000000000' is no UserID.\r\n"
                    "S\\fred 'True' is no UserID.\r\nS\\gina '0.4' is no UserID.\r\n"_L1);
}

TEST_F(UserBatchTest, LeaveExisting_PassesKnownUsersOverUncounted)
{
    importLines({fileLine(u"0"_s, u"anna"_s, u"SRV01"_s, u"first"_s)});
    importLines(
        {fileLine(u"0"_s, u"ANNA"_s, u"srv01"_s, u"second"_s), fileLine(u"0"_s, u"bert"_s, u"SRV01"_s)},
        true);
    expectCounts(2, 0, 0);
    EXPECT_EQ(rows(u"SELECT UserID, UserName, Comment FROM Tbl_Users ORDER BY UserID"_s),
              (Rows{u"1|anna|first"_s, u"2|bert|"_s}));
}

TEST_F(UserBatchTest, Reimport_KeepsContactColumns)
{
    UserRecord known;
    known.UserName = u"anna"_s;
    known.ServerName = u"SRV01"_s;
    known.Password = u"typed"_s;
    known.LastName = u"Ärmel"_s;
    known.Department = u"IT"_s;
    known.Comment = u"old"_s;
    users.Add(connection, known);
    importLive({{{u"UserID"_s, u"1"_s},
                 {u"UserName"_s, u"anna"_s},
                 {u"ServerName"_s, u"SRV01"_s},
                 {u"Comment"_s, u"new"_s},
                 {u"LastName"_s, u"from nowhere"_s},
                 {u"SID"_s, u"S-1"_s}}});
    expectCounts(0, 1, 0);
    EXPECT_EQ(rows(u"SELECT LastName, Department, Comment, Password, SID FROM Tbl_Users"_s),
              Rows{u"Ärmel|IT|new||S-1"_s});
}

TEST_F(UserBatchTest, BatchInsertLeavesContactColumnsAndSidNull)
{
    importLive({{{u"UserName"_s, u"anna"_s}, {u"ServerName"_s, u"SRV01"_s}, {u"SID"_s, u"S-1"_s}}});
    EXPECT_EQ(rows(u"SELECT SID, LastName, Division, ServerName FROM Tbl_Users"_s), Rows{u"-|-|-|SRV01"_s});
}

TEST_F(UserBatchTest, ChangedId_MovesTheRelationshipsExceptLocalGroups)
{
    const QStringList moved = {u"Tbl_GlobalGroupsUsers (GlobalGroupID, UserID)"_s,
                               u"Tbl_RoomUsers (RoomID, UserID)"_s, u"Tbl_UserHW (HWID, UserID)"_s,
                               u"Tbl_UserFolderPermission (FolderID, UserID)"_s};
    importLines({fileLine(u"0"_s, u"anna"_s, u"SRV01"_s), fileLine(u"0"_s, u"bert"_s, u"SRV01"_s)});
    for (const QString &table : moved + QStringList{u"Tbl_LocalGroupsUsers (LocalGroupID, UserID)"_s}) {
        run("INSERT INTO "_L1 + table + " VALUES (10, 1)"_L1);
        run("INSERT INTO "_L1 + table + " VALUES (11, 2)"_L1);
    }
    importLive({{{u"UserID"_s, u"1105"_s}, {u"UserName"_s, u"anna"_s}, {u"ServerName"_s, u"SRV01"_s}}});
    expectCounts(2, 1, 0);
    for (const QString &table : moved)
        EXPECT_EQ(rows("SELECT UserID FROM "_L1 + table.section(u' ', 0, 0) + " ORDER BY UserID"_L1),
                  (Rows{u"2"_s, u"1105"_s}))
            << table.toStdString();
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_LocalGroupsUsers ORDER BY UserID"_s), (Rows{u"1"_s, u"2"_s}));
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_Users WHERE UserName = 'anna'"_s), Rows{u"1105"_s});
}

TEST_F(UserBatchTest, ChangedId_MovesWhatItCanWhenATableIsMissing)
{
    importLines({fileLine(u"0"_s, u"anna"_s, u"SRV01"_s)});
    run(u"INSERT INTO Tbl_GlobalGroupsUsers (GlobalGroupID, UserID) VALUES (10, 1)"_s);
    run(u"INSERT INTO Tbl_UserFolderPermission (FolderID, UserID) VALUES (10, 1)"_s);
    run(u"DROP TABLE Tbl_RoomUsers"_s);
    importLive({{{u"UserID"_s, u"1105"_s}, {u"UserName"_s, u"anna"_s}, {u"ServerName"_s, u"SRV01"_s}}});
    expectCounts(1, 1, 0);
    EXPECT_EQ(text, QString());
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_GlobalGroupsUsers UNION ALL "
                   "SELECT UserID FROM Tbl_UserFolderPermission"_s),
              (Rows{u"1105"_s, u"1105"_s}));
}

TEST_F(UserBatchTest, FileLineOfAKnownUserGetsAGeneratedId)
{
    importLines({fileLine(u"0"_s, u"anna"_s, u"SRV01"_s), fileLine(u"0"_s, u"bert"_s, u"SRV01"_s)});
    importLines({fileLine(u"0"_s, u"anna"_s, u"SRV01"_s, u"again"_s)});
    expectCounts(2, 1, 0);
    EXPECT_EQ(rows(u"SELECT UserID, Comment FROM Tbl_Users WHERE UserName = 'anna'"_s), Rows{u"3|again"_s});
}

TEST_F(UserBatchTest, Apostrophe_IsKeptInTheFourEscapedValuesOfAddBatchOnly)
{
    const QHash<QString, QString> account = {
        {u"UserID"_s, u"5"_s},     {u"UserName"_s, u"anna"_s},         {u"ServerName"_s, u"SRV01"_s},
        {u"Comment"_s, u"it's"_s}, {u"FullName"_s, u"Anna O'Brien"_s}, {u"UserComment"_s, u"'"_s}};
    const QString sql = u"SELECT Comment, FullName, UserComment FROM Tbl_Users"_s;
    importLive({account});
    EXPECT_EQ(rows(sql), Rows{u"it's|Anna O'Brien|'"_s});
    importLive({account});
    expectCounts(1, 1, 0);
    EXPECT_EQ(rows(sql), Rows{u"it's|Anna O'Brien|'"_s});

    QHash<QString, QString> unescaped = account;
    unescaped[u"UserID"_s] = u"6"_s;
    unescaped[u"UserName"_s] = u"bert"_s;
    unescaped[u"Profile"_s] = u"c:\\it's"_s;
    importLive({unescaped});
    expectCounts(1, 1, 1);
    EXPECT_TRUE(text.startsWith("SRV01\\bert "_L1)) << text.toStdString();
    EXPECT_EQ(rows(u"SELECT UserName FROM Tbl_Users"_s), Rows{u"anna"_s});

    // The look-up of the account is not escaped.
    unescaped[u"UserName"_s] = u"o'brien"_s;
    unescaped[u"Profile"_s] = QString();
    importLive({unescaped});
    expectCounts(1, 1, 2);
    EXPECT_TRUE(text.contains(u"SRV01\\o'brien ")) << text.toStdString();
    EXPECT_EQ(rows(u"SELECT UserName FROM Tbl_Users"_s), Rows{u"anna"_s});
}

TEST_F(UserBatchTest, FailedRowsAreNamedAndTheBatchGoesOn)
{
    QStringList badFlag = fileLine(u"0"_s, u"bert"_s, u"SRV01"_s);
    badFlag[10] = u"perhaps"_s;
    importLines({fileLine(u"0"_s, u"anna"_s, u"SRV01"_s, u"it's"_s), badFlag,
                 fileLine(u"0"_s, u"o'brien"_s, u"SRV02"_s), fileLine(u"0"_s, u"dora"_s, u"SRV01"_s)});
    expectCounts(1, 0, 3);
    EXPECT_EQ(rows(u"SELECT UserID, UserName FROM Tbl_Users"_s), Rows{u"1|dora"_s});
    const QStringList lines = text.split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 4) << text.toStdString();
    EXPECT_TRUE(lines[0].startsWith(u"SRV01\\anna ")) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].startsWith(u"SRV01\\bert ")) << lines[1].toStdString();
    EXPECT_TRUE(lines[2].startsWith(u"SRV02\\o'brien ")) << lines[2].toStdString();
    for (int i = 0; i < 3; ++i)
        EXPECT_GT(lines[i].size(), 20) << "no reason is given";
    EXPECT_EQ(lines[3], QString());
}

TEST_F(UserBatchTest, FlagsGoAsTheyStandIntoTheStatement)
{
    QStringList flags = fileLine(u"0"_s, u"anna"_s, u"SRV01"_s);
    flags[10] = u"-1"_s;
    flags[11] = u"0"_s;
    flags[12] = u"True"_s;
    importLines({flags});
    expectCounts(1, 0, 0);
    EXPECT_EQ(rows(u"SELECT AccDisabled, NoChangePwd, NoExpirePwd FROM Tbl_Users"_s),
              Rows{u"True|False|True"_s});
}

TEST_F(UserBatchTest, NoRecordsDoNothing)
{
    importLines({});
    expectCounts(0, 0, 0);
    EXPECT_EQ(text, QString());
}

TEST_F(UserBatchTest, CancelBeforeTheThirdKeepsTheFirstTwo)
{
    steps.cancelAt = 3;
    importLines({fileLine(u"0"_s, u"anna"_s, u"S"_s), fileLine(u"0"_s, u"bert"_s, u"S"_s),
                 fileLine(u"0"_s, u"cleo"_s, u"S"_s)});
    EXPECT_EQ(steps.items, (QStringList{u"S\\anna"_s, u"S\\bert"_s, u"S\\cleo"_s}));
    EXPECT_EQ(end, Report::End::Cancelled);
    expectCounts(2, 0, 0);
    EXPECT_EQ(rows(u"SELECT UserName FROM Tbl_Users ORDER BY UserID"_s), (Rows{u"anna"_s, u"bert"_s}));
}

TEST_F(UserBatchTest, AMissingStoreEndsTheBatchAtOnce)
{
    connection = jet::connectionString(folder.filePath(u"nowhere.kvs"_s));
    importLines({fileLine(u"0"_s, u"anna"_s, u"S"_s), fileLine(u"0"_s, u"bert"_s, u"S"_s)});
    EXPECT_EQ(end, Report::End::Lost);
    expectCounts(0, 0, 0);
    EXPECT_EQ(note.count(u"nowhere.kvs"), 1) << note.toStdString();
    EXPECT_TRUE(note.endsWith(u"Not in the Database: 2 of 2, from S\\anna to S\\bert")) << note.toStdString();
}

TEST_F(UserBatchTest, RecordsWithoutAFieldAreRefusedBeforeAnythingIsWritten)
{
    jet::Recordset records;
    makeRecords(records, fileFields.first(12), {fileLine(u"0"_s, u"anna"_s, u"S"_s).first(12)});
    const CurrentError error =
        errorOf([&] { (void)users.AddBatchFromFile(connection, records, false, steps); });
    EXPECT_EQ(error.number, jet::ItemNotFound);
    EXPECT_EQ(users.errorDescription(), error.description);
    EXPECT_TRUE(error.description.contains(u"NoExpirePwd"));
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_Users"_s), Rows());
}
