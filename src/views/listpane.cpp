#include "views/listpane.h"

#include "messages/guard.h"
#include "toolkit/clipboard.h"
#include "toolkit/listmodel.h"
#include "toolkit/pointer.h"
#include "toolkit/statusbar.h"
#include "views/frmListFind.h"
#include "views/modListSort.h"
#include "views/modRender.h"

#include <QKeyEvent>
#include <QMenu>

ListPane::ListPane(QWidget *parent) : ListView(parent)
{
    connect(this, &ListView::mousePressed, this,
            [this](Qt::MouseButton, int column) { m_contextColumn = column; });
    connect(this, &ListView::columnChosen, this, [this](int column) { m_contextColumn = column; });
    connect(this, &ListView::columnClicked, this, &ListPane::find);
    connect(this, &ListView::charTyped, this, &ListPane::jumpTo);
    connect(this, &ListView::selectedChanged, this, &ListPane::showSelectedCount);
    connect(this, &ListView::contextMenuAsked, this, [this](QPoint place) {
        if (m_contextMenu)
            m_contextMenu->popup(place);
    });
}

void ListPane::setCountsBar(StatusBar *bar)
{
    m_countsBar = bar;
}

void ListPane::showCounts()
{
    if (!m_countsBar)
        return;
    modRender::showRecordCount(*m_countsBar, rowCount());
    showSelectedCount();
}

void ListPane::showSelectedCount()
{
    if (m_countsBar && isVisible())
        modRender::showSelectedCount(*this, *m_countsBar);
}

int ListPane::idOf(int row) const
{
    return row < 0 ? 0 : rows().view(row, 0).toString().toInt();
}

std::vector<int> ListPane::selectedIds() const
{
    std::vector<int> ids = selectedRows();
    for (int &row : ids)
        row = idOf(row);
    return ids;
}

void ListPane::run(Op op)
{
    if (op == Op::Copy)
        Copy();
    else if (op == Op::Sort)
        Sort();
}

void ListPane::Copy()
{
    if (currentRow() >= 0 && m_contextColumn > 0 && m_contextColumn < columnCount())
        setClipboardText(subItem(currentRow(), m_contextColumn));
}

void ListPane::Sort()
{
    modListSort::sortList(*this, m_contextColumn);
}

void ListPane::find(int column)
{
    if (column >= 0 && column < columnCount() && !isColumnHidden(column))
        guarded(window(), [&] { frmListFind::Initialize(*this, 0, column); });
}

namespace {

/// Whether a text begins with a character, which is case folded. Most texts are told apart by their first
/// byte.
bool beginsWith(QUtf8StringView text, const QString &character)
{
    if (text.isEmpty())
        return false;
    const auto first = static_cast<unsigned char>(text.front());
    constexpr unsigned char beyondAscii = 0x80;
    if (first < beyondAscii)
        return character == QString(QChar(char16_t(first)).toCaseFolded());
    // Four bytes hold any character.
    return text.first(std::min<qsizetype>(text.size(), 4)).toString().left(1).toCaseFolded() == character;
}

} // namespace

// The first row whose first visible cell begins with the character.
void ListPane::jumpTo(const QString &character)
{
    if (columnCount() < 2)
        return;
    const QString wanted = character.left(1).toCaseFolded();
    const ListModel &texts = rows();
    for (int row = 0; row < rowCount(); ++row) {
        if (beginsWith(texts.view(row, 1), wanted)) {
            chooseRow(row);
            setFocus();
            return;
        }
    }
    // The search leaves one row selected, found or not.
    if (currentRow() >= 0)
        chooseRow(currentRow());
}

void ListPane::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Find))
        find(m_contextColumn > 0 && m_contextColumn < columnCount() ? m_contextColumn : 1);
    else
        ListView::keyPressEvent(event);
}
