#include "store/storecheck.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "platform/jet/connection.h"
#include "platform/jet/errors.h"
#include "platform/jet/inspection.h"
#include "platform/jet/recordset.h"
#include "platform/jet/storefile.h"
#include "store/relationships.h"
#include "store/statement.h"
#include "store/storefile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

/// Hardware stays without its type.
constexpr jet::DeleteRule typeOfHardware = {"Tbl_HW", "HWTypeID", "Tbl_HWType", "ID"};

/// What tells the rows of a table from each other. No index holds the store to it. The rules are tested
/// before each write, which two programs may do at the same moment; and an import gives a known user the id
/// of its record untested, so that users of two servers may come to share one.
struct Key
{
    QLatin1StringView table;
    std::initializer_list<QLatin1StringView> columns;
};

const Key keys[] = {
    {"Tbl_Users"_L1, {"UserID"_L1}},
    {"Tbl_Users"_L1, {"UserName"_L1, "ServerName"_L1}},
    {"Tbl_GlobalGroups"_L1, {"Name"_L1, "Server"_L1}},
    {"Tbl_LocalGroups"_L1, {"Name"_L1, "Server"_L1}},
    {"Tbl_Folders"_L1, {"FolderName"_L1}},
    {"Tbl_FolderDefaultPermissions"_L1, {"Account"_L1}},
    {"Tbl_HWType"_L1, {"Type"_L1, "Manufacturer"_L1, "Model"_L1, "TypeNumber"_L1}},
    {"Tbl_HW"_L1, {"SerialNumber"_L1, "HWTypeID"_L1}},
    {"Tbl_SW"_L1, {"Type"_L1, "Manufacturer"_L1, "Name"_L1, "Version"_L1}},
    {"Tbl_Rooms"_L1, {"RoomNumber"_L1}},
    {"Tbl_CustomQuery"_L1, {"Name"_L1}},
};

/// By name without regard to case; null when there is none.
template <typename Named>
const Named *named(const std::vector<Named> &all, QStringView name)
{
    for (const Named &candidate : all) {
        if (name.compare(candidate.name, Qt::CaseInsensitive) == 0)
            return &candidate;
    }
    return nullptr;
}

/// The tables of a new store.
std::vector<jet::StoredTable> expectedTables()
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        throwError(FileAccessError, folder.errorString());
    const QString path = folder.filePath(u"new.mdb"_s);
    createStore(path);
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    return jet::storedTables(connection);
}

void compareParts(QLatin1StringView kind, const QString &table, const std::vector<jet::StoredPart> &expected,
                  const std::vector<jet::StoredPart> &found, QStringList &findings)
{
    for (const jet::StoredPart &part : expected) {
        const QString start = kind + u' ' + part.name + " of table "_L1 + table;
        const jet::StoredPart *const twin = named(found, part.name);
        if (twin == nullptr)
            findings.append(start + " is missing."_L1);
        else if (twin->definition.compare(part.definition, Qt::CaseInsensitive) != 0)
            findings.append(start + " is "_L1 + twin->definition + ", not "_L1 + part.definition + u'.');
    }
}

void compareTables(const std::vector<jet::StoredTable> &found, QStringList &findings)
{
    std::vector<jet::StoredTable> expected;
    try {
        expected = expectedTables();
    } catch (const Error &error) {
        findings.append("The tables could not be compared with those of a new store: "_L1 +
                        error.description());
        return;
    }
    for (const jet::StoredTable &table : expected) {
        const jet::StoredTable *const twin = named(found, table.name);
        if (twin == nullptr) {
            findings.append("Table "_L1 + table.name + " is missing."_L1);
            continue;
        }
        compareParts("Column"_L1, table.name, table.columns, twin->columns, findings);
        compareParts("Index"_L1, table.name, table.indexes, twin->indexes, findings);
    }
}

bool has(const std::vector<jet::StoredTable> &tables, const QString &table, const QString &column)
{
    const jet::StoredTable *const found = named(tables, table);
    return found != nullptr && named(found->columns, column) != nullptr;
}

/// A text that holds {table}, {column}, {target} and {id}.
QString filled(QLatin1StringView text, const jet::DeleteRule &rule)
{
    const auto asText = [](std::string_view name) {
        return QString::fromLatin1(name.data(), qsizetype(name.size()));
    };
    return joined(text, {{"table"_L1, asText(rule.table)},
                         {"column"_L1, asText(rule.column)},
                         {"target"_L1, asText(rule.target)},
                         {"id"_L1, asText(rule.id)}});
}

bool has(const std::vector<jet::StoredTable> &tables, const jet::DeleteRule &rule)
{
    return has(tables, filled("{table}"_L1, rule), filled("{column}"_L1, rule)) &&
           has(tables, filled("{target}"_L1, rule), filled("{id}"_L1, rule));
}

qint64 looseRows(jet::Connection &connection, const jet::DeleteRule &rule)
{
    jet::Recordset result;
    result.open(filled("SELECT Count(*) FROM {table} LEFT JOIN {target} ON {table}.{column} = {target}.{id} "
                       "WHERE {target}.{id} Is Null AND {table}.{column} Is Not Null"_L1,
                       rule),
                connection);
    return result.value(0).toInteger();
}

void countLooseRows(jet::Connection &connection, const jet::DeleteRule &rule, QStringList &findings)
{
    const qint64 count = looseRows(connection, rule);
    if (count > 0)
        findings.append(filled("Table {table}: "_L1, rule) + QString::number(count) +
                        (count == 1 ? " row has a "_L1 : " rows have a "_L1) +
                        filled("{column} that is not in {target}."_L1, rule));
}

/// The copy of the store that a repair leaves beside it, by a name that nothing has yet.
QString copyBeside(const QString &path)
{
    const QFileInfo store(path);
    const QString start = store.completeBaseName() + "-before-repair"_L1;
    const QString suffix = store.suffix().isEmpty() ? QString() : u'.' + store.suffix();
    QString copy;
    for (int number = 1; copy.isEmpty() || QFileInfo::exists(copy) || QFileInfo(copy).isSymLink(); ++number)
        copy =
            store.dir().filePath(start + (number == 1 ? QString() : u'-' + QString::number(number)) + suffix);
    jet::copyDatabase(path, copy);
    return copy;
}

QStringList removeLooseRows(jet::Connection &connection, const std::vector<const jet::DeleteRule *> &rules)
{
    QStringList removed;
    for (const jet::DeleteRule *rule : rules) {
        const qint64 count = looseRows(connection, *rule);
        if (count == 0)
            continue;
        connection.execute(filled("DELETE FROM {table} WHERE {column} NOT IN "
                                  "(SELECT {id} FROM {target} WHERE {id} Is Not Null)"_L1,
                                  *rule));
        removed.append(filled("Table {table}: removed "_L1, *rule) + QString::number(count) +
                       (count == 1 ? " row whose "_L1 : " rows whose "_L1) +
                       filled("{column} is not in {target}."_L1, *rule));
    }
    return removed;
}

/// Each value that more than one row has for a key that is not Null.
void findRepeatedKeys(jet::Connection &connection, const Key &key, QStringList &findings)
{
    const QStringList columns(key.columns.begin(), key.columns.end());
    const QString list = columns.join(", "_L1);
    const QString given = columns.join(" Is Not Null AND "_L1);
    jet::Recordset result;
    result.open(joined("SELECT {list}, Count(*) FROM {table} WHERE {given} Is Not Null GROUP BY {list} "
                       "HAVING Count(*) > 1 ORDER BY {list}"_L1,
                       {{"list"_L1, list}, {"table"_L1, QString(key.table)}, {"given"_L1, given}}),
                connection);
    static const QRegularExpression lineEnds(u"[\\r\\n]+"_s);
    for (; !result.eof(); result.moveNext()) {
        QStringList values;
        for (int i = 0; i < int(columns.size()); ++i)
            values.append(columns[i] + " '"_L1 + result.value(i).toText().replace(lineEnds, u" "_s) + u'\'');
        findings.append("Table "_L1 + key.table + ": "_L1 + result.value(int(columns.size())).toText() +
                        " rows have the "_L1 + values.join(", "_L1) + u'.');
    }
}

} // namespace

QStringList checkStore(const QString &path)
{
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    QStringList findings;
    for (const QString &place : jet::brokenPlaces(connection))
        findings.append("The file is damaged: "_L1 + place);
    std::vector<jet::StoredTable> tables;
    try {
        tables = jet::storedTables(connection);
    } catch (const Error &error) {
        findings.append("The list of tables cannot be read: "_L1 + error.description());
        return findings;
    }
    compareTables(tables, findings);
    const auto find = [&findings](const QString &question, const auto &step) {
        try {
            step();
        } catch (const Error &error) {
            findings.append(question + " could not be found out: "_L1 + error.description());
        }
    };
    // What lacks a table or a column was told already.
    for (const Key &key : keys) {
        if (!std::ranges::all_of(
                key.columns, [&](auto column) { return has(tables, QString(key.table), QString(column)); }))
            continue;
        find("Whether "_L1 + QStringList(key.columns.begin(), key.columns.end()).join(", "_L1) + " of "_L1 +
                 key.table + " stand there once"_L1,
             [&] { findRepeatedKeys(connection, key, findings); });
    }
    const auto findLooseRows = [&](const jet::DeleteRule &rule) {
        if (has(tables, rule))
            find(filled("Whether every {column} of {table} is in {target}"_L1, rule),
                 [&] { countLooseRows(connection, rule, findings); });
    };
    std::ranges::for_each(relationships, findLooseRows);
    findLooseRows(typeOfHardware);
    return findings;
}

QStringList repairStore(const QString &path)
{
    jet::Connection connection;
    connection.open(jet::connectionString(path));
    // What is found loose, copied and removed is the same: nobody else writes from here on.
    connection.beginWriting();
    try {
        if (!jet::brokenPlaces(connection).isEmpty())
            throwError(jet::Failure, "The store '"_L1 + path + "' is damaged and was not repaired."_L1);
        const std::vector<jet::StoredTable> tables = jet::storedTables(connection);
        std::vector<const jet::DeleteRule *> loose;
        for (const jet::DeleteRule &rule : relationships) {
            if (has(tables, rule) && looseRows(connection, rule) > 0)
                loose.push_back(&rule);
        }
        QStringList told;
        if (!loose.empty()) {
            told.append("The store as it was is kept in "_L1 + copyBeside(path) + u'.');
            connection.keepDeleteRules(relationships);
            told += removeLooseRows(connection, loose);
        }
        connection.commit();
        connection.close();
        return told;
    } catch (const Error &) {
        if (connection.state() != jet::StateClosed)
            connection.rollBack();
        throw;
    }
}
