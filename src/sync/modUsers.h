#pragma once

#include "views/families.h"

/// Users: their views, and what belongs to a user.
namespace modUsers {

[[nodiscard]] std::span<const OpRow> handlers();

/// The import of users from a file. Called once at start.
void registerImports();

} // namespace modUsers
