#include "jet/failingvfs.h"
#include "platform/jet/database.h"
#include "platform/jet/errors.h"
#include "store/clsGlobalGroups.h"
#include "store/clsUsers.h"
#include "support/companytest.h"

#include <sqlite3.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Another program that is in the middle of reading a store.
class Reader final
{
public:
    explicit Reader(const QString &path)
    {
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_handle), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(m_handle, "BEGIN; SELECT * FROM Tbl_Folders", nullptr, nullptr, nullptr),
                  SQLITE_OK);
    }
    ~Reader() { sqlite3_close(m_handle); }
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

private:
    sqlite3 *m_handle = nullptr;
};

class ClosingTest : public CompanyTest
{
protected:
    void addGroup(const QString &name)
    {
        int id = 0;
        groups.Add(connection, u"DC09"_s, name, {}, id);
    }

    [[nodiscard]] Rows added() const
    {
        return rows(u"SELECT Name FROM Tbl_GlobalGroups WHERE Server='DC09'"_s);
    }

    clsGlobalGroups groups;
};

constexpr failingvfs::Plan brokenCommit = {failingvfs::Kind::Sync, 1, SQLITE_IOERR_FSYNC, true};

} // namespace

TEST_F(ClosingTest, TheLastOneTellsThatAReaderHeldItUp)
{
    {
        const Reader reader(path);
        const CurrentError error = errorOf([&] { addGroup(u"New"_s); });
        EXPECT_EQ(error.number, jet::Failure);
        EXPECT_TRUE(error.description.contains(u"1 change(s) are lost")) << error.description.toStdString();
        EXPECT_EQ(groups.errorDescription(), error.description);
    }
    EXPECT_EQ(added(), Rows()) << "told as lost";
    addGroup(u"New"_s);
    EXPECT_EQ(added(), Rows{u"New"_s});
}

TEST_F(ClosingTest, AnEarlierOneLeavesItToTheLast)
{
    jet::Connection held;
    held.open(connection);
    sqlite3_busy_timeout(held.database().handle(), 1);
    {
        const Reader reader(path);
        EXPECT_NO_THROW(addGroup(u"New"_s));
        EXPECT_EQ(added(), Rows{u"New"_s}) << "pending, and seen by this program";
    }
    held.close();
    EXPECT_EQ(added(), Rows{u"New"_s});
}

TEST_F(ClosingTest, AFailureThatLosesWhatWasWrittenBeforeTellsBoth)
{
    jet::Recordset records;
    makeRecords(records, {u"Name"_s, u"Server"_s, u"Description"_s},
                {{u"New"_s, u"DC09"_s, u"-"_s}, {u"O'Hara"_s, u"DC09"_s, u"-"_s}});
    NoSteps steps;
    Report report;
    {
        failingvfs::Installed disk;
        disk.plan(brokenCommit);
        EXPECT_THROW(groups.AddBatch(connection, records, false, steps, report), jet::ChangesLost);
        EXPECT_TRUE(disk.hasFailed());
    }
    EXPECT_EQ(groups.errorNumber(), jet::SyntaxError);
    const QString told = groups.errorDescription();
    EXPECT_TRUE(told.contains(u"Syntax error")) << told.toStdString();
    EXPECT_TRUE(told.contains(u"1 change(s) are lost")) << told.toStdString();
    EXPECT_EQ(added(), Rows());
}

TEST_F(ClosingTest, AReaderThatLosesTheWritesOfOthersGivesNoRows)
{
    const auto disk = std::make_unique<failingvfs::Installed>();
    jet::Connection writer;
    writer.open(connection);
    writer.execute(u"INSERT INTO Tbl_GlobalGroups (Name,Server) VALUES ('New','DC09')"_s);
    disk->plan(brokenCommit);
    jet::Recordset result;
    EXPECT_THROW(clsUsers().getAll(connection, result), jet::ChangesLost);
    EXPECT_EQ(result.state(), jet::StateClosed);
    disk->plan({});
    EXPECT_EQ(added(), Rows());
}
