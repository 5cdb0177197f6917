#pragma once

struct sqlite3;

namespace jet {

/// The collation and the functions that statements of the dialect are turned into.
void registerDialect(sqlite3 *handle);

/// How this program works on a store file: journal, caches, how long it waits for another.
void applyPragmas(sqlite3 *handle);

} // namespace jet
