#pragma once

#include <QString>

namespace jet {

/// Which other program of this machine holds a lock on the file, as "'kelvane' (process 4711 of
/// anna)"; empty when that cannot be told, as of a program on another machine. Never opens the
/// file: closing it again would drop the locks of this process.
[[nodiscard]] QString lockHolder(const QString &path);

} // namespace jet
