#pragma once

#include <QString>
#include <QUtf8StringView>

#include <string>
#include <vector>

/// The texts of one column of many rows in one block: UTF-8, a length in front of each
/// text and four bytes a row, where a QString a row would cost forty more. Rows behind
/// the last text set are Null and cost nothing. Holds up to 4 GiB of text.
class TextColumn final
{
public:
    [[nodiscard]] bool isNull(std::size_t row) const { return row >= m_places.size() || m_places[row] == 0; }
    /// Empty for Null. Valid until the next write.
    [[nodiscard]] QUtf8StringView view(std::size_t row) const;
    [[nodiscard]] QString text(std::size_t row) const;

    /// Writing over a text leaves the old one in the block until clear().
    void set(std::size_t row, QUtf8StringView text);
    void set(std::size_t row, QStringView text);
    void setNull(std::size_t row);

    /// O(rows behind): the rows behind move up.
    void removeRow(std::size_t row);
    void clear();
    /// Gives unused memory back.
    void squeeze();
    [[nodiscard]] std::size_t bytes() const;

private:
    void place(std::size_t row);

    std::vector<quint32> m_places; // 0 is Null, otherwise the place of the length in m_block, plus 1
    std::string m_block;
};
