#pragma once

#include <string>
#include <string_view>

struct sqlite3;

namespace jet {

/// The one order of texts in the store, named JET in SQLite: without regard to case;
/// punctuation before digits before letters; accents, then apostrophes and hyphens, count
/// only where all else is equal; blanks at the end never count. Both texts are UTF-8.
/// Negative, zero or positive. No allocation while both are ASCII without ' and -.
[[nodiscard]] int compareTexts(std::string_view left, std::string_view right);

/// The text with the case of every letter folded, for matching without regard to case.
[[nodiscard]] std::string foldCase(std::string_view text);

void registerCollation(sqlite3 *handle);

} // namespace jet
