#pragma once

#include <span>
#include <string_view>

struct sqlite3;

namespace jet {

/// A row of the table goes with the last row of the target whose id its column holds.
struct DeleteRule
{
    std::string_view table;
    std::string_view column;
    std::string_view target;
    std::string_view id;
};

/// Makes the file keep the rules, as far as it has their tables and columns, and no rules of before; a file
/// of an older format becomes one of this. To be called in a transaction that may write, after every change
/// of the tables. Returns whether anything had to be changed.
bool keepDeleteRules(sqlite3 *handle, std::span<const DeleteRule> rules);

} // namespace jet
