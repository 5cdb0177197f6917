#pragma once

#include "toolkit/listview.h"
#include "views/operations.h"

class QMenu;
class StatusBar;

/// A list of objects with what every list of the program can do: copy a cell, sort, find, jump to a
/// letter, select all, its menu and the counts in the status bar of its window.
class ListPane final : public ListView
{
    Q_OBJECT

public:
    explicit ListPane(QWidget *parent = nullptr);

    /// The column that Copy, Sort and Find act on: that under the last press of a mouse button, or the one
    /// chosen by the keys Left and Right. 0, the ids, until one was chosen.
    [[nodiscard]] int contextColumn() const { return m_contextColumn; }
    void setContextColumn(int column) { m_contextColumn = column; }

    /// The menu that opens at the pointer; it stays its owner's and outlives the pane.
    void setContextMenu(QMenu *menu) { m_contextMenu = menu; }
    /// The bar belongs to the pane's window. Panel 2 shows the number of rows, panel 3 that of the selected
    /// ones, while the pane is the one shown.
    void setCountsBar(StatusBar *bar);
    void showCounts();

    /// The item text as a number: 0 for a row that the store has no id for, and for -1.
    [[nodiscard]] int idOf(int row) const;
    /// In the order of the list.
    [[nodiscard]] std::vector<int> selectedIds() const;

    /// Runs an operation of the list's own.
    void run(Op op);

public Q_SLOTS:
    /// Puts the current row's text in the context column on the clipboard; nothing for column 0.
    void Copy();
    /// By the context column.
    void Sort();
    /// Opens the find window on a column.
    void find(int column);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void jumpTo(const QString &character);
    void showSelectedCount();

    int m_contextColumn = 0;
    QMenu *m_contextMenu = nullptr;
    StatusBar *m_countsBar = nullptr;
};
