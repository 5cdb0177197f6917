#include "toolkit/imagelist.h"

#include "toolkit/pictureengine.h"

using namespace Qt::StringLiterals;

// A linker leaves out what only registers itself, so the library asks for its pictures.
static void registerPictures()
{
    Q_INIT_RESOURCE(kelvane);
}

ImageList::ImageList(const QString &folder, int count, int size) : m_size(size)
{
    m_icons.reserve(std::size_t(count));
    for (int number = 1; number <= count; ++number)
        m_icons.emplace_back(
            new PictureEngine(":/pictures/"_L1 % folder % "/"_L1 % QString::number(number) % ".svg"_L1));
}

const QIcon &ImageList::icon(int number) const
{
    static const QIcon none;
    return number >= 1 && number <= count() ? m_icons[std::size_t(number) - 1] : none;
}

QIcon ImageList::iconOnPlate(int number) const
{
    QIcon plated;
    for (const int scale : {1, 2, 3, 4})
        plated.addPixmap(icon(number).pixmap(m_size / 2 * scale, QIcon::Selected));
    return plated;
}

QPixmap ImageList::pixmap(int number, qreal devicePixelRatio) const
{
    return icon(number).pixmap(imageSize(), devicePixelRatio);
}

static ImageLists *makeImageLists()
{
    registerPictures();
    return new ImageLists{
        .ImageListDataContext{u"datacontext"_s, 2, 16},
        .ImageListContext{u"context"_s, 12, 32},
        .ImageListHeaders{u"headers"_s, 2, 12},
        .ImageListList{u"list"_s, 14, 16},
        .ImageListToolbar{u"toolbar"_s, 18, 24},
    };
}

ImageLists &imageLists()
{
    // Never destroyed: a static would die after the application object that its pixmaps need.
    static ImageLists &lists = *makeImageLists();
    return lists;
}

QIcon programIcon()
{
    registerPictures();
    return QIcon(u":/kelvane.svg"_s);
}
