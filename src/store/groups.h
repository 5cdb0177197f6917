#pragma once

#include "base/steps.h"
#include "store/relations.h"

#include <QString>

class BatchRun;
class StoreSession;

// Global and local groups take the same steps over tables of their own. The steps are told
// here once, with the statements and messages of the two side by side.

enum class GroupKind { Global, Local };

/// Raises RuleViolation when name and server are taken. The id of the new group is handed back.
void addGroup(StoreSession &store, GroupKind kind, const QString &server, const QString &name,
              const QString &description, int &id);
/// Raises RuleViolation when another group has the name and server.
void updateGroup(StoreSession &store, GroupKind kind, int id, const QString &server, const QString &name,
                 const QString &description);
/// Writes the records, fields Name, Server and Description: a new group is inserted, a known
/// one gets the description unless existing ones are left.
void addGroups(BatchRun &run, GroupKind kind, jet::Recordset &records, bool leaveExisting, Report &report,
               AtFailure atFailure);

/// Users and permissions from the side of a group. A repeated user counts once; a permission that is there is
/// overwritten.
[[nodiscard]] const RelationStatements &usersOfGroup(GroupKind kind);
[[nodiscard]] const RelationStatements &foldersOfGroup(GroupKind kind);
/// The global groups in a local group.
[[nodiscard]] const RelationStatements &globalGroupsOfGroup();

/// Adds users to groups, both by name and server: fields UserName, UserServer, GroupName and
/// GroupServer. What is not in the store gets an entry of the report.
void addGroupUsers(BatchRun &run, GroupKind kind, jet::Recordset &records, Report &report,
                   AtFailure atFailure);
/// The same for global groups that become members of local ones: fields LocalGroupName,
/// LocalGroupServer, GlobalGroupName and GlobalGroupServer.
void addLocalGroupGlobalGroups(BatchRun &run, jet::Recordset &records, Report &report, AtFailure atFailure);
