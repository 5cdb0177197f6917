#pragma once

#include <QString>
#include <QStringList>

/// Looks a store over and changes nothing: whether the file is sound, has the tables, columns
/// and indexes that a new store has, whether no two users, groups or other objects are the same
/// by what tells them apart, and whether both ends of every relationship are there. One sentence
/// a finding, for people; empty when all is well. Tables, columns and indexes beyond those of a
/// new store are no findings. Raises jet::Failure when the file cannot be opened as a store or
/// another program holds it; what cannot be looked at in it is a finding.
[[nodiscard]] QStringList checkStore(const QString &path);

/// Removes the rows of relationships that have lost an end, after a copy of the store beside it. Tells what
/// it did, a sentence each; empty when there was nothing to remove, and no copy either. Raises jet::Failure
/// when the file cannot be opened as a store, is damaged, cannot be copied, or another program holds it: it
/// is left as it was then.
[[nodiscard]] QStringList repairStore(const QString &path);
