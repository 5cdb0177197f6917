#pragma once

#include <functional>

/// The end of every event handler of a window: runs it now and shows what it raises,
/// number, line break and description, in a stop box. Nothing leaves it, because an
/// exception that reached the event loop would end the program.
void guarded(const std::function<void()> &handler);
