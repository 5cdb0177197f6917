#include "store/compaction.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "base/steps.h"
#include "platform/jet/compaction.h"
#include "platform/jet/connection.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

void copy(const QString &from, const QString &to)
{
    QFile::remove(to);
    QFile file(from);
    if (!file.copy(to))
        throwError(FileAccessError,
                   "The File '"_L1 + to + "' could not be written: "_L1 + file.errorString());
}

/// In one step, whatever else happens to the machine.
void replace(const QString &file, const QString &by)
{
    std::error_code failure;
    std::filesystem::rename(by.toStdU16String(), file.toStdU16String(), failure);
    if (failure)
        throwError(FileAccessError, "The File '"_L1 + file + "' could not be replaced: "_L1 +
                                        QString::fromStdString(failure.message()));
}

} // namespace

Compaction compactStore(const QString &path, const QString &folder, Steps &steps)
{
    const QString backup = folder + "/BackupKelvane.mdb"_L1;
    const QString compacted = folder + "/CompactedKelvane.mdb"_L1;
    const QString beside = path + ".compacted"_L1;
    constexpr int stepCount = 4;
    steps.phase(u"Compacting Database"_s, stepCount);
    const auto step = [&steps](const QString &text) { (void)steps.step(text); };

    Compaction sizes{.before = QFileInfo(path).size()};
    jet::commitPendingWrites();
    {
        jet::HeldStore store(path);
        QFile::remove(compacted);
        step(u"Making a Backup"_s);
        copy(path, backup);
        step(u"Compacting"_s);
        store.copyCompacted(compacted);
        step(u"Replacing the Database"_s);
        // The folder may be on another disk: only beside the store can a file take its place in one step.
        copy(compacted, beside);
        QFile::setPermissions(beside, QFile::permissions(path));
        replace(path, beside);
    }
    step(u"Cleaning up"_s);
    QFile::remove(compacted);
    QFile::remove(backup);
    sizes.after = QFileInfo(path).size();
    return sizes;
}
