#include "toolkit/statusbar.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "toolkit/imagelist.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {
constexpr int pictureSize = 16;
constexpr int spacing = 4;
constexpr int narrowest = 76; // percent
constexpr int narrowing = 3;

/// The font, drawn narrower where that makes the text fit, or as narrow as can be read.
QFont fitted(QFont font, const QString &text, int room)
{
    const auto fits = [&] { return QFontMetrics(font).horizontalAdvance(text) <= room; };
    for (int stretch = 100; stretch > narrowest && !fits(); stretch -= narrowing)
        font.setStretch(stretch - narrowing);
    return font;
}
} // namespace

class StatusBar::Panel final : public QFrame
{
public:
    explicit Panel(QWidget *parent) : QFrame(parent)
    {
        setFrameStyle(int(StyledPanel) | int(Sunken));
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }

    QString text;
    QIcon icon;
    int picture = 0;
    int width = 0; // 0 until it is set

    [[nodiscard]] QSize sizeHint() const override
    {
        return {0, qMax(pictureSize, fontMetrics().height()) + 2 * frameWidth() + spacing};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QFrame::paintEvent(event);
        QPainter painter(this);
        QRect room = contentsRect().adjusted(spacing, 0, -spacing, 0);
        if (picture != 0) {
            const QRect place = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                                    {pictureSize, pictureSize}, room);
            icon.paint(&painter, place);
            if (layoutDirection() == Qt::LeftToRight)
                room.setLeft(place.right() + 1 + spacing);
            else
                room.setRight(place.left() - 1 - spacing);
        }
        // Of a path the end is what tells.
        const bool isPath = text.contains(u'/') || text.contains(u'\\');
        painter.setFont(fitted(font(), text, room.width()));
        const QString shown =
            painter.fontMetrics().elidedText(text, isPath ? Qt::ElideMiddle : Qt::ElideRight, room.width());
        style()->drawItemText(&painter, room, Qt::AlignLeading | Qt::AlignVCenter, palette(), isEnabled(),
                              shown, QPalette::WindowText);
    }

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ToolTip) {
            const int icons = picture != 0 ? pictureSize + spacing : 0;
            const int room = contentsRect().width() - 2 * spacing - icons;
            setToolTip(fontMetrics().horizontalAdvance(text) > room ? text.toHtmlEscaped() : QString());
        }
        return QFrame::event(event);
    }
};

StatusBar::StatusBar(int panels, QWidget *parent) : QStatusBar(parent)
{
    setSizeGripEnabled(false);
    auto *row = new QWidget(this);
    m_layout = new QHBoxLayout(row);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    for (int panel = 1; panel <= panels; ++panel) {
        m_panels.push_back(new Panel(row));
        m_panels.back()->setObjectName("panel"_L1 % QString::number(panel));
        m_layout->addWidget(m_panels.back(), 1);
    }
    addWidget(row, 1);
}

StatusBar::Panel &StatusBar::panelAt(int panel) const
{
    if (panel < 1 || panel > panelCount())
        throwError(IndexOutOfBounds,
                   u"Index out of bounds: the status bar has no panel "_s % QString::number(panel));
    return *m_panels[std::size_t(panel) - 1];
}

void StatusBar::setPanelText(int panel, const QString &text)
{
    Panel &at = panelAt(panel);
    if (at.text == text)
        return;
    at.text = text;
    at.setAccessibleName(text);
    at.update();
}

QString StatusBar::panelText(int panel) const
{
    return panelAt(panel).text;
}

void StatusBar::setPanelPicture(int panel, const ImageList &pictures, int number)
{
    Panel &at = panelAt(panel);
    at.icon = pictures.icon(number);
    at.picture = number;
    at.update();
}

int StatusBar::panelPicture(int panel) const
{
    return panelAt(panel).picture;
}

void StatusBar::setPanelWidth(int panel, int width)
{
    panelAt(panel).width = width;
    m_layout->setStretch(panel - 1, qMax(1, width));
}

int StatusBar::panelWidth(int panel) const
{
    const Panel &at = panelAt(panel);
    return at.width != 0 ? at.width : at.QWidget::width();
}
