#pragma once

#include "base/textcolumn.h"

#include <QString>

#include <cstdint>
#include <vector>

/// The rows of a list as a block, column by column: a row costs what its texts cost.
/// Column 0 is the item text, columns from 1 are the sub-items. Cells without a text are
/// empty, cells without a picture have picture 0. A column stores pictures only when one
/// was set, one byte a cell.
class ListRows final
{
public:
    explicit ListRows(int columns = 0) : m_columns(std::size_t(columns)) {}

    [[nodiscard]] int rowCount() const { return int(m_rows); }
    [[nodiscard]] int columnCount() const { return int(m_columns.size()); }

    /// Appends a row without texts and gives its index.
    int addRow();
    /// Appends so many rows without texts.
    void addRows(int count) { m_rows += std::size_t(count); }
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] QUtf8StringView view(int row, int column) const;
    void setText(int row, int column, QStringView text);
    /// The texts of a column there is, in place of those it has; of as many rows as there are at most.
    void setTexts(int column, const TextColumn &texts);

    [[nodiscard]] int picture(int row, int column) const;
    /// 0 to 255.
    void setPicture(int row, int column, int picture);
    /// The same picture for every row there is.
    void setColumnPicture(int column, int picture);

    /// Gives unused memory back.
    void squeeze();
    [[nodiscard]] std::size_t bytes() const;

private:
    struct Column
    {
        TextColumn texts;
        std::vector<std::uint8_t> pictures; // shorter than the rows: none behind
    };

    std::size_t m_rows = 0;
    std::vector<Column> m_columns;
};
