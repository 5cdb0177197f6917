#include "toolkit/statusbar.h"

#include "base/error.h"
#include "base/errornumbers.h"
#include "toolkit/imagelist.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int pictureSize = 16;
constexpr int spacing = 4;
constexpr double narrowest = 0.76; // of the width of the font: less cannot be read
} // namespace

QString shortened(const QString &text, const QFontMetrics &metrics, int room)
{
    if (metrics.horizontalAdvance(text) <= room)
        return text;
    const qsizetype separator = std::max(text.lastIndexOf(u'/'), text.lastIndexOf(u'\\'));
    if (separator < 0)
        return metrics.elidedText(text, Qt::ElideRight, room);
    const QString name = text.sliced(separator);
    const int before = room - metrics.horizontalAdvance(name);
    const QString folder = metrics.elidedText(text.first(separator), Qt::ElideRight, before);
    if (folder.isEmpty() || metrics.horizontalAdvance(folder % name) > room)
        return metrics.elidedText(text, Qt::ElideMiddle, room);
    return folder % name;
}

/// A label, so that screen readers read its text.
class StatusBar::Panel final : public QLabel
{
public:
    explicit Panel(QWidget *parent) : QLabel(parent)
    {
        setFrameStyle(int(StyledPanel) | int(Sunken));
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        setTextFormat(Qt::PlainText);
    }

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
        if (picture != 0)
            icon.paint(&painter, QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                                     {pictureSize, pictureSize}, inside()));
        const QRect room =
            QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, roomOfText(), inside());
        // Not by the font: few have a narrow face.
        const double needed = std::max(1, fontMetrics().horizontalAdvance(text()));
        const double narrowed = std::clamp(room.width() / needed, narrowest, 1.0);
        const QRect wide(0, room.top(), qRound(room.width() / narrowed), room.height());
        painter.translate(room.left(), 0);
        painter.scale(narrowed, 1);
        style()->drawItemText(&painter, wide, Qt::AlignLeading | Qt::AlignVCenter, palette(), isEnabled(),
                              shortened(text(), fontMetrics(), wide.width()), QPalette::WindowText);
    }

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::ToolTip) {
            const bool fits = fontMetrics().horizontalAdvance(text()) <= roomOfText().width();
            setToolTip(fits ? QString() : text().toHtmlEscaped());
        }
        return QLabel::event(event);
    }

private:
    [[nodiscard]] QRect inside() const { return contentsRect().adjusted(spacing, 0, -spacing, 0); }
    [[nodiscard]] QSize roomOfText() const
    {
        const QRect all = inside();
        return {std::max(0, all.width() - (picture != 0 ? pictureSize + spacing : 0)), all.height()};
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
    panelAt(panel).setText(text);
}

QString StatusBar::panelText(int panel) const
{
    return panelAt(panel).text();
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
    int total = 0;
    for (const Panel *each : m_panels)
        total += each->width;
    const int least = std::max(1, total / (2 * panelCount()));
    for (int i = 0; i < panelCount(); ++i)
        m_layout->setStretch(i, std::max(least, m_panels[std::size_t(i)]->width));
}

int StatusBar::panelWidth(int panel) const
{
    const Panel &at = panelAt(panel);
    return at.width != 0 ? at.width : at.QWidget::width();
}
