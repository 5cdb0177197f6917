#pragma once

#include "toolkit/listrows.h"

#include <QAbstractTableModel>
#include <QStringList>

class ImageList;

/// The model below ListView: headings and a block of rows. A fill is one reset, a sort
/// one layout change in which the selection stays with its rows. Row and column numbers
/// are checked by ListView; here they are asserted.
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
    [[nodiscard]] const ListRows &rows() const { return m_rows; }

    int appendRow(const QString &itemText, const QStringList &subItems);
    void removeRow(int row);
    /// Row i becomes what row rows[i] was, the others go: a reset.
    void takeRows(std::span<const int> rows);
    void setText(int row, int column, const QString &text);
    void setPicture(int row, int column, int picture);
    void setColumnPicture(int column, int picture);
    void setTag(int row, const QString &tag);
    void reorder(std::span<const int> order);

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

    std::vector<Heading> m_headings;
    ListRows m_rows;
    const ImageList *m_cellImages = nullptr;
    const ImageList *m_headerImages = nullptr;
};
