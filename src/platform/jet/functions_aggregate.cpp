#include "platform/jet/functionbodies.h"

#include <cmath>
#include <sqlite3.h>

namespace jet {

namespace {

// SQLite hands out the state of a group zeroed and frees it without a destructor.

struct Kept
{
    sqlite3_value *value;
};

void keepFirst(sqlite3_context *context, int, sqlite3_value **values)
{
    auto *kept = static_cast<Kept *>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (kept && !kept->value)
        kept->value = sqlite3_value_dup(values[0]);
}

void keepLast(sqlite3_context *context, int, sqlite3_value **values)
{
    auto *kept = static_cast<Kept *>(sqlite3_aggregate_context(context, sizeof(Kept)));
    if (!kept)
        return;
    sqlite3_value_free(kept->value);
    kept->value = sqlite3_value_dup(values[0]);
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
    void (*step)(sqlite3_context *, int, sqlite3_value **);
    void (*final)(sqlite3_context *);
};

constexpr Aggregate aggregates[] = {
    {"jet_first", keepFirst, giveKept},
    {"jet_last", keepLast, giveKept},
    {"jet_var", addToSpread, giveSpread<1, false>},
    {"jet_varp", addToSpread, giveSpread<0, false>},
    {"jet_stdev", addToSpread, giveSpread<1, true>},
    {"jet_stdevp", addToSpread, giveSpread<0, true>},
};

} // namespace

void registerAggregates(sqlite3 *handle)
{
    for (const Aggregate &aggregate : aggregates)
        sqlite3_create_function_v2(handle, aggregate.name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                   nullptr, aggregate.step, aggregate.final, nullptr);
}

} // namespace jet
