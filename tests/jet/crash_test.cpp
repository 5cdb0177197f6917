#include "openstore.h"

#include "platform/jet/recordset.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int writesOfAGroup = 20000;
constexpr int rowsOfABatch = 10'000'000; // more than any child lives to write

/// A process of its own that inserts 1, 2, 3 ... and tells each number once it is written.
class Writer final
{
public:
    explicit Writer(const QString &path)
    {
        int ends[2];
        if (pipe(ends) != 0)
            throw std::runtime_error("pipe");
        m_child = fork();
        if (m_child == 0) {
            close(ends[0]);
            insertAll(path, ends[1]);
            _exit(0);
        }
        close(ends[1]);
        m_told = ends[0];
    }
    ~Writer() { close(m_told); }
    Q_DISABLE_COPY_MOVE(Writer)

    /// Kills the child once it has told so many, and returns the last number that it told.
    int killAfter(int count)
    {
        int last = 0;
        bool killed = false;
        for (int number; read(m_told, &number, sizeof number) == sizeof number;) {
            last = number;
            if (last >= count && !killed) {
                kill(m_child, SIGKILL);
                killed = true;
            }
        }
        int status = 0;
        waitpid(m_child, &status, 0);
        EXPECT_TRUE(killed && WIFSIGNALED(status)) << "the child ended by itself after " << last;
        return last;
    }

private:
    static void insertAll(const QString &path, int pipe)
    {
        jet::Connection connection;
        connection.open(jet::connectionString(path));
        for (int number = 1; number <= rowsOfABatch; ++number) {
            connection.execute("INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (1,"_L1 +
                               QString::number(number) + u')');
            if (write(pipe, &number, sizeof number) != sizeof number)
                return;
        }
    }

    pid_t m_child = -1;
    int m_told = -1;
};

class CrashTest : public testing::TestWithParam<int>
{
};

} // namespace

TEST_P(CrashTest, LosesAtMostTheLastGroupOfWrites)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("store.mdb"_L1);
    makeFreshStore(path);
    const int told = Writer(path).killAfter(GetParam());

    jet::Connection connection;
    connection.open(jet::connectionString(path));
    jet::Recordset written;
    written.open(u"SELECT Count(*), Min(UserID), Max(UserID) FROM Tbl_RoomUsers"_s, connection);
    const qint64 count = written.value(0).toInteger();
    EXPECT_GE(count, told - writesOfAGroup) << "of " << told;
    EXPECT_LE(count, told + 1);
    EXPECT_EQ(written.value(2).toInteger(), count) << "there are gaps";
    if (count > 0) {
        EXPECT_EQ(written.value(1).toInteger(), 1);
    }
    connection.execute(u"INSERT INTO Tbl_RoomUsers (RoomID,UserID) VALUES (2,1)"_s);
    EXPECT_EQ(integrityOf(connection), "ok");
}

// Inside the first group, around its end, and behind it.
INSTANTIATE_TEST_SUITE_P(KilledAfter, CrashTest, testing::Values(1, 500, 19999, 20000, 20001, 30000),
                         testing::PrintToStringParamName());
