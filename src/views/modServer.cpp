#include "views/modServer.h"

#include "session/modServers.h"
#include "views/frmSelectServer.h"

QString modServer::selectServer(QWidget *owner)
{
    frmSelectServer dialog(owner);
    dialog.exec();
    return dialog.selectedServer();
}

QString modServer::targetServer(QWidget *owner)
{
    const QString known = modServers::getServerName();
    return known.isEmpty() ? selectServer(owner) : known;
}
