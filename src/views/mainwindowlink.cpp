#include "views/mainwindowlink.h"

#include <QToolBar>

namespace {
MainWindowLink *current = nullptr;
}

MainWindowLink *mainWindow()
{
    return current;
}

void setMainWindow(MainWindowLink *window)
{
    current = window;
}

void showOnlyToolbar(MainWindowLink::Toolbar which)
{
    using Toolbar = MainWindowLink::Toolbar;
    if (!current)
        return;
    QWidget *window = current->toolbar(which).window();
    window->setUpdatesEnabled(false);
    for (const Toolbar toolbar : {Toolbar::Main, Toolbar::Display, Toolbar::ModalDisplay})
        current->toolbar(toolbar).setVisible(toolbar == which);
    window->setUpdatesEnabled(true);
}
