#include "toolkit/listview.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "toolkit/imagelist.h"
#include "toolkit/listmodel.h"

#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSet>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultColumnWidth = 100;
constexpr int smallestColumnWidth = 24;

/// Rows are of one height whether or not their cells have a picture.
class RowDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(qMax(option.decorationSize.height(), option.fontMetrics.height()) + 4);
        return size;
    }
};

QColor gridColor(const QPalette &palette)
{
    QColor line = palette.color(QPalette::Text);
    line.setAlphaF(0.16F);
    return line;
}

} // namespace

ListView::ListView(QWidget *parent) : QTreeView(parent), m_model(new ListModel(this))
{
    m_model->setImages(&imageLists().ImageListList, &imageLists().ImageListHeaders);
    setModel(m_model);
    setItemDelegate(new RowDelegate(this));
    setIconSize(imageLists().ImageListList.imageSize());
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(false);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);

    // The header asks of each column whether all of its rows are selected: of the list's selection that takes
    // a walk over the rows at each click.
    header()->setSelectionModel(new QItemSelectionModel(m_model, header()));
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(smallestColumnWidth);
    header()->setDefaultSectionSize(defaultColumnWidth);
    header()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this, &ListView::columnClicked);
    connect(header(), &QHeaderView::sectionResized, this, [this] {
        if (!m_fitting)
            m_spread = false; // by hand
    });
    m_model->setSilentColumn(0);

    // A reset empties the selection without telling.
    connect(m_model, &QAbstractItemModel::modelReset, this, &ListView::selectedChanged);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &ListView::selectedChanged);
}

void ListView::requireRow(int row) const
{
    if (row < 0 || row >= rowCount())
        throwError(IndexOutOfBounds, u"Index out of bounds: the list has no row "_s % QString::number(row));
}

void ListView::requireColumn(int column) const
{
    if (column < 0 || column >= columnCount())
        throwError(IndexOutOfBounds,
                   u"Index out of bounds: the list has no column "_s % QString::number(column));
}

void ListView::setColumns(const QStringList &headings)
{
    m_model->setColumns(headings);
    for (int column = 0; column < columnCount(); ++column)
        setColumnWidth(column, defaultColumnWidth);
    ++m_fillNumber;
}

int ListView::addColumn(const QString &heading, int width)
{
    m_model->addColumn(heading);
    setColumnWidth(columnCount() - 1, width);
    return columnCount() - 1;
}

int ListView::columnCount() const
{
    return m_model->columnCount();
}

QString ListView::heading(int column) const
{
    requireColumn(column);
    return m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

int ListView::columnOf(const QString &heading) const
{
    const QString wanted = QString(heading).remove(u' ');
    for (int column = 1; column < columnCount(); ++column)
        if (this->heading(column).remove(u' ').compare(wanted, Qt::CaseInsensitive) == 0)
            return column;
    return -1;
}

void ListView::setHeading(int column, const QString &heading)
{
    requireColumn(column);
    m_model->setHeading(column, heading);
}

void ListView::setHeadingPicture(int column, int picture)
{
    requireColumn(column);
    m_model->setHeadingPicture(column, picture);
}

int ListView::headingPicture(int column) const
{
    requireColumn(column);
    return m_model->headingPicture(column);
}

void ListView::setColumnWidth(int column, int width)
{
    requireColumn(column);
    m_spread = false;
    setColumnHidden(column, width <= 0);
    if (width > 0)
        header()->resizeSection(column, width);
}

int ListView::columnWidth(int column) const
{
    requireColumn(column);
    return header()->sectionSize(column);
}

void ListView::spreadColumns()
{
    m_spread = true;
    applySpread();
}

void ListView::applySpread()
{
    if (columnCount() == 0)
        return;
    const QScopedValueRollback fitting(m_fitting, true);
    setColumnHidden(0, true);
    if (columnCount() == 1)
        return;
    int room = width() - 2 * frameWidth();
    if (rowCount() > 0) {
        const int height = this->height() - 2 * frameWidth() - header()->sizeHint().height();
        const int rowHeight = qMax(1, indexRowSizeHint(m_model->index(0, 1)));
        if (rowCount() > height / rowHeight)
            room -= verticalScrollBar()->sizeHint().width();
    }
    const int share = qMax(smallestColumnWidth, room / (columnCount() - 1));
    for (int column = 1; column < columnCount(); ++column) {
        setColumnHidden(column, false);
        header()->resizeSection(column, share);
    }
}

void ListView::fill(ListRows rows)
{
    m_model->setRows(std::move(rows));
    ++m_fillNumber;
    // The rows come in an order of their own.
    for (int column = 0; column < columnCount(); ++column)
        m_model->setHeadingPicture(column, 0);
    if (m_spread)
        applySpread();
}

void ListView::setRows(ListRows rows)
{
    fill(std::move(rows));
}

void ListView::replaceRows(ListRows rows)
{
    const auto idOf = [this](int row) { return m_model->view(row, 0).toString(); };
    const auto isId = [](const QString &text) { return !text.isEmpty() && text != "0"_L1; };
    QSet<QString> selected;
    for (const int row : selectedRows())
        if (const QString id = idOf(row); isId(id))
            selected.insert(id);
    const QString current = currentRow() >= 0 ? idOf(currentRow()) : QString();
    const int currentColumn = currentIndex().column();
    const int scrolled = verticalScrollBar()->value();
    const int scrolledAcross = horizontalScrollBar()->value();

    fill(std::move(rows));

    QItemSelection selection;
    int newCurrent = -1;
    const auto select = [&](int first, int last) {
        selection.append({m_model->index(first, 0), m_model->index(last, columnCount() - 1)});
    };
    int first = -1;
    const bool wanted = !selected.isEmpty() || isId(current);
    for (int row = 0; wanted && row < rowCount(); ++row) {
        const QString id = idOf(row);
        if (isId(current) && id == current)
            newCurrent = row;
        if (selected.contains(id)) {
            first = first < 0 ? row : first;
        } else if (first >= 0) {
            select(first, row - 1);
            first = -1;
        }
    }
    if (first >= 0)
        select(first, rowCount() - 1);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (newCurrent >= 0)
        selectionModel()->setCurrentIndex(m_model->index(newCurrent, currentColumn),
                                          QItemSelectionModel::NoUpdate);
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
    horizontalScrollBar()->setValue(scrolledAcross);
}

int ListView::rowCount() const
{
    return m_model->rowCount();
}

void ListView::clearRows()
{
    setRows(ListRows(columnCount()));
}

int ListView::addRow(const QString &itemText, const QStringList &subItems)
{
    return m_model->appendRow(itemText, subItems);
}

void ListView::removeRow(int row)
{
    requireRow(row);
    m_model->removeRow(row);
}

void ListView::removeRows(std::span<const int> rows)
{
    std::vector<bool> goes(std::size_t(rowCount()), false);
    for (const int row : rows) {
        requireRow(row);
        goes[std::size_t(row)] = true;
    }
    std::vector<int> left;
    for (int row = 0; row < rowCount(); ++row)
        if (!goes[std::size_t(row)])
            left.push_back(row);
    const int scrolled = verticalScrollBar()->value();
    m_model->takeRows(left);
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

QString ListView::text(int row, int column) const
{
    requireRow(row);
    requireColumn(column);
    return m_model->text(row, column);
}

void ListView::setText(int row, int column, const QString &text)
{
    requireRow(row);
    requireColumn(column);
    m_model->setText(row, column, text);
}

int ListView::picture(int row, int column) const
{
    requireRow(row);
    requireColumn(column);
    return m_model->picture(row, column);
}

void ListView::setPicture(int row, int column, int picture)
{
    requireRow(row);
    requireColumn(column);
    m_model->setPicture(row, column, picture);
}

void ListView::setColumnPicture(int column, int picture)
{
    requireColumn(column);
    m_model->setColumnPicture(column, picture);
}

int ListView::rowKey(int row) const
{
    requireRow(row);
    return m_model->key(row);
}

int ListView::rowOfKey(int key) const
{
    return m_model->rowOfKey(key);
}

bool ListView::isRowSelected(int row) const
{
    requireRow(row);
    return selectionModel()->isSelected(m_model->index(row, 0));
}

void ListView::setRowSelected(int row, bool selected)
{
    requireRow(row);
    selectionModel()->select(m_model->index(row, 0),
                             (selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect) |
                                 QItemSelectionModel::Rows);
}

int ListView::selectedCount() const
{
    int count = 0;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        if (range.left() == 0)
            count += range.height();
    return count;
}

std::vector<int> ListView::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        if (range.left() == 0)
            for (int row = range.top(); row <= range.bottom(); ++row)
                rows.push_back(row);
    std::ranges::sort(rows);
    return rows;
}

void ListView::selectAll()
{
    if (rowCount() == 0 || columnCount() == 0)
        return;
    selectionModel()->select(
        QItemSelection(m_model->index(0, 0), m_model->index(rowCount() - 1, columnCount() - 1)),
        QItemSelectionModel::ClearAndSelect);
}

int ListView::currentRow() const
{
    return currentIndex().row();
}

QModelIndex ListView::visibleIndex(int row) const
{
    const int column = currentIndex().isValid() ? currentIndex().column() : 1;
    return m_model->index(row, column < columnCount() ? column : 0);
}

void ListView::setCurrentRow(int row)
{
    if (row != -1)
        requireRow(row);
    selectionModel()->setCurrentIndex(row == -1 ? QModelIndex() : visibleIndex(row),
                                      QItemSelectionModel::NoUpdate);
}

void ListView::chooseRow(int row)
{
    requireRow(row);
    selectionModel()->setCurrentIndex(visibleIndex(row),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ensureVisible(row);
}

void ListView::ensureVisible(int row)
{
    requireRow(row);
    const int scrolled = horizontalScrollBar()->value();
    scrollTo(visibleIndex(row), EnsureVisible);
    horizontalScrollBar()->setValue(scrolled);
}

void ListView::reorder(std::span<const int> order)
{
    m_model->reorder(order);
}

void ListView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void ListView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (rowCount() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    constexpr int margin = 16;
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     int(Qt::AlignHCenter) | int(Qt::AlignTop) | int(Qt::TextWordWrap), m_emptyText);
}

void ListView::setGridLines(bool shown)
{
    m_gridLines = shown;
    viewport()->update();
}

int ListView::columnUnder(QPoint point) const
{
    const QModelIndex index = indexAt(point);
    return index.isValid() ? index.column() : 0;
}

int ListView::rowUnder(QPoint point) const
{
    return indexAt(point).row();
}

void ListView::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QTreeView::drawRow(painter, option, index);
    if (!m_gridLines)
        return;
    const QRect row = option.rect;
    painter->save();
    painter->setPen(gridColor(palette()));
    painter->drawLine(row.bottomLeft(), row.bottomRight());
    for (int column = 0; column < columnCount(); ++column) {
        if (isColumnHidden(column))
            continue;
        const int right = columnViewportPosition(column) + columnWidth(column) - 1;
        painter->drawLine(right, row.top(), right, row.bottom());
    }
    painter->restore();
}

void ListView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    // Of many rows the base class would look for the place of each.
    const auto rows = [](const QItemSelection &selection) {
        int count = 0;
        for (const QItemSelectionRange &range : selection)
            count += range.height();
        return count;
    };
    constexpr int few = 1000;
    if (rows(selected) + rows(deselected) <= few)
        QTreeView::selectionChanged(selected, deselected);
    else
        viewport()->update();
    Q_EMIT selectedChanged();
}
