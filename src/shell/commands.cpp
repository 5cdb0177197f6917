#include "shell/commands.h"

#include "base/error.h"
#include "exchange/modImport.h"
#include "messages/guard.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "sync/modUsers.h"
#include "toolkit/imagelist.h"
#include "toolkit/pointer.h"

#include <QHash>
#include <QMenu>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

template <auto listAll>
void showAll(frmMain &)
{
    const Hourglass hourglass;
    listAll(nullptr);
}

void importFromFile(frmMain &window)
{
    modImport::showImport(&window);
}

void about(frmMain &window)
{
    frmAbout box(&window);
    box.exec();
}

constexpr MenuEntry menuTable[] = {
    {{}, "mnuUsers"_L1, "Users"_L1, nullptr},
    {"mnuUsers"_L1, "mnuShowAllUsers"_L1, "Show All"_L1, showAll<modUsers::listAllUsers>},
    {{}, "mnuTools"_L1, "Tools"_L1, nullptr},
    {"mnuTools"_L1, "mnuImport"_L1, "Import from File..."_L1, importFromFile},
    {{}, "mnuHelp"_L1, "&Help"_L1, nullptr},
    {"mnuHelp"_L1, "mnuAbout"_L1, "About"_L1, about},
};

constexpr ToolbarButton toolbarTable[] = {
    {"Users"_L1, 3, "View all Users"_L1, showAll<modUsers::listAllUsers>},
};

// The commands run with errors skipped: the modules below report their own.
auto command(frmMain &window, void (*run)(frmMain &))
{
    return [&window, run] { guarded(&window, [&] { attempt([&] { run(window); }); }); };
}

} // namespace

std::span<const MenuEntry> mainMenu()
{
    return menuTable;
}

std::span<const ToolbarButton> mainToolbar()
{
    return toolbarTable;
}

QList<QMenu *> buildMenus(frmMain &window, std::span<const MenuEntry> entries)
{
    QList<QMenu *> top;
    QHash<QLatin1StringView, QMenu *> menus;
    for (const MenuEntry &entry : entries) {
        QMenu *parent = menus.value(entry.parent);
        QAction *action = nullptr;
        if (entry.run) {
            action = parent->addAction(entry.caption);
            QObject::connect(action, &QAction::triggered, &window, command(window, entry.run));
        } else {
            auto *menu = new QMenu(entry.caption, &window);
            menu->setObjectName(entry.name);
            menus.insert(entry.name, menu);
            action = menu->menuAction();
            if (parent)
                parent->addMenu(menu);
            else
                top.append(menu);
        }
        action->setObjectName(entry.name);
    }
    return top;
}

void fillToolbar(frmMain &window, QToolBar &toolbar, std::span<const ToolbarButton> buttons)
{
    for (const ToolbarButton &button : buttons) {
        QAction *action =
            toolbar.addAction(imageLists().ImageListToolbar.icon(button.picture), button.tooltip);
        action->setObjectName(button.key);
        action->setToolTip(button.tooltip);
        QObject::connect(action, &QAction::triggered, &window, command(window, button.run));
    }
}
