#pragma once

#include <QLatin1StringView>
#include <QList>

#include <span>

class QMenu;
class QToolBar;
class frmMain;

/// One entry of the main window's menu tree. An entry without an operation is a menu, and
/// stands before its own entries; a menu without a parent stands on the menu bar.
struct MenuEntry
{
    QLatin1StringView parent;
    QLatin1StringView name;
    QLatin1StringView caption;
    void (*run)(frmMain &window);
};

struct ToolbarButton
{
    QLatin1StringView key;
    int picture; ///< of ImageListToolbar
    QLatin1StringView tooltip;
    void (*run)(frmMain &window);
};

[[nodiscard]] std::span<const MenuEntry> mainMenu();
[[nodiscard]] std::span<const ToolbarButton> mainToolbar();

/// Makes the menus of the table and gives those of the menu bar.
[[nodiscard]] QList<QMenu *> buildMenus(frmMain &window, std::span<const MenuEntry> entries);
void fillToolbar(frmMain &window, QToolBar &toolbar, std::span<const ToolbarButton> buttons);
