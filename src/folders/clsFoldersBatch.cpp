#include "folders/clsFolders.h"

#include "folders/folderstatements.h"
#include "platform/jet/errors.h"
#include "store/batchrun.h"
#include "store/statement.h"
#include "store/storesession.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto notAdded = " could not be added to DB"_L1;
constexpr auto unknownFolder = " not in DB"_L1;
constexpr auto unknownAccount = " is not a Local Group and not a User in DB"_L1;

QString line(const QString &what, QLatin1StringView complaint)
{
    return "\r\n"_L1 + what + complaint;
}

/// Runs statements whose failure does not end the batch.
class HeldBack final
{
public:
    explicit HeldBack(StoreSession &store) : m_store(store) {}

    bool execute(const QString &sql)
    {
        return succeeds([&] { m_store.execute(sql); });
    }

    /// The first field of the first row, Null without a row; nothing when the statement failed.
    std::optional<Value> scalar(const QString &sql)
    {
        Value value;
        return succeeds([&] { value = m_store.scalar(sql); }) ? std::optional(value) : std::nullopt;
    }

    /// What the last statement failed with.
    [[nodiscard]] const QString &failure() const { return m_failure; }

private:
    template <typename Step>
    bool succeeds(Step &&step)
    {
        try {
            step();
            return true;
        } catch (const jet::StoreFailure &) {
            throw;
        } catch (const Error &error) {
            m_failure = error.description();
            return false;
        }
    }

    StoreSession &m_store;
    QString m_failure;
};

/// The first of these that knows the name and server gets the permission.
struct AccountStatements
{
    QLatin1StringView lookup;
    QLatin1StringView remove;
    QLatin1StringView insert;
};

// clang-format off
constexpr AccountStatements accounts[] = {
    {"SELECT * FROM Tbl_LocalGroups WHERE [Name]='{name}' AND [Server]='{server}'"_L1,
     "DELETE * FROM Tbl_LocalGroupFolderPermission WHERE LocalGroupID={id} AND FolderID={folder}"_L1,
     "INSERT INTO Tbl_LocalGroupFolderPermission (FolderID,LocalGroupID,Permission) VALUES ({folder},{id},'{permission}')"_L1},
    {"SELECT UserID FROM Tbl_Users WHERE UserName='{name}' AND ServerName='{server}'"_L1,
     "DELETE * FROM Tbl_UserFolderPermission WHERE UserID={id} AND FolderID={folder}"_L1,
     "INSERT INTO Tbl_UserFolderPermission (FolderID,UserID,Permission) VALUES ({folder},{id},'{permission}')"_L1},
};
// clang-format on

struct FolderPermission
{
    QString path;
    QString name;
    QString server;
    QString permission;

    [[nodiscard]] QString account() const { return server + u'\\' + name; }
    [[nodiscard]] QString title() const { return path + u' ' + account(); }
};

std::optional<Value> folderId(HeldBack &store, const QString &path)
{
    return store.scalar(
        joined("SELECT ID FROM Tbl_Folders WHERE FolderName ='{path}'"_L1, {{"path"_L1, path}}));
}

/// An old row that cannot be removed stays the only one.
bool replacePermission(HeldBack &store, const AccountStatements &account, const QString &id,
                       const QString &folder, const QString &permission)
{
    const auto fill = [&](QLatin1StringView text) {
        return joined(text, {{"id"_L1, id}, {"folder"_L1, folder}, {"permission"_L1, permission}});
    };
    return store.execute(fill(account.remove)) && store.execute(fill(account.insert));
}

/// What could not be done, or nothing.
QString writePermission(HeldBack &store, const FolderPermission &item)
{
    std::optional<Value> folder = folderId(store, item.path);
    if (!folder || folder->isNull())
        folder = folderId(store, item.path);
    if (!folder || folder->isNull())
        return line(item.path, unknownFolder);

    for (const AccountStatements &account : accounts) {
        const std::optional<Value> id =
            store.scalar(joined(account.lookup, {{"name"_L1, item.name}, {"server"_L1, item.server}}));
        if (!id)
            break; // it may be a local group: what the user of that name gets would be a guess
        if (id->isNull())
            continue;
        if (replacePermission(store, account, id->toText(), folder->toText(), item.permission))
            return {};
        return line(item.title() + u' ' + store.failure(), {});
    }
    return line(item.account(), unknownAccount);
}

/// Whether the folder is in the store now; counts what was written.
bool writeFolder(HeldBack &store, const QString &path, const QString &description, bool keepExisting,
                 Report &report)
{
    const std::optional<Value> known =
        store.scalar(joined("SELECT * FROM Tbl_Folders WHERE FolderName ='{path}'"_L1, {{"path"_L1, path}}));
    if (!known)
        return false; // an insert could be the second of its path
    if (!known->isNull() && keepExisting)
        return true;
    const bool written =
        known->isNull()
            ? store.execute(insertFolder(path, description))
            : store.execute(joined("UPDATE Tbl_Folders SET Description ='{description}' WHERE ID ={id}"_L1,
                                   {{"description"_L1, description}, {"id"_L1, known->toText()}}));
    (known->isNull() ? report.added : report.updated) += written ? 1 : 0;
    return written;
}

/// Takes the complaint about an item into the report.
void take(Report &report, const QString &complaint)
{
    ++(complaint.isEmpty() ? report.done : report.failed);
    report.text += complaint;
}

} // namespace

Report clsFolders::AddBatch(const QString &connectionString, const QStringList &paths,
                            const QStringList &descriptions, bool keepExisting, Steps &steps)
{
    Q_ASSERT(paths.size() == descriptions.size());
    Report report;
    runBatch(connectionString, steps, report, {&report.done, &report.added, &report.updated},
             [&](BatchRun &run) {
                 run.expect(int(paths.size()), paths.isEmpty() ? QString() : folderPath(paths.last()));
                 for (qsizetype i = 0; i < paths.size(); ++i) {
                     const QString path = folderPath(paths[i]);
                     const bool goesOn = run.item(path, [&](StoreSession &session) {
                         HeldBack store(session);
                         const bool written =
                             writeFolder(store, path, descriptions.value(i), keepExisting, report);
                         take(report, written ? QString() : line(path, notAdded));
                     });
                     if (!goesOn)
                         break;
                 }
             });
    return report;
}

Report clsFolders::AddPermissionsBatch(const QString &connectionString, const QStringList &paths,
                                       const QStringList &names, const QStringList &servers,
                                       const QStringList &permissions, Steps &steps)
{
    Q_ASSERT(paths.size() == names.size() && paths.size() == servers.size() &&
             paths.size() == permissions.size());
    const auto itemAt = [&](qsizetype i) {
        return FolderPermission{folderPath(paths[i]), names.value(i), servers.value(i), permissions.value(i)};
    };
    Report report;
    runBatch(connectionString, steps, report, {&report.done}, [&](BatchRun &run) {
        if (!paths.isEmpty())
            run.expect(int(paths.size()), itemAt(paths.size() - 1).title());
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const FolderPermission item = itemAt(i);
            const bool goesOn = run.item(item.title(), [&](StoreSession &session) {
                HeldBack store(session);
                take(report, writePermission(store, item));
            });
            if (!goesOn)
                break;
        }
    });
    return report;
}
