#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_GlobalGroups and the global group's side of the relationship
/// tables. A group is known by ID in the store and by name and server everywhere else.
///
/// The readers open the caller's recordset; its rows need no store any more. Every method
/// raises the store's error, and what was written before it stays. Nothing is escaped.
class clsGlobalGroups final : public RecordClass
{
public:
    /// Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    void RemoveUsers(const QString &connectionString, std::span<const int> ids);
    void getAll(const QString &connectionString, jet::Recordset &result);
    /// One permission a folder, in the same order. A permission the group has on a folder is
    /// overwritten; clearFirst takes all others away.
    void addFolders(const QString &connectionString, int id, std::span<const int> folders,
                    const QStringList &permissions, bool clearFirst);
    void getAllGlobalGroupNames(const QString &connectionString, jet::Recordset &result);
    void Find(const QString &connectionString, jet::Recordset &result, const QString &name);
    /// Raises RuleViolation when name and server are taken. The new id is handed back.
    void Add(const QString &connectionString, const QString &server, const QString &name,
             const QString &description, int &id);
    /// Writes the records, fields Name, Server and Description: a new group is inserted, a
    /// known one gets the description or, with leaveExisting, is passed over. Where the batch raises the
    /// error of a record that fails, the report has what was done before.
    void AddBatch(const QString &connectionString, jet::Recordset &records, bool leaveExisting, Steps &steps,
                  Report &report, AtFailure atFailure = AtFailure::Raise);
    /// Adds memberships, fields UserName, UserServer, GroupName and GroupServer. A user or a
    /// group that is not in the store gets an entry of the report. Raises like AddBatch.
    void AddUsersBatch(const QString &connectionString, jet::Recordset &records, Steps &steps, Report &report,
                       AtFailure atFailure = AtFailure::Raise);
    /// Raises RuleViolation when another group has the name and server.
    void update(const QString &connectionString, int id, const QString &server, const QString &name,
                const QString &description);
    /// The given users become the group's only ones.
    void addUsers(const QString &connectionString, int id, std::span<const int> users);
    /// The given local groups become the only ones that hold the group.
    void addLocalGroups(const QString &connectionString, int id, std::span<const int> localGroups);
    void getNotLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int localGroup);
    void getUsers(const QString &connectionString, jet::Recordset &result, int id);
    void getFolders(const QString &connectionString, jet::Recordset &result, int id);
    /// The global groups that are members of a local group.
    void getLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int localGroup);
    /// The local groups that hold a global group.
    void getLocalGroups(const QString &connectionString, jet::Recordset &result, int id);
    void getNotLocalGroups(const QString &connectionString, jet::Recordset &result, int id);
};
