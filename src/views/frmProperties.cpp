#include "views/frmProperties.h"

#include "base/error.h"
#include "messages/guard.h"
#include "session/modRegistry.h"
#include "toolkit/banner.h"
#include "toolkit/statusbar.h"
#include "views/listpane.h"
#include "views/modRender.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize defaultSize(640, 480);

struct Tab
{
    QLatin1StringView key;
    QLatin1StringView frame;
    QLatin1StringView list;
    QLatin1StringView caption;
    Mode objects; ///< whose row picture its rows have
};

constexpr Tab looks[] = {
    {"GlobalGroups"_L1, "frameGlobalGroups"_L1, "listGlobalGroups"_L1, "Global Groups"_L1,
     Mode::GlobalGroups},
    {"LocalGroups"_L1, "frameLocalGroups"_L1, "ListLocalGroups"_L1, "Local Groups"_L1, Mode::LocalGroups},
    {"Users"_L1, "frameUsers"_L1, "ListUsers"_L1, "Users"_L1, Mode::Users},
    {"Folders"_L1, "frameFolders"_L1, "ListFolders"_L1, "Folders"_L1, Mode::Folders},
    {"Hardware"_L1, "frameHardware"_L1, "listHardWare"_L1, "Hardware"_L1, Mode::HW},
    {"Rooms"_L1, "frameRooms"_L1, "listRooms"_L1, "Rooms"_L1, Mode::Rooms},
    {"Software"_L1, "frameSW"_L1, "ListSW"_L1, "Software"_L1, Mode::SW},
};
static_assert(std::size(looks) == propertyTabCount);

} // namespace

frmProperties::frmProperties(QWidget *owner, std::span<const PropertyTab> shown)
    : QDialog(owner)
    , picLogoContainer(new Banner(this))
    , picContext(picLogoContainer->picContext)
    , LblInfo(picLogoContainer->LblInfo)
    , TabStrip(new QTabWidget(this))
    , StatusBar(new ::StatusBar(3, this))
    , mnuEdit(new QMenu(u"Edit"_s, this))
    , mnuCopy(mnuEdit->addAction(u"Copy"_s))
    , mnuSort(mnuEdit->addAction(u"Sort"_s))
    , m_tabs(shown.begin(), shown.end())
{
    setObjectName("frmProperties"_L1);
    setAttribute(Qt::WA_DeleteOnClose);
    TabStrip->setObjectName("TabStrip"_L1);
    StatusBar->setObjectName("StatusBar"_L1);
    mnuEdit->setObjectName("mnuEdit"_L1);
    mnuCopy->setObjectName("mnuCopy"_L1);
    mnuSort->setObjectName("mnuSort"_L1);
    mnuCopy->setShortcut(QKeySequence::Copy);
    addAction(mnuCopy);

    bool gridLines = false;
    attempt([&] { gridLines = modRegistry::getShowGridLines(); });
    for (const PropertyTab key : m_tabs) {
        const Tab &tab = looks[std::size_t(key)];
        auto *frame = new QWidget;
        frame->setObjectName(tab.frame);
        auto *list = new ListPane(frame);
        list->setObjectName(tab.list);
        list->setAccessibleName(tab.caption);
        list->setGridLines(gridLines);
        list->setEmptyText("No "_L1 % lookOf(tab.objects).objects);
        list->setContextMenu(mnuEdit);
        list->setCountsBar(StatusBar);
        m_lists[std::size_t(key)] = list;
        auto *layout = new QVBoxLayout(frame);
        layout->setContentsMargins(4, 4, 4, 4);
        layout->addWidget(list);
        TabStrip->addTab(frame, tab.caption);
    }

    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(4, 4, 4, 4);
    middle->addWidget(TabStrip);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(picLogoContainer);
    all->addLayout(middle, 1);
    all->addWidget(StatusBar);
    resize(defaultSize);

    connect(TabStrip, &QTabWidget::currentChanged, this, [this] { showTab(); });
    connect(mnuCopy, &QAction::triggered, this, [this] { guarded(this, [this] { currentList()->Copy(); }); });
    connect(mnuSort, &QAction::triggered, this, [this] { guarded(this, [this] { currentList()->Sort(); }); });
}

ListPane *frmProperties::currentList() const
{
    return TabStrip->currentWidget()->findChild<ListPane *>();
}

void frmProperties::showEvent(QShowEvent *event)
{
    if (!m_initialized) {
        m_initialized = true;
        guarded(this, [this] { InitializeForm(); });
    }
    QDialog::showEvent(event);
    showTab();
}

void frmProperties::InitializeForm()
{
    modRender::renderContext({*picLogoContainer, *StatusBar, *this}, m_mode);
    setWindowTitle("Properties - "_L1 % LblInfo->text());
    TabStrip->setCurrentIndex(0);
    RenderListIcons();
}

void frmProperties::RenderListIcons()
{
    for (const PropertyTab tab : m_tabs) {
        ListPane &shown = *list(tab);
        if (shown.columnCount() > 1)
            shown.setColumnPicture(1, lookOf(looks[std::size_t(tab)].objects).rowPicture);
    }
}

void frmProperties::showTab()
{
    if (!isVisible() || !TabStrip->currentWidget())
        return;
    currentList()->setFocus();
    currentList()->showCounts();
}
