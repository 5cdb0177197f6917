#pragma once

#include "views/families.h"

/// Global groups: their views, their dialog, and what belongs to a group.
namespace modGlobalGroups {

[[nodiscard]] std::span<const OpRow> handlers();

/// The imports of groups and their members from files. Called once at start.
void registerImports();

} // namespace modGlobalGroups
