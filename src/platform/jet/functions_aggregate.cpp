#include "platform/jet/functionbodies.h"

#include <cmath>
#include <sqlite3.h>

namespace jet {

namespace {

// SQLite hands out the state of a group zeroed and frees it without a destructor.

struct Kept
{
    sqlite3_value *value;
    sqlite3_int64 row;
};

/// The value of the first or the last row: by the row id where one is handed over, otherwise as they come.
template <bool Last>
void keep(sqlite3_context *context, int count, sqlite3_value **values)
{
    auto *kept = static_cast<Kept *>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (!kept)
        return;
    const sqlite3_int64 row = count > 1 ? sqlite3_value_int64(values[1]) : 0;
    if (kept->value && !(Last ? row >= kept->row : row < kept->row))
        return;
    sqlite3_value_free(kept->value);
    kept->value = sqlite3_value_dup(values[0]);
    kept->row = row;
}

void giveKept(sqlite3_context *context)
{
    auto *kept = static_cast<Kept *>(sqlite3_aggregate_context(context, 0));
    if (!kept || !kept->value)
        return;
    sqlite3_result_value(context, kept->value);
    sqlite3_value_free(kept->value);
    kept->value = nullptr;
}

/// The mean and the squared distances from it, moved on value by value: no difference of
/// great sums is ever taken.
struct Spread
{
    sqlite3_int64 count;
    double mean;
    double squares;
};

void addToSpread(sqlite3_context *context, int, sqlite3_value **values)
{
    auto *spread = static_cast<Spread *>(sqlite3_aggregate_context(context, sizeof(Spread)));
    if (!spread || sqlite3_value_type(values[0]) == SQLITE_NULL)
        return;
    const double number = sqlite3_value_double(values[0]);
    ++spread->count;
    const double distance = number - spread->mean;
    spread->mean += distance / double(spread->count);
    spread->squares += distance * (number - spread->mean);
}

template <int FreeValues, bool Root>
void giveSpread(sqlite3_context *context)
{
    const auto *spread = static_cast<const Spread *>(sqlite3_aggregate_context(context, 0));
    if (!spread || spread->count <= FreeValues)
        return;
    const double variance = spread->squares / double(spread->count - FreeValues);
    sqlite3_result_double(context, Root ? std::sqrt(variance) : variance);
}

struct Aggregate
{
    const char *name;
    int arguments;
    void (*step)(sqlite3_context *, int, sqlite3_value **);
    void (*final)(sqlite3_context *);
};

constexpr Aggregate aggregates[] = {
    {"jet_first", 1, keep<false>, giveKept},
    {"jet_first", 2, keep<false>, giveKept},
    {"jet_last", 1, keep<true>, giveKept},
    {"jet_last", 2, keep<true>, giveKept},
    {"jet_var", 1, addToSpread, giveSpread<1, false>},
    {"jet_varp", 1, addToSpread, giveSpread<0, false>},
    {"jet_stdev", 1, addToSpread, giveSpread<1, true>},
    {"jet_stdevp", 1, addToSpread, giveSpread<0, true>},
};

} // namespace

void registerAggregates(sqlite3 *handle)
{
    for (const Aggregate &aggregate : aggregates)
        sqlite3_create_function_v2(handle, aggregate.name, aggregate.arguments,
                                   SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, nullptr, aggregate.step,
                                   aggregate.final, nullptr);
}

} // namespace jet
