#include "openstore.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/inspection.h"
#include "platform/jet/interrupt.h"
#include "platform/jet/recordset.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

class InterruptTest : public OpenStore
{
protected:
    void SetUp() override
    {
        for (int room = 1; room <= 300; ++room)
            connection.execute("INSERT INTO Tbl_Rooms (RoomNumber) VALUES ('R"_L1 + QString::number(room) +
                               "')"_L1);
    }

    [[nodiscard]] qint64 number(const QString &sql)
    {
        jet::Recordset rows;
        rows.open(sql, connection);
        return rows.value(0).toInteger();
    }
};

// Eight billion combinations of rooms: without an answer it would run for minutes.
constexpr auto longSelect =
    "SELECT COUNT(*) FROM Tbl_Rooms AS a, Tbl_Rooms AS b, Tbl_Rooms AS c, Tbl_Rooms AS d "
    "WHERE a.RoomNumber & b.RoomNumber = c.RoomNumber & d.RoomNumber"_L1;

} // namespace

TEST_F(InterruptTest, EndsALongSelect)
{
    int asked = 0;
    const jet::Interruptible interruptible([&asked] { return ++asked == 3; });
    try {
        connection.execute(longSelect);
        FAIL() << "the statement came to an end";
    } catch (const Error &error) {
        EXPECT_EQ(error.number(), jet::Failure);
        EXPECT_EQ(error.description(), u"The operation was cancelled."_s);
    }
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(number(u"SELECT COUNT(*) FROM Tbl_Rooms"_s), 300);
}

TEST_F(InterruptTest, UndoesALongUpdateAndNothingElse)
{
    connection.execute(u"UPDATE Tbl_Rooms SET Description = 'first'"_s);
    {
        const jet::Interruptible interruptible([] { return true; });
        EXPECT_THROW(connection.execute("UPDATE Tbl_Rooms SET Description = 'x' WHERE ("_L1 + longSelect +
                                        ") >= 0"_L1),
                     Error);
    }
    EXPECT_EQ(number(u"SELECT COUNT(*) FROM Tbl_Rooms WHERE Description = 'first'"_s), 300);
    connection.execute(u"UPDATE Tbl_Rooms SET Description = 'second'"_s);
    EXPECT_EQ(number(u"SELECT COUNT(*) FROM Tbl_Rooms WHERE Description = 'second'"_s), 300);
}

TEST_F(InterruptTest, RefusesTheStoreToEventsThatRunMeanwhile)
{
    struct Use
    {
        const char *name;
        std::function<void(jet::Connection &)> use;
    };
    const Use uses[] = {
        {"a query", [](auto &second) { second.execute(u"SELECT * FROM Tbl_Rooms"_s); }},
        {"a write", [](auto &second) { second.execute(u"DELETE FROM Tbl_Rooms"_s); }},
        {"the list of tables",
         [](auto &second) {
             jet::Recordset tables;
             second.openSchema(jet::SchemaTables, tables);
         }},
        {"the columns", [](auto &second) { (void)jet::storedTables(second); }},
        {"a check", [](auto &second) { (void)jet::brokenPlaces(second); }},
        {"a close", [](auto &second) { second.close(); }},
        {"the close of the one that asks", [this](auto &) { connection.close(); }},
    };
    QStringList refused;
    const jet::Interruptible interruptible([&] {
        jet::Connection second;
        second.open(jet::connectionString(path));
        for (const Use &use : uses) {
            try {
                use.use(second);
            } catch (const Error &error) {
                if (error.description().contains("busy"_L1))
                    refused.append(QLatin1StringView(use.name));
            }
        }
        jet::commitPendingWrites();
        return true;
    });
    EXPECT_THROW(connection.execute(longSelect), Error);
    for (const Use &use : uses)
        EXPECT_TRUE(refused.contains(QLatin1StringView(use.name))) << use.name;
    EXPECT_EQ(number(u"SELECT COUNT(*) FROM Tbl_Rooms"_s), 300);
}

TEST_F(InterruptTest, TheLastConnectionMayGoWhileItsStatementAsks)
{
    connection.close();
    auto last = std::make_unique<jet::Connection>();
    last->open(jet::connectionString(path));
    const jet::Interruptible interruptible([&last] {
        last.reset();
        return true;
    });
    EXPECT_THROW(last->execute(longSelect), Error);
    connection.open(jet::connectionString(path));
    EXPECT_EQ(integrityOf(connection), "ok");
}

TEST_F(InterruptTest, AFailingQuestionEndsTheStatement)
{
    const jet::Interruptible interruptible([]() -> bool { throw Error(1, u"no answer"_s); });
    EXPECT_THROW(connection.execute(longSelect), Error);
}
