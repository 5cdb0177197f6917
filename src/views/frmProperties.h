#pragma once

#include "views/modes.h"

#include <QDialog>

#include <array>
#include <span>
#include <vector>

class Banner;
class ListPane;
class QAction;
class QLabel;
class QMenu;
class QTabWidget;
class StatusBar;

enum class PropertyTab : quint8 { GlobalGroups, LocalGroups, Users, Folders, Hardware, Rooms, Software };
inline constexpr int propertyTabCount = 7;

/// All that an object is related to, a list a tab. Nothing can be changed here. The caller fills the lists,
/// sets the object's name in the banner and the mode, and shows the window, which then deletes itself when it
/// is closed.
class frmProperties final : public QDialog
{
    Q_OBJECT

public:
    /// At least one tab, in the order given.
    frmProperties(QWidget *owner, std::span<const PropertyTab> tabs);

    Banner *picLogoContainer;
    QLabel *picContext;
    QLabel *LblInfo;
    QTabWidget *TabStrip;
    ::StatusBar *StatusBar;
    QMenu *mnuEdit;
    QAction *mnuCopy;
    QAction *mnuSort;

    void SetAction(Mode mode) { m_mode = mode; }
    [[nodiscard]] const std::vector<PropertyTab> &tabs() const { return m_tabs; }
    /// Nothing for a tab that the window does not have.
    [[nodiscard]] ListPane *list(PropertyTab tab) const { return m_lists[std::size_t(tab)]; }
    /// Of the tab that is shown.
    [[nodiscard]] ListPane *currentList() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void InitializeForm();
    void RenderListIcons();
    void showTab();

    Mode m_mode = Mode::Unknown;
    bool m_initialized = false;
    std::vector<PropertyTab> m_tabs;
    std::array<ListPane *, propertyTabCount> m_lists{};
};
