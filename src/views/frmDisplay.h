#pragma once

#include "views/modes.h"
#include "views/viewmenus.h"

#include <QMdiSubWindow>

class Banner;
class ListPane;
class QLabel;
class StatusBar;
struct CommandContext;

/// The list window of every kind of object. The module of an object fills the list, sets the mode and the
/// title; the window dresses itself from the mode whenever it is activated. What can be done in a mode is in
/// the table of handlers (views/families.h): the window knows no family.
///
/// A new view belongs to the caller until showView() gives it to the main window; it deletes itself when it
/// is closed.
class frmDisplay final : public QMdiSubWindow, public CommandTarget
{
    Q_OBJECT

public:
    frmDisplay();
    ~frmDisplay() override;

    /// Stores the mode; nothing is shown of it before the next activation.
    void SetAction(Mode mode) { m_mode = mode; }
    [[nodiscard]] std::optional<Mode> mode() const override { return m_mode; }

    /// Shows the view in the main window, which takes it over, and makes it the active one; becoming active
    /// prepares it.
    void showView();

    Banner *picLogoContainer;
    QLabel *picContext;
    QLabel *LblInfo;
    QLabel *picNT;
    ListPane *listDisplay;
    ::StatusBar *StatusBar;

    /// Runs the operation on the list: copy, sort and refresh itself, all others by the handler of the mode.
    /// Says why an operation cannot run.
    void run(Op op) override;

public Q_SLOTS:
    /// Dresses the window from its mode.
    void PrepareForm();
    /// Puts the mode's picture on the first visible cell of every row.
    void RenderListIcons();
    void prepareToolbar();
    /// Runs the mode's list of all objects on this window, whatever narrower list it shows.
    void ViewRefresh();

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
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] CommandContext context();
    [[nodiscard]] bool hasWhatItNeeds(Op op, const CommandContext &context);
    void Delete(const CommandContext &context);

    std::optional<Mode> m_mode;
    bool m_showing = false;
    bool m_closing = false;
};
