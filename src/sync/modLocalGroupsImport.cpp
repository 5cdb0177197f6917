#include "sync/modLocalGroups.h"

#include "exchange/modImport.h"
#include "store/clsLocalGroups.h"

using namespace Qt::StringLiterals;

namespace {

Report writeGroups(const QString &connectionString, jet::Recordset &lines, bool leaveExisting, Steps &steps)
{
    Report report;
    clsLocalGroups().AddBatch(connectionString, lines, leaveExisting, steps, report, AtFailure::GoOn);
    return report;
}

Report writeMembers(const QString &connectionString, jet::Recordset &lines, bool, Steps &steps)
{
    Report report;
    clsLocalGroups().AddGlobalGroupsBatch(connectionString, lines, steps, report, AtFailure::GoOn);
    return report;
}

} // namespace

void modLocalGroups::registerImports()
{
    modImport::registerWriter("Local Groups (Root Data)"_L1, writeGroups);
    modImport::registerWriter("Local Group - Global Groups (Relationships)"_L1, writeMembers);
}
