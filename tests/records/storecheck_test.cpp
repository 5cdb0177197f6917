#include "store/storecheck.h"

#include "platform/jet/errors.h"
#include "platform/jet/inspection.h"
#include "platform/jet/sqlitesetup.h"
#include "sample/sampledata.h"
#include "support/recordtest.h"

#include <QDir>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

struct Change
{
    const char *name;
    /// Run on the file by SQLite, past the dialect.
    const char *sql;
    QStringList findings;
};

const Change changes[] = {
    {"None", "", {}},
    {"MoreThanANewStoreHas",
     "CREATE TABLE Tbl_Mine (A); ALTER TABLE Tbl_Rooms ADD COLUMN Mine TEXT; CREATE INDEX IDX_Mine ON "
     "Tbl_Rooms (Mine)",
     {}},
    {"MissingTables",
     "DROP TABLE Tbl_Rooms; DROP TABLE Tbl_CustomQuery",
     {u"Table Tbl_CustomQuery is missing."_s, u"Table Tbl_Rooms is missing."_s}},
    {"MissingColumn",
     "ALTER TABLE Tbl_Rooms DROP COLUMN Description",
     {u"Column Description of table Tbl_Rooms is missing."_s}},
    {"MissingIndex", "DROP INDEX IDX_SWHW_HWID", {u"Index IDX_SWHW_HWID of table Tbl_SWHW is missing."_s}},
    {"IndexOfOtherColumns",
     "DROP INDEX IDX_Users_Account; CREATE INDEX IDX_Users_Account ON Tbl_Users (UserName)",
     {u"Index IDX_Users_Account of table Tbl_Users is (UserName), not (UserName, ServerName)."_s}},
    {"UniqueIndex",
     "DROP INDEX IDX_Rooms_RoomNumber; CREATE UNIQUE INDEX IDX_Rooms_RoomNumber ON Tbl_Rooms (RoomNumber)",
     {u"Index IDX_Rooms_RoomNumber of table Tbl_Rooms is UNIQUE (RoomNumber), not (RoomNumber)."_s}},
    {"WrongTypes",
     "DROP TABLE Tbl_Folders; CREATE TABLE tbl_folders (ID INTEGER PRIMARY KEY, FolderName TEXT, Description "
     "LONG);"
     "CREATE INDEX IDX_Folders_FolderName ON tbl_folders (FolderName)",
     {u"Column ID of table Tbl_Folders is INTEGER PRIMARY KEY, not COUNTER."_s,
      u"Column FolderName of table Tbl_Folders is TEXT COLLATE BINARY, not TEXT."_s,
      u"Column Description of table Tbl_Folders is LONG, not TEXT."_s}},
    {"NullAllowed",
     "DROP TABLE Tbl_UserHW; CREATE TABLE Tbl_UserHW (UserID LONG, HWID LONG NOT NULL);"
     "CREATE INDEX IDX_UserHW_UserID ON Tbl_UserHW (UserID, HWID);"
     "CREATE INDEX IDX_UserHW_HWID ON Tbl_UserHW (HWID, UserID)",
     {u"Column UserID of table Tbl_UserHW is LONG, not LONG NOT NULL."_s}},
    {"LooseRows",
     "INSERT INTO Tbl_Rooms (ID) VALUES (1); INSERT INTO Tbl_Users (UserID) VALUES (5);"
     "INSERT INTO Tbl_RoomUsers VALUES (1, 5), (1, 6), (1, 7), (2, 5)",
     {u"Table Tbl_RoomUsers: 1 row has a RoomID that is not in Tbl_Rooms."_s,
      u"Table Tbl_RoomUsers: 2 rows have a UserID that is not in Tbl_Users."_s}},
    {"HardwareOfNoType",
     "INSERT INTO Tbl_HW (HWTypeID) VALUES (NULL), (4)",
     {u"Table Tbl_HW: 1 row has a HWTypeID that is not in Tbl_HWType."_s}},
    {"KeysGivenTwice",
     "INSERT INTO Tbl_Users (UserID, UserName, ServerName) VALUES "
     "(5,'anna','S1'),(5,'bert','S1'),(6,'ANNA','s1');"
     "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('12'),(NULL),(NULL)",
     {u"Table Tbl_Users: 2 rows have the UserID '5'."_s,
      u"Table Tbl_Users: 2 rows have the UserName 'anna', ServerName 'S1'."_s}},
    {"EveryKeyGivenTwice",
     "INSERT INTO Tbl_GlobalGroups (Name, Server) VALUES ('a','s'),('a','s'),('a','t');"
     "INSERT INTO Tbl_LocalGroups (Name, Server) VALUES ('b','s'),('b','s'),('c','s');"
     "INSERT INTO Tbl_Folders (FolderName) VALUES ('c'),('c');"
     "INSERT INTO Tbl_FolderDefaultPermissions (Account) VALUES ('d'),('d');"
     "INSERT INTO Tbl_HWType (ID, Type, Manufacturer, Model, TypeNumber) VALUES (1,'e','','m','t'),"
     "(2,'e','','m','t'),(3,'e','','m','u');"
     "INSERT INTO Tbl_HW (SerialNumber, HWTypeID) VALUES ('f',1),('f',1),('f',2);"
     "INSERT INTO Tbl_SW (Type, Manufacturer, Name, Version) VALUES ('g','h','i','j'),('g','h','i','j');"
     "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('k' || char(13) || char(10) || 'l'),"
     "('k' || char(13) || char(10) || 'l');"
     "INSERT INTO Tbl_CustomQuery (Name) VALUES ('m'),('M')",
     {u"Table Tbl_GlobalGroups: 2 rows have the Name 'a', Server 's'."_s,
      u"Table Tbl_LocalGroups: 2 rows have the Name 'b', Server 's'."_s,
      u"Table Tbl_Folders: 2 rows have the FolderName 'c'."_s,
      u"Table Tbl_FolderDefaultPermissions: 2 rows have the Account 'd'."_s,
      u"Table Tbl_HWType: 2 rows have the Type 'e', Manufacturer '', Model 'm', TypeNumber 't'."_s,
      u"Table Tbl_HW: 2 rows have the SerialNumber 'f', HWTypeID '1'."_s,
      u"Table Tbl_SW: 2 rows have the Type 'g', Manufacturer 'h', Name 'i', Version 'j'."_s,
      u"Table Tbl_Rooms: 2 rows have the RoomNumber 'k l'."_s,
      u"Table Tbl_CustomQuery: 2 rows have the Name 'm'."_s}},
    // The index is left as it is and said to be of another column: its rows are wrong now.
    {"IndexOutOfStep",
     "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('12'); PRAGMA writable_schema = ON;"
     "UPDATE sqlite_schema SET sql = replace(sql, 'RoomNumber\")', 'Description\")') WHERE name = "
     "'IDX_Rooms_RoomNumber'",
     {u"The file is damaged: row 1 missing from index IDX_Rooms_RoomNumber"_s,
      u"Index IDX_Rooms_RoomNumber of table Tbl_Rooms is (Description), not (RoomNumber)."_s}},
};

void runPastTheDialect(const QString &path, const char *sql)
{
    sqlite3 *handle = nullptr;
    sqlite3_open(path.toUtf8().constData(), &handle);
    jet::registerDialect(handle);
    char *message = nullptr;
    EXPECT_EQ(sqlite3_exec(handle, sql, nullptr, nullptr, &message), SQLITE_OK) << message;
    sqlite3_free(message);
    sqlite3_close(handle);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A new store by itself in its folder.
using StoreCheck = RecordTest;

class StoreCheckTest : public StoreCheck, public testing::WithParamInterface<Change>
{
};

} // namespace

TEST_P(StoreCheckTest, TellsEachDifferenceAndChangesNothing)
{
    runPastTheDialect(path, GetParam().sql);
    const QByteArray before = contentOf(path);

    const QStringList findings = checkStore(path);

    EXPECT_EQ(findings.join(u'\n').toStdString(), GetParam().findings.join(u'\n').toStdString());
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"company.kvs"_s});
}

INSTANTIATE_TEST_SUITE_P(Changes, StoreCheckTest, testing::ValuesIn(changes),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(StoreCheck, KnowsEveryRelationshipOfTheSchema)
{
    QStringList expected;
    {
        jet::Connection opened;
        opened.open(connection);
        for (const jet::StoredTable &table : jet::storedTables(opened)) {
            const auto isId = [](const jet::StoredPart &column) {
                return column.name.endsWith("ID"_L1) && column.definition == "LONG NOT NULL"_L1;
            };
            if (table.columns.size() < 2 || !isId(table.columns[0]) || !isId(table.columns[1]))
                continue;
            opened.execute("INSERT INTO "_L1 + table.name + " ("_L1 + table.columns[0].name + u',' +
                           table.columns[1].name + ") VALUES (7, 8)"_L1);
            expected.append(table.name + u' ' + table.columns[0].name);
            expected.append(table.name + u' ' + table.columns[1].name);
        }
    }
    ASSERT_GE(expected.size(), 20);
    QStringList told;
    for (const QString &finding : checkStore(path))
        told.append(finding.section(u' ', 1, 1).chopped(1) + u' ' + finding.section(u' ', 6, 6));
    told.sort();
    expected.sort();
    EXPECT_EQ(told.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
}

TEST_F(StoreCheck, GoesOnWhereThereIsNoPlaceForAStoreToCompareWith)
{
    runPastTheDialect(path, "INSERT INTO Tbl_RoomUsers VALUES (1, 5)");
    const QByteArray place = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(path)); // no folder
    const QStringList findings = checkStore(path);
    place.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", place);
    ASSERT_EQ(findings.size(), 3) << findings.join(u'\n').toStdString();
    EXPECT_TRUE(findings[0].startsWith("The tables could not be compared with those of a new store: "_L1))
        << findings[0].toStdString();
}

TEST_F(StoreCheck, NamesBrokenPagesAndGoesOn)
{
    ASSERT_TRUE(QFile::remove(path));
    createSampleStore(path, 200);
    QByteArray content = contentOf(path);
    constexpr qsizetype page = 4096;
    // The last page is a leaf with rows of some table or index.
    content.replace(content.size() - page, page, QByteArray(page, '\xA5'));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const QStringList findings = checkStore(path);
    ASSERT_FALSE(findings.isEmpty());
    EXPECT_TRUE(findings[0].startsWith("The file is damaged: "_L1)) << findings[0].toStdString();
    EXPECT_TRUE(findings.filter(u"is missing"_s).isEmpty()) << findings.join(u'\n').toStdString();
}

TEST_F(StoreCheck, RefusesWhatIsNoStore)
{
    ASSERT_TRUE(QFile::remove(path));
    const CurrentError error = errorOf([&] { (void)checkStore(path); });
    EXPECT_EQ(error.number, jet::Failure);
    EXPECT_TRUE(error.description.contains("company.kvs"_L1)) << error.description.toStdString();
}
