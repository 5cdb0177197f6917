#pragma once

#include <QPoint>
#include <QString>

class QMdiArea;
class QMdiSubWindow;

/// The title of a view as its caption: with a number when other views of its area have the title, so that
/// they can be told apart. A view keeps the number it has.
[[nodiscard]] QString numberedCaption(const QString &title, const QMdiSubWindow &view);

/// The place of a new window beside another one: one caption further down and right, from the corner again
/// where there is no room.
[[nodiscard]] QPoint cascadedFrom(const QMdiSubWindow &other, const QMdiArea &area);

/// The distance of cascaded windows.
[[nodiscard]] int cascadeStep(const QMdiArea &area);
