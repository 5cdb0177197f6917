#pragma once

#include <QString>

namespace jet {

class Connection;

inline constexpr int CommandTypeText = 1;

/// One statement text, run over a connection that outlives the command.
class Command final
{
public:
    int commandType = CommandTypeText; ///< the only kind there is, so never read
    QString commandText;

    void setActiveConnection(Connection *connection) { m_connection = connection; }

    /// Raises ConnectionClosed (3709) without an open connection, EmptyCommand without a
    /// text, and the statement's own error; a statement that failed has written nothing.
    void execute();

private:
    Connection *m_connection = nullptr;
};

} // namespace jet
