#include "views/captions.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

using namespace Qt::StringLiterals;

QString numberedCaption(const QString &title, const QMdiSubWindow &view)
{
    QStringList others;
    if (const QMdiArea *area = view.mdiArea())
        for (const QMdiSubWindow *other : area->subWindowList())
            if (other != &view)
                others.append(other->windowTitle());
    const auto numbered = [&title](int number) {
        return number == 1 ? title : title % " ("_L1 % QString::number(number) % u')';
    };
    for (int number = 1; number <= others.size() + 1; ++number)
        if (view.windowTitle() == numbered(number))
            return view.windowTitle();
    for (int number = 1;; ++number)
        if (!others.contains(numbered(number)))
            return numbered(number);
}

int cascadeStep(const QMdiArea &area)
{
    return area.style()->pixelMetric(QStyle::PM_TitleBarHeight) + 4;
}

QPoint cascadedFrom(const QMdiSubWindow &other, const QMdiArea &area)
{
    const int step = cascadeStep(area);
    const QPoint place = other.pos() + QPoint(step, step);
    const QRect room = area.viewport()->rect();
    // Half of it at least is to be seen.
    return place.x() + other.width() / 2 < room.width() && place.y() + other.height() / 2 < room.height()
               ? place
               : QPoint(0, 0);
}
