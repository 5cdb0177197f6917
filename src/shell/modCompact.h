#pragma once

#include <QString>

class frmMain;

/// The folder for files of the program's own: that of the program, or the user's data folder where that
/// cannot be written.
[[nodiscard]] QString applicationFolder();

/// Compacts the store of the settings in place and reports what it saved. After a failure the folder with the
/// backup is opened.
void compactDatabase(frmMain &window);
