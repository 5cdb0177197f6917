#include "store/groups.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "store/batchrecords.h"
#include "store/batchrun.h"
#include "store/statement.h"
#include "store/storesession.h"

using namespace Qt::StringLiterals;

namespace {

template <typename T>
struct Twin
{
    T global;
    T local;

    constexpr const T &operator[](GroupKind kind) const { return kind == GroupKind::Global ? global : local; }
};

using TwinText = Twin<QLatin1StringView>;

constexpr TwinText alreadyExists = {
    "Cannot add/edit Global Group. The Global Group already exists in the Database"_L1,
    "Cannot add/edit Local Group. The Local Group already exists in the Database"_L1,
};

// clang-format off
constexpr TwinText taken = {
    "SELECT * FROM Tbl_GlobalGroups WHERE [Name]='{name}' AND [Server]='{server}'"_L1,
    "SELECT * FROM Tbl_LocalGroups WHERE [Name]='{name}' AND [Server]='{server}'"_L1,
};
constexpr TwinText insert = {
    "INSERT INTO Tbl_GlobalGroups (Name,Server,Description) VALUES ('{name}','{server}','{description}')"_L1,
    "INSERT INTO Tbl_LocalGroups (Name,Server,Description) VALUES ('{name}','{server}','{description}')"_L1,
};
constexpr TwinText newest = {
    "SELECT MAX(ID) as MaxID from Tbl_GlobalGroups"_L1,
    "SELECT MAX(ID) as MaxID from Tbl_LocalGroups"_L1,
};

constexpr TwinText takenByOther = {
    "SELECT * FROM Tbl_GlobalGroups WHERE [Server] = '{server}' AND [Name]='{name}' AND [ID] <>{id}"_L1,
    "SELECT * FROm Tbl_LocalGroups WHERE [Server] = '{server}' AND [Name]='{name}' AND [ID] <>{id}"_L1,
};
constexpr TwinText update = {
    "UPDATE Tbl_GlobalGroups SET Name ='{name}',Server ='{server}',Description= '{description}' WHERE ID ={id}"_L1,
    "UPDATE Tbl_LocalGroups SET Name ='{name}',Server ='{server}',Description= '{description}' WHERE ID ={id}"_L1,
};

constexpr TwinText batchLookup = {
    "Select ID from Tbl_GlobalGroups WHERE Name = '{name}' AND [Server] = '{server}'"_L1,
    "Select ID from Tbl_LocalGroups WHERE Name = '{name}' AND Server='{server}'"_L1,
};
constexpr TwinText batchInsert = {
    "INSERT INTO Tbl_GlobalGroups (Name,Server, Description) VALUES ('{name}','{server}','{description}')"_L1,
    "INSERT INTO Tbl_LocalGroups (Name,Server,Description) VALUES ('{name}','{server}','{description}')"_L1,
};
constexpr TwinText batchUpdate = {
    "UPDATE Tbl_GlobalGroups SET Description = '{description}' WHERE ID = {id}"_L1,
    "UPDATE Tbl_LocalGroups SET Description = '{description}' WHERE ID = {id}"_L1,
};

constexpr Twin<RelationStatements> groupUsers = {
    {
        "DELETE FROM Tbl_GlobalGroupsUsers WHERE GlobalGroupID={id}"_L1,
        "SELECT * FROM Tbl_GlobalGroupsUsers WHERE GlobalGroupID ={id} AND  UserID ={item}"_L1,
        "INSERT INTO Tbl_GlobalgroupsUsers (GlobalGroupID,UserID) VALUES ({id},{item})"_L1,
    },
    {
        "DELETE FROM Tbl_LocalGroupsUsers WHERE LocalGroupID={id}"_L1,
        "SELECT * FROM Tbl_LocalGroupsUsers WHERE LocalGroupID ={id} AND  UserID ={item}"_L1,
        "INSERT INTO Tbl_LocalgroupsUsers (LocalGroupID,UserID) VALUES ({id},{item})"_L1,
    },
};

constexpr Twin<RelationStatements> groupFolders = {
    {
        "DELETE FROM Tbl_GlobalGroupFolderPermission WHERE GlobalGroupID={id}"_L1,
        "SELECT Permission FROM Tbl_GlobalGroupFolderPermission WHERE GlobalGroupID = {id} AND FolderID ={item}"_L1,
        "INSERT INTO Tbl_GlobalGroupFolderPermission(GlobalGroupID,FolderID,Permission) VALUES ({id},{item},'{permission}')"_L1,
        "UPDATE Tbl_GlobalGroupFolderPermission SET Permission ='{permission}' WHERE FolderID ={item} AND GlobalGroupID ={id}"_L1,
    },
    {
        "DELETE FROM Tbl_LocalGroupFolderPermission WHERE LocalGroupID={id}"_L1,
        "SELECT Permission FROM Tbl_LocalGroupFolderPermission WHERE LocalGroupID = {id} AND FolderID ={item}"_L1,
        "INSERT INTO Tbl_LocalGroupFolderPermission(LocalGroupID,FolderID,Permission) VALUES ({id},{item},'{permission}')"_L1,
        "UPDATE Tbl_LocalGroupFolderPermission SET Permission ='{permission}' WHERE FolderID ={item} AND LocalGroupID ={id}"_L1,
    },
};

constexpr RelationStatements groupGlobalGroups = {
    "DELETE FROM Tbl_LocalGroupsGlobalGroups WHERE LocalGroupID={id}"_L1,
    {},
    "INSERT INTO Tbl_LocalGroupsGlobalGroups(LocalGroupID,GlobalGroupID) VALUES ({id},{item})"_L1,
};

/// A batch of memberships by name: the fields of its records, its statements and what it says
/// of a member or a group that is not in the store.
struct MembershipBatch
{
    QLatin1StringView memberName;
    QLatin1StringView memberServer;
    QLatin1StringView groupName;
    QLatin1StringView groupServer;
    QLatin1StringView memberLookup;
    QLatin1StringView groupLookup;
    QLatin1StringView test;
    QLatin1StringView insert;
    QLatin1StringView memberNotFound;
    QLatin1StringView groupNotFound;
};

constexpr Twin<MembershipBatch> usersOfGroups = {
    {
        "UserName"_L1, "UserServer"_L1, "GroupName"_L1, "GroupServer"_L1,
        "SELECT UserID FROM Tbl_Users WHERE [UserName]='{name}' AND [ServerName]='{server}'"_L1,
        "SELECT ID From Tbl_GlobalGroups WHERE [Name]='{name}' AND [Server]='{server}'"_L1,
        "SELECT * FROM Tbl_GlobalGroupsUsers WHERE UserID ={member} AND GlobalGroupID={group}"_L1,
        "INSERT INTO TBL_GlobalGroupsUsers (GlobalGroupID,UserID) VALUES ({group},{member})"_L1,
        " User not found"_L1, " Global Group not found"_L1,
    },
    {
        "UserName"_L1, "UserServer"_L1, "GroupName"_L1, "GroupServer"_L1,
        "SELECT UserID FROM Tbl_Users WHERE [UserName]='{name}' AND [ServerName]='{server}'"_L1,
        "SELECT ID From Tbl_LocalGroups WHERE [Name]='{name}' AND [Server]='{server}'"_L1,
        "SELECT * FROM Tbl_LocalGroupsUsers WHERE UserID ={member} AND LocalGroupID={group}"_L1,
        "INSERT INTO TBL_LocalGroupsUsers (LocalGroupID,UserID) VALUES ({group},{member})"_L1,
        " User not found"_L1, " Local Group not found"_L1,
    },
};
constexpr MembershipBatch globalGroupsOfLocalGroups = {
    "GlobalGroupName"_L1, "GlobalGroupServer"_L1, "LocalGroupName"_L1, "LocalGroupServer"_L1,
    "SELECT ID FROM Tbl_GlobalGroups WHERE [Name]='{name}' AND [Server]='{server}'"_L1,
    "SELECT ID From Tbl_LocalGroups WHERE [Name]='{name}' AND [Server]='{server}'"_L1,
    "SELECT * FROM Tbl_LocalGroupsGlobalGroups WHERE GlobalGroupID ={member} AND LocalGroupID={group}"_L1,
    "INSERT INTO TBL_LocalGroupsGlobalGroups (LocalGroupID,GlobalGroupID) VALUES ({group},{member})"_L1,
    " Global Group not found"_L1, " Local Group not found"_L1,
};
// clang-format on

struct Account
{
    QString name;
    QString server;

    [[nodiscard]] QString path() const { return server + u'\\' + name; }
};

/// The id of an account; Null when it is not in the store.
Value accountId(StoreSession &store, QLatin1StringView lookup, const Account &account)
{
    return store.scalar(joined(lookup, {{"name"_L1, account.name}, {"server"_L1, account.server}}));
}

/// Returns the entry of the error text, empty when the membership is in the store now.
QString addMembership(StoreSession &store, const MembershipBatch &kind, const Account &member,
                      const Account &group)
{
    const Value memberId = accountId(store, kind.memberLookup, member);
    if (memberId.isNull())
        return "\r\n\r\n"_L1 + group.path() + u'\t' + member.path() + kind.memberNotFound;
    const Value groupId = accountId(store, kind.groupLookup, group);
    if (groupId.isNull())
        return "\r\n\r\n\t"_L1 + group.path() + kind.groupNotFound;
    const QString memberText = memberId.toText();
    const QString groupText = groupId.toText();
    const auto fill = [&](QLatin1StringView text) {
        return joined(text, {{"member"_L1, memberText}, {"group"_L1, groupText}});
    };
    if (!store.exists(fill(kind.test)))
        store.execute(fill(kind.insert));
    return {};
}

/// A record of a batch of memberships.
struct Membership
{
    Account member;
    Account group;

    explicit Membership(const BatchRecords &batch)
        : member{batch.text(0), batch.text(1)}
        , group{batch.text(2), batch.text(3)}
    {
    }

    [[nodiscard]] QString name() const { return group.path() + u' ' + member.path(); }
};

/// Does the work on an item; what it raises about the item is a line of the report where the batch goes on.
template <typename Work>
void onItem(const QString &name, Report &report, AtFailure atFailure, Work &&work)
{
    if (atFailure == AtFailure::Raise)
        return work();
    try {
        work();
    } catch (const jet::StoreFailure &) {
        throw;
    } catch (const Error &error) {
        ++report.failed;
        report.text += "\r\n"_L1 + name + u' ' + error.description();
    }
}

void addMemberships(BatchRun &run, const MembershipBatch &kind, jet::Recordset &records, Report &report,
                    AtFailure atFailure)
{
    BatchRecords batch(records, {kind.memberName, kind.memberServer, kind.groupName, kind.groupServer});
    if (batch.last())
        run.expect(batch.count(), Membership(batch).name());
    while (batch.next()) {
        const Membership item(batch);
        const bool goesOn = run.item(item.name(), [&](StoreSession &store) {
            onItem(item.name(), report, atFailure, [&] {
                const QString missing = addMembership(store, kind, item.member, item.group);
                ++(missing.isEmpty() ? report.done : report.failed);
                report.text += missing;
            });
        });
        if (!goesOn)
            break;
    }
}

} // namespace

void addGroup(StoreSession &store, GroupKind kind, const QString &server, const QString &name,
              const QString &description, int &id)
{
    if (store.exists(joined(taken[kind], {{"name"_L1, name}, {"server"_L1, server}})))
        throwError(RuleViolation, alreadyExists[kind]);
    store.execute(
        joined(insert[kind], {{"name"_L1, name}, {"server"_L1, server}, {"description"_L1, description}}));
    id = int(store.scalar(newest[kind]).toInteger());
}

void updateGroup(StoreSession &store, GroupKind kind, int id, const QString &server, const QString &name,
                 const QString &description)
{
    const QString idText = QString::number(id);
    if (store.exists(
            joined(takenByOther[kind], {{"name"_L1, name}, {"server"_L1, server}, {"id"_L1, idText}})))
        throwError(RuleViolation, alreadyExists[kind]);
    store.execute(joined(
        update[kind],
        {{"name"_L1, name}, {"server"_L1, server}, {"description"_L1, description}, {"id"_L1, idText}}));
}

void addGroups(BatchRun &run, GroupKind kind, jet::Recordset &records, bool leaveExisting, Report &report,
               AtFailure atFailure)
{
    BatchRecords batch(records, {"Name"_L1, "Server"_L1, "Description"_L1});
    const auto group = [&batch] { return Account{batch.text(0), batch.text(1)}; };
    const auto write = [&](StoreSession &store) {
        const auto &[name, server] = group();
        const QString description = batch.text(2);
        const Value known = accountId(store, batchLookup[kind], {name, server});
        if (known.isNull()) {
            store.execute(
                joined(batchInsert[kind],
                       {{"name"_L1, name}, {"server"_L1, server}, {"description"_L1, description}}));
            ++report.added;
        } else if (!leaveExisting) {
            store.execute(
                joined(batchUpdate[kind], {{"description"_L1, description}, {"id"_L1, known.toText()}}));
            ++report.updated;
        }
        ++report.done;
    };
    const auto writeItem = [&](StoreSession &store) {
        onItem(group().path(), report, atFailure, [&] { write(store); });
    };
    if (batch.last())
        run.expect(batch.count(), group().path());
    while (batch.next() && run.item(group().path(), writeItem)) {
    }
}

const RelationStatements &usersOfGroup(GroupKind kind)
{
    return groupUsers[kind];
}

const RelationStatements &foldersOfGroup(GroupKind kind)
{
    return groupFolders[kind];
}

const RelationStatements &globalGroupsOfGroup()
{
    return groupGlobalGroups;
}

void addGroupUsers(BatchRun &run, GroupKind kind, jet::Recordset &records, Report &report,
                   AtFailure atFailure)
{
    addMemberships(run, usersOfGroups[kind], records, report, atFailure);
}

void addLocalGroupGlobalGroups(BatchRun &run, jet::Recordset &records, Report &report, AtFailure atFailure)
{
    addMemberships(run, globalGroupsOfLocalGroups, records, report, atFailure);
}
