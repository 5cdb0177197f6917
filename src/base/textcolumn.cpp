#include "base/textcolumn.h"

#include "base/error.h"
#include "base/errornumbers.h"

#include <limits>

using namespace Qt::StringLiterals;

QUtf8StringView TextColumn::view(std::size_t row) const
{
    if (isNull(row))
        return {};
    const char *at = m_block.data() + (m_places[row] - 1);
    std::size_t length = 0;
    for (int shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(*at++);
        length |= std::size_t(byte & 0x7f) << shift;
        if (byte < 0x80)
            break;
    }
    return {at, qsizetype(length)};
}

QString TextColumn::text(std::size_t row) const
{
    return view(row).toString();
}

void TextColumn::place(std::size_t row)
{
    if (m_block.size() >= std::numeric_limits<quint32>::max())
        throwError(OutOfMemory, u"Out of memory: a column holds more than 4 GiB of text."_s);
    if (row >= m_places.size())
        m_places.resize(row + 1, 0);
    m_places[row] = quint32(m_block.size()) + 1;
}

void TextColumn::set(std::size_t row, QUtf8StringView text)
{
    place(row);
    auto length = std::size_t(text.size());
    while (length >= 0x80) {
        m_block.push_back(char(length | 0x80));
        length >>= 7;
    }
    m_block.push_back(char(length));
    m_block.append(text.data(), std::size_t(text.size()));
}

void TextColumn::set(std::size_t row, QStringView text)
{
    const QByteArray utf8 = text.toUtf8();
    set(row, QUtf8StringView(utf8));
}

void TextColumn::setNull(std::size_t row)
{
    if (row < m_places.size())
        m_places[row] = 0;
}

void TextColumn::removeRow(std::size_t row)
{
    if (row < m_places.size())
        m_places.erase(m_places.begin() + std::ptrdiff_t(row));
}

void TextColumn::clear()
{
    m_places.clear();
    m_block.clear();
}

void TextColumn::squeeze()
{
    m_places.shrink_to_fit();
    m_block.shrink_to_fit();
}

std::size_t TextColumn::bytes() const
{
    return m_places.capacity() * sizeof(quint32) + m_block.capacity();
}
