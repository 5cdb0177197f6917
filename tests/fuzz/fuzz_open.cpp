// Any bytes as a store file: opening, reading and writing it succeeds or raises an error.

#include "fuzzkit.h"
#include "platform/jet/connection.h"
#include "platform/jet/database.h"
#include "platform/jet/recordset.h"

#include <QStringList>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

void readAll(jet::Connection &connection, const QString &table)
{
    jet::Recordset rows;
    rows.open("SELECT * FROM ["_L1 + table + u']', connection);
    for (; !rows.eof(); rows.moveNext()) {
        for (int field = 0; field < rows.fields().count(); ++field)
            (void)rows.value(field).toText();
    }
}

QStringList tablesOf(jet::Connection &connection)
{
    jet::Recordset tables;
    connection.openSchema(jet::SchemaTables, tables);
    QStringList names;
    for (; !tables.eof(); tables.moveNext())
        names.append(tables.value(0).toText());
    return names;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = fuzz::temporaryPath(u"store.mdb"_s);
    fuzz::putFile(path, QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    jet::Connection connection;
    if (!fuzz::mayBeRefused([&] { connection.open(jet::connectionString(path)); }))
        return 0;
    sqlite3 *handle = connection.database().handle();
    sqlite3_exec(handle, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
    const auto attempt = [&](const auto &step) {
        fuzz::boundTime(handle);
        fuzz::mayBeRefused(step);
    };
    QStringList tables;
    attempt([&] { tables = tablesOf(connection); });
    for (const QString &table : tables)
        attempt([&] { readAll(connection, table); });
    for (const QString &statement : {
             u"SELECT RoomNumber, Count(*) FROM Tbl_Rooms GROUP BY RoomNumber ORDER BY RoomNumber"_s,
             u"SELECT * FROM Tbl_Rooms WHERE RoomNumber = 'A-100' OR ID = 3"_s,
             u"INSERT INTO Tbl_Rooms (RoomNumber, Description) VALUES ('new', 'x')"_s,
             u"UPDATE Tbl_Rooms SET Description = RoomNumber"_s,
             u"DELETE FROM Tbl_Rooms WHERE ID > 1"_s,
             u"CREATE TABLE Tbl_New (ID COUNTER PRIMARY KEY, Name TEXT(20))"_s,
             u"DROP TABLE Tbl_Rooms"_s,
         })
        attempt([&] { connection.execute(statement); });
    sqlite3_progress_handler(handle, 0, nullptr, nullptr);
    fuzz::mayBeRefused([&] { connection.close(); });
    return 0;
}
