#pragma once

#include <functional>

class frmMain;

/// Starts a session: shows the start window until it closes, resolves who the session is
/// on the network, tests the store, and shows the main window. Returns then; everything
/// after runs from window events. What fails is reported and does not stop the start.
/// Needs a QApplication, and belongs to it: another program may call it as well.
void Main();

/// Registers what each family can do. Main() calls it; calling it again changes nothing.
void registerFamilies();

/// The one main window, made on first use.
[[nodiscard]] frmMain &mainForm();

/// Writes what the store still holds back and ends the process at once, whatever windows
/// are open. Raises, and does not end, when the store cannot be written.
void endProcess();

/// What ends the process; an empty function restores the real end.
void setProcessEnd(std::function<void()> end);
