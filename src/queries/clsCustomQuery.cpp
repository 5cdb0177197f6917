#include "queries/clsCustomQuery.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto alreadyExists = "A Custom Query with the same Name already exists in the Database."_L1;

} // namespace

void clsCustomQuery::Add(const QString &connectionString, const QString &name, const QString &description,
                         const QString &statement)
{
    writeUnlessFound(connectionString, "SELECT ID FROM Tbl_CustomQuery WHERE [Name]='"_L1 + name + "'"_L1,
                     alreadyExists,
                     "INSERT INTO Tbl_CustomQuery ([Name],[Description],[SQLString]) VALUES ('"_L1 + name +
                         "','"_L1 + description + "','"_L1 + statement + "')"_L1);
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
        write(connectionString, {statement});
}

void clsCustomQuery::Delete(const QString &connectionString, int id)
{
    write(connectionString, {"DELETE * FROM Tbl_CustomQuery WHERE ID ="_L1 + QString::number(id)});
}

void clsCustomQuery::update(const QString &connectionString, int id, const QString &name,
                            const QString &description, const QString &statement)
{
    const QString row = QString::number(id);
    writeUnlessFound(connectionString,
                     "SELECT ID FROM Tbl_CustomQuery WHERE [Name]='"_L1 + name + "' AND ID <> "_L1 + row,
                     alreadyExists,
                     "UPDATE Tbl_CustomQuery SET [Name]='"_L1 + name + "',[Description]='"_L1 + description +
                         "',[SQLString]='"_L1 + statement + "' WHERE ID = "_L1 + row);
}
