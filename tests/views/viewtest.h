#pragma once

#include "platform/jet/recordset.h"
#include "support/windowtest.h"
#include "toolkit/statusbar.h"
#include "views/frmDisplay.h"
#include "views/listpane.h"
#include "views/mainwindowlink.h"
#include "views/viewmenus.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QToolBar>

#include <array>

/// A main window with what the views ask of one and nothing else.
class TestMainWindow final : public QMainWindow, public MainWindowLink
{
public:
    TestMainWindow();
    ~TestMainWindow() override;

    QWidget &window() override { return *this; }
    QMdiArea &mdiArea() override { return *m_area; }
    ::StatusBar &mainStatusBar() override { return *m_status; }
    QToolBar &toolbar(Toolbar which) override { return *m_toolbars[std::size_t(which)]; }
    void setTargetDisplay(CommandTarget *target) override { m_menus->dress(target); }
    [[nodiscard]] CommandTarget *targetDisplay() const override { return m_menus->target(); }
    [[nodiscard]] QMenu *editMenu() const override { return m_menus->editMenu(); }
    void setWindowMenuShown(bool shown) override { m_windowMenuShown = shown; }

    [[nodiscard]] bool windowMenuShown() const { return m_windowMenuShown; }
    /// The one toolbar that shows.
    [[nodiscard]] QStringList shownToolbars() const;

private:
    QMdiArea *m_area;
    ::StatusBar *m_status;
    std::array<QToolBar *, 3> m_toolbars;
    ViewMenus *m_menus;
    bool m_windowMenuShown = false;
};

using Record = std::vector<Value>;

/// Opens a recordset made in memory with these fields and records.
void fill(jet::Recordset &recordset, const QStringList &fields, const std::vector<Record> &records);

/// A store, a main window on the screen and memory recordsets.
class ViewTest : public WindowTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Opens a view of these records.
    frmDisplay *open(Mode mode, const QString &title, const QStringList &fields,
                     const std::vector<Record> &records, frmDisplay *view = nullptr);
    /// A view of two users.
    frmDisplay *openUsers(const QString &title = QStringLiteral("All Users"));
    [[nodiscard]] int viewCount() const { return int(window->mdiArea().subWindowList().size()); }

    std::unique_ptr<TestMainWindow> window;
};
