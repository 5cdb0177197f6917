#pragma once

#include "base/error.h"
#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"
#include "store/storesession.h"
#include "support/freshstore.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

/// A row as text: its values with a bar between, Null as "-".
using Rows = QStringList;

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline Rows rowsOf(jet::Recordset &records)
{
    Rows rows;
    for (; !records.eof(); records.moveNext()) {
        QStringList values;
        for (int i = 0; i < records.fields().count(); ++i)
            values.append(records.value(i).isNull() ? QStringLiteral("-") : records.value(i).toText());
        rows.append(values.join(u'|'));
    }
    return rows;
}

/// The rows of a recordset that a step opens.
template <typename Step>
Rows rowsFrom(Step &&open)
{
    jet::Recordset records;
    open(records);
    EXPECT_EQ(records.state(), jet::StateOpen);
    return rowsOf(records);
}

/// The error that a step raises; number 0 when it raises none.
template <typename Step>
CurrentError errorOf(Step &&step)
{
    CurrentError error;
    try {
        step();
    } catch (const Error &raised) {
        error.set(raised);
    }
    return error;
}

/// Records made in memory, as the batch writers get them: all fields text.
inline void makeRecords(jet::Recordset &records, const QStringList &names, const QList<QStringList> &rows)
{
    for (const QString &name : names)
        records.fields().append(name, jet::FieldType::VarChar, 255);
    records.open();
    for (const QStringList &row : rows) {
        records.addNew();
        for (int i = 0; i < row.size(); ++i)
            records.fields().item(i).setValue(row[i]);
    }
}

/// The fields of lines with bars between them.
inline QList<QStringList> fieldsOf(const QStringList &lines)
{
    QList<QStringList> fields;
    for (const QString &line : lines)
        fields += line.split(u'|');
    return fields;
}

/// A new, empty store for each test of the record classes.
class RecordTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        makeFreshStore(path);
    }

    void run(const QString &sql) const
    {
        StoreSession session(connection);
        session.execute(sql);
        session.close();
    }

    [[nodiscard]] Rows rows(const QString &sql) const
    {
        return rowsFrom([&](jet::Recordset &records) { StoreSession(connection).open(sql, records); });
    }

    /// All rows of a table, each in the order of its columns.
    [[nodiscard]] Rows content(const char *table) const
    {
        Rows all = rows(QStringLiteral("SELECT * FROM ") + QLatin1StringView(table));
        all.sort();
        return all;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("company.kvs"));
    QString connection = jet::connectionString(path);
};
