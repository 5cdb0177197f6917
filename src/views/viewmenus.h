#pragma once

#include "views/modes.h"
#include "views/operations.h"

#include <QHash>
#include <QList>
#include <QObject>

#include <span>
#include <vector>

class QAction;
class QMenu;
class QToolBar;
class QWidget;

/// One entry of the menus of object views. An entry without an operation is a menu and comes before its
/// entries; a menu without a parent is on the menu bar.
struct ViewMenuEntry
{
    QLatin1StringView parent;
    QLatin1StringView name;
    QLatin1StringView caption;
    Op op;
    ModeSet modes; ///< that show it
    int key = 0;   ///< shortcut as a QKeyCombination, 0 for none
};
[[nodiscard]] std::span<const ViewMenuEntry> viewMenuEntries();

struct ViewToolbarButton
{
    QLatin1StringView key;
    int picture; ///< of ImageListToolbar
    QLatin1StringView tooltip;
    Op op;
    ModeSet modes;
};
[[nodiscard]] std::span<const ViewToolbarButton> viewToolbarButtons();

/// What menus and toolbars act on: an object view or a list like it.
class CommandTarget
{
public:
    [[nodiscard]] virtual std::optional<Mode> mode() const = 0;
    /// Runs the operation, or says why it cannot.
    virtual void run(Op op) = 0;

protected:
    ~CommandTarget() = default;
};

/// The menus of all object views and the buttons of their toolbar: built once, and dressed by the mode of
/// the view that becomes active. An entry that no family has registered yet is grey and says so as a tool
/// tip.
class ViewMenus final : public QObject
{
    Q_OBJECT

public:
    /// The owner gets the menus, whose shortcuts act in its window.
    ViewMenus(QWidget *owner, QToolBar &toolbar);

    /// The menus of the menu bar, without the window menu. The first is also the context menu of lists.
    [[nodiscard]] const QList<QMenu *> &menus() const { return m_menus; }
    [[nodiscard]] QMenu *editMenu() const { return m_menus.first(); }

    /// Shows what the target's mode offers and lets it act there. Without a target nothing is shown, so no
    /// shortcut acts.
    void dress(CommandTarget *target);
    [[nodiscard]] CommandTarget *target() const { return m_target; }

private:
    struct Entry
    {
        QAction *action;
        Op op;
        ModeSet modes;
    };

    void add(QAction *action, Op op, ModeSet modes);

    QList<QMenu *> m_menus;
    std::vector<Entry> m_entries;
    CommandTarget *m_target = nullptr;
};
