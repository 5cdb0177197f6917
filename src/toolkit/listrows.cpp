#include "toolkit/listrows.h"

#include <QtGlobal>

#include <algorithm>
#include <numeric>

namespace {

/// A copy of a column in another order, without the texts that were written over.
TextColumn reordered(const TextColumn &texts, std::span<const int> order)
{
    TextColumn result;
    for (std::size_t row = 0; row < order.size(); ++row) {
        const auto from = std::size_t(order[row]);
        if (!texts.isNull(from))
            result.set(row, texts.view(from));
    }
    result.squeeze();
    return result;
}

bool isLess(QUtf8StringView left, QUtf8StringView right)
{
    return std::string_view(left.data(), std::size_t(left.size())) <
           std::string_view(right.data(), std::size_t(right.size()));
}

} // namespace

int ListRows::addRow()
{
    return int(m_rows++);
}

void ListRows::removeRow(int row)
{
    Q_ASSERT(row >= 0 && row < rowCount());
    for (Column &column : m_columns) {
        column.texts.removeRow(std::size_t(row));
        if (std::size_t(row) < column.pictures.size())
            column.pictures.erase(column.pictures.begin() + row);
    }
    m_tags.removeRow(std::size_t(row));
    --m_rows;
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

QString ListRows::tag(int row) const
{
    return m_tags.text(std::size_t(row));
}

void ListRows::setTag(int row, QStringView tag)
{
    Q_ASSERT(row >= 0 && row < rowCount());
    if (tag.isEmpty())
        m_tags.setNull(std::size_t(row));
    else
        m_tags.set(std::size_t(row), tag);
}

void ListRows::take(std::span<const int> rows)
{
    for (Column &column : m_columns) {
        column.texts = reordered(column.texts, rows);
        if (column.pictures.empty())
            continue;
        std::vector<std::uint8_t> pictures(rows.size());
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (std::size_t(rows[row]) < column.pictures.size())
                pictures[row] = column.pictures[std::size_t(rows[row])];
        column.pictures = std::move(pictures);
    }
    m_tags = reordered(m_tags, rows);
    m_rows = rows.size();
}

std::vector<int> ListRows::sortedOrder(int column, Qt::SortOrder order) const
{
    TextColumn keys;
    for (int row = 0; row < rowCount(); ++row)
        keys.set(std::size_t(row), QStringView(text(row, column).toCaseFolded()));

    std::vector<int> rows(m_rows);
    std::iota(rows.begin(), rows.end(), 0);
    std::ranges::stable_sort(rows, [&keys, order](int left, int right) {
        const QUtf8StringView a = keys.view(std::size_t(left));
        const QUtf8StringView b = keys.view(std::size_t(right));
        return order == Qt::AscendingOrder ? isLess(a, b) : isLess(b, a);
    });
    return rows;
}

void ListRows::squeeze()
{
    for (Column &column : m_columns) {
        column.texts.squeeze();
        column.pictures.shrink_to_fit();
    }
    m_tags.squeeze();
}

std::size_t ListRows::bytes() const
{
    std::size_t sum = m_tags.bytes();
    for (const Column &column : m_columns)
        sum += column.texts.bytes() + column.pictures.capacity();
    return sum;
}
