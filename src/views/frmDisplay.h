#pragma once

#include "views/displaymodes.h"

#include <QMdiSubWindow>

class Banner;
class ListView;
class QLabel;
class StatusBar;

/// The list window of every kind of object. The module of an object fills the list, sets
/// the mode and the title; the window dresses itself from the mode whenever it is
/// activated. What a mode can do is in the family registry.
///
/// A new view is nobody's until showView() gives it to the main window; it dies when it
/// is closed.
class frmDisplay final : public QMdiSubWindow
{
    Q_OBJECT

public:
    frmDisplay();
    ~frmDisplay() override;

    /// Stores the mode; nothing is shown of it before the next activation.
    void SetAction(const QString &mode) { m_action = mode; }
    [[nodiscard]] const QString &action() const { return m_action; }
    /// The group whose live members the view shows.
    void setGlobalGroupName(const QString &name) { m_globalGroupName = name; }
    [[nodiscard]] const QString &globalGroupName() const { return m_globalGroupName; }
    void setLocalGroupName(const QString &name) { m_localGroupName = name; }
    [[nodiscard]] const QString &localGroupName() const { return m_localGroupName; }
    void setDoNotResizeIDColumn(bool set) { m_doNotResizeIDColumn = set; }
    /// The column under the last press of a mouse button on the list; 0 is the id.
    [[nodiscard]] int contextColumn() const { return m_contextColumn; }
    void setContextColumn(int column) { m_contextColumn = column; }

    /// Shows the view in the main window, which takes it over, and makes it the active one;
    /// becoming active prepares it.
    void showView();

    Banner *picLogoContainer;
    QLabel *picContext;
    QLabel *LblInfo;
    QLabel *picNT;
    ListView *listDisplay;
    ::StatusBar *StatusBar;

public Q_SLOTS:
    /// Dresses the window from its mode. A step that fails is skipped. Yields.
    void PrepareForm();
    /// Puts the mode's picture on the first visible cell of every row. Yields.
    void RenderListIcons();
    void prepareToolbar();
    /// Runs the mode's list of all objects on this window, whatever narrower list it shows.
    void ViewRefresh();

Q_SIGNALS:
    /// A click on a heading.
    void columnClicked(int column);
    void contextMenuAsked(QPoint globalPosition);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    void load();
    void connectList();
    void unload();
    void joinArea(QMdiArea &area);
    void activated();
    void takeCaption();

    QString m_action;
    QString m_globalGroupName;
    QString m_localGroupName;
    int m_contextColumn = 0;
    bool m_doNotResizeIDColumn = false;
    bool m_showing = false;
    bool m_closing = false;
};
