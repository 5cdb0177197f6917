#include "toolkit/listview.h"

#include "toolkit/listmodel.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

namespace {

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

/// A character that is typed and no command. The blank stays the key that selects.
bool isTyped(const QKeyEvent &event)
{
    constexpr Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !(event.modifiers() & commands) && event.key() != Qt::Key_Space && !event.text().isEmpty() &&
           event.text().front().isPrint();
}

} // namespace

void ListView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        event->ignore(); // the base class would copy the current cell, whatever the list offers
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT enterPressed();
    else if (isMenuKey(*event))
        Q_EMIT contextMenuAsked(menuPlace());
    else if (isTyped(*event))
        Q_EMIT charTyped(event->text());
    else
        QTreeView::keyPressEvent(event);
}

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveLeft || action == MoveRight) {
        stepColumn(action == MoveLeft ? -1 : 1);
        return currentIndex();
    }
    // Without a current row every key would lead to the first.
    if (action == MoveEnd && currentRow() < 0 && rowCount() > 0)
        return visibleIndex(rowCount() - 1);
    return QTreeView::moveCursor(action, modifiers);
}

// Among the visible columns; the selection stays as it is.
void ListView::stepColumn(int step)
{
    if (currentRow() < 0)
        return;
    int column = currentIndex().column() + step;
    while (column >= 0 && column < columnCount() && isColumnHidden(column))
        column += step;
    if (column < 0 || column >= columnCount())
        return;
    const QModelIndex cell = m_model->index(currentRow(), column);
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    scrollTo(cell);
    Q_EMIT columnChosen(column);
}

void ListView::mousePressEvent(QMouseEvent *event)
{
    const int column = columnUnder(event->position().toPoint());
    QTreeView::mousePressEvent(event);
    Q_EMIT mousePressed(event->button(), column);
}

void ListView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    const QPoint place = event->globalPosition().toPoint();
    const bool right = event->button() == Qt::RightButton;
    Q_EMIT mouseReleased(event->button(), place);
    if (right)
        Q_EMIT contextMenuAsked(place);
}

void ListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTreeView::mouseDoubleClickEvent(event);
    const int row = rowUnder(event->position().toPoint());
    if (row >= 0 && event->button() == Qt::LeftButton)
        Q_EMIT rowDoubleClicked(row);
}

QPoint ListView::menuPlace() const
{
    const QRect cell = currentRow() >= 0 ? visualRect(currentIndex()) : QRect();
    const QPoint place = cell.isValid() && viewport()->rect().intersects(cell) ? cell.bottomLeft() : QPoint();
    return viewport()->mapToGlobal(place);
}

void ListView::contextMenuEvent(QContextMenuEvent *event)
{
    // The mouse asks when its button goes up again, with the selection it has made by then.
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT contextMenuAsked(menuPlace());
    event->accept();
}

void ListView::focusInEvent(QFocusEvent *event)
{
    // Not QTreeView's, which would make the first row current.
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    Q_EMIT focusReceived();
}

void ListView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    if (m_spread)
        applySpread();
}

void ListView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                           const QList<int> &roles)
{
    // Of many rows the base class would look for the place of each.
    if (topLeft.row() != bottomRight.row())
        viewport()->update();
    else
        QTreeView::dataChanged(topLeft, bottomRight, roles);
}

bool ListView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto &help = static_cast<const QHelpEvent &>(*event);
    const QModelIndex index = indexAt(help.pos());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    if (index.isValid() && itemDelegate()->sizeHint(option, index).width() > columnWidth(index.column()))
        QToolTip::showText(help.globalPos(), index.data().toString().toHtmlEscaped(), viewport(),
                           visualRect(index));
    else
        QToolTip::hideText();
    return true;
}
