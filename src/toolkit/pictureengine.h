#pragma once

#include <QHash>
#include <QIconEngine>
#include <QPixmap>
#include <QSvgRenderer>

#include <memory>

/// Draws one SVG file sharply at every size. In a selected row the picture keeps its
/// colours and lies on a light plate: the tint of the style would drown it in the
/// highlight. Copies share the file and what was drawn of it.
class PictureEngine final : public QIconEngine
{
public:
    explicit PictureEngine(const QString &file);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    /// In pixels of the device.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override { return new PictureEngine(*this); }
    [[nodiscard]] bool isNull() override { return !m_picture->renderer.isValid(); }

private:
    struct Picture
    {
        QSvgRenderer renderer;
        QHash<std::pair<int, int>, QPixmap> drawn; // by size and mode
    };

    std::shared_ptr<Picture> m_picture;
};
