#include "folders/clsFolders.h"

#include "folders/folderstatements.h"
#include "platform/jet/errors.h"
#include "store/statement.h"
#include "store/storesession.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto notAdded = " could not be added to DB"_L1;
constexpr auto unknownFolder = " not in DB"_L1;
constexpr auto unknownAccount = " is not a Local Group and not a User in DB"_L1;

void addLine(QString &errors, const QString &what, QLatin1StringView complaint)
{
    errors += "\r\n"_L1 + what + complaint;
}

/// Runs statements whose failure does not end the batch. What is wrong with more than one statement, as
/// changes of earlier ones that are lost, is told in a line of its own.
class HeldBack final
{
public:
    HeldBack(StoreSession &store, QString &errors, Breath breath = {})
        : m_store(store)
        , m_errors(errors)
        , m_breath(std::move(breath))
    {
    }

    bool execute(const QString &sql)
    {
        const bool done = succeeds([&] { m_store.execute(sql); });
        breathe();
        return done;
    }

    /// The first field of the first row, Null without a row; nothing when the statement failed.
    std::optional<Value> scalar(const QString &sql)
    {
        Value value;
        const bool done = succeeds([&] { value = m_store.scalar(sql); });
        breathe();
        return done ? std::optional(value) : std::nullopt;
    }

    /// What the last statement failed with.
    [[nodiscard]] const QString &failure() const { return m_failure; }

    /// Ends the visit.
    void close()
    {
        tellFailure([this] { m_store.close(); });
    }

private:
    template <typename Step>
    bool succeeds(Step &&step)
    {
        try {
            step();
            return true;
        } catch (const jet::ChangesLost &error) {
            addLine(m_errors, error.description(), {});
            m_failure = error.description();
        } catch (const Error &error) {
            m_failure = error.description();
        }
        return false;
    }

    template <typename Step>
    void tellFailure(Step &&step)
    {
        try {
            step();
        } catch (const Error &error) {
            addLine(m_errors, error.description(), {});
        }
    }

    void breathe()
    {
        if (m_breath)
            tellFailure(m_breath);
    }

    StoreSession &m_store;
    QString &m_errors;
    Breath m_breath;
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

void writePermission(HeldBack &store, const FolderPermission &item, QString &errors)
{
    std::optional<Value> folder = folderId(store, item.path);
    // A second look: while another program writes, the first may have failed.
    if (!folder || folder->isNull())
        folder = folderId(store, item.path);
    if (!folder || folder->isNull())
        return addLine(errors, item.path, unknownFolder);

    for (const AccountStatements &account : accounts) {
        const std::optional<Value> id =
            store.scalar(joined(account.lookup, {{"name"_L1, item.name}, {"server"_L1, item.server}}));
        if (!id)
            break; // it may be a local group: what the user of that name gets would be a guess
        if (id->isNull())
            continue;
        if (!replacePermission(store, account, id->toText(), folder->toText(), item.permission))
            addLine(errors, item.path + u' ' + item.server + u'\\' + item.name + u' ' + store.failure(), {});
        return;
    }
    addLine(errors, item.server + u'\\' + item.name, unknownAccount);
}

/// Whether the folder is in the store now.
bool writeFolder(HeldBack &store, const QString &path, const QString &description, bool keepExisting)
{
    const std::optional<Value> known =
        store.scalar(joined("SELECT * FROM Tbl_Folders WHERE FolderName ='{path}'"_L1, {{"path"_L1, path}}));
    if (!known)
        return false; // an insert could be the second of its path
    if (known->isNull())
        return store.execute(insertFolder(path, description));
    return keepExisting ||
           store.execute(joined("UPDATE Tbl_Folders SET Description ='{description}' WHERE ID ={id}"_L1,
                                {{"description"_L1, description}, {"id"_L1, known->toText()}}));
}

} // namespace

void clsFolders::AddBatch(const QString &connectionString, const QStringList &paths,
                          const QStringList &descriptions, bool keepExisting, QString &errors,
                          const Breath &breath)
{
    Q_ASSERT(paths.size() == descriptions.size());
    withStore(connectionString, [&](StoreSession &session) {
        HeldBack store(session, errors, breath);
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const QString path = folderPath(paths[i]);
            if (!writeFolder(store, path, descriptions.value(i), keepExisting))
                addLine(errors, path, notAdded);
        }
        store.close();
    });
}

void clsFolders::AddPermissionsBatch(const QString &connectionString, const QStringList &paths,
                                     const QStringList &names, const QStringList &servers,
                                     const QStringList &permissions, QString &errors)
{
    Q_ASSERT(paths.size() == names.size() && paths.size() == servers.size() &&
             paths.size() == permissions.size());
    withStore(connectionString, [&](StoreSession &session) {
        HeldBack store(session, errors);
        for (qsizetype i = 0; i < paths.size(); ++i)
            writePermission(store,
                            {folderPath(paths[i]), names.value(i), servers.value(i), permissions.value(i)},
                            errors);
        store.close();
    });
}
