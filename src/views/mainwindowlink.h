#pragma once

#include <initializer_list>

class CommandTarget;
class QMdiArea;
class QMenu;
class QToolBar;
class QWidget;
class StatusBar;

/// What the object views need of the main window, which is above them.
class MainWindowLink
{
public:
    enum class Toolbar { Main, Display, ModalDisplay };

    virtual ~MainWindowLink() = default;

    /// The owner of the boxes and dialogs that views open.
    [[nodiscard]] virtual QWidget &window() = 0;
    /// The parent of all views.
    [[nodiscard]] virtual QMdiArea &mdiArea() = 0;
    [[nodiscard]] virtual StatusBar &mainStatusBar() = 0;
    /// The buttons are actions named by their keys.
    [[nodiscard]] virtual QToolBar &toolbar(Toolbar which) = 0;

    /// What the menus of views and the buttons of the display toolbars act on: the menu bar shows the menus
    /// of its mode in place of the main window's own. Nothing brings its own back. A target says so before it
    /// dies.
    virtual void setTargetDisplay(CommandTarget *target) = 0;
    [[nodiscard]] virtual CommandTarget *targetDisplay() const = 0;
    /// The menu that is also the context menu of lists.
    [[nodiscard]] virtual QMenu *editMenu() const = 0;

    /// The entries of mnuWindow: tile, cascade, arrange and the list of open views.
    virtual void setWindowMenuShown(bool shown) = 0;
};

/// Nothing before the main window was made and after it has gone.
[[nodiscard]] MainWindowLink *mainWindow();
/// Called by the main window for itself, and with nothing at its end.
void setMainWindow(MainWindowLink *window);

/// Shows one toolbar of the main window and hides the other two, without a flicker between.
void showOnlyToolbar(MainWindowLink::Toolbar which);
/// The same for some of them; the others stay as they are.
void swapToolbars(MainWindowLink::Toolbar shown, std::initializer_list<MainWindowLink::Toolbar> hidden);
