#include "shell/windowmenu.h"

#include "views/captions.h"

#include <QActionGroup>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

struct ArrangeEntry
{
    QLatin1StringView name;
    QLatin1StringView caption;
    Arrangement arrangement;
};

constexpr ArrangeEntry arrangeEntries[] = {
    {"mnuWindowTileHorizontally"_L1, "Tile Horizontally"_L1, Arrangement::TileHorizontally},
    {"mnuWindowTileVertically"_L1, "Tile Vertically"_L1, Arrangement::TileVertically},
    {"mnuWindowCascade"_L1, "Cascade"_L1, Arrangement::Cascade},
    {"mnuWindowArrangeIcons"_L1, "Arrange Icons"_L1, Arrangement::ArrangeIcons},
};

QList<QMdiSubWindow *> shownWindows(const QMdiArea &area, bool minimized)
{
    QList<QMdiSubWindow *> windows = area.subWindowList(QMdiArea::CreationOrder);
    windows.removeIf([&](const QMdiSubWindow *window) {
        return !window->isVisible() || window->isMinimized() != minimized;
    });
    return windows;
}

void tile(const QMdiArea &area, Qt::Orientation side)
{
    const QList<QMdiSubWindow *> windows = shownWindows(area, false);
    const QList<QMdiSubWindow *> icons = shownWindows(area, true);
    const QRect room =
        area.viewport()->rect().adjusted(0, 0, 0, icons.isEmpty() ? 0 : -icons.first()->height());
    const int count = int(windows.size());
    for (int i = 0; i < count; ++i) {
        windows[i]->showNormal();
        QRect place = room;
        if (side == Qt::Vertical) {
            place.setTop(room.height() * i / count);
            place.setBottom(room.height() * (i + 1) / count - 1);
        } else {
            place.setLeft(room.width() * i / count);
            place.setRight(room.width() * (i + 1) / count - 1);
        }
        windows[i]->setGeometry(place);
    }
}

void arrangeIcons(const QMdiArea &area)
{
    const QRect room = area.viewport()->rect();
    QPoint place = room.topLeft();
    int row = 1;
    for (QMdiSubWindow *window : shownWindows(area, true)) {
        if (place.x() > 0 && place.x() + window->width() > room.width()) {
            place.setX(0);
            ++row;
        }
        place.setY(room.height() - row * window->height());
        window->move(place);
        place.rx() += window->width();
    }
}

void cascade(const QMdiArea &area)
{
    const QSize room = area.viewport()->size();
    const QMdiSubWindow *before = nullptr;
    for (QMdiSubWindow *window : shownWindows(area, false)) {
        if (window->isMaximized())
            window->showNormal();
        window->resize(window->size().boundedTo(room));
        window->move(before ? cascadedFrom(*before, area) : QPoint(0, 0));
        window->raise();
        before = window;
    }
}

void fillWindowList(QMenu &list, QMdiArea &area)
{
    list.clear();
    delete list.findChild<QActionGroup *>();
    auto *oneChecked = new QActionGroup(&list);
    for (QMdiSubWindow *window : area.subWindowList(QMdiArea::CreationOrder)) {
        QAction *entry = list.addAction(window->windowTitle().replace(u'&', "&&"_L1));
        entry->setCheckable(true);
        entry->setChecked(window == area.currentSubWindow());
        entry->setActionGroup(oneChecked);
        QObject::connect(entry, &QAction::triggered, window, [window, &area] {
            if (window->isMinimized())
                window->showNormal();
            area.setActiveSubWindow(window);
        });
    }
}

} // namespace

void arrange(QMdiArea &area, Arrangement arrangement)
{
    switch (arrangement) {
    case Arrangement::Cascade:
        cascade(area);
        break;
    case Arrangement::TileHorizontally:
        tile(area, Qt::Vertical);
        break;
    case Arrangement::TileVertically:
        tile(area, Qt::Horizontal);
        break;
    case Arrangement::ArrangeIcons:
        arrangeIcons(area);
        break;
    }
}

QMenu *makeWindowMenu(QMdiArea &area, QWidget *parent)
{
    auto *menu = new QMenu(u"&Window"_s, parent);
    menu->setObjectName("mnuWindow"_L1);
    menu->menuAction()->setObjectName("mnuWindow"_L1);
    for (const ArrangeEntry &entry : arrangeEntries) {
        QAction *action = menu->addAction(entry.caption);
        action->setObjectName(entry.name);
        QObject::connect(action, &QAction::triggered, &area,
                         [&area, arrangement = entry.arrangement] { arrange(area, arrangement); });
    }
    QMenu *list = menu->addMenu(u"Windows"_s);
    list->setObjectName("mnuWindowList"_L1);
    list->menuAction()->setObjectName("mnuWindowList"_L1);
    QObject::connect(list, &QMenu::aboutToShow, list, [list, &area] { fillWindowList(*list, area); });
    return menu;
}
