#pragma once

#include <QPointer>
#include <QStringList>

#include <initializer_list>
#include <utility>

class ListView;

/// The row of a list that a dialog keeps in step with what it saved. It finds its row again after a sort,
/// and does nothing once the list was filled anew or has gone.
class RowTarget final
{
public:
    /// No row: put() does nothing.
    RowTarget() = default;
    /// The row to be changed.
    RowTarget(ListView &list, int row);
    /// A row to be appended, with the item text 0: the store's id of what was added is not known.
    [[nodiscard]] static RowTarget appended(ListView &list);

    /// Puts the texts into sub-items 1, 2, 3 and so on.
    void put(const QStringList &subItems) const;
    /// Puts each text into the column of its heading; a list without such a column does not show it.
    void put(std::initializer_list<std::pair<QLatin1StringView, QString>> cells) const;

private:
    QPointer<ListView> m_list;
    int m_fillNumber = 0;
    int m_key = -1; ///< -1 appends
};
