#include "store/clsUsers.h"

#include "platform/jet/errors.h"
#include "store/batchrecords.h"
#include "store/batchrun.h"
#include "store/statement.h"
#include "store/storesession.h"
#include "store/userstatements.h"

#include <algorithm>
#include <iterator>
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
    UserBatch(jet::Recordset &records, const BatchKind &kind, bool leaveExisting, Report &report)
        : m_records(records, namesOf(kind.updated))
        , m_kind(kind)
        , m_insert(kind.inserted, kind.escaping)
        , m_leaveExisting(leaveExisting)
        , m_report(report)
        , m_values(kind.updated.size())
        , m_name(placeOf("UserName"_L1))
        , m_server(placeOf("ServerName"_L1))
    {
    }

    [[nodiscard]] QString account() const { return m_values[m_server] + u'\\' + m_values[m_name]; }

    void run(BatchRun &run)
    {
        if (m_records.last()) {
            takeValues();
            run.expect(m_records.count(), account());
        }
        while (takeRecord() && run.item(account(), [this](StoreSession &store) { tryRecord(store); })) {
        }
    }

private:
    bool takeRecord()
    {
        if (!m_records.next())
            return false;
        takeValues();
        return true;
    }

    void takeValues()
    {
        for (std::size_t i = 0; i < m_values.size(); ++i)
            m_values[i] = m_records.text(i);
    }

    void tryRecord(StoreSession &store)
    {
        try {
            writeRecord(store);
            ++m_report.done;
        } catch (const jet::StoreFailure &) {
            throw;
        } catch (const Error &error) {
            fail(u' ' + error.description());
        }
    }

    void fail(const QString &message)
    {
        ++m_report.failed;
        m_report.text += account() + message + "\r\n"_L1;
    }

    void writeRecord(StoreSession &store)
    {
        QString &id = m_values.front();
        bool isNumber = true;
        const bool isNew = id.isEmpty() || id.toInt(&isNumber) == 0;
        if (!isNumber)
            throwError(jet::TypeMismatch, u"'%1' is not a UserID."_s.arg(id));
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

    [[nodiscard]] std::size_t placeOf(QLatin1StringView column) const
    {
        return std::size_t(std::ranges::find(m_kind.updated, column, &UserColumn::name) -
                           m_kind.updated.begin());
    }

    void insert(StoreSession &store)
    {
        QString &id = m_values.front();
        if (store.exists(joined("SELECT UserID FROM Tbl_Users WHERE UserID = {id}"_L1, {{"id"_L1, id}}))) {
            id = store.scalar(u"Select MAX(UserID) + 1 AS ID FROM Tbl_Users"_s).toText();
            fail(u" a new UserID has been generated. This User may cause Problems when "
                 "Re-Importing Account Settings from Live System."_s);
        }
        store.execute(m_insert.with(m_values));
        ++m_report.added;
    }

    void update(StoreSession &store, const QString &oldId)
    {
        store.execute(updateUser(m_kind.updated, m_values, m_kind.escaping) +
                      joined(" WHERE [UserName]='{name}' AND [ServerName]='{server}'"_L1,
                             {{"name"_L1, m_values[m_name]}, {"server"_L1, m_values[m_server]}}));
        ++m_report.updated;
        moveUserRelationships(store, oldId, m_values.front());
    }

    BatchRecords m_records;
    BatchKind m_kind;
    UserInsert m_insert;
    bool m_leaveExisting;
    Report &m_report;
    std::vector<QString> m_values;
    jet::Recordset m_found; // the memory of its fields is used again
    std::size_t m_name;
    std::size_t m_server;
};

} // namespace

Report clsUsers::AddBatch(const QString &connectionString, jet::Recordset &records, bool leaveExisting,
                          Steps &steps)
{
    Report report;
    runBatch(
        connectionString, steps, report, {&report.done, &report.added, &report.updated}, [&](BatchRun &run) {
            UserBatch(records, {liveColumns(), liveUpdateColumns(), Escaping::Batch}, leaveExisting, report)
                .run(run);
        });
    return report;
}

Report clsUsers::AddBatchFromFile(const QString &connectionString, jet::Recordset &records,
                                  bool leaveExisting, Steps &steps)
{
    Report report;
    runBatch(connectionString, steps, report, {&report.done, &report.added, &report.updated},
             [&](BatchRun &run) {
                 UserBatch(records, {fileColumns(), fileColumns(), Escaping::None}, leaveExisting, report)
                     .run(run);
             });
    return report;
}
