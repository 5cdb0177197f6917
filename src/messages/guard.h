#pragma once

#include <functional>

class QWidget;

/// The end of every event handler of a window: runs it now and shows what it raises,
/// number, line break and description, in a stop box of the owner. Nothing leaves it, because an
/// exception that reached the event loop would end the program. The handler may delete the owner.
void guarded(QWidget *owner, const std::function<void()> &handler);
