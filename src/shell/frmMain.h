#pragma once

#include "toolkit/commondialog.h"
#include "views/mainwindowlink.h"

#include <QMainWindow>

class QMenu;
class ViewMenus;

/// The parent window of the application: the menu, the sidebar, the three toolbars, the
/// main status bar and the area of the object views. Every command is one call into the
/// module it concerns; the commands are in the tables of shell/commands.h.
class frmMain final : public QMainWindow, public MainWindowLink
{
    Q_OBJECT

public:
    frmMain();
    ~frmMain() override;

    QWidget *picControlContainer;
    QToolBar *ToolbarMain;
    QToolBar *ToolBarDisplay;
    QToolBar *ToolBarModalDisplay;
    ::StatusBar *StatusBar;
    CommonDialog Dialog;

    /// Brings the sidebar and the status bar up to the settings and the session.
    void prepareMainWindow();

    /// None: which toolbar shows is not the user's choice.
    [[nodiscard]] QMenu *createPopupMenu() override { return nullptr; }

    /// Arranges the open views: 0 cascade, 1 tile horizontally, 2 tile vertically, 3
    /// arrange icons.
    void Arrange(int arrangement);

    /// Fills the menu of the saved queries anew; raises what the store reports and keeps the old entries
    /// then.
    void buildQueryMenu();

    // MainWindowLink
    [[nodiscard]] QWidget &window() override { return *this; }
    [[nodiscard]] QMdiArea &mdiArea() override { return *m_area; }
    [[nodiscard]] ::StatusBar &mainStatusBar() override { return *StatusBar; }
    [[nodiscard]] QToolBar &toolbar(Toolbar which) override;
    void setTargetDisplay(CommandTarget *target) override;
    [[nodiscard]] CommandTarget *targetDisplay() const override;
    [[nodiscard]] QMenu *editMenu() const override;
    void setWindowMenuShown(bool shown) override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QToolBar *addNamedToolbar(QLatin1StringView name, const QString &title);
    void load();
    void activate();
    void paintArea();
    void fitStatusPanels();
    void showMenus();
    void addKeys();

    QMdiArea *m_area;
    QList<QMenu *> m_ownMenus;
    ViewMenus *m_viewMenus;
    QMenu *m_windowMenu;
    bool m_windowMenuShown = false;
};
