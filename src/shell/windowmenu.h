#pragma once

class QMdiArea;
class QMenu;
class QWidget;

enum class Arrangement { Cascade = 0, TileHorizontally = 1, TileVertically = 2, ArrangeIcons = 3 };

/// Arranges the windows of the area. Tiling leaves minimized windows out.
void arrange(QMdiArea &area, Arrangement arrangement);

/// The menu mnuWindow: the four arrangements and the list of open windows, which is made
/// anew each time it is opened.
[[nodiscard]] QMenu *makeWindowMenu(QMdiArea &area, QWidget *parent);
