#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_Folders, Tbl_FolderDefaultPermissions and the folder's side
/// of the three permission tables. A folder is known by its full path, which ends in a
/// backslash: it is added to paths that lack it, unless told otherwise.
///
/// The readers open the caller's recordset; its rows need no store any more. Every method
/// raises the store's error, and what was written before it stays. AddBatch and
/// AddPermissionsBatch go on after an item that fails, and report it; a store that does not open or can no
/// longer be written ends them. Nothing is escaped. Parallel lists are of one length.
class clsFolders final : public RecordClass
{
public:
    /// Raises RuleViolation when the path is taken.
    void Add(const QString &connectionString, const QString &path, const QString &description);
    /// Raises RuleViolation when another folder has the path.
    void update(const QString &connectionString, int id, const QString &path, const QString &description);
    /// Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    /// Takes all permissions away and leaves the folders.
    void RemoveAllPermissions(const QString &connectionString, std::span<const int> ids);
    /// A new folder is inserted, a known one gets the description unless existing ones are
    /// kept.
    [[nodiscard]] Report AddBatch(const QString &connectionString, const QStringList &paths,
                                  const QStringList &descriptions, bool keepExisting, Steps &steps);
    /// Gives a local group or, when there is none of that name and server, a user a permission
    /// on a folder in place of the one it has. What could not be looked up is reported as not there.
    [[nodiscard]] Report AddPermissionsBatch(const QString &connectionString, const QStringList &paths,
                                             const QStringList &names, const QStringList &servers,
                                             const QStringList &permissions, Steps &steps);
    /// Replaces all permissions on a folder by those of the records, fields Name, Server and
    /// Permission, users first and global groups last. The path is used as it stands. Returns the
    /// accounts that are neither a user nor a group nor a default permission, each with a comma. An
    /// account given twice is in twice. Raises RuleViolation for a folder that is not in the store.
    /// After a failure some of the old permissions are gone without the new ones.
    [[nodiscard]] QString addPermittedObjects(const QString &connectionString, const QString &folderName,
                                              jet::Recordset &objects);
    /// One permission a user, in the same order. Without deleteFirst the rows are added to
    /// those that are there, with no look whether the user has one.
    void addUsers(const QString &connectionString, int folder, std::span<const int> users,
                  const QStringList &permissions, bool deleteFirst);
    void addLocalGroups(const QString &connectionString, int folder, std::span<const int> groups,
                        const QStringList &permissions, bool deleteFirst);
    void addGlobalGroups(const QString &connectionString, int folder, std::span<const int> groups,
                         const QStringList &permissions, bool deleteFirst);
    /// Raises RuleViolation when the account is taken.
    void AddDefaultFolderPermission(const QString &connectionString, const QString &account,
                                    const QString &permission);
    /// Raises RuleViolation when another row has the account.
    void updateDefaultFolderPermission(const QString &connectionString, int id, const QString &account,
                                       const QString &permission);
    [[nodiscard]] Report DeleteDefaultFolderPermissions(const QString &connectionString,
                                                        std::span<const int> ids, const QStringList &names,
                                                        Steps &steps);

    void getAll(const QString &connectionString, jet::Recordset &result);
    void Find(const QString &connectionString, jet::Recordset &result, const QString &text);
    void getAllFolderDefaultPermissions(const QString &connectionString, jet::Recordset &result);

    // Those who have a permission on a folder, and those who have none ("N/A").
    void getUsers(const QString &connectionString, jet::Recordset &result, int folder);
    void getUsersForPermissionWizard(const QString &connectionString, jet::Recordset &result, int folder);
    void getNotUsersForPermissionWizard(const QString &connectionString, jet::Recordset &result, int folder);
    /// The users with a permission of their own together with those who reach the folder
    /// through a global group in a local group.
    void getNotUsers(const QString &connectionString, jet::Recordset &result, int folder);
    void getLocalGroups(const QString &connectionString, jet::Recordset &result, int folder);
    void getNotLocalGroups(const QString &connectionString, jet::Recordset &result, int folder);
    void getGlobalGroups(const QString &connectionString, jet::Recordset &result, int folder);
    void getNotGlobalGroups(const QString &connectionString, jet::Recordset &result, int folder);

    // The folders on which an account has a permission, and those on which it has none ("N/A").
    void getUserMembers(const QString &connectionString, jet::Recordset &result, int user);
    void getNotUserMembers(const QString &connectionString, jet::Recordset &result, int user);
    void getLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
    void getNotLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
    void getGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
    void getNotGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
};
