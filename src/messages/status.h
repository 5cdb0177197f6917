#pragma once

class QWidget;
class StatusBar;

/// The status texts of panel 1 of the main status bar. Reading and writing also turn the
/// hourglass on; whoever finishes the work turns it off. Each call yields to pending
/// events, so windows may have changed when it returns.
void showStatusReading();
void showStatusWriting();
void showStatusPrinting();
void showStatusReady();

/// The bar that shows the texts and the window whose caption they restore. Until one is
/// set, and when it is gone again, the status procedures only yield.
void setStatusTarget(StatusBar *bar, QWidget *window);

/// What a new window belongs to: the modal dialog that is open, whose block it would
/// otherwise stand under, or the main window.
[[nodiscard]] QWidget *ownerOfNewWindows();
