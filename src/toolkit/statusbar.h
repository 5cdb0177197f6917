#pragma once

#include <QStatusBar>

#include <vector>

class ImageList;
class QFontMetrics;
class QHBoxLayout;

/// The text as far as it fits into the room, in pixels, with an ellipsis at its end; that of a path is in
/// its middle and leaves the file name whole while that fits.
[[nodiscard]] QString shortened(const QString &text, const QFontMetrics &metrics, int room);

/// A status bar of panels, each by its index from 1 with a text, a picture and a width.
/// The widths are shares: a bar that grows keeps the proportions, and a panel never
/// makes its window wider, nor gets less than half of what it had if all were equal. A text
/// that is a little too long is drawn narrower, one that still is shortened; a tool tip shows
/// it in full.
class StatusBar final : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusBar(int panels, QWidget *parent = nullptr);

    [[nodiscard]] int panelCount() const { return int(m_panels.size()); }
    void setPanelText(int panel, const QString &text);
    [[nodiscard]] QString panelText(int panel) const;
    /// Number 0 takes the picture away.
    void setPanelPicture(int panel, const ImageList &pictures, int number);
    /// 0 without a picture.
    [[nodiscard]] int panelPicture(int panel) const;
    void setPanelWidth(int panel, int width);
    /// As it was set, or as it is on the screen when it was not.
    [[nodiscard]] int panelWidth(int panel) const;

private:
    class Panel;
    [[nodiscard]] Panel &panelAt(int panel) const;

    QHBoxLayout *m_layout;
    std::vector<Panel *> m_panels;
};
