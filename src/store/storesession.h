#pragma once

#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"

#include <QString>

#include <chrono>

/// One visit to the store: a connection and one recordset for tests, used again for each statement and
/// gone at the end of the visit.
class StoreSession final
{
public:
    /// Raises what jet::Connection raises for a store that does not open; the others raise what
    /// they raise for a statement.
    explicit StoreSession(const QString &connectionString);
    ~StoreSession();
    StoreSession(const StoreSession &) = delete;
    StoreSession &operator=(const StoreSession &) = delete;

    /// Ends the visit and raises what writing the last changes to the disk met with; closing again
    /// does nothing. A session destroyed without it keeps its changes, but has no one to tell of a
    /// failure.
    void close();

    /// See jet::Connection.
    void beginWriting() { m_connection.beginWriting(); }
    void commit() { m_connection.commit(); }
    void rollBack() { m_connection.rollBack(); }
    [[nodiscard]] bool isOpen() const { return m_connection.state() != jet::StateClosed; }
    /// Whether changes are not on the disk yet, or were lost there without a report.
    [[nodiscard]] bool hasPendingChanges() const;
    /// How long a statement waits for another program that holds the file; five seconds otherwise. Counts for
    /// all sessions on the file until this one closes.
    void setPatience(std::chrono::milliseconds patience);

    void execute(const QString &sql);
    /// For steps whose failure is not to be seen. Raises jet::StoreFailure all the same.
    void executeSkippingErrors(const QString &sql);
    /// Whether the statement gives any row.
    [[nodiscard]] bool exists(const QString &sql);
    /// The first field of the first row; Null when there is no row.
    [[nodiscard]] Value scalar(const QString &sql);
    /// Opens the caller's recordset, which must be closed; its rows outlive the session.
    void open(const QString &sql, jet::Recordset &result);

private:
    jet::Connection m_connection;
    jet::Recordset m_test;
    bool m_isPatient = true;
};
