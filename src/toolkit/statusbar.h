#pragma once

#include <QStatusBar>

#include <vector>

class ImageList;
class QHBoxLayout;

/// A status bar of panels, each by its index from 1 with a text, a picture and a width.
/// The widths are shares: a bar that grows keeps the proportions, and a panel never
/// makes its window wider; a text that is too long is shortened and told in full as a
/// tool tip.
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
