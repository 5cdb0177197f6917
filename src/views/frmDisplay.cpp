#include "views/frmDisplay.h"

#include "base/error.h"
#include "messages/guard.h"
#include "messages/status.h"
#include "session/modRegistry.h"
#include "toolkit/banner.h"
#include "toolkit/imagelist.h"
#include "toolkit/listview.h"
#include "toolkit/pointer.h"
#include "toolkit/statusbar.h"
#include "toolkit/yield.h"
#include "views/family.h"
#include "views/mainwindowlink.h"
#include "views/modRender.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QPointer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize defaultSize(640, 480);
constexpr int firstVisibleColumn = 1;
constexpr int selectedPanel = 3;

} // namespace

frmDisplay::frmDisplay()
{
    setObjectName("frmDisplay"_L1);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"Generating Display..."_s);
    build();
    connectList();
    load();
}

frmDisplay::~frmDisplay()
{
    MainWindowLink *window = mainWindow();
    if (window && window->targetDisplay() == this)
        window->setTargetDisplay(nullptr);
}

void frmDisplay::build()
{
    auto *pane = new QWidget;
    picLogoContainer = new Banner(pane, Banner::Live::With);
    picContext = picLogoContainer->picContext;
    LblInfo = picLogoContainer->LblInfo;
    picNT = picLogoContainer->picNT;
    listDisplay = new ListView(pane);
    listDisplay->setObjectName("listDisplay"_L1);
    StatusBar = new ::StatusBar(3, pane);
    StatusBar->setObjectName("StatusBar"_L1);

    auto *list = new QHBoxLayout;
    list->setContentsMargins(4, 4, 4, 4);
    list->addWidget(listDisplay);
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(picLogoContainer);
    layout->addLayout(list, 1);
    layout->addWidget(StatusBar);

    setWidget(pane);
    pane->setFocusProxy(listDisplay);
    pane->installEventFilter(this);
}

void frmDisplay::load()
{
    attempt([this] { listDisplay->setGridLines(modRegistry::getShowGridLines()); });
    resize(defaultSize);
    layout()->activate();
    widget()->layout()->activate();
}

void frmDisplay::connectList()
{
    connect(listDisplay, &ListView::mousePressed, this,
            [this](Qt::MouseButton, int column) { m_contextColumn = column; });
    connect(listDisplay, &ListView::selectedChanged, this,
            [this] { modRender::showSelectedCount(*listDisplay, *StatusBar, selectedPanel); });
    connect(listDisplay, &ListView::focusReceived, this,
            [] { showOnlyToolbar(MainWindowLink::Toolbar::Display); });
    connect(listDisplay, &ListView::columnClicked, this, &frmDisplay::columnClicked);
    connect(listDisplay, &ListView::contextMenuAsked, this, &frmDisplay::contextMenuAsked);
}

void frmDisplay::showView()
{
    MainWindowLink *window = mainWindow();
    if (!window) {
        show();
        return;
    }
    QMdiArea &area = window->mdiArea();
    const bool wasActive = area.activeSubWindow() == this;
    m_showing = true;
    if (mdiArea() != &area)
        joinArea(area);
    else
        show();
    area.setActiveSubWindow(this);
    m_showing = false;
    // Only now, with the size and the place that it keeps: preparing yields.
    if (!wasActive && area.activeSubWindow() == this)
        activated();
}

void frmDisplay::joinArea(QMdiArea &area)
{
    const bool first = area.activeSubWindow() == nullptr;
    bool maximized = false;
    attempt([&] { maximized = modRegistry::getMaximizeWindows(); });

    area.addSubWindow(this);
    connect(&area, &QMdiArea::subWindowActivated, this, [this](const QMdiSubWindow *active) {
        if (active == this)
            activated();
    });
    if (maximized) {
        showMaximized();
        return;
    }
    resize(defaultSize);
    show();
    if (first)
        move(0, 0);
}

void frmDisplay::activated()
{
    if (!m_showing && !m_closing)
        guarded(this, [this] { PrepareForm(); });
}

void frmDisplay::PrepareForm()
{
    const QPointer<frmDisplay> alive = this;
    const auto step = [&alive](auto &&doIt) {
        if (alive)
            attempt(doIt);
    };
    MainWindowLink *window = mainWindow();
    // Painted once, with its pictures, however often the steps between yield.
    step([this] { listDisplay->setUpdatesEnabled(false); });
    step([&] {
        if (window)
            window->setWindowMenuShown(true);
    });
    step([this] { prepareToolbar(); });
    step([this] { modRender::renderContext(*this, m_action); });
    step([&] {
        if (window)
            window->setTargetDisplay(this);
    });
    step([this] { modRender::showRecordCount(*this, listDisplay->rowCount()); });
    step([this] { listDisplay->setFocus(); });
    step([this] { takeCaption(); });
    step([] { paintNow(); });
    step([this] { RenderListIcons(); });
    step([this] { listDisplay->setUpdatesEnabled(true); });
    step([] { showStatusReady(); });
}

void frmDisplay::takeCaption()
{
    setWindowTitle(LblInfo->text());
    listDisplay->setAccessibleName(LblInfo->text());
}

void frmDisplay::prepareToolbar()
{
    showOnlyToolbar(MainWindowLink::Toolbar::Display);
}

void frmDisplay::RenderListIcons()
{
    const QPointer<frmDisplay> alive = this;
    const Hourglass hourglass;
    paintNow();
    if (alive && listDisplay->columnCount() > firstVisibleColumn)
        listDisplay->setColumnPicture(firstVisibleColumn, displayMode(m_action).rowPicture);
}

void frmDisplay::ViewRefresh()
{
    const QPointer<frmDisplay> alive = this;
    const DisplayFamily *family = familyOf(m_action);
    if (family && family->listAll)
        family->listAll(this);
    if (!alive)
        return;
    takeCaption();
    PrepareForm();
}

void frmDisplay::closeEvent(QCloseEvent *event)
{
    if (m_closing) {
        event->accept();
        return;
    }
    m_closing = true;
    // Before the window goes: its going activates the next view, which has the last word.
    unload();
    QMdiSubWindow::closeEvent(event);
}

void frmDisplay::unload()
{
    MainWindowLink *window = mainWindow();
    if (!window)
        return;
    swapToolbars(MainWindowLink::Toolbar::Main, {MainWindowLink::Toolbar::Display});
    window->setWindowMenuShown(false);
    window->setTargetDisplay(nullptr);
    attempt([] { showStatusReady(); });
}

bool frmDisplay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != widget() || event->type() != QEvent::KeyPress)
        return QMdiSubWindow::eventFilter(watched, event);
    switch (static_cast<const QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        close();
        return true;
    case Qt::Key_F5:
        guarded(this, [this] { ViewRefresh(); });
        return true;
    default:
        return QMdiSubWindow::eventFilter(watched, event);
    }
}
