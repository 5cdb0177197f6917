#include "sample/sampledata.h"

#include "queries/clsCustomQuery.h"
#include "store/storecheck.h"
#include "support/companytest.h"

using namespace Qt::StringLiterals;

namespace {

/// The company of 400, made once for all tests.
class SampleDataTest : public testing::Test
{
protected:
    static constexpr int users = 400;

    static void SetUpTestSuite()
    {
        folder = new QTemporaryDir;
        createSampleStore(path(), users);
    }
    static void TearDownTestSuite() { delete folder; }

    static Rows rowsIn(const QString &path, const QString &sql)
    {
        jet::Recordset records;
        StoreSession(jet::connectionString(path)).open(sql, records);
        return rowsOf(records);
    }
    static QString path() { return folder->filePath(u"sample.kvs"_s); }
    static Rows rows(const QString &sql) { return rowsIn(path(), sql); }
    static int count(const QString &table)
    {
        return rows("SELECT COUNT(*) FROM "_L1 + table).first().toInt();
    }

    static inline QTemporaryDir *folder = nullptr;
};

/// The tables of a plan; the last ten are relationships.
QStringList filledTables()
{
    QStringList names = {u"Tbl_FolderDefaultPermissions"_s, u"Tbl_CustomQuery"_s};
    for (const company::Table &table : company::tables)
        names += QString::fromLatin1(table.columns).section(u' ', 0, 0);
    return names;
}

struct Key
{
    QLatin1StringView table;
    QLatin1StringView columns;
};

/// Of the relationship tables; those of the others are checked with every store.
constexpr Key keys[] = {
    {"Tbl_GlobalGroupsUsers"_L1, "GlobalGroupID, UserID"_L1},
    {"Tbl_LocalGroupsUsers"_L1, "LocalGroupID, UserID"_L1},
    {"Tbl_LocalGroupsGlobalGroups"_L1, "LocalGroupID, GlobalGroupID"_L1},
    {"Tbl_UserFolderPermission"_L1, "UserID, FolderID"_L1},
    {"Tbl_LocalGroupFolderPermission"_L1, "LocalGroupID, FolderID"_L1},
    {"Tbl_GlobalGroupFolderPermission"_L1, "GlobalGroupID, FolderID"_L1},
    {"Tbl_UserHW"_L1, "HWID"_L1},
    {"Tbl_RoomHW"_L1, "HWID"_L1},
    {"Tbl_RoomUsers"_L1, "RoomID, UserID"_L1},
    {"Tbl_SWHW"_L1, "SWID, HWID"_L1},
};

} // namespace

TEST_F(SampleDataTest, GrowsWithItsUsers)
{
    int relationships = 0;
    for (const QString &table : filledTables())
        EXPECT_GT(count(table), 0) << table.toStdString();
    for (const QString &table : filledTables().last(10))
        relationships += count(table);
    EXPECT_GT(relationships, 6 * users);
    EXPECT_LT(relationships, 8 * users);
}

TEST_F(SampleDataTest, KeepsTheRulesOfTheStore)
{
    EXPECT_EQ(checkStore(path()), QStringList());
    for (const Key &key : keys)
        EXPECT_EQ(rows("SELECT "_L1 + key.columns + " FROM "_L1 + key.table + " GROUP BY "_L1 + key.columns +
                       " HAVING COUNT(*) > 1"_L1),
                  Rows())
            << key.table.data();
    EXPECT_EQ(rows(u"SELECT HWID FROM Tbl_UserHW WHERE HWID IN (SELECT HWID FROM Tbl_RoomHW)"_s), Rows());
    EXPECT_EQ(rows(u"SELECT ID FROM Tbl_Folders WHERE FolderName NOT LIKE '%\\'"_s), Rows());
    EXPECT_EQ(rows(u"SELECT Permission FROM Tbl_UserFolderPermission UNION "
                   "SELECT Permission FROM Tbl_LocalGroupFolderPermission UNION "
                   "SELECT Permission FROM Tbl_GlobalGroupFolderPermission"_s),
              (Rows{u"CH"_s, u"Full Control"_s, u"L"_s, u"R"_s}));
}

TEST_F(SampleDataTest, SavedQueriesGiveRows)
{
    const QString connection = jet::connectionString(path());
    clsCustomQuery queries;
    jet::Recordset all;
    queries.getAll(connection, all);
    for (; !all.eof(); all.moveNext()) {
        jet::Recordset result;
        queries.Execute(connection, result, all.value(u"SQLString").toText());
        ASSERT_EQ(result.state(), jet::StateOpen) << all.value(u"Name").toText().toStdString();
        EXPECT_GT(result.recordCount(), 0) << all.value(u"Name").toText().toStdString();
    }
}

TEST_F(SampleDataTest, NamesAreOfManyKinds)
{
    EXPECT_GT(rows(u"SELECT DISTINCT ServerName FROM Tbl_Users"_s).size(), 3);
    for (const QString &name : {u"O''Brien"_s, u"Müller"_s, u"Lefèvre"_s, u"Žižka"_s})
        EXPECT_NE(count("Tbl_Users WHERE LastName = '"_L1 + name + u'\''), 0) << name.toStdString();
    EXPECT_EQ(rows(u"SELECT UserID FROM Tbl_Users WHERE EmailAddress = '' OR Department = '' OR "
                   "FirstName = '' OR HomeDir = '' OR UserName LIKE '%[!a-z0-9]%'"_s),
              Rows());
}

TEST_F(SampleDataTest, ALargerCompanyGrowsAtItsEnd)
{
    const QString large = folder->filePath(u"large.kvs"_s);
    createSampleStore(large, users + 100);
    const QString sql = u"SELECT * FROM Tbl_Users ORDER BY UserID"_s;
    EXPECT_EQ(rowsIn(large, sql).first(users), rows(sql));
}

TEST_F(SampleDataTest, TheSameNumberGivesTheSameCompany)
{
    const QString again = folder->filePath(u"again.kvs"_s);
    createSampleStore(again, users);
    for (const QString &table : filledTables()) {
        const QString sql = "SELECT * FROM "_L1 + table;
        EXPECT_EQ(rowsIn(again, sql), rows(sql)) << table.toStdString();
    }
}

TEST_F(SampleDataTest, ACompanyMayBeOfAnySize)
{
    for (int size : {0, 1, 2, 3, 7, 19, 43}) {
        const QString path = folder->filePath(QString::number(size));
        createSampleStore(path, size);
        EXPECT_EQ(rowsIn(path, u"SELECT COUNT(*) FROM Tbl_Users"_s), Rows{QString::number(size)});
        EXPECT_EQ(rowsIn(path, u"SELECT COUNT(*) FROM Tbl_HW"_s), Rows{QString::number(size)});
        EXPECT_EQ(rowsIn(path, u"SELECT COUNT(*) FROM Tbl_CustomQuery"_s).first() == u"0"_s, size == 0);
    }
}
