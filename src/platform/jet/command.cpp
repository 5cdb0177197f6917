#include "platform/jet/command.h"

#include "base/error.h"
#include "platform/jet/connection.h"
#include "platform/jet/errors.h"

using namespace Qt::StringLiterals;

namespace jet {

void Command::execute()
{
    if (m_connection == nullptr)
        throwError(ConnectionClosed,
                   u"The connection cannot be used to perform this operation. It is either closed or invalid "
                   "in this context."_s);
    m_connection->execute(commandText);
}

} // namespace jet
