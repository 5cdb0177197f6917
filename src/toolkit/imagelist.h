#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

#include <vector>

/// Pictures by number, from 1, all of one size in device-independent pixels. A number
/// that is not there is an empty picture.
class ImageList final
{
public:
    /// The pictures are the files 1.svg to count.svg of ":/pictures/<folder>/".
    ImageList(const QString &folder, int count, int size);

    [[nodiscard]] const QIcon &icon(int number) const;
    /// On the light plate of selected rows: for a ground of any colour.
    [[nodiscard]] QIcon iconOnPlate(int number) const;
    [[nodiscard]] QPixmap pixmap(int number, qreal devicePixelRatio) const;
    [[nodiscard]] QSize imageSize() const { return {m_size, m_size}; }
    [[nodiscard]] int count() const { return int(m_icons.size()); }

private:
    std::vector<QIcon> m_icons;
    int m_size;
};

/// The lists that all windows share.
struct ImageLists
{
    ImageList ImageListDataContext; ///< status panels: 1 live, 2 database
    ImageList ImageListContext;     ///< banners
    ImageList ImageListHeaders;     ///< column headings: 1 ascending, 2 descending
    ImageList ImageListList;        ///< cells of lists
    ImageList ImageListToolbar;     ///< toolbar buttons, 15 to 18 for status panels
};

/// Made on the first call, which needs the application object.
[[nodiscard]] ImageLists &imageLists();

/// The program's own picture, of windows and of the start window.
[[nodiscard]] QIcon programIcon();
