#pragma once

#include "views/families.h"

/// Rooms: their views, their dialog, and what belongs to a room.
namespace modRooms {

[[nodiscard]] std::span<const OpRow> handlers();

} // namespace modRooms
