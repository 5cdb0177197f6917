#pragma once

#include <cstdint>

struct sqlite3;

namespace jet {

/// What the header of a store file says of itself.
inline constexpr std::uint32_t ApplicationId = 0x4B564C4E;
inline constexpr std::uint32_t FileVersion = 1;

/// The collation and the functions that statements of the dialect are turned into.
void registerDialect(sqlite3 *handle);

/// How this program works on a store file: journal, caches, how long it waits for another.
void applyPragmas(sqlite3 *handle);

} // namespace jet
