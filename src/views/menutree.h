#pragma once

#include <QAction>
#include <QHash>
#include <QLatin1StringView>
#include <QMenu>

#include <span>

/// Makes the menus of a table whose entries have parent, name, caption and key: a menu comes before its
/// entries, and one without a parent is of the menu bar, whose menus are given back. Each action, also that
/// of a menu, is named and handed to `made`.
template <typename Entry, typename IsMenu, typename Made>
[[nodiscard]] QList<QMenu *> buildMenuTree(QWidget &owner, std::span<const Entry> entries, IsMenu isMenu,
                                           Made made)
{
    QList<QMenu *> top;
    QHash<QLatin1StringView, QMenu *> menus;
    for (const Entry &entry : entries) {
        QMenu *parent = menus.value(entry.parent);
        Q_ASSERT(parent || entry.parent.isEmpty());
        QAction *action = nullptr;
        if (isMenu(entry)) {
            auto *menu = new QMenu(entry.caption, &owner);
            menu->setObjectName(entry.name);
            menu->setToolTipsVisible(true);
            menus.insert(entry.name, menu);
            action = menu->menuAction();
            if (parent)
                parent->addMenu(menu);
            else
                top.append(menu);
        } else {
            action = parent->addAction(entry.caption);
            if (entry.key != 0)
                action->setShortcut(QKeySequence(entry.key));
        }
        action->setObjectName(entry.name);
        made(entry, *action);
    }
    return top;
}
