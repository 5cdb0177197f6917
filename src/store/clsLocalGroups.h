#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_LocalGroups and the local group's side of the relationship
/// tables: the twin of clsGlobalGroups, with global groups as a second kind of member.
///
/// The readers open the caller's recordset; its rows need no store any more. Every method
/// raises the store's error, and what was written before it stays. Nothing is escaped.
class clsLocalGroups final : public RecordClass
{
public:
    /// Adds memberships, fields UserName, UserServer, GroupName and GroupServer. A user or a
    /// group that is not in the store gets an entry of the report. Raises like AddBatch.
    void AddUsersBatch(const QString &connectionString, jet::Recordset &records, Steps &steps, Report &report,
                       AtFailure atFailure = AtFailure::Raise);
    /// The given users become the group's only ones.
    void addUsers(const QString &connectionString, int id, std::span<const int> users);
    /// Writes the records, fields Name, Server and Description: a new group is inserted, a
    /// known one gets the description or, with leaveExisting, is passed over. Where the batch raises the
    /// error of a record that fails, the report has what was done before.
    void AddBatch(const QString &connectionString, jet::Recordset &records, bool leaveExisting, Steps &steps,
                  Report &report, AtFailure atFailure = AtFailure::Raise);
    void Find(const QString &connectionString, jet::Recordset &result, const QString &name);
    /// Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    void getAll(const QString &connectionString, jet::Recordset &result);
    void getAllLocalGroupNames(const QString &connectionString, jet::Recordset &result);
    /// The global groups that are members of the group.
    void getGlobalGroups(const QString &connectionString, int id, jet::Recordset &result);
    void getUsers(const QString &connectionString, int id, jet::Recordset &result);
    void RemoveUsers(const QString &connectionString, std::span<const int> ids);
    void getFolders(const QString &connectionString, jet::Recordset &result, int id);
    void RemoveFolderPermissions(const QString &connectionString, std::span<const int> ids);
    /// Raises RuleViolation when another group has the name and server.
    void update(const QString &connectionString, int id, const QString &server, const QString &name,
                const QString &description);
    /// Raises RuleViolation when name and server are taken. The new id is handed back.
    void Add(const QString &connectionString, const QString &server, const QString &name,
             const QString &description, int &id);
    /// The given global groups become the group's only ones; one given twice is in twice.
    void addGlobalGroups(const QString &connectionString, int id, std::span<const int> globalGroups);
    /// As AddUsersBatch, fields LocalGroupName, LocalGroupServer, GlobalGroupName and
    /// GlobalGroupServer.
    void AddGlobalGroupsBatch(const QString &connectionString, jet::Recordset &records, Steps &steps,
                              Report &report, AtFailure atFailure = AtFailure::Raise);
    void RemoveGlobalGroups(const QString &connectionString, std::span<const int> ids);
    /// One permission a folder, in the same order. A permission the group has on a folder is
    /// overwritten; clearFirst takes all others away.
    void addFolders(const QString &connectionString, int id, std::span<const int> folders,
                    const QStringList &permissions, bool clearFirst);
    /// Gives the group the permissions of the records, fields Name (path of a folder) and
    /// Permission. The path is used as it stands. A folder not known yet is added; one that cannot be is
    /// named, with a comma, in the failed text. Of groups of one name on several servers any may be taken.
    /// Raises RuleViolation for a group that is not in the store.
    void addFoldersBatch(const QString &connectionString, const QString &groupName, jet::Recordset &records,
                         QString &failed);
};
