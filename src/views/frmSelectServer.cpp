#include "views/frmSelectServer.h"

#include "base/error.h"
#include "messages/guard.h"
#include "session/modRegistry.h"
#include "toolkit/banner.h"
#include "toolkit/form.h"
#include "toolkit/pointer.h"
#include "views/livehooks.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {
constexpr auto title = "Select Server"_L1;
constexpr int serverPicture = 11;
} // namespace

frmSelectServer::frmSelectServer(QWidget *owner) : QDialog(owner)
{
    Form form(*this, "frmSelectServer"_L1);
    form.banner(serverPicture)->LblInfo->setText(title);
    frameSelectServer = form.frame("frameSelectServer"_L1, title);
    cboServer = form.combo("lblServer"_L1, "Server"_L1, "cboServer"_L1);
    cmdDefault = form.button("cmdDefault"_L1, "Set as Default"_L1);
    cmdOK = form.defaultButton("cmdOK"_L1, "&OK"_L1);
    cmdCancel = form.closeButton("cmdCancel"_L1, "&Cancel"_L1);
    setWindowTitle(title);

    {
        const Hourglass hourglass;
        attempt([this] {
            if (liveHooks().enumServers)
                cboServer->addItems(liveHooks().enumServers());
        });
        attempt([this] { cboServer->setEditText(modRegistry::getDefaultDC()); });
    }
    connect(cmdOK, &QPushButton::clicked, this, [this] {
        m_selected = cboServer->currentText();
        accept();
    });
    connect(cmdDefault, &QPushButton::clicked, this,
            [this] { guarded(this, [this] { modRegistry::saveDefaultDC(cboServer->currentText()); }); });
    cboServer->setFocus();
}
