#pragma once

#include <vector>

#include <QtGlobal>

class ListView;

/// Sorting any list by a column of texts that may be numbers or dates.
namespace modListSort {

enum class ColumnType : quint8 { Number, Date, String };

/// By the first text of the column that is not empty. The ids of column 0 count as texts.
[[nodiscard]] ColumnType columnType(const ListView &list, int column);

/// The permutation that sorts the column: row i is to become what row result[i] is. Numbers and dates sort
/// by value, and what is neither in a column of such sorts as empty, which is first. Texts sort by code
/// point without regard to case. Rows that compare equal keep their order, in both directions.
[[nodiscard]] std::vector<int> sortedOrder(const ListView &list, int column, Qt::SortOrder order);

/// Sorts in the order opposite to the list's last sort, whatever column that was by; the first sort of a
/// list is ascending. The selection goes with its rows.
void sortList(ListView &list, int column);

} // namespace modListSort
