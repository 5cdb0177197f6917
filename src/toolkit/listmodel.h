#pragma once

#include "toolkit/listrows.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <span>
#include <vector>

class ImageList;

/// The model below ListView: headings, a block of rows, and the order in which the rows are
/// shown. Sorting and removing change the order alone, four bytes a row; the texts stay where
/// they are. A fill is one reset, a sort one layout change in which the selection stays with
/// its rows. Row and column numbers are checked by ListView; here they are asserted.
class ListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ListModel(QObject *parent = nullptr);

    void setImages(const ImageList *cells, const ImageList *headers);

    /// New columns; the rows go.
    void setColumns(const QStringList &headings);
    void addColumn(const QString &heading);
    void setHeading(int column, const QString &heading);
    void setHeadingPicture(int column, int picture);
    [[nodiscard]] int headingPicture(int column) const { return m_headings.at(std::size_t(column)).picture; }

    /// In place of all rows. Columns that the block lacks are empty.
    void setRows(ListRows rows);

    /// A number of the row that sorting and removing others does not change. Filling makes all
    /// numbers void.
    [[nodiscard]] int key(int row) const { return m_ordered ? m_order[std::size_t(row)] : row; }
    /// -1 for a row that has gone. O(rows) once the list was sorted.
    [[nodiscard]] int rowOfKey(int key) const;
    [[nodiscard]] QUtf8StringView view(int row, int column) const { return m_rows.view(key(row), column); }
    [[nodiscard]] QString text(int row, int column) const { return m_rows.text(key(row), column); }
    [[nodiscard]] int picture(int row, int column) const { return m_rows.picture(key(row), column); }

    int appendRow(const QString &itemText, const QStringList &subItems);
    void removeRow(int row);
    /// Row i becomes what row rows[i] was, the others go: a reset.
    void takeRows(std::span<const int> rows);
    void setText(int row, int column, const QString &text);
    void setPicture(int row, int column, int picture);
    void setColumnPicture(int column, int picture);
    /// Row i becomes what row order[i] was.
    void reorder(std::span<const int> order);
    /// What assistive tools are not to read out: the column of the ids.
    void setSilentColumn(int column) { m_silentColumn = column; }
    [[nodiscard]] std::size_t bytes() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Heading
    {
        QString text;
        int picture = 0;
    };

    void makeOrder();

    std::vector<Heading> m_headings;
    ListRows m_rows;
    std::vector<int> m_order; ///< of the block's rows, once it is not the block's own
    bool m_ordered = false;
    int m_silentColumn = -1;
    const ImageList *m_cellImages = nullptr;
    const ImageList *m_headerImages = nullptr;
};
