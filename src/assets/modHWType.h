#pragma once

#include "views/families.h"

/// Hardware types: their views, their dialog, and what is of a type.
namespace modHWType {

[[nodiscard]] std::span<const OpRow> handlers();

/// The dialog of a new type, for the editor of an item.
void newHWType(QWidget *owner);

} // namespace modHWType
