#pragma once

#include "platform/jet/recordset.h"
#include "store/recordclass.h"
#include "store/userrecord.h"

#include <QString>
#include <QStringList>

#include <span>

/// All that reads and writes Tbl_Users and the user's side of the relationship tables.
/// A user is known by UserID in the store and by name and server everywhere else; only
/// the latter survives a new import.
///
/// The readers open the caller's recordset; its rows need no store any more. Every method
/// raises the store's error, except the two batch writers and Delete, which report it.
class clsUsers final : public RecordClass
{
public:
    /// Writes the records, whose fields are named as the columns, by name and server: a new
    /// account is inserted, a known one is updated (its contact columns stay as they are, and it
    /// takes the UserID of the record even when another user has it) or, with leaveExisting,
    /// left as it is and is not counted. A UserID of 0 or nothing asks for the next free one.
    /// A record that fails is counted, gets a line of the report, and the batch goes on. A user who gets a
    /// new UserID because the old one is taken counts as added and as failed. A store that does not open or
    /// can no longer be written ends the batch (Report::End::Lost). Raises jet::ItemNotFound, before anything
    /// is written, for records that lack a field.
    [[nodiscard]] Report AddBatch(const QString &connectionString, jet::Recordset &records,
                                  bool leaveExisting, Steps &steps);
    /// The same for records that hold the fields of a line of an import file. Nothing is escaped.
    [[nodiscard]] Report AddBatchFromFile(const QString &connectionString, jet::Recordset &records,
                                          bool leaveExisting, Steps &steps);
    /// Gives the user the permissions of the records, fields Name (path of a folder) and
    /// Permission. The path is used as it stands. A folder not known yet is added; one that cannot
    /// be is named, with a comma, in the failed text. Of users of one name on several servers any
    /// may be taken. Raises RuleViolation for a user who is not in the store.
    void addFoldersBatch(const QString &connectionString, const QString &userName, jet::Recordset &records,
                         QString &failed);
    /// Each takes its memberships, permissions, hardware and rooms along, unless another user has the id,
    /// too. Reports what fails, see RecordClass::deleteEach.
    [[nodiscard]] Report Delete(const QString &connectionString, std::span<const int> ids,
                                const QStringList &names, Steps &steps);
    void RemoveFolderPermissions(const QString &connectionString, std::span<const int> ids);
    /// The fields of the result are the template of recordsets made in memory; a row means nothing.
    void getStructure(const QString &connectionString, jet::Recordset &result);
    void getAll(const QString &connectionString, jet::Recordset &result);
    void getByUserNameAndServer(const QString &connectionString, jet::Recordset &result, const QString &name,
                                const QString &server);
    /// A UserID of 0 is replaced by the next free one, also when the user is then refused;
    /// another is used without a test and may be taken. Raises RuleViolation when name and server
    /// are taken. Nothing is escaped.
    void Add(const QString &connectionString, UserRecord &user);
    /// Opens the store and closes it.
    void TestConnection(const QString &connectionString);
    /// Rewrites all columns but UserID, which names the row. Raises RuleViolation when another
    /// user has the name and server. Nothing is escaped.
    void update(const QString &connectionString, const UserRecord &user);
    void getUserByID(const QString &connectionString, int id, jet::Recordset &result);
    void Find(const QString &connectionString, jet::Recordset &result, const QString &lastName,
              const QString &userName);
    void getAllLoginNames(const QString &connectionString, jet::Recordset &result);
    /// One permission a folder, in the same order. A permission the user has on a folder is
    /// overwritten; clearFirst takes all others away.
    void addFolders(const QString &connectionString, int id, std::span<const int> folders,
                    const QStringList &permissions, bool clearFirst);
    /// The given rooms become the user's only ones.
    void addRooms(const QString &connectionString, int id, std::span<const int> rooms);
    void getByHardwareType(const QString &connectionString, jet::Recordset &result, int hardwareType);
    void getGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
    void getGlobalGroups(const QString &connectionString, jet::Recordset &result, int id);
    /// The given groups become the user's only ones.
    void addGlobalGroups(const QString &connectionString, int id, std::span<const int> groups);
    /// The local groups that reach the user through a global group.
    void getLocalGroups(const QString &connectionString, jet::Recordset &result, int id);
    void getNotGlobalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
    void getNotLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
    void getLocalGroupMembers(const QString &connectionString, jet::Recordset &result, int group);
    /// The user's folders, direct ("N/A" as the group) and through local groups.
    void getAllFolders(const QString &connectionString, jet::Recordset &result, int id);
    void getSW(const QString &connectionString, jet::Recordset &result, int id);
    void getNotGlobalGroups(const QString &connectionString, jet::Recordset &result, int id);
    void getRooms(const QString &connectionString, jet::Recordset &result, int id);
    void getNotRooms(const QString &connectionString, jet::Recordset &result, int id);
    void getNotHW(const QString &connectionString, jet::Recordset &result, int id);
    void getHW(const QString &connectionString, jet::Recordset &result, int id);
    /// The given items become the user's only ones and are taken from any other user.
    void addHW(const QString &connectionString, int id, std::span<const int> items);
    /// Replaces Tbl_Users by the rows of Tbl_Remote_Users that have a name; if that fails, there is
    /// no Tbl_Users any more until a second try succeeds. The new table has the columns and their
    /// types, but no index, and its columns accept Null.
    void Import(const QString &connectionString);
};
