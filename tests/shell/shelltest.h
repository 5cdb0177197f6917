#pragma once

#include "platform/desktop/desktop.h"
#include "platform/network/netapi.h"
#include "session/modServers.h"
#include "shell/application.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "support/windowtest.h"
#include "toolkit/statusbar.h"
#include "views/frmDisplay.h"

#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QToolBar>

/// A session on a store with two users, and its end.
class ShellTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        execute(
            QStringLiteral("INSERT INTO Tbl_Users (UserID,LastName,UserName) VALUES (1,'Keller','keller')"));
        execute(
            QStringLiteral("INSERT INTO Tbl_Users (UserID,LastName,UserName) VALUES (2,'Meyer','meyer')"));
        setProcessEnd([this] { ++m_ended; });
    }

    void TearDown() override
    {
        if (m_started)
            delete &mainForm();
        setProcessEnd({});
        desktop::installOpener({});
        net::installApi(nullptr);
        modServers::resolveSession();
        WindowTest::TearDown();
    }

    /// The timer fires as it would after five seconds.
    static void letTimeRunOut(frmAbout &window)
    {
        ASSERT_TRUE(window.TimerClose->isActive());
        QMetaObject::invokeMethod(window.TimerClose, "timeout");
    }

    void expectNoNetwork()
    {
        expectBox(QStringLiteral("Warning! The Domain Name could not be resolved."), box::WarningIcon);
        expectBox(
            QStringLiteral("Warning! The Primary Domain Controller Name could not be resolved. The Default "
                           "Domain Controller will be used or you will be prompted to provide the PDC Name "
                           "if necessary"),
            box::WarningIcon);
    }

    /// Looks at the start window before its time runs out.
    void startMain(const std::function<void(frmAbout &)> &look = {})
    {
        whenShown<frmAbout>([look](frmAbout &window) {
            if (look)
                look(window);
            letTimeRunOut(window);
        });
        m_started = true;
        Main();
    }

    /// The main window of a session on a machine without a network.
    frmMain &start()
    {
        expectNoNetwork();
        startMain();
        settle();
        verify();
        return mainForm();
    }

    static frmDisplay *activeView()
    {
        return dynamic_cast<frmDisplay *>(mainForm().mdiArea().currentSubWindow());
    }

    [[nodiscard]] int ended() const { return m_ended; }

private:
    bool m_started = false;
    int m_ended = 0;
};
