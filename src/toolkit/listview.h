#pragma once

#include "toolkit/listrows.h"

#include <QStringList>
#include <QTreeView>

#include <span>
#include <vector>

class ListModel;

/// A report-style list with multiple selection: columns with a heading and a width, rows
/// by index from 0. Column 0 is the item text, sub-item n is column n.
///
/// Filling is meant to be done with setRows(): one reset, whatever the number of rows.
/// The selection is kept as ranges; nothing here walks the rows on a click.
class ListView : public QTreeView
{
    Q_OBJECT

public:
    explicit ListView(QWidget *parent = nullptr);

    // Columns.
    /// In place of all columns; the rows go too.
    void setColumns(const QStringList &headings);
    int addColumn(const QString &heading, int width = 100);
    [[nodiscard]] int columnCount() const;
    [[nodiscard]] QString heading(int column) const;
    void setHeading(int column, const QString &heading);
    /// The first column of a heading, without regard to case and blanks: one query writes "HardwareType" for
    /// "Hardware Type". -1 for none.
    [[nodiscard]] int columnOf(const QString &heading) const;
    /// Picture of ImageListHeaders beside the heading; 0 takes it away.
    void setHeadingPicture(int column, int picture);
    [[nodiscard]] int headingPicture(int column) const;
    /// 0 hides the column.
    void setColumnWidth(int column, int width);
    [[nodiscard]] int columnWidth(int column) const;
    /// Hides column 0 and gives every other the same share of the list's width, which they
    /// follow until somebody sets the width of one.
    void spreadColumns();

    // Rows.
    /// In place of all rows.
    void setRows(ListRows rows);
    /// The same where the rows are read again: what was selected and current stays so, found by
    /// its item text unless that is 0, and the list stays scrolled as it was. O(rows).
    void replaceRows(ListRows rows);
    [[nodiscard]] const ListModel &rows() const { return *m_model; }
    [[nodiscard]] int rowCount() const;
    void clearRows();
    /// Appends a row and gives its index.
    int addRow(const QString &itemText, const QStringList &subItems = {});
    void removeRow(int row);
    /// Any order. One reset, so nothing is selected or current afterwards.
    void removeRows(std::span<const int> rows);
    [[nodiscard]] QString text(int row, int column) const;
    void setText(int row, int column, const QString &text);
    [[nodiscard]] QString itemText(int row) const { return text(row, 0); }
    [[nodiscard]] QString subItem(int row, int index) const { return text(row, index); }
    [[nodiscard]] int picture(int row, int column) const;
    void setPicture(int row, int column, int picture);
    /// The same picture for the cells of all rows, at once.
    void setColumnPicture(int column, int picture);
    /// A number of the row that neither sorting nor the removal of others changes, and the row
    /// of such a number, -1 when it has gone. Filling makes all numbers void.
    [[nodiscard]] int rowKey(int row) const;
    [[nodiscard]] int rowOfKey(int key) const;
    /// Raised by each fill.
    [[nodiscard]] int fillNumber() const { return m_fillNumber; }

    // Selection.
    [[nodiscard]] bool isRowSelected(int row) const;
    void setRowSelected(int row, bool selected = true);
    /// O(ranges).
    [[nodiscard]] int selectedCount() const;
    /// Ascending.
    [[nodiscard]] std::vector<int> selectedRows() const;
    void selectAll() override;
    /// -1 when no row is current. Filling leaves none current: no command acts on a row
    /// that nobody chose.
    [[nodiscard]] int currentRow() const;
    /// Makes a row current and leaves the selection as it is; -1 for none.
    void setCurrentRow(int row);
    /// Makes a row current and the only selected one, in view.
    void chooseRow(int row);
    void ensureVisible(int row);

    // Order.
    /// Row i becomes what row order[i] was; selection and current row go with their rows.
    void reorder(std::span<const int> order);
    /// Of the last sort. Kept for the code that sorts; setting it sorts nothing.
    [[nodiscard]] Qt::SortOrder sortOrder() const { return m_sortOrder; }
    void setSortOrder(Qt::SortOrder order) { m_sortOrder = order; }

    /// Shown in the middle of a list without rows: what to do next.
    void setEmptyText(const QString &text);
    [[nodiscard]] const QString &emptyText() const { return m_emptyText; }

    void setGridLines(bool shown);
    [[nodiscard]] bool gridLines() const { return m_gridLines; }

    /// The column under a point of the viewport, or 0 where there is no row.
    [[nodiscard]] int columnUnder(QPoint point) const;
    /// The row under a point of the viewport, or -1.
    [[nodiscard]] int rowUnder(QPoint point) const;

    void keyboardSearch(const QString &) override {}

Q_SIGNALS:
    void columnClicked(int column);
    void rowDoubleClicked(int row);
    void enterPressed();
    /// A character that was typed into the list.
    void charTyped(const QString &character);
    /// The column is columnUnder() the pointer.
    void mousePressed(Qt::MouseButton button, int column);
    void mouseReleased(Qt::MouseButton button, QPoint globalPosition);
    /// The right button went up, or the key for menus was pressed.
    void contextMenuAsked(QPoint globalPosition);
    /// The keys Left and Right chose a column.
    void columnChosen(int column);
    /// Selection or rows changed.
    void selectedChanged();
    void focusReceived();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    void requireRow(int row) const;
    void requireColumn(int column) const;
    void applySpread();
    void fill(ListRows rows);
    void stepColumn(int step);
    [[nodiscard]] QModelIndex visibleIndex(int row) const;
    [[nodiscard]] QPoint menuPlace() const;

    ListModel *m_model;
    bool m_gridLines = false;
    QString m_emptyText;
    bool m_spread = false;  ///< the columns follow the list's width
    bool m_fitting = false; ///< and are doing so
    int m_fillNumber = 0;
    // So that the first sort is ascending.
    Qt::SortOrder m_sortOrder = Qt::DescendingOrder;
};
