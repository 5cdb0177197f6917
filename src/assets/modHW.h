#pragma once

#include "views/families.h"

/// Hardware: its views, its editor, and what belongs to an item.
namespace modHW {

[[nodiscard]] std::span<const OpRow> handlers();

/// A new view of the items that neither a user nor a room has.
void listUnassigned(QWidget *owner);

} // namespace modHW
