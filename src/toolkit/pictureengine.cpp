#include "toolkit/pictureengine.h"

#include <QPainter>

namespace {

constexpr qreal disabledOpacity = 0.4;
constexpr qreal plateMargin = 0.06; // of the size

QPixmap draw(QSvgRenderer &renderer, int size, QIcon::Mode mode)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF place = pixmap.rect();
    if (mode == QIcon::Selected) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, 225));
        painter.drawRoundedRect(place, size / 6.0, size / 6.0);
        const qreal margin = plateMargin * size;
        place.adjust(margin, margin, -margin, -margin);
    }
    if (mode == QIcon::Disabled)
        painter.setOpacity(disabledOpacity);
    renderer.render(&painter, place);
    return pixmap;
}

} // namespace

PictureEngine::PictureEngine(const QString &file) : m_picture(std::make_shared<Picture>())
{
    m_picture->renderer.load(file);
}

void PictureEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatio();
    const int side = qMin(rect.width(), rect.height());
    QRect place(0, 0, side, side);
    place.moveCenter(rect.center());
    painter->drawPixmap(place, pixmap(QSize(side, side) * ratio, mode, state));
}

QPixmap PictureEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    const int side = qMin(size.width(), size.height());
    if (side <= 0 || isNull())
        return {};
    QPixmap &drawn = m_picture->drawn[{side, int(mode)}];
    if (drawn.isNull())
        drawn = draw(m_picture->renderer, side, mode);
    return drawn;
}
