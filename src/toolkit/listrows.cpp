#include "toolkit/listrows.h"

#include <QtGlobal>

int ListRows::addRow()
{
    return int(m_rows++);
}

QString ListRows::text(int row, int column) const
{
    return view(row, column).toString();
}

QUtf8StringView ListRows::view(int row, int column) const
{
    Q_ASSERT(row >= 0 && row < rowCount());
    return column < columnCount() ? m_columns[std::size_t(column)].texts.view(std::size_t(row))
                                  : QUtf8StringView();
}

void ListRows::setText(int row, int column, QStringView text)
{
    Q_ASSERT(row >= 0 && row < rowCount() && column >= 0);
    if (column >= columnCount()) {
        if (text.isEmpty())
            return;
        m_columns.resize(std::size_t(column) + 1);
    }
    TextColumn &texts = m_columns[std::size_t(column)].texts;
    if (text.isEmpty())
        texts.setNull(std::size_t(row));
    else
        texts.set(std::size_t(row), text);
}

void ListRows::setTexts(int column, const TextColumn &texts)
{
    Q_ASSERT(column >= 0 && column < columnCount());
    m_columns[std::size_t(column)].texts = texts;
}

int ListRows::picture(int row, int column) const
{
    if (column >= columnCount())
        return 0;
    const std::vector<std::uint8_t> &pictures = m_columns[std::size_t(column)].pictures;
    return std::size_t(row) < pictures.size() ? pictures[std::size_t(row)] : 0;
}

void ListRows::setPicture(int row, int column, int picture)
{
    Q_ASSERT(row >= 0 && row < rowCount() && column >= 0 && picture >= 0 && picture <= 255);
    if (column >= columnCount())
        m_columns.resize(std::size_t(column) + 1);
    std::vector<std::uint8_t> &pictures = m_columns[std::size_t(column)].pictures;
    if (std::size_t(row) >= pictures.size()) {
        if (picture == 0)
            return;
        pictures.resize(std::size_t(row) + 1);
    }
    pictures[std::size_t(row)] = std::uint8_t(picture);
}

void ListRows::setColumnPicture(int column, int picture)
{
    Q_ASSERT(column >= 0 && picture >= 0 && picture <= 255);
    if (column >= columnCount())
        m_columns.resize(std::size_t(column) + 1);
    m_columns[std::size_t(column)].pictures = std::vector(m_rows, std::uint8_t(picture));
}

void ListRows::squeeze()
{
    for (Column &column : m_columns) {
        column.texts.squeeze();
        column.pictures.shrink_to_fit();
    }
}

std::size_t ListRows::bytes() const
{
    std::size_t sum = 0;
    for (const Column &column : m_columns)
        sum += column.texts.bytes() + column.pictures.capacity();
    return sum;
}
