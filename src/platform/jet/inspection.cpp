#include "platform/jet/inspection.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "platform/jet/database.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace jet {
namespace {

QString textOf(sqlite3_stmt *row, int column)
{
    const std::string_view text = textAt(row, column);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

void readRows(sqlite3 *handle, std::string_view sql, const QString &parameter,
              const std::function<void(sqlite3_stmt *)> &take)
{
    const StatementHandle statement = prepareSqlite(handle, sql);
    const QByteArray bytes = parameter.toUtf8();
    if (sqlite3_bind_parameter_count(statement.get()) > 0)
        sqlite3_bind_text(statement.get(), 1, bytes.constData(), static_cast<int>(bytes.size()),
                          SQLITE_STATIC);
    forEachRow(handle, statement.get(), take);
}

QString columnDefinition(sqlite3 *handle, const QString &table, const QString &column)
{
    const char *type = nullptr;
    const char *collation = nullptr;
    int notNull = 0;
    int primaryKey = 0;
    int counts = 0;
    const int result =
        sqlite3_table_column_metadata(handle, "main", table.toUtf8().constData(), column.toUtf8().constData(),
                                      &type, &collation, &notNull, &primaryKey, &counts);
    if (result != SQLITE_OK)
        raiseSqlite(handle, result);
    if (counts != 0)
        return u"COUNTER"_s;
    QString definition = QString::fromUtf8(type).toUpper();
    if (definition.startsWith("TEXT"_L1) && qstricmp(collation, "JET") != 0)
        definition += " COLLATE "_L1 + QString::fromUtf8(collation);
    if (notNull != 0 && definition != "YESNO"_L1)
        definition += " NOT NULL"_L1;
    if (primaryKey != 0)
        definition += " PRIMARY KEY"_L1;
    return definition;
}

std::vector<StoredPart> indexesOf(sqlite3 *handle, const QString &table)
{
    std::vector<StoredPart> indexes;
    const auto takeIndex = [&](sqlite3_stmt *row) {
        indexes.push_back({textOf(row, 0), sqlite3_column_int(row, 1) != 0 ? u"UNIQUE "_s : QString()});
    };
    readRows(
        handle,
        "SELECT name, \"unique\" FROM pragma_index_list(?1) WHERE origin = 'c' ORDER BY name COLLATE JET",
        table, takeIndex);
    for (StoredPart &index : indexes) {
        QStringList columns;
        readRows(handle, "SELECT name, \"desc\" FROM pragma_index_xinfo(?1) WHERE key ORDER BY seqno",
                 index.name, [&](sqlite3_stmt *row) {
                     columns.append(sqlite3_column_int(row, 1) != 0 ? QString(textOf(row, 0) + " DESC"_L1)
                                                                    : textOf(row, 0));
                 });
        index.definition += u'(' + columns.join(", "_L1) + u')';
    }
    return indexes;
}

} // namespace

std::vector<StoredTable> storedTables(Connection &connection)
{
    sqlite3 *handle = connection.database().handle();
    std::vector<StoredTable> tables;
    for (const std::string &name : connection.database().catalog().tableNames())
        tables.push_back({QString::fromStdString(name), {}, {}});
    for (StoredTable &table : tables) {
        readRows(handle, "SELECT name FROM pragma_table_info(?1) ORDER BY cid", table.name,
                 [&](sqlite3_stmt *row) {
                     table.columns.push_back({textOf(row, 0), {}});
                 });
        for (StoredPart &column : table.columns)
            column.definition = columnDefinition(handle, table.name, column.name);
        table.indexes = indexesOf(handle, table.name);
    }
    return tables;
}

QStringList brokenPlaces(Connection &connection)
{
    sqlite3 *handle = connection.database().handle();
    QStringList places;
    const auto take = [&](sqlite3_stmt *row) {
        // A row may tell of a whole page tree, a line each under a heading.
        for (const QString &line : textOf(row, 0).split(u'\n', Qt::SkipEmptyParts)) {
            if (line != "ok"_L1 && !line.startsWith("*** "_L1))
                places.append(line);
        }
    };
    try {
        readRows(handle, "PRAGMA integrity_check(100)", {}, take);
    } catch (const Error &error) {
        if ((sqlite3_errcode(handle) & 0xff) == SQLITE_BUSY)
            throw;
        places.append(error.description());
    }
    return places;
}

} // namespace jet
