#pragma once

class QWidget;
class StatusBar;

/// The status texts of panel 1 of the main status bar. Reading and writing also turn the
/// hourglass on; the code that finishes the work turns it off. Each call lets the windows
/// paint and takes no input.
void showStatusReading();
void showStatusWriting();
void showStatusPrinting();
void showStatusReady();

/// The bar that shows the texts and the window whose caption they restore. Until one is
/// set, and when it is gone again, the status procedures only let the windows paint.
void setStatusTarget(StatusBar *bar, QWidget *window);
