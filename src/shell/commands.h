#pragma once

#include "views/modes.h"
#include "views/operations.h"

#include <QLatin1StringView>
#include <QList>

#include <span>

class QAction;
class QBoxLayout;
class QMenu;
class QToolBar;
class frmMain;

/// What an entry of the main window does.
struct Command
{
    enum class Kind : quint8 {
        Menu, ///< nothing: it has entries of its own
        Run,  ///< the operation of the mode, without a list
        Call,
        ToCome, ///< of a family that is not there yet
    };
    Kind kind = Kind::Menu;
    Mode mode = Mode::Unknown;
    Op op = Op::None;
    void (*call)(frmMain &window) = nullptr;

    /// Whether there is code for it.
    [[nodiscard]] bool works() const;
    void run(frmMain &window) const;
};

/// One entry of the main window's menu tree. A menu comes before its own entries; one without a parent is on
/// the menu bar.
struct MenuEntry
{
    QLatin1StringView parent;
    QLatin1StringView name;
    QLatin1StringView caption;
    Command command;
    int key = 0; ///< shortcut as a QKeyCombination, 0 for none
};

struct ToolbarButton
{
    QLatin1StringView key;
    int picture; ///< of ImageListToolbar
    QLatin1StringView tooltip;
    Command command;
};

/// A button of the sidebar does what an entry of the menus does.
struct SidebarButton
{
    QLatin1StringView frame;
    QLatin1StringView frameCaption;
    QLatin1StringView name;
    QLatin1StringView caption;
    int picture; ///< of ImageListToolbar
    QLatin1StringView entry;
};

[[nodiscard]] std::span<const MenuEntry> mainMenu();
[[nodiscard]] std::span<const ToolbarButton> mainToolbar();
[[nodiscard]] std::span<const SidebarButton> sidebar();

// An entry that has no handler yet is grey and says so as a tool tip.

/// Makes the menus of the table and gives those of the menu bar.
[[nodiscard]] QList<QMenu *> buildMenus(frmMain &window, std::span<const MenuEntry> entries);
void fillToolbar(frmMain &window, QToolBar &toolbar, std::span<const ToolbarButton> buttons);
void fillSidebar(frmMain &window, QBoxLayout &layout, std::span<const SidebarButton> buttons);
