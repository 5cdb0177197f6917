#pragma once

/// Runs the events that wait and returns. What was written to the stores is committed
/// first, so that a command that gets its turn here sees it. Anything may happen inside:
/// a window of the caller may be closed when this returns.
void yieldToEvents();
