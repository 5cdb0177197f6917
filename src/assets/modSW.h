#pragma once

#include "views/families.h"

/// Software: its views, its dialog, and where it is installed.
namespace modSW {

[[nodiscard]] std::span<const OpRow> handlers();

} // namespace modSW
