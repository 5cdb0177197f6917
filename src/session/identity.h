#pragma once

#include <QString>

inline constexpr int versionMajor = 3;
inline constexpr int versionMinor = 0;
inline constexpr int versionRevision = 253;

/// "Kelvane": the title of every message box, and the settings' application name.
[[nodiscard]] QString programTitle();
/// "3.0"
[[nodiscard]] QString programVersion();
/// "3.0.253"
[[nodiscard]] QString fullVersion();
/// "Kelvane 3.0": what the captions of the main and the result window show.
[[nodiscard]] QString mainCaption();
[[nodiscard]] QString makerAddress();
