#pragma once

#include <QDateTime>

#include <functional>

namespace jet {

/// Where Date, Now, Time and Timer look; an empty clock is the local time again.
void setClock(std::function<QDateTime()> clock);
[[nodiscard]] QDateTime clockTime();

} // namespace jet
