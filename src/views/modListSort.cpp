#include "views/modListSort.h"

#include "base/oledate.h"
#include "platform/jet/numbertext.h"
#include "toolkit/listmodel.h"
#include "toolkit/listview.h"
#include "toolkit/pointer.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace {

std::string_view textAt(const ListView &list, int row, int column)
{
    const QUtf8StringView text = list.rows().view(row, column);
    return {text.data(), std::size_t(text.size())};
}

std::optional<double> numberOf(std::string_view text)
{
    const std::optional<jet::Number> number = jet::parseNumber(text);
    if (!number)
        return std::nullopt;
    return jet::toDouble(*number);
}

std::optional<double> dateOf(std::string_view text)
{
    const std::optional<double> date = oledate::parse(QString::fromUtf8(text.data(), qsizetype(text.size())));
    if (!date)
        return std::nullopt;
    const oledate::Moment moment = oledate::toMoment(*date);
    return double(moment.day) * oledate::secondsPerDay + moment.second;
}

/// A key with what is compared first in itself: most comparisons never follow a pointer.
struct ValueKey
{
    double value; // what is empty is before every value
    int row;
};

template <typename Read>
std::vector<int> orderByValue(const ListView &list, int column, Qt::SortOrder order, Read read)
{
    const int count = list.rowCount();
    std::vector<ValueKey> keys;
    keys.reserve(std::size_t(count));
    for (int row = 0; row < count; ++row)
        keys.push_back(
            {read(textAt(list, row, column)).value_or(-std::numeric_limits<double>::infinity()), row});
    const bool ascending = order == Qt::AscendingOrder;
    std::ranges::sort(keys, [ascending](const ValueKey &a, const ValueKey &b) {
        if (a.value != b.value)
            return ascending == (a.value < b.value);
        return a.row < b.row;
    });
    std::vector<int> rows(keys.size());
    std::ranges::transform(keys, rows.begin(), &ValueKey::row);
    return rows;
}

struct TextKey
{
    quint64 prefix; // the first eight bytes, compared as a number
    quint32 begin;  // of the rest in the block of folded texts
    quint32 size;
    int row;
};

quint64 prefixOf(std::string_view text)
{
    char bytes[sizeof(quint64)] = {};
    std::memcpy(bytes, text.data(), std::min(text.size(), sizeof bytes));
    quint64 prefix = 0;
    std::memcpy(&prefix, bytes, sizeof prefix);
    if constexpr (std::endian::native == std::endian::little)
        prefix = qbswap(prefix);
    return prefix;
}

/// Adds the text in lower case. Only a text beyond ASCII needs the tables of Unicode.
void appendFolded(std::string &block, std::string_view text)
{
    const std::size_t begin = block.size();
    unsigned char all = 0;
    for (const char c : text) {
        all |= static_cast<unsigned char>(c);
        block += c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c;
    }
    constexpr unsigned char beyondAscii = 0x80;
    if (all < beyondAscii)
        return;
    block.resize(begin);
    block += QString::fromUtf8(text.data(), qsizetype(text.size())).toCaseFolded().toStdString();
}

std::vector<int> orderByText(const ListView &list, int column, Qt::SortOrder order)
{
    const int count = list.rowCount();
    std::string block;
    std::vector<TextKey> keys;
    keys.reserve(std::size_t(count));
    for (int row = 0; row < count; ++row) {
        const std::size_t begin = block.size();
        appendFolded(block, textAt(list, row, column));
        const std::string_view folded = std::string_view(block).substr(begin);
        keys.push_back({prefixOf(folded), quint32(begin), quint32(folded.size()), row});
    }
    const bool ascending = order == Qt::AscendingOrder;
    const auto whole = [&block](const TextKey &key) {
        return std::string_view(block).substr(key.begin, key.size);
    };
    std::ranges::sort(keys, [&](const TextKey &a, const TextKey &b) {
        if (a.prefix != b.prefix)
            return ascending == (a.prefix < b.prefix);
        if (const int compared = whole(a).compare(whole(b)); compared != 0)
            return ascending == (compared < 0);
        return a.row < b.row;
    });
    std::vector<int> rows(keys.size());
    std::ranges::transform(keys, rows.begin(), &TextKey::row);
    return rows;
}

} // namespace

namespace modListSort {

ColumnType columnType(const ListView &list, int column)
{
    if (column == 0)
        return ColumnType::String;
    for (int row = 0; row < list.rowCount(); ++row) {
        const std::string_view sample = textAt(list, row, column);
        if (sample.empty())
            continue;
        if (numberOf(sample))
            return ColumnType::Number;
        return dateOf(sample) ? ColumnType::Date : ColumnType::String;
    }
    return ColumnType::String;
}

std::vector<int> sortedOrder(const ListView &list, int column, Qt::SortOrder order)
{
    switch (columnType(list, column)) {
    case ColumnType::Number:
        return orderByValue(list, column, order, numberOf);
    case ColumnType::Date:
        return orderByValue(list, column, order, dateOf);
    case ColumnType::String:
        break;
    }
    return orderByText(list, column, order);
}

void sortList(ListView &list, int column)
{
    if (column < 0 || column >= list.columnCount())
        return;
    const Hourglass hourglass;
    constexpr int ascendingPicture = 1;
    constexpr int descendingPicture = 2;
    const bool ascending = list.sortOrder() == Qt::DescendingOrder;
    list.setSortOrder(ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    list.reorder(sortedOrder(list, column, list.sortOrder()));
    for (int other = 0; other < list.columnCount(); ++other)
        list.setHeadingPicture(other, 0);
    list.setHeadingPicture(column, ascending ? ascendingPicture : descendingPicture);
}

} // namespace modListSort
