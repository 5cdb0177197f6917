#include "store/clsUsers.h"

#include "platform/jet/errors.h"
#include "store/batchrecords.h"
#include "store/statement.h"
#include "store/storesession.h"
#include "store/userstatements.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// What differs between the two batch writers.
struct BatchKind
{
    std::span<const UserColumn> inserted;
    std::span<const UserColumn> updated; // begins with the inserted ones
    Escaping escaping;
};

struct BatchOutcome
{
    int &newCount;
    int &updatedCount;
    int &errorCount;
    QString &errorText;

    void fail(const QString &account, const QString &message)
    {
        ++errorCount;
        errorText += account + message + "\r\n"_L1;
    }
};

/// Membership rows of local groups are not among them: they keep the old id.
void moveUserRelationships(StoreSession &store, const QString &oldId, const QString &newId)
{
    for (const QLatin1StringView statement :
         {"UPDATE Tbl_GlobalGroupsUsers SET [UserID] = {new} WHERE [UserID]={old}"_L1,
          "UPDATE Tbl_RoomUsers SET [UserID] = {new} WHERE [UserID]={old}"_L1,
          "UPDATE Tbl_UserHW SET [UserID] = {new} WHERE [UserID]={old}"_L1,
          "UPDATE Tbl_UserFolderPermission SET [UserID] = {new} WHERE [UserID]={old}"_L1})
        store.executeSkippingErrors(joined(statement, {{"new"_L1, newId}, {"old"_L1, oldId}}));
}

std::vector<QLatin1StringView> namesOf(std::span<const UserColumn> columns)
{
    std::vector<QLatin1StringView> names;
    std::ranges::transform(columns, std::back_inserter(names), &UserColumn::name);
    return names;
}

/// Writes one record after the other over one session.
class UserBatch final
{
public:
    UserBatch(jet::Recordset &records, const BatchKind &kind, bool leaveExisting, BatchOutcome outcome)
        : m_records(records, namesOf(kind.updated))
        , m_kind(kind)
        , m_insert(kind.inserted, kind.escaping)
        , m_leaveExisting(leaveExisting)
        , m_outcome(outcome)
        , m_values(kind.updated.size())
        , m_name(placeOf("UserName"_L1))
        , m_server(placeOf("ServerName"_L1))
    {
    }

    /// Whether there was one more.
    bool takeRecord()
    {
        if (!m_records.next())
            return false;
        for (std::size_t i = 0; i < m_values.size(); ++i)
            m_values[i] = m_records.text(i);
        return true;
    }

    void refuseRecord(const Error &error) { m_outcome.fail(account(), u' ' + error.description()); }

    void writeRecord(StoreSession &store)
    {
        QString &id = m_values.front();
        bool isNumber = true;
        const bool isNew = id.isEmpty() || id.toInt(&isNumber) == 0;
        if (!isNumber)
            throwError(jet::TypeMismatch, u"'%1' is no UserID."_s.arg(id));
        if (isNew)
            id = QString::number(nextUserId(store));

        if (m_found.state() != jet::StateClosed)
            m_found.close();
        store.open(joined("SELECT * FROM Tbl_Users WHERE [UserName]='{name}' AND ServerName = '{server}'"_L1,
                          {{"name"_L1, m_values[m_name]}, {"server"_L1, m_values[m_server]}}),
                   m_found);
        if (m_found.eof())
            insert(store);
        else if (!m_leaveExisting)
            update(store, QString::number(m_found.value(u"UserID").toInteger()));
    }

private:
    [[nodiscard]] std::size_t placeOf(QLatin1StringView column) const
    {
        return std::size_t(std::ranges::find(m_kind.updated, column, &UserColumn::name) -
                           m_kind.updated.begin());
    }

    [[nodiscard]] QString account() const { return m_values[m_server] + u'\\' + m_values[m_name]; }

    void insert(StoreSession &store)
    {
        QString &id = m_values.front();
        if (store.exists(joined("SELECT UserID FROM Tbl_Users WHERE UserID = {id}"_L1, {{"id"_L1, id}}))) {
            id = store.scalar(u"Select MAX(UserID) + 1 AS ID FROM Tbl_Users"_s).toText();
            m_outcome.fail(account(), u" a new UserID has been generated. This User may cause Problems when "
                                      "Re-Importing Account Settings from Live System."_s);
        }
        store.execute(m_insert.with(m_values));
        ++m_outcome.newCount;
    }

    void update(StoreSession &store, const QString &oldId)
    {
        store.execute(updateUser(m_kind.updated, m_values, m_kind.escaping) +
                      joined(" WHERE [UserName]='{name}' AND [ServerName]='{server}'"_L1,
                             {{"name"_L1, m_values[m_name]}, {"server"_L1, m_values[m_server]}}));
        ++m_outcome.updatedCount;
        moveUserRelationships(store, oldId, m_values.front());
    }

    BatchRecords m_records;
    BatchKind m_kind;
    UserInsert m_insert;
    bool m_leaveExisting;
    BatchOutcome m_outcome;
    std::vector<QString> m_values;
    jet::Recordset m_found; // the memory of its fields is used again
    std::size_t m_name;
    std::size_t m_server;
};

/// A store that does not open fails every record: the batch still runs to its end.
void runBatch(const QString &connectionString, jet::Recordset &records, const BatchKind &kind,
              bool leaveExisting, BatchOutcome outcome, const BatchProgress &progress)
{
    UserBatch batch(records, kind, leaveExisting, outcome);
    std::optional<StoreSession> store;
    std::optional<Error> refused;
    try {
        store.emplace(connectionString);
    } catch (const Error &error) {
        refused = error;
    }

    for (int done = 1; batch.takeRecord(); ++done) {
        try {
            if (refused)
                throw *refused;
            batch.writeRecord(*store);
        } catch (const Error &error) {
            batch.refuseRecord(error);
        }
        try {
            if (progress && !progress(done))
                break;
        } catch (const Error &error) {
            // It lets the windows breathe, where what is pending goes to the disk.
            outcome.fail(QString(), error.description());
        }
    }
    try {
        if (store)
            store->close();
    } catch (const Error &error) {
        outcome.fail(QString(), error.description());
    }
    if (!outcome.errorText.isEmpty())
        outcome.errorText.prepend("Following User(s) generated Errors and could not be Imported:\r\n\r\n"_L1);
}

} // namespace

void clsUsers::AddBatch(const QString &connectionString, jet::Recordset &records, bool leaveExisting,
                        int &newCount, int &updatedCount, int &errorCount, QString &errorText,
                        const BatchProgress &progress)
{
    keepingErrors([&] {
        runBatch(connectionString, records, {liveColumns(), liveUpdateColumns(), Escaping::Batch},
                 leaveExisting, {newCount, updatedCount, errorCount, errorText}, progress);
    });
}

void clsUsers::AddBatchFromFile(const QString &connectionString, jet::Recordset &records, bool leaveExisting,
                                int &newCount, int &updatedCount, int &errorCount, QString &errorText,
                                const BatchProgress &progress)
{
    keepingErrors([&] {
        runBatch(connectionString, records, {fileColumns(), fileColumns(), Escaping::None}, leaveExisting,
                 {newCount, updatedCount, errorCount, errorText}, progress);
    });
}
