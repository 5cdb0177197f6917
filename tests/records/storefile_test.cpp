#include "platform/jet/errors.h"
#include "platform/jet/inspection.h"
#include "support/recordtest.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A new store, by way of its definition.
class StoreFileTest : public RecordTest
{
protected:
    [[nodiscard]] std::vector<jet::StoredTable> tables() const
    {
        jet::Connection opened;
        opened.open(connection);
        return jet::storedTables(opened);
    }

    /// Its columns as the schema declares them.
    [[nodiscard]] QStringList columnsOf(const QString &table) const
    {
        QStringList columns;
        for (const jet::StoredTable &stored : tables()) {
            if (stored.name != table)
                continue;
            for (const jet::StoredPart &column : stored.columns)
                columns += column.name + u' ' + column.definition;
        }
        return columns;
    }

    /// Whether an index begins with the columns.
    static bool hasIndex(const jet::StoredTable &table, const QString &columns)
    {
        return std::ranges::any_of(table.indexes, [&](const jet::StoredPart &index) {
            const QString indexed = index.definition.chopped(1) + ", "_L1;
            return indexed.startsWith(QString(u'(' + columns + ", "_L1));
        });
    }
};

/// By what the rows of a table that is no relationship are looked for; null for one that is read
/// as a whole.
struct LookUp
{
    const char *table;
    const char *columns;
};

constexpr LookUp lookUps[] = {
    {"Tbl_CustomQuery", "Name"},
    {"Tbl_FolderDefaultPermissions", "Account"},
    {"Tbl_Folders", "FolderName"},
    {"Tbl_GlobalGroups", "Name, Server"},
    {"Tbl_HW", "SerialNumber, HWTypeID"},
    {"Tbl_HW", "HWTypeID"},
    {"Tbl_HWType", "Type, Manufacturer, Model, TypeNumber"},
    {"Tbl_LocalGroups", "Name, Server"},
    {"Tbl_Remote_Users", nullptr},
    {"Tbl_ReportConfig", "ReportName"},
    {"Tbl_Rooms", "RoomNumber"},
    {"Tbl_SW", "Type, Manufacturer, Name, Version"},
    {"Tbl_Users", "UserName, ServerName"},
    {"Tbl_Users", "UserID"},
    {"ZTBL_IMPORT_HW_SHEET1", nullptr},
};

} // namespace

TEST_F(StoreFileTest, IsEmptyAndHasAnIndexForWhatIsLookedFor)
{
    int relationships = 0;
    std::size_t lookedFor = 0;
    for (const jet::StoredTable &table : tables()) {
        EXPECT_EQ(rows("SELECT * FROM "_L1 + table.name), Rows()) << table.name.toStdString();
        QStringList ids;
        for (const jet::StoredPart &column : table.columns) {
            if (column.name.endsWith("ID"_L1) && column.definition == "LONG NOT NULL"_L1)
                ids += column.name;
        }
        if (ids.size() == 2) {
            ++relationships;
            for (const QString &id : ids)
                EXPECT_TRUE(hasIndex(table, id)) << table.name.toStdString() << ' ' << id.toStdString();
            continue;
        }
        for (const LookUp &lookUp : lookUps) {
            if (table.name != QLatin1StringView(lookUp.table))
                continue;
            ++lookedFor;
            EXPECT_TRUE(!lookUp.columns || hasIndex(table, QString::fromLatin1(lookUp.columns)))
                << lookUp.table << ' ' << lookUp.columns;
        }
    }
    EXPECT_EQ(relationships, 10);
    EXPECT_EQ(lookedFor, std::size(lookUps));
}

TEST_F(StoreFileTest, ColumnsAreAsDeclared)
{
    EXPECT_EQ(columnsOf(u"Tbl_Users"_s).size(), 47);
    EXPECT_EQ(columnsOf(u"Tbl_Users"_s), columnsOf(u"Tbl_Remote_Users"_s));
    EXPECT_EQ(columnsOf(u"ZTBL_IMPORT_HW_SHEET1"_s).join(u", "_s),
              u"Serial Number TEXT, Asset TEXT, Bemerkung TEXT, Purchase Date DATETIME, Beschreibung TEXT, "
              "Standort TEXT, User TEXT, HWTypeID LONG, ImportStatus TEXT, HardwareStatus TEXT"_s);
}

TEST_F(StoreFileTest, CreateStoreNeverOverwrites)
{
    run(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('12')"_s);
    const CurrentError error = errorOf([&] { createStore(path); });
    EXPECT_EQ(error.number, jet::Failure);
    EXPECT_TRUE(error.description.contains(u"company.kvs")) << error.description.toStdString();
    EXPECT_EQ(rows(u"SELECT RoomNumber FROM Tbl_Rooms"_s), Rows{u"12"_s});
    EXPECT_EQ(QDir(folder.path()).entryList({u"*.new*"_s}), QStringList());
}

TEST(StoreFile, FailureLeavesNothingBehind)
{
    const QTemporaryDir folder;
    const auto failing = [](StoreSession &store) {
        store.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('12')"_s);
        throwError(RuleViolation, u"broken off"_s);
    };
    const CurrentError error = errorOf([&] { createStore(folder.filePath(u"a.kvs"_s), failing); });
    EXPECT_EQ(error.description, u"broken off"_s);
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST(StoreFile, PathsThatCannotBeAreRefusedByName)
{
    const QTemporaryDir folder;
    const struct
    {
        const char *name;
        QString path;
        QString named;
    } cases[] = {
        {"no path", QString(), u"file name"_s},
        {"missing folder", folder.filePath(u"nowhere/a.kvs"_s), u"nowhere"_s},
        {"a folder", folder.path(), folder.path()},
        {"below a file", u"/dev/null/a.kvs"_s, u"/dev/null"_s},
    };
    for (const auto &c : cases) {
        const CurrentError error = errorOf([&] { createStore(c.path); });
        EXPECT_EQ(error.number, jet::Failure) << c.name;
        EXPECT_TRUE(error.description.contains(c.named)) << c.name << ": " << error.description.toStdString();
    }
}
