#include "views/frmDisplay.h"

#include "base/error.h"
#include "messages/guard.h"
#include "messages/status.h"
#include "session/modRegistry.h"
#include "toolkit/banner.h"
#include "toolkit/childwindowstyle.h"
#include "toolkit/messagebox.h"
#include "toolkit/pointer.h"
#include "toolkit/statusbar.h"
#include "toolkit/yield.h"
#include "views/captions.h"
#include "views/families.h"
#include "views/listpane.h"
#include "views/mainwindowlink.h"
#include "views/modRender.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QScopeGuard>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize defaultSize(640, 480);
constexpr int firstVisibleColumn = 1;

} // namespace

frmDisplay::frmDisplay()
{
    setObjectName("frmDisplay"_L1);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(u"Generating Display..."_s);
    setStyle(childWindowStyle());
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
    listDisplay = new ListPane(pane);
    listDisplay->setObjectName("listDisplay"_L1);
    StatusBar = new ::StatusBar(3, pane);
    StatusBar->setObjectName("StatusBar"_L1);
    listDisplay->setCountsBar(StatusBar);

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
    connect(listDisplay, &ListView::focusReceived, this,
            [] { showOnlyToolbar(MainWindowLink::Toolbar::Display); });
    connect(listDisplay, &ListView::enterPressed, this, [this] { run(Op::Properties); });
    connect(listDisplay, &ListView::rowDoubleClicked, this, [this] {
        if (m_mode && handlerOf(*m_mode, Op::Edit))
            run(Op::Edit);
    });
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
    // Only now, with the size and the place that it keeps.
    if (!wasActive && area.activeSubWindow() == this)
        activated();
}

void frmDisplay::joinArea(QMdiArea &area)
{
    bool maximized = false;
    attempt([&] { maximized = modRegistry::getMaximizeWindows(); });

    const QMdiSubWindow *active = area.currentSubWindow();
    const QPoint place = active && !active->isMaximized() ? cascadedFrom(*active, area) : QPoint(0, 0);
    area.addSubWindow(this);
    connect(&area, &QMdiArea::subWindowActivated, this, [this](const QMdiSubWindow *active) {
        if (active == this)
            activated();
    });
    if (MainWindowLink *window = mainWindow())
        listDisplay->setContextMenu(window->editMenu());
    if (maximized) {
        showMaximized();
        return;
    }
    resize(defaultSize);
    show();
    move(place);
}

void frmDisplay::activated()
{
    if (!m_showing && !m_closing)
        guarded(window(), [this] { PrepareForm(); });
}

void frmDisplay::PrepareForm()
{
    MainWindowLink *window = mainWindow();
    // Painted once, with its pictures.
    listDisplay->setUpdatesEnabled(false);
    auto painting = qScopeGuard([this] { listDisplay->setUpdatesEnabled(true); });
    if (window)
        window->setWindowMenuShown(true);
    prepareToolbar();
    modRender::renderContext({*picLogoContainer, *StatusBar, *this}, m_mode);
    if (window)
        window->setTargetDisplay(this);
    listDisplay->setEmptyText(emptyText());
    listDisplay->showCounts();
    listDisplay->setFocus();
    takeCaption();
    RenderListIcons();
    painting.dismiss();
    listDisplay->setUpdatesEnabled(true);
    paintNow();
    showStatusReady();
}

QString frmDisplay::emptyText() const
{
    if (!m_mode || !handlerOf(*m_mode, Op::AddNew))
        return {};
    return "No "_L1 % lookOf(m_mode).objects % " yet. Ctrl+N adds one."_L1;
}

void frmDisplay::takeCaption()
{
    setWindowTitle(numberedCaption(LblInfo->text(), *this));
    listDisplay->setAccessibleName(LblInfo->text());
}

void frmDisplay::prepareToolbar()
{
    showOnlyToolbar(MainWindowLink::Toolbar::Display);
}

void frmDisplay::RenderListIcons()
{
    if (listDisplay->columnCount() > firstVisibleColumn)
        listDisplay->setColumnPicture(firstVisibleColumn, lookOf(m_mode).rowPicture);
}

CommandContext frmDisplay::context()
{
    const int row = listDisplay->currentRow();
    return {.mode = m_mode.value_or(Mode::Unknown),
            .owner = window(),
            .view = this,
            .pane = listDisplay,
            .row = row,
            .id = listDisplay->idOf(row),
            .name = row < 0 || !m_mode ? QString() : modRender::objectName(*m_mode, *listDisplay, row)};
}

bool frmDisplay::hasWhatItNeeds(Op op, const CommandContext &context)
{
    const auto refuse = [&](const QString &text) {
        messageBox(context.owner, text, box::WarningIcon);
        return false;
    };
    const Needs needs = needsOf(context.mode, op);
    if (needs != Needs::Nothing && !modRender::hasIds(context.mode, *listDisplay))
        return refuse(u"Please refresh this view by pressing F5 to edit the selected object"_s);
    if (needs == Needs::EditableRow && context.row >= 0 &&
        (context.id == 0 || !modRender::hasEditedColumns(context.mode, *listDisplay)))
        return refuse(u"Please refresh this view by pressing F5 to edit the selected object"_s);
    const bool needsRow = needs == Needs::EditableRow || needs == Needs::StoredRow;
    if ((needsRow && context.id == 0) || (needs == Needs::Selection && listDisplay->selectedCount() == 0))
        return refuse(u"Please select an Item from list"_s);
    return true;
}

void frmDisplay::run(Op op)
{
    guarded(window(), [this, op] {
        if (isOfTheList(op))
            return listDisplay->run(op);
        if (op == Op::ViewRefresh)
            return ViewRefresh();
        const CommandContext target = context();
        if (!hasWhatItNeeds(op, target))
            return;
        const Handler none;
        const Handler &handler = m_mode ? handlerOf(*m_mode, op) : none;
        if (!handler)
            messageBox(target.owner,
                       op == Op::ViewGlobalGroups
                           ? u"The opration you requested has not been implemented yet"_s
                           : notYetImplemented(),
                       box::Ok);
        else if (op == Op::Delete)
            Delete(target);
        else
            handler(target);
    });
}

void frmDisplay::Delete(const CommandContext &context)
{
    const QString question =
        u"Warning! The selected Root Object(s) and all its Relationships will be deleted. This operation "
        "cannot be undone\r\nAre you sure to delete the selected Root Object(s)?"_s;
    const int answer = messageBox(context.owner, question % noteOf(context), box::YesNo | box::WarningIcon);
    if (answer != box::ResultYes)
        return;
    {
        const Hourglass hourglass;
        showStatusWriting();
        guarded(context.owner, [&] { handlerOf(context.mode, Op::Delete)(context); });
        showStatusReady();
    }
    ViewRefresh();
}

void frmDisplay::ViewRefresh()
{
    if (m_mode) {
        if (const Handler &listAll = handlerOf(*m_mode, Op::ListAll))
            listAll({.mode = *m_mode, .owner = window(), .view = this});
    }
    PrepareForm();
}

void frmDisplay::closeEvent(QCloseEvent *event)
{
    if (m_closing) {
        event->accept();
        return;
    }
    m_closing = true;
    // Before the window goes: then the next view is activated and shows what is its own.
    unload();
    QMdiSubWindow::closeEvent(event);
}

void frmDisplay::unload()
{
    MainWindowLink *window = mainWindow();
    // Another view that is active keeps what it shows.
    if (!window || (window->targetDisplay() && window->targetDisplay() != this))
        return;
    swapToolbars(MainWindowLink::Toolbar::Main, {MainWindowLink::Toolbar::Display});
    window->setWindowMenuShown(false);
    window->setTargetDisplay(nullptr);
    showStatusReady();
}

bool frmDisplay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != widget() || event->type() != QEvent::KeyPress)
        return QMdiSubWindow::eventFilter(watched, event);
    switch (static_cast<const QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        close();
        return true;
    case Qt::Key_F5: // where no menu has it
        run(Op::ViewRefresh);
        return true;
    default:
        return QMdiSubWindow::eventFilter(watched, event);
    }
}
