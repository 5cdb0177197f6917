#include "platform/jet/errors.h"
#include "store/clsUsers.h"
#include "support/recordtest.h"
#include "support/scriptedsteps.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList fileFields =
    u"UserID UserName ServerName FullName Comment UserComment HomeDirDrive HomeDir "
    "Profile ScriptPath AccDisabled NoChangePwd NoExpirePwd"_s.split(u' ');

constexpr auto idsAndServers = "SELECT UserID, ServerName FROM Tbl_Users ORDER BY ServerName"_L1;
constexpr auto idsAndNames = "SELECT UserID, UserName FROM Tbl_Users ORDER BY UserID"_L1;

/// The fields of a file from a text of id, name, server, comment and the three flags, which may be left out.
QStringList fileLine(const QString &text)
{
    const QStringList given = text.split(u'|');
    const QString name = given.value(1);
    return {given.value(0),
            name,
            given.value(2),
            u"Full "_s + name,
            given.value(3),
            {},
            u"H:"_s,
            {},
            {},
            {},
            given.value(4, u"0"_s),
            given.value(5, u"1"_s),
            given.value(6, u"0"_s)};
}

class UserBatchTest : public RecordTest
{
protected:
    void importLines(const QStringList &lines, bool leaveExisting = false)
    {
        QList<QStringList> fields;
        for (const QString &line : lines)
            fields += fileLine(line);
        jet::Recordset records;
        makeRecords(records, fileFields, fields);
        take(users.AddBatchFromFile(connection, records, leaveExisting, steps));
    }

    /// As from the live system: all columns up to SID, numbers 0 where nothing is given. An account is its
    /// fields as "name=value", with bars between.
    void importLive(const QStringList &accounts)
    {
        jet::Recordset structure;
        users.getStructure(connection, structure);
        jet::Recordset records;
        for (int i = 0; i < structure.fields().count(); ++i)
            records.fields().append(structure.fields().item(i).name(), jet::FieldType::Variant, 0);
        records.open();
        for (const QString &account : accounts) {
            records.addNew();
            for (int i = 0; i < records.fields().count(); ++i) {
                const bool isText = structure.fields().item(i).type() == jet::FieldType::Text ||
                                    structure.fields().item(i).type() == jet::FieldType::Memo;
                const QString start = u'|' + records.fields().item(i).name() + u'=';
                const QString value = QString(u'|' + account).section(start, 1).section(u'|', 0, 0);
                records.fields().item(i).setValue(isText ? Value(value) : Value(value.toInt()));
            }
        }
        take(users.AddBatch(connection, records, false, steps));
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
        EXPECT_EQ((QList<int>{added, updated, failed}), (QList<int>{wantAdded, wantUpdated, wantFailed}))
            << text.toStdString();
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
    importLines({u"0|anna|SRV01"_s, u"0|bert|SRV01"_s, u"1105|cleo|SRV01"_s, u"0|dora|SRV01"_s});
    expectCounts(4, 0, 0);
    EXPECT_EQ(text, QString());
    EXPECT_EQ(
        rows(u"SELECT UserID, UserName, FullName, HomeDirDrive, AccDisabled, NoChangePwd FROM Tbl_Users "
             "ORDER BY UserID"_s),
        (Rows{u"1|anna|Full anna|H:|False|True"_s, u"2|bert|Full bert|H:|False|True"_s,
              u"1105|cleo|Full cleo|H:|False|True"_s, u"1106|dora|Full dora|H:|False|True"_s}));
}

TEST_F(UserBatchTest, ATakenIdIsReplacedAndCountsAsNewAndAsErrorButNotForAKnownUser)
{
    const QStringList accounts = {u"UserID=500|UserName=anna|ServerName=SRV01"_s,
                                  u"UserID=500|UserName=anna|ServerName=SRV02"_s};
    importLive(accounts);
    expectCounts(2, 0, 1);
    EXPECT_EQ(text, "SRV02\\anna a new UserID has been generated. This User may cause Problems when "
                    "Re-Importing Account Settings from Live System.\r\n"_L1);
    EXPECT_EQ(rows(idsAndServers), (Rows{u"500|SRV01"_s, u"501|SRV02"_s}));
    importLive(accounts);
    expectCounts(2, 2, 1);
    EXPECT_EQ(rows(idsAndServers), (Rows{u"500|SRV01"_s, u"500|SRV02"_s}));
}

TEST_F(UserBatchTest, AnIdIsNewForZeroAndNothingAndRefusedForWhatIsNoId)
{
    importLines({u"0|anna|S"_s, u"|bert|S"_s, u"abc|cleo|S"_s, u"3000000000|dora|S"_s, u" 0 |emil|S"_s,
                 u"True|fred|S"_s, u"0.4|gina|S"_s});
    expectCounts(3, 0, 4);
    EXPECT_EQ(rows(idsAndNames), (Rows{u"1|anna"_s, u"2|bert"_s, u"3|emil"_s}));
    EXPECT_EQ(text, "S\\cleo 'abc' is not a UserID.\r\nS\\dora '3000000000' is not a UserID.\r\n"
                    "S\\fred 'True' is not a UserID.\r\nS\\gina '0.4' is not a UserID.\r\n"_L1);
}

TEST_F(UserBatchTest, AKnownUserIsPassedOverUncountedOrGetsAGeneratedId)
{
    const QString sql = u"SELECT UserID, UserName, Comment FROM Tbl_Users ORDER BY UserID"_s;
    importLines({u"0|anna|SRV01|first"_s});
    importLines({u"0|ANNA|srv01|second"_s, u"0|bert|SRV01"_s}, true);
    expectCounts(2, 0, 0);
    EXPECT_EQ(rows(sql), (Rows{u"1|anna|first"_s, u"2|bert|"_s}));
    importLines({u"0|anna|SRV01|again"_s});
    expectCounts(2, 1, 0);
    EXPECT_EQ(rows(sql), (Rows{u"2|bert|"_s, u"3|anna|again"_s}));
}

TEST_F(UserBatchTest, ContactColumnsAreNotOfTheLiveSystem)
{
    const QString sql = u"SELECT LastName, Department, Comment, Password, SID, ServerName FROM Tbl_Users "
                        "ORDER BY UserID"_s;
    UserRecord known;
    known.UserName = u"anna"_s;
    known.ServerName = u"SRV01"_s;
    known.Password = u"typed"_s;
    known.LastName = u"Ärmel"_s;
    known.Department = u"IT"_s;
    known.Comment = u"old"_s;
    users.Add(connection, known);
    importLive({u"UserID=1|UserName=anna|ServerName=SRV01|Comment=new|LastName=from nowhere|SID=S-1"_s,
                u"UserName=bert|ServerName=SRV01|LastName=from nowhere|SID=S-2"_s});
    expectCounts(1, 1, 0);
    EXPECT_EQ(rows(sql), (Rows{u"Ärmel|IT|new||S-1|SRV01"_s, u"-|-|||-|SRV01"_s}));
}

TEST_F(UserBatchTest, AChangedIdMovesTheRelationshipsExceptLocalGroups)
{
    const QStringList moved = {u"Tbl_GlobalGroupsUsers (GlobalGroupID, UserID)"_s,
                               u"Tbl_RoomUsers (RoomID, UserID)"_s, u"Tbl_UserHW (HWID, UserID)"_s,
                               u"Tbl_UserFolderPermission (FolderID, UserID)"_s};
    importLines({u"0|anna|SRV01"_s, u"0|bert|SRV01"_s});
    for (const QString &table : moved + QStringList{u"Tbl_LocalGroupsUsers (LocalGroupID, UserID)"_s}) {
        run("INSERT INTO "_L1 + table + " VALUES (10, 1)"_L1);
        run("INSERT INTO "_L1 + table + " VALUES (11, 2)"_L1);
    }
    const auto usersOf = [this](const QString &table) {
        return rows("SELECT UserID FROM "_L1 + table.section(u' ', 0, 0) + " ORDER BY UserID"_L1);
    };
    importLive({u"UserID=1105|UserName=anna|ServerName=SRV01"_s});
    expectCounts(2, 1, 0);
    for (const QString &table : moved)
        EXPECT_EQ(usersOf(table), (Rows{u"2"_s, u"1105"_s})) << table.toStdString();
    EXPECT_EQ(usersOf(u"Tbl_LocalGroupsUsers"_s), (Rows{u"1"_s, u"2"_s}));
    EXPECT_EQ(rows(idsAndNames), (Rows{u"2|bert"_s, u"1105|anna"_s}));

    // What it can where a table is missing.
    run(u"DROP TABLE Tbl_RoomUsers"_s);
    importLive({u"UserID=1106|UserName=anna|ServerName=SRV01"_s});
    expectCounts(2, 2, 0);
    EXPECT_EQ(text, QString());
    for (const qsizetype table : {0, 2, 3})
        EXPECT_EQ(usersOf(moved[table]), (Rows{u"2"_s, u"1106"_s})) << moved[table].toStdString();
}

TEST_F(UserBatchTest, Apostrophe_IsKeptInTheFourEscapedValuesOfAddBatchOnly)
{
    const QString sql = u"SELECT UserName, Comment, FullName, UserComment FROM Tbl_Users"_s;
    const QString account =
        u"UserID=5|UserName=anna|ServerName=SRV01|Comment=it's|FullName=O'Brien|UserComment='"_s;
    const Rows kept = {u"anna|it's|O'Brien|'"_s};
    importLive({account});
    EXPECT_EQ(rows(sql), kept);
    importLive({account});
    expectCounts(1, 1, 0);
    EXPECT_EQ(rows(sql), kept);

    importLive({u"UserID=6|UserName=bert|ServerName=SRV01|Profile=c:\\it's"_s});
    expectCounts(1, 1, 1);
    EXPECT_TRUE(text.startsWith("SRV01\\bert "_L1)) << text.toStdString();
    // The look-up of the account is not escaped.
    importLive({u"UserID=6|UserName=o'brien|ServerName=SRV01"_s});
    expectCounts(1, 1, 2);
    EXPECT_TRUE(text.contains(u"SRV01\\o'brien ")) << text.toStdString();
    EXPECT_EQ(rows(sql), kept);
}

TEST_F(UserBatchTest, FailedRowsAreNamedAndTheBatchGoesOn)
{
    importLines(
        {u"0|anna|SRV01|it's"_s, u"0|bert|SRV01||perhaps"_s, u"0|o'brien|SRV02"_s, u"0|dora|SRV01"_s});
    expectCounts(1, 0, 3);
    EXPECT_EQ(rows(idsAndNames), Rows{u"1|dora"_s});
    ASSERT_TRUE(!text.isEmpty());
    const QStringList lines = text.split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 4) << text.toStdString();
    EXPECT_TRUE(lines[0].startsWith(u"SRV01\\anna ")) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].startsWith(u"SRV01\\bert ")) << lines[1].toStdString();
    EXPECT_TRUE(lines[2].startsWith(u"SRV02\\o'brien ")) << lines[2].toStdString();
    for (int i = 0; i < 3; ++i)
        EXPECT_GT(lines[i].size(), 20) << "no reason is given";
    EXPECT_EQ(lines[3], QString());
}

TEST_F(UserBatchTest, FlagsGoAsTheyStand)
{
    importLines({});
    expectCounts(0, 0, 0);
    EXPECT_EQ(text, QString());
    importLines({u"0|anna|SRV01||-1|0|True"_s});
    EXPECT_EQ(rows(u"SELECT AccDisabled, NoChangePwd, NoExpirePwd FROM Tbl_Users"_s),
              Rows{u"True|False|True"_s});
}

TEST_F(UserBatchTest, CancelBeforeTheThirdKeepsTheFirstTwo)
{
    steps.cancelAt = 3;
    importLines({u"0|anna|S"_s, u"0|bert|S"_s, u"0|cleo|S"_s});
    EXPECT_EQ(steps.items, (QStringList{u"S\\anna"_s, u"S\\bert"_s, u"S\\cleo"_s}));
    EXPECT_EQ(end, Report::End::Cancelled);
    expectCounts(2, 0, 0);
    EXPECT_EQ(rows(idsAndNames), (Rows{u"1|anna"_s, u"2|bert"_s}));
}

TEST_F(UserBatchTest, AMissingStoreEndsTheBatchAtOnce)
{
    connection = jet::connectionString(folder.filePath(u"nowhere.kvs"_s));
    importLines({u"0|anna|S"_s, u"0|bert|S"_s});
    EXPECT_EQ(end, Report::End::Lost);
    expectCounts(0, 0, 0);
    EXPECT_EQ(note.count(u"nowhere.kvs"), 1) << note.toStdString();
    EXPECT_TRUE(note.endsWith(u"Not in the Database: 2 of 2, from S\\anna to S\\bert")) << note.toStdString();
}

TEST_F(UserBatchTest, RecordsWithoutAFieldAreRefusedBeforeAnythingIsWritten)
{
    jet::Recordset records;
    makeRecords(records, fileFields.first(12), {fileLine(u"0|anna|S"_s).first(12)});
    const CurrentError error =
        errorOf([&] { (void)users.AddBatchFromFile(connection, records, false, steps); });
    EXPECT_EQ(error.number, jet::ItemNotFound);
    EXPECT_EQ(users.errorDescription(), error.description);
    EXPECT_TRUE(error.description.contains(u"NoExpirePwd"));
    EXPECT_EQ(rows(idsAndNames), Rows());
}
