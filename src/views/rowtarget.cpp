#include "views/rowtarget.h"

#include "toolkit/listview.h"

RowTarget::RowTarget(ListView &list, int row)
    : m_list(&list)
    , m_fillNumber(list.fillNumber())
    , m_key(list.rowKey(row))
{
}

RowTarget RowTarget::appended(ListView &list)
{
    RowTarget target;
    target.m_list = &list;
    target.m_fillNumber = list.fillNumber();
    return target;
}

void RowTarget::put(const QStringList &subItems) const
{
    if (!m_list || m_fillNumber != m_list->fillNumber())
        return;
    if (m_key < 0) {
        m_list->addRow(QStringLiteral("0"), subItems);
        return;
    }
    const int row = m_list->rowOfKey(m_key);
    if (row < 0)
        return;
    for (int i = 0; i < subItems.size() && i + 1 < m_list->columnCount(); ++i)
        m_list->setText(row, i + 1, subItems.at(i));
}

void RowTarget::put(std::initializer_list<std::pair<QLatin1StringView, QString>> cells) const
{
    if (!m_list || m_fillNumber != m_list->fillNumber())
        return;
    const int row = m_key < 0 ? m_list->addRow(QStringLiteral("0")) : m_list->rowOfKey(m_key);
    if (row < 0)
        return;
    for (const auto &[heading, text] : cells)
        if (const int column = m_list->columnOf(heading); column > 0)
            m_list->setText(row, column, text);
}
