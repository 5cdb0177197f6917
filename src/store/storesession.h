#pragma once

#include "platform/jet/connection.h"
#include "platform/jet/recordset.h"

#include <QString>

/// One visit to the store: a connection and one recordset for tests, used again for each statement and
/// gone at the end of the visit.
class StoreSession final
{
public:
    /// Raises what jet::Connection raises for a store that does not open; the others raise what
    /// they raise for a statement.
    explicit StoreSession(const QString &connectionString);

    /// Ends the visit and raises what writing the last changes to the disk met with; closing again
    /// does nothing. A session destroyed without it keeps its changes, but has no one to tell of a
    /// failure.
    void close();

    void execute(const QString &sql);
    /// For steps whose failure is not to be seen. Raises jet::ChangesLost all the same.
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
};
