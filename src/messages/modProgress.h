#pragma once

#include <QString>

class ListView;

/// The one progress window of the process. A second start takes over the window of the
/// first. Starting, stepping and ending yield to pending events; that is where a click on
/// Cancel arrives, so an item that has begun is always finished.
void startProgress(int start, int total, const QString &title, bool showBar, bool allowCancel);

/// Shows the item and its position; returns whether the user has cancelled.
[[nodiscard]] bool stepProgress(const QString &itemText, int current);

[[nodiscard]] bool isProgressCancelled();
void setProgressCancelled(bool cancelled);

/// Clears the cancel flag and closes the window.
void endProgress();

/// How many rows of the list are selected.
[[nodiscard]] int countSelected(const ListView &list);
