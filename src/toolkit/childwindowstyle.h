#pragma once

class QStyle;

/// The style of child windows. The platform's draws the buttons of an inactive title bar in black, which
/// cannot be seen on a dark one.
[[nodiscard]] QStyle *childWindowStyle();
