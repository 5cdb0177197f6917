#pragma once

#include "views/families.h"

/// Local groups: their views, their dialog, and what belongs to a group.
namespace modLocalGroups {

[[nodiscard]] std::span<const OpRow> handlers();

} // namespace modLocalGroups
