#pragma once

#include <QString>

/// Who this session is on the network.
namespace modServers {

/// What could not be resolved is empty.
struct Session
{
    QString domain; ///< the user's logon domain
    QString computer;
    QString controller; ///< the domain's primary controller, without backslashes
};

/// As resolveSession() found it; empty before.
[[nodiscard]] const Session &session();

/// Asks the network who the session is, once at the start; a test calls it with a network of its own. What
/// is missing shows in the values; nothing is retried or raised.
void resolveSession();

/// The controller of a domain without backslashes; empty when the call fails.
[[nodiscard]] QString getDCName(const QString &domain);

[[nodiscard]] QString getDomainName();

/// The session's controller, or the setting DefaultDC when there is none. What every live operation uses.
[[nodiscard]] QString getServerName();

} // namespace modServers
