#include "toolkit/listmodel.h"

#include "toolkit/imagelist.h"

#include <algorithm>
#include <numeric>

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
    m_ordered = false;
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
    m_ordered = false;
    m_order = {};
    endResetModel();
}

int ListModel::rowOfKey(int key) const
{
    if (!m_ordered)
        return key >= 0 && key < m_rows.rowCount() ? key : -1;
    const auto found = std::ranges::find(m_order, key);
    return found == m_order.end() ? -1 : int(found - m_order.begin());
}

void ListModel::makeOrder()
{
    if (m_ordered)
        return;
    m_order.resize(std::size_t(m_rows.rowCount()));
    std::iota(m_order.begin(), m_order.end(), 0);
    m_ordered = true;
}

int ListModel::appendRow(const QString &itemText, const QStringList &subItems)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    const int added = m_rows.addRow();
    m_rows.setText(added, 0, itemText);
    for (qsizetype i = 0; i < subItems.size(); ++i)
        m_rows.setText(added, int(i) + 1, subItems.at(i));
    if (m_ordered)
        m_order.push_back(added);
    endInsertRows();
    return row;
}

void ListModel::removeRow(int row)
{
    makeOrder();
    beginRemoveRows({}, row, row);
    m_order.erase(m_order.begin() + row);
    endRemoveRows();
}

void ListModel::takeRows(std::span<const int> rows)
{
    beginResetModel();
    std::vector<int> order;
    order.reserve(rows.size());
    for (const int row : rows)
        order.push_back(key(row));
    m_order = std::move(order);
    m_ordered = true;
    endResetModel();
}

void ListModel::setText(int row, int column, const QString &text)
{
    m_rows.setText(key(row), column, text);
    Q_EMIT dataChanged(index(row, column), index(row, column), {Qt::DisplayRole});
}

void ListModel::setPicture(int row, int column, int picture)
{
    m_rows.setPicture(key(row), column, picture);
    Q_EMIT dataChanged(index(row, column), index(row, column), {Qt::DecorationRole});
}

void ListModel::setColumnPicture(int column, int picture)
{
    if (rowCount() == 0)
        return;
    m_rows.setColumnPicture(column, picture);
    Q_EMIT dataChanged(index(0, column), index(rowCount() - 1, column), {Qt::DecorationRole});
}

void ListModel::reorder(std::span<const int> order)
{
    Q_ASSERT(order.size() == std::size_t(rowCount()));
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    // What is selected or current moves with its row; of the others nobody holds an index.
    const QModelIndexList before = persistentIndexList();
    std::vector<int> placeOf(before.isEmpty() ? 0 : order.size());
    std::vector<int> keys(order.size());
    for (std::size_t row = 0; row < order.size(); ++row) {
        keys[row] = key(order[row]);
        if (!placeOf.empty())
            placeOf[std::size_t(order[row])] = int(row);
    }
    m_order = std::move(keys);
    m_ordered = true;

    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &at : before)
        after.append(index(placeOf[std::size_t(at.row())], at.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

std::size_t ListModel::bytes() const
{
    return m_rows.bytes() + m_order.capacity() * sizeof(int);
}

int ListModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_ordered ? int(m_order.size()) : m_rows.rowCount();
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
        return text(index.row(), index.column());
    case Qt::DecorationRole:
        if (const int number = picture(index.row(), index.column()); number != 0 && m_cellImages)
            return m_cellImages->icon(number);
        return {};
    case Qt::AccessibleTextRole:
        // An empty text would be replaced by the one shown.
        return index.column() == m_silentColumn ? QVariant(QStringLiteral(" ")) : QVariant();
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
