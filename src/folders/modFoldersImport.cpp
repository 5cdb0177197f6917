#include "folders/modFolders.h"

#include "exchange/modImport.h"
#include "folders/clsFolders.h"

using namespace Qt::StringLiterals;

namespace {

/// The texts of a field of all lines.
QStringList textsOf(const jet::Recordset &lines, int field)
{
    QStringList texts;
    texts.reserve(lines.recordCount());
    for (int line = 0; line < lines.recordCount(); ++line)
        texts += lines.texts(field)->text(std::size_t(line));
    return texts;
}

Report writeFolders(const QString &connectionString, jet::Recordset &lines, bool leaveExisting, Steps &steps)
{
    return clsFolders().AddBatch(connectionString, textsOf(lines, 0), textsOf(lines, 1), leaveExisting,
                                 steps);
}

Report writePermissions(const QString &connectionString, jet::Recordset &lines, bool, Steps &steps)
{
    return clsFolders().AddPermissionsBatch(connectionString, textsOf(lines, 0), textsOf(lines, 1),
                                            textsOf(lines, 2), textsOf(lines, 3), steps);
}

} // namespace

void modFolders::registerImports()
{
    modImport::registerWriter("Folders (Root Data)"_L1, writeFolders);
    modImport::registerWriter("Folder Permissions (Relationships)"_L1, writePermissions);
}
