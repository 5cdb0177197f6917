#include "queries/clsCustomQuery.h"

#include "platform/jet/connection.h"
#include "queries/querystatements.h"
#include "store/statement.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists = "A Custom Query with the same Name already exists in the Database."_L1;

} // namespace

void clsCustomQuery::Add(const QString &connectionString, const QString &name, const QString &description,
                         const QString &statement)
{
    writeUnlessFound(connectionString,
                     joined("SELECT ID FROM Tbl_CustomQuery WHERE [Name]='{name}'"_L1, {{"name"_L1, name}}),
                     alreadyExists, insertCustomQuery(name, description, statement));
}

void clsCustomQuery::getAll(const QString &connectionString, jet::Recordset &result)
{
    read(connectionString, result, u"SELECT * FROM Tbl_CustomQuery Order BY [Name] ASC"_s);
}

void clsCustomQuery::Execute(const QString &connectionString, jet::Recordset &result,
                             const QString &statement)
{
    if (statement.left(6).toLower() == "select"_L1)
        read(connectionString, result, statement);
    else
        write(connectionString, statement);
}

QStringList clsCustomQuery::tableNames(const QString &connectionString)
{
    QStringList names;
    keepingErrors([&] {
        jet::Connection connection;
        connection.open(connectionString);
        jet::Recordset tables;
        connection.openSchema(jet::SchemaTables, tables);
        for (; !tables.eof(); tables.moveNext()) {
            const QString name = tables.value(u"TABLE_NAME").toText();
            const bool isView =
                tables.value(u"TABLE_TYPE").toText().compare("view"_L1, Qt::CaseInsensitive) == 0;
            if (!name.startsWith("MSys"_L1) && !isView)
                names.append(name);
        }
    });
    return names;
}

QStringList clsCustomQuery::fieldNames(const QString &connectionString, const QString &table)
{
    jet::Recordset row;
    const QString quoted = u'[' + table + u']';
    read(connectionString, row, joined("SELECT Top 1 * FROM {table}"_L1, {{"table"_L1, quoted}}));
    QStringList names;
    for (int field = 0; field < row.fields().count(); ++field)
        names.append(row.fields().item(field).name());
    return names;
}

Report clsCustomQuery::Delete(const QString &connectionString, std::span<const int> ids,
                              const QStringList &names, Steps &steps)
{
    return deleteEach(connectionString, ids, names, steps,
                      {"DELETE * FROM Tbl_CustomQuery WHERE ID ={id}"_L1});
}

void clsCustomQuery::update(const QString &connectionString, int id, const QString &name,
                            const QString &description, const QString &statement)
{
    const QString idText = QString::number(id);
    writeUnlessFound(connectionString,
                     joined("SELECT ID FROM Tbl_CustomQuery WHERE [Name]='{name}' AND ID <> {id}"_L1,
                            {{"name"_L1, name}, {"id"_L1, idText}}),
                     alreadyExists,
                     joined("UPDATE Tbl_CustomQuery SET [Name]='{name}',[Description]='{description}',"
                            "[SQLString]='{statement}' WHERE ID = {id}"_L1,
                            {{"name"_L1, name},
                             {"description"_L1, description},
                             {"statement"_L1, statement},
                             {"id"_L1, idText}}));
}
