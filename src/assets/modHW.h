#pragma once

#include "views/families.h"

/// Hardware: its views and what belongs to an item.
namespace modHW {

[[nodiscard]] std::span<const OpRow> handlers();

} // namespace modHW
