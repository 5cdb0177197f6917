#include "toolkit/childwindowstyle.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleOptionTitleBar>

namespace {

class ChildWindowStyle final : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        const auto *bar = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
        constexpr int dark = 128;
        if (control != CC_TitleBar || !bar || (bar->titleBarState & State_Active) != 0 ||
            bar->palette.color(QPalette::Window).lightness() >= dark) {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
            return;
        }
        // Drawn as an active one, which is light on its colour, in the colour of an inactive one.
        QStyleOptionTitleBar light(*bar);
        light.titleBarState |= int(State_Active);
        light.state |= State_Active;
        light.palette.setColor(QPalette::Highlight, bar->palette.color(QPalette::Window));
        QProxyStyle::drawComplexControl(control, &light, painter, widget);
    }
};

} // namespace

QStyle *childWindowStyle()
{
    // The application's child, as it wraps the application's style.
    static QStyle *style = [] {
        auto *made = new ChildWindowStyle;
        made->setParent(qApp);
        return made;
    }();
    return style;
}
