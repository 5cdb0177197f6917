#include "failingvfs.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "support/freshstore.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace Qt::StringLiterals;
using failingvfs::Fault;
using failingvfs::faults;

namespace {

struct Work
{
    const char *name;
    QLatin1StringView statement;
};

constexpr Work works[] = {
    {"Select", "SELECT RoomNumber FROM Tbl_Rooms ORDER BY RoomNumber"_L1},
    {"Insert", "INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('new')"_L1},
    {"InsertSelect", "INSERT INTO Tbl_Rooms (RoomNumber) SELECT 'copy of ' & RoomNumber FROM Tbl_Rooms"_L1},
    {"Update", "UPDATE Tbl_Rooms SET Description = 'changed'"_L1},
    {"UpdateJoin", "UPDATE Tbl_Rooms INNER JOIN Tbl_RoomUsers ON Tbl_Rooms.ID = Tbl_RoomUsers.RoomID "
                   "SET Tbl_Rooms.Description = 'taken'"_L1},
    {"Delete", "DELETE * FROM Tbl_Rooms WHERE ID > 10"_L1},
    {"SelectInto", "SELECT ID, RoomNumber INTO Tbl_Copy FROM Tbl_Rooms"_L1},
    {"CreateTable", "CREATE TABLE Tbl_New (ID COUNTER PRIMARY KEY, Name TEXT)"_L1},
    {"CreateIndex", "CREATE INDEX IDX_New ON Tbl_Rooms (Description)"_L1},
    {"DropTable", "DROP TABLE Tbl_RoomUsers"_L1},
};

/// Everything a store holds, in one text.
QString contentOf(const QString &path)
{
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    jet::Recordset tables;
    connection.openSchema(jet::SchemaTables, tables);
    QString content;
    for (; !tables.eof(); tables.moveNext()) {
        const QString table = tables.value(u"TABLE_NAME").toText();
        content += table + u'\n';
        jet::Recordset rows;
        rows.open("SELECT * FROM ["_L1 + table + u']', connection);
        for (; !rows.eof(); rows.moveNext()) {
            for (int i = 0; i < rows.fields().count(); ++i)
                content += rows.value(i).toText() + u'|';
            content += u'\n';
        }
    }
    return content;
}

bool isSound(const QString &path)
{
    sqlite3 *handle = nullptr;
    sqlite3_open(path.toUtf8().constData(), &handle);
    // The texts' collation is the program's own, so only the structure is looked at.
    sqlite3_create_collation(handle, "JET", SQLITE_UTF8, nullptr,
                             [](void *, int, const void *, int, const void *) { return 0; });
    bool sound = false;
    sqlite3_exec(
        handle, "PRAGMA quick_check",
        [](void *result, int, char **values, char **) {
            *static_cast<bool *>(result) = qstrcmp(values[0], "ok") == 0;
            return 0;
        },
        &sound, nullptr);
    sqlite3_close(handle);
    return sound;
}

using Case = std::tuple<Fault, Work>;

class FailureTest : public testing::TestWithParam<Case>
{
protected:
    void SetUp() override
    {
        makeFreshStore(model);
        jet::Connection connection;
        connection.open(jet::connectionString(model));
        for (int room = 1; room <= 400; ++room)
            connection.execute("INSERT INTO Tbl_Rooms (RoomNumber, Description) VALUES ('R"_L1 +
                               QString::number(room) + "', 'A room of the house')"_L1);
        connection.execute(u"INSERT INTO Tbl_RoomUsers (RoomID, UserID) VALUES (7, 1)"_s);
    }

    QTemporaryDir folder;
    QString model = folder.filePath("model.mdb"_L1);
};

} // namespace

// Whatever call to the disk fails, the statement has happened or it has not, and says which.
TEST_P(FailureTest, LeavesTheStoreAsBeforeOrAsAfter)
{
    const auto &[fault, work] = GetParam();
    const QString before = contentOf(model);
    const QString done = folder.filePath("done.mdb"_L1);
    ASSERT_TRUE(QFile::copy(model, done));
    {
        jet::Connection connection;
        connection.open(jet::connectionString(done));
        connection.execute(work.statement);
    }
    const QString after = contentOf(done);

    failingvfs::Installed disk;
    bool everFailed = false;
    for (int call = 1; call < 200; ++call) {
        const QString path = folder.filePath(QString::number(call) + ".mdb"_L1);
        ASSERT_TRUE(QFile::copy(model, path));
        disk.plan({fault.kind, call, fault.result, fault.forGood});
        bool reported = false;
        try {
            jet::Connection connection;
            connection.open(jet::connectionString(path));
            connection.execute(work.statement);
            connection.close();
        } catch (const Error &error) {
            reported = true;
            EXPECT_FALSE(error.description().isEmpty());
        }
        const bool failed = disk.hasFailed();
        everFailed = everFailed || failed;
        disk.plan({});
        ASSERT_TRUE(isSound(path)) << "call " << call;
        const QString content = contentOf(path);
        ASSERT_TRUE(content == before || content == after) << "half done at call " << call;
        if (!reported) {
            ASSERT_TRUE(content == after) << "lost without a word at call " << call;
        }
        QFile::remove(path);
        if (!failed)
            break;
    }
    EXPECT_TRUE(everFailed || work.name == std::string_view("Select"));
}

INSTANTIATE_TEST_SUITE_P(Disk, FailureTest,
                         testing::Combine(testing::ValuesIn(faults), testing::ValuesIn(works)),
                         [](const testing::TestParamInfo<Case> &info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });

TEST(FlushTest, AFailureIsRaisedByTheNextUseOfTheStore)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("plan.mdb"_L1);
    makeFreshStore(path);
    const std::pair<const char *, void (*)(jet::Connection &)> uses[] = {
        {"execute", [](jet::Connection &store) { store.execute(u"SELECT * FROM Tbl_Users"_s); }},
        {"begin", [](jet::Connection &store) { store.beginWriting(); }},
        {"commit", [](jet::Connection &store) { store.commit(); }},
        {"all", [](jet::Connection &) { jet::commitPendingWrites(); }},
        {"close", [](jet::Connection &store) { store.close(); }},
    };
    failingvfs::Installed disk;
    for (const auto &[name, use] : uses) {
        jet::Connection store;
        store.open(jet::connectionString(path));
        store.execute(u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('lost')"_s);
        disk.plan({failingvfs::Kind::Sync, 1, SQLITE_IOERR_FSYNC});
        EXPECT_NO_THROW(jet::flushPendingWrites()) << name;
        disk.plan({});
        EXPECT_THROW(use(store), jet::ChangesLost) << name;
        if (store.state() == jet::StateClosed)
            store.open(jet::connectionString(path));
        jet::Recordset rooms;
        rooms.open(u"SELECT * FROM Tbl_Rooms"_s, store);
        EXPECT_EQ(rooms.recordCount(), 0) << name;
    }
}
