#pragma once

namespace jet {

/// Of connections and recordsets.
inline constexpr int StateClosed = 0;
inline constexpr int StateOpen = 1;

} // namespace jet
