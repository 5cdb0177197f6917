#include "sync/modGlobalGroups.h"

#include "exchange/modImport.h"
#include "store/clsGlobalGroups.h"

using namespace Qt::StringLiterals;

namespace {

Report writeGroups(const QString &connectionString, jet::Recordset &lines, bool leaveExisting, Steps &steps)
{
    Report report;
    clsGlobalGroups().AddBatch(connectionString, lines, leaveExisting, steps, report, AtFailure::GoOn);
    return report;
}

Report writeMembers(const QString &connectionString, jet::Recordset &lines, bool, Steps &steps)
{
    Report report;
    clsGlobalGroups().AddUsersBatch(connectionString, lines, steps, report, AtFailure::GoOn);
    return report;
}

} // namespace

void modGlobalGroups::registerImports()
{
    modImport::registerWriter("Global Groups (Root Data)"_L1, writeGroups);
    modImport::registerWriter("Global Groups Users (Relationships)"_L1, writeMembers);
}
