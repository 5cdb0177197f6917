#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

struct sqlite3;

namespace jet {

/// What @@IDENTITY gives: the number that a counter column gave last on this handle, 0 before
/// the first. SQLite itself remembers the last row of any table, which is not that.
class LastCounter final
{
public:
    /// Adds the SQL function jet_identity() to the handle. Must not outlive it.
    explicit LastCounter(sqlite3 *handle);
    ~LastCounter();
    LastCounter(const LastCounter &) = delete;
    LastCounter &operator=(const LastCounter &) = delete;

    /// Tells of a table, by the name of its definition, whether it has a counter.
    void watch(const std::string &table, bool hasCounter);

    /// The number it gives now, and the way back to it from rows that were undone.
    [[nodiscard]] std::int64_t number() const { return m_last; }
    void putBack(std::int64_t number) { m_last = number; }

private:
    static void rowChanged(void *self, int operation, const char *file, const char *table, long long row);

    sqlite3 *m_handle;
    std::set<std::string, std::less<>> m_tables;
    std::int64_t m_last = 0;
};

} // namespace jet
