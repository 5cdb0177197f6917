// Statements, one a line, run on a small store: each is refused or done, and the store stays whole.

#include "fuzzkit.h"
#include "platform/jet/clock.h"
#include "platform/jet/connection.h"
#include "platform/jet/database.h"
#include "platform/jet/recordset.h"
#include "platform/jet/sqlitesetup.h"

#include <QDateTime>
#include <QStringList>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

void run(const QString &statement, jet::Connection &connection)
{
    fuzz::boundTime(connection.database().handle());
    fuzz::mayBeRefused([&] {
        jet::Recordset rows;
        rows.open(statement, connection);
        if (rows.state() != jet::StateOpen)
            return;
        for (; !rows.eof(); rows.moveNext()) {
            for (int field = 0; field < rows.fields().count(); ++field)
                (void)rows.value(field).toText();
        }
    });
    sqlite3_progress_handler(connection.database().handle(), 0, nullptr, nullptr);
}

void checkWhole(sqlite3 *handle)
{
    const auto take = [](void *, int, char **columns, char **) {
        if (qstrcmp(columns[0], "ok") != 0)
            fuzz::fault("the store is damaged: "_L1 + QString::fromUtf8(columns[0]));
        return 0;
    };
    sqlite3_exec(handle, "PRAGMA integrity_check(1)", take, nullptr, nullptr);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    jet::setClock([] { return QDateTime({2005, 3, 4}, {14, 30}); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString path = fuzz::temporaryPath(u"store.mdb"_s);
    fuzz::putFile(path, fuzz::smallStore());
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    sqlite3 *handle = connection.database().handle();
    sqlite3_exec(handle, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr);
    for (const QString &statement : text.split(u'\n'))
        run(statement, connection);
    jet::commitPendingWrites();
    if (sqlite3_total_changes(handle) > 0)
        checkWhole(handle);
    connection.close();
    return 0;
}
