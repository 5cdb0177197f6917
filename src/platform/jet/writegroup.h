#pragma once

#include "platform/jet/sqlite.h"

#include <chrono>

namespace jet {

/// The transaction that the writes of one handle are grouped in, bounded in writes and in age, so that a
/// batch does not pay for the disk row by row.
///
/// A group ends committed or lost. Lost is what SQLite gave up along with a statement, on a full disk, say,
/// and what could not be committed: ChangesLost then tells how many changes are gone. A commit that only has
/// to wait until another program has read the file leaves the group open, to be tried again.
class WriteGroup final
{
public:
    /// The handle outlives the group.
    explicit WriteGroup(sqlite3 *handle);

    [[nodiscard]] bool isOpen() const { return m_open; }
    /// Whether there ever was one: the file has a journal beside it since, if an empty one.
    [[nodiscard]] bool wasEverOpen() const { return m_wasEverOpen; }

    /// Opens a group unless one is open, and tells whether it did. Raises StoreLocked when another program
    /// writes, StoreFailure when the file was moved or deleted.
    bool open();
    /// To be told of each statement that ran, and whether it changed anything.
    void take(bool changed);
    [[nodiscard]] bool hasChanges() const { return m_open && m_changes > 0; }
    /// Commits where that is due and no other program reads; raises ChangesLost.
    void commitIfDue();
    /// To be called where the error of a statement is handled: raises ChangesLost in its place when the group
    /// is lost with it, or the error itself when there was nothing to lose but the statement.
    void raiseIfLost();

    /// Ends a group that has taken no change, as when the statement that it was opened for has failed: it
    /// would keep other programs from writing.
    void endUnlessChanged();

    /// Raises ChangesLost, or StoreLocked when another program's reading holds it up: the group stays then.
    void commit();
    /// Held up, it stays without a word.
    void commitUnlessRead();
    /// Held up, it is lost.
    void commitOrLose();
    /// Undoes what it has taken.
    void rollBack();

private:
    void requireFileInPlace() const;
    [[nodiscard]] bool isGivenUp() const;
    [[noreturn]] void raiseLost();

    sqlite3 *m_handle;
    StatementHandle m_begin;
    StatementHandle m_commit;
    bool m_open = false;
    bool m_wasEverOpen = false;
    int m_changes = 0;
    int m_changesSinceTry = 0; ///< to commit them
    std::chrono::steady_clock::time_point m_lastTry;
};

} // namespace jet
