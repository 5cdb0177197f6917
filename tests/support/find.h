#pragma once

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

/// The objects of a name below a window, or below all windows without one.
template <typename T>
[[nodiscard]] QList<T *> findAll(const QString &name, const QObject *root = nullptr)
{
    if (root)
        return root->findChildren<T *>(name);
    QList<T *> found;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *named = dynamic_cast<T *>(window); named && window->objectName() == name)
            found += named;
        for (T *child : window->findChildren<T *>(name))
            if (!found.contains(child))
                found += child;
    }
    return found;
}

/// The one object of a name; fails the test and gives nothing when there is none.
template <typename T>
[[nodiscard]] T *find(const QString &name, const QObject *root = nullptr)
{
    const QList<T *> found = findAll<T>(name, root);
    if (found.isEmpty())
        ADD_FAILURE() << "There is no " << name.toStdString();
    return found.isEmpty() ? nullptr : found.first();
}

/// Triggers a menu entry or toolbar button as a user could: it must be visible and enabled.
inline void trigger(const QString &name, const QObject *root = nullptr)
{
    const QList<QAction *> actions = findAll<QAction>(name, root);
    for (QAction *action : actions) {
        if (action->isVisible() && action->isEnabled()) {
            action->trigger();
            return;
        }
    }
    ADD_FAILURE() << (actions.isEmpty() ? "There is no " : "Not to be reached: ") << name.toStdString();
}

/// Waits until the condition holds; false after five seconds.
template <typename Condition>
[[nodiscard]] bool waitFor(Condition condition)
{
    return QTest::qWaitFor(condition, 5000);
}
