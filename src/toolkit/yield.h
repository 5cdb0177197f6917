#pragma once

#include <chrono>

/// Lets the windows paint in the middle of work and takes no input, so that no command starts inside
/// another. Begins to write what the stores hold back; what fails there is raised by the next use of the
/// store.
void paintNow();

/// Takes input, too, for the time given and at least once. For the progress window alone, which is modal:
/// Cancel is all that can be pressed.
void takeInput(std::chrono::milliseconds time = {});
