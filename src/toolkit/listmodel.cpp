#include "toolkit/listmodel.h"

#include "toolkit/imagelist.h"

ListModel::ListModel(QObject *parent) : QAbstractTableModel(parent) {}

void ListModel::setImages(const ImageList *cells, const ImageList *headers)
{
    m_cellImages = cells;
    m_headerImages = headers;
}

void ListModel::setColumns(const QStringList &headings)
{
    beginResetModel();
    m_headings.clear();
    for (const QString &heading : headings)
        m_headings.push_back({.text = heading});
    m_rows = ListRows(int(headings.size()));
    endResetModel();
}

void ListModel::addColumn(const QString &heading)
{
    const int column = columnCount();
    beginInsertColumns({}, column, column);
    m_headings.push_back({.text = heading});
    endInsertColumns();
}

void ListModel::setHeading(int column, const QString &heading)
{
    m_headings.at(std::size_t(column)).text = heading;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void ListModel::setHeadingPicture(int column, int picture)
{
    m_headings.at(std::size_t(column)).picture = picture;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void ListModel::setRows(ListRows rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_rows.squeeze();
    endResetModel();
}

int ListModel::appendRow(const QString &itemText, const QStringList &subItems)
{
    const int row = m_rows.rowCount();
    beginInsertRows({}, row, row);
    m_rows.addRow();
    m_rows.setText(row, 0, itemText);
    for (qsizetype i = 0; i < subItems.size(); ++i)
        m_rows.setText(row, int(i) + 1, subItems.at(i));
    endInsertRows();
    return row;
}

void ListModel::removeRow(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.removeRow(row);
    endRemoveRows();
}

void ListModel::takeRows(std::span<const int> rows)
{
    beginResetModel();
    m_rows.take(rows);
    endResetModel();
}

void ListModel::setText(int row, int column, const QString &text)
{
    m_rows.setText(row, column, text);
    Q_EMIT dataChanged(index(row, column), index(row, column), {Qt::DisplayRole});
}

void ListModel::setPicture(int row, int column, int picture)
{
    m_rows.setPicture(row, column, picture);
    Q_EMIT dataChanged(index(row, column), index(row, column), {Qt::DecorationRole});
}

void ListModel::setColumnPicture(int column, int picture)
{
    if (m_rows.rowCount() == 0)
        return;
    m_rows.setColumnPicture(column, picture);
    Q_EMIT dataChanged(index(0, column), index(m_rows.rowCount() - 1, column), {Qt::DecorationRole});
}

void ListModel::setTag(int row, const QString &tag)
{
    m_rows.setTag(row, tag);
}

void ListModel::reorder(std::span<const int> order)
{
    Q_ASSERT(order.size() == std::size_t(m_rows.rowCount()));
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<int> placeOf(order.size());
    for (std::size_t row = 0; row < order.size(); ++row)
        placeOf[std::size_t(order[row])] = int(row);

    m_rows.take(order);

    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &at : before)
        after.append(index(placeOf[std::size_t(at.row())], at.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

int ListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.rowCount();
}

int ListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_headings.size());
}

QVariant ListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return m_rows.text(index.row(), index.column());
    case Qt::DecorationRole:
        if (const int picture = m_rows.picture(index.row(), index.column()); picture != 0 && m_cellImages)
            return m_cellImages->icon(picture);
        return {};
    default:
        return {};
    }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const Heading &heading = m_headings[std::size_t(section)];
    switch (role) {
    case Qt::DisplayRole:
        return heading.text;
    case Qt::DecorationRole:
        if (heading.picture != 0 && m_headerImages)
            return m_headerImages->icon(heading.picture);
        return {};
    default:
        return {};
    }
}
