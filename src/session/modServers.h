#pragma once

#include <QString>

/// Who this session is on the network. The values are set once, at the start, and are
/// empty when they could not be resolved.
namespace modServers {

extern QString DomainName;
extern QString ComputerName;
extern QString PDCName;

/// Fills the session values from the network. Whether something is missing shows in the
/// values; nothing is retried or raised.
void resolveSession();

/// The logon domain and the computer's name; what a failed call would have filled is empty.
void getWorkstationInfo(QString &domain, QString &computer);

/// The controller of a domain without backslashes; empty when the call fails.
[[nodiscard]] QString getDCName(const QString &domain);

[[nodiscard]] QString getDomainName();

/// PDCName, or the setting DefaultDC when that is empty. What every live operation uses.
[[nodiscard]] QString getServerName();

} // namespace modServers
