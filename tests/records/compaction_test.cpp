#include "store/compaction.h"

#include "base/errornumbers.h"

#include "platform/jet/connection.h"
#include "platform/jet/errors.h"
#include "support/companytest.h"
#include "support/scriptedsteps.h"

#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A store of which most was deleted.
class CompactionTest : public CompanyTest
{
protected:
    void SetUp() override
    {
        CompanyTest::SetUp();
        StoreSession store(connection);
        for (int i = 0; i < 4000; ++i)
            store.execute(u"INSERT INTO Tbl_CustomQuery (Name,SQLString) VALUES ('q%1','%2')"_s.arg(i).arg(
                QString(200, u'x')));
        store.execute(u"DELETE * FROM Tbl_CustomQuery WHERE ID > 10"_s);
        store.close();
    }

    Rows kept() { return rows(u"SELECT Count(*), (SELECT Count(*) FROM Tbl_Users) FROM Tbl_CustomQuery"_s); }
    [[nodiscard]] QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

    ScriptedSteps steps;
};

} // namespace

TEST_F(CompactionTest, TheFileShrinksAndHoldsWhatItHeld)
{
    const Rows before = kept();
    const QStringList filesBefore = files();
    const Compaction sizes = compactStore(path, folder.path(), steps);
    EXPECT_LT(sizes.after, sizes.before / 2);
    EXPECT_EQ(QFileInfo(path).size(), sizes.after);
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(files(), filesBefore) << "Neither the backup nor the copy is left.";
    // Counters go on where they were.
    run(u"INSERT INTO Tbl_CustomQuery (Name) VALUES ('new')"_s);
    EXPECT_EQ(rows(u"SELECT Max(ID) FROM Tbl_CustomQuery"_s), Rows{u"4001"_s});
}

TEST_F(CompactionTest, AKillAtAnyStepLeavesTheStoreWhole)
{
    const Rows before = kept();
    for (int killedAt = 1; killedAt <= 4; ++killedAt) {
        EXPECT_EXIT(
            {
                steps.onStep = [&](const QString &) {
                    if (steps.items.size() == killedAt)
                        _exit(0);
                };
                (void)compactStore(path, folder.path(), steps);
            },
            testing::ExitedWithCode(0), "");
        EXPECT_EQ(kept(), before) << "killed at step " << killedAt;
    }
    (void)compactStore(path, folder.path(), steps);
    EXPECT_EQ(kept(), before) << "What the killed ones have left is no hindrance.";
}

TEST_F(CompactionTest, AStoreThatAnotherProgramHoldsStaysAsItIs)
{
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    const qint64 size = QFileInfo(path).size();
    EXPECT_THROW((void)compactStore(path, folder.path(), steps), jet::StoreLocked);
    sqlite3_close(other);
    EXPECT_EQ(QFileInfo(path).size(), size);
    EXPECT_EQ(errorOf([&] { (void)compactStore(path, u"/no/such/folder"_s, steps); }).number,
              FileAccessError);
    EXPECT_EQ(QFileInfo(path).size(), size);
}
