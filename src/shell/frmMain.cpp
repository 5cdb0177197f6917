#include "shell/frmMain.h"

#include "base/text.h"
#include "messages/guard.h"
#include "messages/status.h"
#include "queries/modCustomQuery.h"
#include "session/identity.h"
#include "session/modRegistry.h"
#include "session/modServers.h"
#include "shell/application.h"
#include "shell/commands.h"
#include "shell/windowmenu.h"
#include "toolkit/imagelist.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "toolkit/statusbar.h"
#include "views/viewmenus.h"

#include <QActionEvent>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum Panel { StatusPanel = 1, StorePanel = 2, ServerPanel = 3, PanelCount = 3 };

constexpr int statusPanelCharacters = 36;
constexpr int serverPanelCharacters = 44;
constexpr int livePicture = 1;
constexpr int databasePicture = 2;
constexpr int areaDarkness = 115; // percent of the window's colour

/// Takes no room while none of its buttons shows.
class CommandBar final : public QToolBar
{
public:
    explicit CommandBar(const QString &title) : QToolBar(title) { fit(); }

protected:
    void actionEvent(QActionEvent *event) override
    {
        QToolBar::actionEvent(event);
        fit();
    }

private:
    void fit()
    {
        const bool hasButtons = std::ranges::any_of(actions(), &QAction::isVisible);
        setMaximumHeight(hasButtons ? QWIDGETSIZE_MAX : 0);
    }
};

} // namespace

frmMain::frmMain()
    : picControlContainer(new QWidget)
    , ToolbarMain(addNamedToolbar("ToolbarMain"_L1, u"Main Toolbar"_s))
    , ToolBarDisplay(addNamedToolbar("ToolBarDisplay"_L1, u"View Toolbar"_s))
    , ToolBarModalDisplay(addNamedToolbar("ToolBarModalDisplay"_L1, u"List Toolbar"_s))
    , StatusBar(new ::StatusBar(PanelCount))
    , m_area(new QMdiArea)
    , m_ownMenus(buildMenus(*this, mainMenu()))
    , m_viewMenus(new ViewMenus(this, *ToolBarDisplay))
    , m_windowMenu(makeWindowMenu(*m_area, this))
{
    setObjectName("frmMain"_L1);
    setWindowTitle(mainCaption());
    picControlContainer->setObjectName("picControlContainer"_L1);
    m_area->setObjectName("mdiArea"_L1);
    StatusBar->setObjectName("StatusBar"_L1);

    connect(m_area, &QMdiArea::subWindowActivated, this, [this] {
        if (m_area->currentSubWindow())
            return;
        setTargetDisplay(nullptr);
        setWindowMenuShown(false);
    });
    setMainWindow(this);
    fillToolbar(*this, *ToolbarMain, mainToolbar());
    showOnlyToolbar(Toolbar::Main);

    auto *frames = new QVBoxLayout(picControlContainer);
    frames->setAlignment(Qt::AlignTop);
    frames->setContentsMargins(4, 4, 4, 4);
    fillSidebar(*this, *frames, sidebar());
    auto *inside = new QWidget;
    auto *layout = new QHBoxLayout(inside);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(picControlContainer);
    layout->addWidget(m_area, 1);
    setCentralWidget(inside);

    const int character = fontMetrics().averageCharWidth();
    StatusBar->setPanelWidth(StatusPanel, statusPanelCharacters * character);
    StatusBar->setPanelWidth(ServerPanel, serverPanelCharacters * character);
    setStatusBar(StatusBar);
    showMenus();
    addKeys();
    paintArea();

    setStatusTarget(StatusBar, this);
    load();
}

frmMain::~frmMain()
{
    // The views tell the main window when they go, so they go first.
    m_area->disconnect(this);
    delete m_area;
    setMainWindow(nullptr);
}

QToolBar *frmMain::addNamedToolbar(QLatin1StringView name, const QString &title)
{
    auto *bar = new CommandBar(title);
    addToolBar(bar);
    bar->setObjectName(name);
    bar->setMovable(false);
    bar->setIconSize(imageLists().ImageListToolbar.imageSize());
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    return bar;
}

void frmMain::load()
{
    setGeometry(screen()->availableGeometry());
    setWindowState(Qt::WindowMaximized);
}

QToolBar &frmMain::toolbar(Toolbar which)
{
    switch (which) {
    case Toolbar::Display:
        return *ToolBarDisplay;
    case Toolbar::ModalDisplay:
        return *ToolBarModalDisplay;
    case Toolbar::Main:
        break;
    }
    return *ToolbarMain;
}

bool frmMain::event(QEvent *event)
{
    const bool handled = QMainWindow::event(event);
    // Only once Qt is through with it: the events that this lets through may delete the window that was
    // active before, which Qt still holds.
    if (event->type() == QEvent::WindowActivate)
        QMetaObject::invokeMethod(
            this, [this] { guarded(this, [this] { activate(); }); }, Qt::QueuedConnection);
    return handled;
}

void frmMain::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintArea();
}

// The area would keep the palette that it was made under.
void frmMain::paintArea()
{
    m_area->setBackground(palette().color(QPalette::Window).darker(areaDarkness));
}

void frmMain::activate()
{
    // A window that comes up in the middle of work does not end it.
    if (isHourglassShown())
        return;
    prepareMainWindow();
    showStatusReady();
    if (!m_area->currentSubWindow())
        showOnlyToolbar(Toolbar::Main);
}

void frmMain::prepareMainWindow()
{
    picControlContainer->setVisible(modRegistry::getShowSideBar());
    showStatusReady();
    fitStatusPanels();
    StatusBar->setPanelText(StorePanel, modRegistry::getDataBase());
    StatusBar->setPanelText(ServerPanel, "PDC: "_L1 % modServers::getServerName() % " Domain: "_L1 %
                                             modServers::getDomainName());
    const ImageList &pictures = imageLists().ImageListDataContext;
    StatusBar->setPanelPicture(StorePanel, pictures, databasePicture);
    StatusBar->setPanelPicture(ServerPanel, pictures, livePicture);
    showStatusReady();
}

void frmMain::fitStatusPanels()
{
    const int taken = StatusBar->panelWidth(StatusPanel) + StatusBar->panelWidth(ServerPanel);
    StatusBar->setPanelWidth(StorePanel, std::max(0, StatusBar->width() - taken));
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    fitStatusPanels();
}

void frmMain::closeEvent(QCloseEvent *event)
{
    event->ignore();
    guarded(this, [this, event] {
        const QString question = fillMarker(u"Do you really want to quit $?"_s, programTitle());
        if (messageBox(this, question, box::YesNo | box::QuestionIcon) != box::ResultYes)
            return;
        endProcess();
        event->accept();
    });
}

void frmMain::Arrange(int arrangement)
{
    arrange(*m_area, Arrangement(arrangement));
}

void frmMain::setWindowMenuShown(bool shown)
{
    m_windowMenuShown = shown;
    m_windowMenu->menuAction()->setVisible(shown);
}

void frmMain::setTargetDisplay(CommandTarget *target)
{
    m_viewMenus->dress(target);
    showMenus();
}

CommandTarget *frmMain::targetDisplay() const
{
    return m_viewMenus->target();
}

QMenu *frmMain::editMenu() const
{
    return m_viewMenus->editMenu();
}

// The menus of the active view followed by the window menu, or the window's own with the window menu before
// Help, which is last.
void frmMain::showMenus()
{
    QList<QAction *> shown;
    const bool own = !m_viewMenus->target();
    for (const QMenu *menu : own ? m_ownMenus : m_viewMenus->menus())
        shown.append(menu->menuAction());
    shown.insert(own ? shown.size() - 1 : shown.size(), m_windowMenu->menuAction());
    m_windowMenu->menuAction()->setVisible(m_windowMenuShown);
    if (menuBar()->actions() == shown)
        return;
    menuBar()->clear();
    menuBar()->addActions(shown);
}

void frmMain::buildQueryMenu()
{
    const std::vector<modCustomQuery::SavedQuery> queries = modCustomQuery::savedQueries();
    auto *menu = findChild<QMenu *>(u"mnuExecuteQuery"_s);
    menu->clear();
    if (queries.empty()) {
        QAction *empty = menu->addAction(u"Empty"_s);
        empty->setObjectName("mnuQueries"_L1);
        empty->setEnabled(false);
    }
    for (const modCustomQuery::SavedQuery &query : queries) {
        QAction *entry = menu->addAction(QString(query.name).replace(u'&', "&&"_L1));
        entry->setObjectName("mnuQueries"_L1);
        entry->setToolTip(query.description);
        connect(entry, &QAction::triggered, this, [this, query] {
            guarded(this, [&] { modCustomQuery::run(this, query.statement, query.description); });
        });
    }
    menu->addSeparator();
    QAction *reload = menu->addAction(u"Reload Execute Menu"_s);
    reload->setObjectName("mnuReloadExecuteMenu"_L1);
    // Queued: the entry itself goes with the old menu.
    connect(
        reload, &QAction::triggered, this, [this] { guarded(this, [this] { buildQueryMenu(); }); },
        Qt::QueuedConnection);
}

void frmMain::addKeys()
{
    const auto onKey = [this](const QKeySequence &key, auto run) {
        auto *shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, run);
    };
    onKey(QKeySequence(Qt::CTRL | Qt::Key_F4), [this] { m_area->closeActiveSubWindow(); });
    onKey(QKeySequence(Qt::Key_F10), [this] {
        for (QAction *menu : menuBar()->actions()) {
            if (menu->isVisible()) {
                menuBar()->setActiveAction(menu);
                return;
            }
        }
    });
}
