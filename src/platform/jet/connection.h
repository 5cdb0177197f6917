#pragma once

#include "platform/jet/deleterules.h"
#include "platform/jet/state.h"

#include <QString>

#include <memory>
#include <span>

namespace jet {

class Database;
class Recordset;

inline constexpr int SchemaTables = 20;

/// A session on one store file. Sessions of this process on one file share the handle
/// below; the file is closed when the last of them closes. Closes itself at the end of
/// its life, but only close() tells when what was written could not be brought to the disk.
class Connection final
{
public:
    Connection();
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// Takes "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=PATH" with or without further
    /// properties; a path in quotes may hold anything, quotes doubled. Never creates a file. Raises
    /// ObjectOpen (3705) when open already, ProviderMissing (3706) for another provider, Failure with a text
    /// that names the file when it is missing, a folder, unreadable or no store.
    void open(const QString &connectionString);
    /// Commits what is pending; what cannot be committed with the last connection to the file is undone and
    /// raised as ChangesLost. Raises ObjectClosed (3704) when not open, Failure in the middle of a statement.
    void close();
    [[nodiscard]] int state() const { return m_database ? StateOpen : StateClosed; }

    /// The first write of any connection to the file puts the rules into it, and every change of its tables
    /// brings them up to date. Another program finds them there. They must outlive the connections.
    void keepDeleteRules(std::span<const DeleteRule> rules);

    /// Takes the write lock of the file: what is read afterwards is still true when it decides what is
    /// written. To be called before the first look of each step that will write; it commits the steps before
    /// where that is due, and never in the middle of one. Raises StoreLocked when another program writes.
    void beginWriting();
    /// Brings what is written to the disk. Raises StoreLocked when another program's reading holds that up;
    /// it can be tried again.
    void commit();
    /// Undoes what is not committed.
    void rollBack();

    /// Runs one statement that returns no rows, or drops the rows it returns.
    void execute(const QString &sql);

    /// The table list (schema 20) as a disconnected recordset with the fields
    /// TABLE_NAME and TABLE_TYPE, which is "TABLE", by name. What the recordset held
    /// is dropped; an open one raises ObjectOpen (3705).
    void openSchema(int schema, Recordset &recordset);

    /// Raises ConnectionClosed (3709) when not open.
    [[nodiscard]] Database &database() const;

private:
    void letGo();

    std::shared_ptr<Database> m_database;
    bool m_holds = false;
};

/// The connection text of a store file.
[[nodiscard]] QString connectionString(const QString &path);

/// Commits the pending group of writes of every open file of this process that no other program reads. Never
/// raises: where it fails for good, the next use of that file raises the ChangesLost. For the middle of other
/// work, as when the program paints.
void flushPendingWrites();
/// The same where nothing uses the files any more: raises the first ChangesLost.
void commitPendingWrites();

} // namespace jet
