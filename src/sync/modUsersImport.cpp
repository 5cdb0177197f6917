#include "sync/modUsers.h"

#include "exchange/modImport.h"
#include "store/clsUsers.h"

using namespace Qt::StringLiterals;

void modUsers::registerImports()
{
    modImport::registerWriter(
        "Users (Root Data)"_L1,
        [](const QString &connectionString, jet::Recordset &lines, bool leaveExisting, Steps &steps) {
            return clsUsers().AddBatchFromFile(connectionString, lines, leaveExisting, steps);
        });
}
