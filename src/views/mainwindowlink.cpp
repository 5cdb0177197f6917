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

using Toolbar = MainWindowLink::Toolbar;

void showOnlyToolbar(Toolbar which)
{
    switch (which) {
    case Toolbar::Main:
        return swapToolbars(which, {Toolbar::Display, Toolbar::ModalDisplay});
    case Toolbar::Display:
        return swapToolbars(which, {Toolbar::Main, Toolbar::ModalDisplay});
    case Toolbar::ModalDisplay:
        return swapToolbars(which, {Toolbar::Main, Toolbar::Display});
    }
}

void swapToolbars(Toolbar shown, std::initializer_list<Toolbar> hidden)
{
    if (!current)
        return;
    QWidget *window = current->toolbar(shown).window();
    window->setUpdatesEnabled(false);
    for (const Toolbar toolbar : hidden)
        current->toolbar(toolbar).hide();
    current->toolbar(shown).show();
    window->setUpdatesEnabled(true);
}
