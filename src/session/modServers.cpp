#include "session/modServers.h"

#include "platform/network/netapi.h"
#include "session/modRegistry.h"

namespace modServers {

QString DomainName;
QString ComputerName;
QString PDCName;

void resolveSession()
{
    getWorkstationInfo(DomainName, ComputerName);
    PDCName = getDCName(DomainName);
}

void getWorkstationInfo(QString &domain, QString &computer)
{
    net::WorkstationInfo machine;
    net::WorkstationUserInfo user;
    computer = net::api().wkstaGetInfo({}, machine) == net::Success ? machine.computerName : QString();
    domain = net::api().wkstaUserGetInfo(user) == net::Success ? user.logonDomain : QString();
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
    return DomainName;
}

QString getServerName()
{
    return PDCName.isEmpty() ? modRegistry::getDefaultDC() : PDCName;
}

} // namespace modServers
