#include "platform/jet/sqlitesetup.h"

#include "platform/jet/collation.h"
#include "platform/jet/functions.h"
#include "platform/jet/sqlite.h"

namespace jet {

void registerDialect(sqlite3 *handle)
{
    registerCollation(handle);
    registerFunctions(handle);
    // A name in quotes that is no column is an error, never a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
}

void applyPragmas(sqlite3 *handle)
{
    // A rollback journal, not a write-ahead log: stores lie on file servers too, where the
    // log's shared memory does not work, and a store at rest is one file.
    // Cells that reach out of their page, and functions called by a foreign schema, are refused.
    runSqlite(handle, "PRAGMA cell_size_check = ON; PRAGMA trusted_schema = OFF");
    runSqlite(handle, "PRAGMA journal_mode = TRUNCATE; PRAGMA synchronous = FULL; PRAGMA temp_store = MEMORY;"
                      "PRAGMA cache_size = -65536; PRAGMA foreign_keys = OFF");
}

} // namespace jet
