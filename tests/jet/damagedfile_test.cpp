#include "openstore.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/recordset.h"
#include "platform/jet/sqlitesetup.h"
#include "platform/jet/storefile.h"

#include <QDir>

#include <csignal>
#include <random>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype pageSize = 512;

/// The bytes of a small store of many small pages: rows, an index of two levels, a long text
/// and free pages.
const QByteArray &smallStore()
{
    static const QByteArray store = [] {
        const QTemporaryDir folder;
        const QString path = folder.filePath("small.mdb"_L1);
        jet::createDatabase(path);
        {
            jet::Connection connection;
            connection.open(jet::connectionString(path));
            connection.execute(
                u"CREATE TABLE Tbl_Rooms (ID COUNTER PRIMARY KEY, RoomNumber TEXT, Description TEXT)"_s);
            connection.execute(u"CREATE INDEX IDX_Rooms_RoomNumber ON Tbl_Rooms (RoomNumber)"_s);
            for (int room = 0; room < 300; ++room)
                connection.execute("INSERT INTO Tbl_Rooms (RoomNumber, Description) VALUES ('A-"_L1 +
                                   QString::number(room * 37 % 300) + "', 'A room of the house')"_L1);
            connection.execute("UPDATE Tbl_Rooms SET Description = '"_L1 + QString(1500, u'x') +
                               "' WHERE ID = 3"_L1);
        }
        sqlite3 *handle = nullptr;
        sqlite3_open(path.toUtf8().constData(), &handle);
        jet::registerDialect(handle);
        EXPECT_EQ(sqlite3_exec(handle, "PRAGMA page_size = 512; VACUUM; DELETE FROM Tbl_Rooms WHERE ID > 250",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(handle);
        return contentOf(path);
    }();
    return store;
}

/// What is done with every damaged file. Each step succeeds or is refused in words; a statement that
/// neither ends is stopped and counts as a hang.
void useStore(const QString &path)
{
    jet::Connection connection;
    const auto step = [&](const auto &work) {
        try {
            work();
            return true;
        } catch (const Error &error) {
            EXPECT_NE(error.number(), 0);
            EXPECT_FALSE(error.description().isEmpty());
            EXPECT_FALSE(error.description().contains("cancelled"_L1)) << "a statement without an end";
            return false;
        }
    };
    if (!step([&] { connection.open(jet::connectionString(path)); }))
        return;
    sqlite3 *handle = connection.database().handle();
    sqlite3_exec(handle, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
    step([&] {
        jet::Recordset tables;
        connection.openSchema(jet::SchemaTables, tables);
    });
    for (const QString &statement : {
             u"SELECT * FROM Tbl_Rooms"_s,
             u"SELECT ID FROM Tbl_Rooms WHERE RoomNumber = 'A-36'"_s,
             u"SELECT RoomNumber, Count(*) FROM Tbl_Rooms GROUP BY RoomNumber"_s,
             u"INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('new')"_s,
             u"UPDATE Tbl_Rooms SET RoomNumber = 'B' WHERE ID = 40"_s,
             u"DELETE FROM Tbl_Rooms WHERE RoomNumber LIKE 'A-1%'"_s,
             u"SELECT ID, RoomNumber INTO Tbl_Copy FROM Tbl_Rooms"_s,
             u"DROP TABLE Tbl_Rooms"_s,
         }) {
        sqlite3_progress_handler(
            handle, 5'000'000, [](void *) { return 1; }, nullptr);
        step([&] {
            jet::Recordset rows;
            rows.open(statement, connection);
        });
    }
    step([&] { connection.close(); });
}

} // namespace

TEST(DamagedStore, CutAnywhereIsUsedOrRefusedInWords)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("plan.mdb"_L1);
    const QByteArray &whole = smallStore();
    ASSERT_GT(whole.size(), 20 * pageSize);
    for (qsizetype page = 0; page * pageSize < whole.size(); ++page) {
        for (const qsizetype beyond : {qsizetype(0), qsizetype(1), pageSize / 2, pageSize - 1}) {
            const qsizetype length = page * pageSize + beyond;
            SCOPED_TRACE(length);
            writeFile(path, whole.left(length));
            useStore(path);
            QFile::remove(path + "-journal"_L1);
        }
    }
}

// A thousand bits, the same ones each time; a third of them in the first page, where each counts most.
TEST(DamagedStore, WithAFlippedBitIsUsedOrRefusedInWords)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("plan.mdb"_L1);
    std::mt19937 random(20050304);
    for (int flip = 0; flip < 1000; ++flip) {
        QByteArray content = smallStore();
        const auto range = std::uint32_t(flip % 3 == 0 ? pageSize : content.size()) * 8;
        const std::uint32_t bit = std::uint32_t(random()) % range;
        SCOPED_TRACE("bit " + std::to_string(bit));
        content[qsizetype(bit / 8)] = char(content[qsizetype(bit / 8)] ^ (1 << (bit % 8)));
        writeFile(path, content);
        useStore(path);
        QFile::remove(path + "-journal"_L1);
    }
}

TEST(StoreOfANewerVersion, IsRefusedAndLeftAlone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("plan.mdb"_L1);
    QByteArray content = smallStore();
    content[63] = char(jet::FileVersion + 1);
    writeFile(path, content);
    try {
        jet::Connection().open(jet::connectionString(path));
        FAIL() << "was opened";
    } catch (const Error &error) {
        EXPECT_EQ(error.number(), jet::Failure);
        EXPECT_TRUE(error.description().contains("plan.mdb"_L1)) << error.what();
        EXPECT_TRUE(error.description().contains("newer version"_L1)) << error.what();
    }
    EXPECT_EQ(contentOf(path), content);
}

namespace {

/// Fills the store until it is refused, and says the last number that is written for sure.
int fillUp(const QString &path, Error &refusal)
{
    constexpr int most = 20000;
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    int written = 0;
    try {
        for (int room = 1; room <= most; ++room) {
            connection.execute("INSERT INTO Tbl_Rooms (RoomNumber, Description) VALUES ('"_L1 +
                               QString::number(room) + "', '"_L1 + QString(300, u'x') + "')"_L1);
            if (room % 100 == 0) {
                jet::commitPendingWrites();
                written = room;
            }
        }
    } catch (const Error &error) {
        refusal = error;
    }
    return written;
}

void expectRooms(const QString &path, int count)
{
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    jet::Recordset rooms;
    rooms.open(u"SELECT Count(*), Max(ID) FROM Tbl_Rooms"_s, connection);
    EXPECT_EQ(rooms.value(0).toInteger(), count);
    EXPECT_EQ(integrityOf(connection), "ok");
}

} // namespace

// A process whose files may not grow beyond a size stands for a full disk.
TEST(FullDisk, KeepsWhatWasWrittenBeforeAndSaysSo)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("plan.mdb"_L1);
    makeFreshStore(path);
    const auto limit = rlim_t(QFileInfo(path).size() + 200'000);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const auto limitTo = [limit](rlim_t size) {
        const rlimit limits{size, limit};
        return setrlimit(RLIMIT_FSIZE, &limits) == 0;
    };
    const auto tellsOfDisk = [](const Error &error) {
        return error.number() == jet::Failure && error.description().contains("disk"_L1, Qt::CaseInsensitive);
    };
    enum Outcome { Told, NotLimited, NotWritten, OtherError, SecondStoreMade };
    const int outcome = inAnotherProcess([&] {
        signal(SIGXFSZ, SIG_IGN);
        if (!limitTo(limit))
            return NotLimited;
        Error refusal(0, {});
        const int written = fillUp(path, refusal);
        if (write(ends[1], &written, sizeof written) != sizeof written)
            return NotWritten;
        try {
            constexpr rlim_t lessThanAStore = 8192;
            if (!limitTo(lessThanAStore))
                return NotLimited;
            createStore(folder.filePath("second.mdb"_L1));
            return SecondStoreMade;
        } catch (const Error &error) {
            return tellsOfDisk(refusal) && tellsOfDisk(error) ? Told : OtherError;
        }
    });
    close(ends[1]);
    int written = 0;
    EXPECT_EQ(read(ends[0], &written, sizeof written), ssize_t(sizeof written));
    close(ends[0]);
    EXPECT_EQ(outcome, Told);
    EXPECT_GT(written, 0);
    expectRooms(path, written);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"plan.mdb"_s});
}
