#include "shell/application.h"

#include "assets/modHW.h"
#include "assets/modHWType.h"
#include "assets/modRooms.h"
#include "assets/modSW.h"
#include "base/error.h"
#include "exchange/modExport.h"
#include "folders/modFolders.h"
#include "messages/status.h"
#include "platform/desktop/desktop.h"
#include "platform/jet/connection.h"
#include "queries/modCustomQuery.h"
#include "reports/modPrint.h"
#include "session/connectionstring.h"
#include "session/identity.h"
#include "session/modServers.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "store/clsUsers.h"
#include "sync/modGlobalGroups.h"
#include "sync/modLocalGroups.h"
#include "sync/modUsers.h"
#include "toolkit/imagelist.h"
#include "toolkit/messagebox.h"
#include "toolkit/yield.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPointer>
#include <QScopeGuard>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

std::function<void()> &processEnd()
{
    static std::function<void()> installed;
    return installed;
}

void installDesktop()
{
    desktop::installOpener([](const QUrl &url) { return QDesktopServices::openUrl(url); });
    QGuiApplication::setDesktopFileName(u"kelvane"_s);
    QGuiApplication::setWindowIcon(programIcon());
}

void showStartWindow()
{
    frmAbout window;
    window.dressAsStartWindow();
    window.exec();
}

void resolveNetwork()
{
    attempt(modServers::resolveSession);
    if (modServers::session().domain.isEmpty())
        messageBox(nullptr, u"Warning! The Domain Name could not be resolved."_s, box::WarningIcon);
    if (modServers::session().controller.isEmpty())
        messageBox(nullptr,
                   u"Warning! The Primary Domain Controller Name could not be resolved. The Default Domain "
                   "Controller will be used or you will be prompted to provide the PDC Name if necessary"_s,
                   box::WarningIcon);
}

void testStore()
{
    clsUsers users;
    if (attempt([&] { users.TestConnection(getConnectionString()); }))
        return;
    messageBox(nullptr,
               currentError().description %
                   "\r\n\r\nThe connection to the database could not be established\r\n"
                   "Check your settings in the Main Menu under Tools > Options..."_L1,
               box::StopIcon);
}

} // namespace

// One line a family.
void registerFamilies()
{
    registerHandlers(modGlobalGroups::handlers());
    registerHandlers(modLocalGroups::handlers());
    registerHandlers(modUsers::handlers());
    registerHandlers(modFolders::handlers());
    registerHandlers(modHWType::handlers());
    registerHandlers(modHW::handlers());
    registerHandlers(modRooms::handlers());
    registerHandlers(modSW::handlers());
    registerHandlers(modCustomQuery::handlers());
    registerHandlers(modPrint::handlers());
    registerHandlers(modExport::handlers());
    modGlobalGroups::registerImports();
    modLocalGroups::registerImports();
    modUsers::registerImports();
    modFolders::registerImports();
}

void Main()
{
    // The start window is the last one open when it closes.
    const bool quitsWithLastWindow = QGuiApplication::quitOnLastWindowClosed();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const auto restore =
        qScopeGuard([&] { QGuiApplication::setQuitOnLastWindowClosed(quitsWithLastWindow); });

    installDesktop();
    registerFamilies();

    attempt(showStartWindow);
    paintNow();
    resolveNetwork();
    paintNow();
    testStore();
    // A store that does not open was reported just now.
    attempt([] { mainForm().buildQueryMenu(); });
    mainForm().show();
    attempt(showStatusReady);
}

frmMain &mainForm()
{
    static QPointer<frmMain> window;
    if (!window)
        window = new frmMain;
    return *window;
}

void endProcess()
{
    jet::commitPendingWrites();
    if (processEnd()) {
        processEnd()();
        return;
    }
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

void setProcessEnd(std::function<void()> end)
{
    processEnd() = std::move(end);
}
