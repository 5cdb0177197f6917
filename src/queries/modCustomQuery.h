#pragma once

#include "views/families.h"

/// Saved queries: their view.
namespace modCustomQuery {

[[nodiscard]] std::span<const OpRow> handlers();

} // namespace modCustomQuery
