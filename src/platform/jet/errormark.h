#pragma once

#include <string_view>

struct sqlite3_context;

namespace jet {

/// Ends a function call with an error that reaches the caller as an Error of that number. Throws
/// nothing, so that it serves where SQLite is the caller.
void resultError(sqlite3_context *context, int number, std::string_view text);

/// Takes the number out of a message made by resultError. Returns 0 for other messages.
int takeErrorNumber(std::string_view &message);

} // namespace jet
