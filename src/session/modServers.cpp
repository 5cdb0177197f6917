#include "session/modServers.h"

#include "platform/network/netapi.h"
#include "session/modRegistry.h"

namespace modServers {
namespace {

Session &current()
{
    static Session session;
    return session;
}

} // namespace

const Session &session()
{
    return current();
}

void resolveSession()
{
    Session found;
    net::WorkstationInfo machine;
    if (net::api().wkstaGetInfo({}, machine) == net::Success)
        found.computer = machine.computerName;
    net::WorkstationUserInfo user;
    if (net::api().wkstaUserGetInfo(user) == net::Success)
        found.domain = user.logonDomain;
    found.controller = getDCName(found.domain);
    current() = found;
}

QString getDCName(const QString &domain)
{
    QString controller;
    if (net::api().getDCName({}, domain, controller) != net::Success)
        return {};
    return controller.remove(u'\\');
}

QString getDomainName()
{
    return session().domain;
}

QString getServerName()
{
    return session().controller.isEmpty() ? modRegistry::getDefaultDC() : session().controller;
}

} // namespace modServers
