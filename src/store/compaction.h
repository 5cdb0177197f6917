#pragma once

#include <QString>

class Steps;

/// What a compaction has saved, in bytes.
struct Compaction
{
    qint64 before = 0;
    qint64 after = 0;
};

/// Compacts a store in place: copies it to BackupKelvane.mdb in the folder, writes it compacted to
/// CompactedKelvane.mdb there, and lets that take the store's place in one step, so that whenever this ends
/// the store is the old one or the new one, whole. Both files are gone afterwards. Each of these is a step;
/// there is no cancelling.
///
/// Raises what went wrong, with the store as it was; the backup stays then.
[[nodiscard]] Compaction compactStore(const QString &path, const QString &folder, Steps &steps);
