#pragma once

#include <QStringList>

class Gallery;

/// Walks through a whole session on the store and leaves a picture of every window. The
/// windows are opened the way a user opens them. Raises an Error when a picture cannot be
/// written or a window did not come.
void walkWindows(Gallery &gallery);
