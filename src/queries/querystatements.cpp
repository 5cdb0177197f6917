#include "queries/querystatements.h"

#include "store/statement.h"

using namespace Qt::StringLiterals;

QString insertCustomQuery(const QString &name, const QString &description, const QString &statement)
{
    return joined("INSERT INTO Tbl_CustomQuery ([Name],[Description],[SQLString]) "
                  "VALUES ('{name}','{description}','{statement}')"_L1,
                  {{"name"_L1, name}, {"description"_L1, description}, {"statement"_L1, statement}});
}
