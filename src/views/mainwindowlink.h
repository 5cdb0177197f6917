#pragma once

#include <QList>

#include <initializer_list>

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

    /// The parent of all views.
    [[nodiscard]] virtual QMdiArea &mdiArea() = 0;
    [[nodiscard]] virtual StatusBar &mainStatusBar() = 0;
    /// The buttons are actions named by their keys.
    [[nodiscard]] virtual QToolBar &toolbar(Toolbar which) = 0;

    /// The view that the buttons of the display toolbars act on, by the names of its
    /// operations; nothing when there is none. A view tells before it dies.
    virtual void setTargetDisplay(QWidget *view) = 0;
    [[nodiscard]] virtual QWidget *targetDisplay() const = 0;

    /// The entries of mnuWindow: tile, cascade, arrange and the list of open views.
    virtual void setWindowMenuShown(bool shown) = 0;
    /// The menu bar shows these menus, followed by mnuWindow, in place of the main
    /// window's own; no menus bring its own back. The menus stay their view's.
    virtual void setViewMenus(const QList<QMenu *> &menus) = 0;
};

/// Nothing before the main window was made and after it has gone.
[[nodiscard]] MainWindowLink *mainWindow();
/// Called by the main window for itself, and with nothing at its end.
void setMainWindow(MainWindowLink *window);

/// Shows one toolbar of the main window and hides the other two, without a flicker between.
void showOnlyToolbar(MainWindowLink::Toolbar which);
/// The same for some of them; the others stay as they are.
void swapToolbars(MainWindowLink::Toolbar shown, std::initializer_list<MainWindowLink::Toolbar> hidden);
