#include "platform/jet/lastcounter.h"

#include <sqlite3.h>

namespace jet {

LastCounter::LastCounter(sqlite3 *handle) : m_handle(handle)
{
    sqlite3_update_hook(handle, rowChanged, this);
    const auto give = [](sqlite3_context *context, int, sqlite3_value **) {
        const auto *self = static_cast<const LastCounter *>(sqlite3_user_data(context));
        sqlite3_result_int64(context, self->m_last);
    };
    sqlite3_create_function_v2(handle, "jet_identity", 0, SQLITE_UTF8, this, give, nullptr, nullptr, nullptr);
}

LastCounter::~LastCounter()
{
    sqlite3_update_hook(m_handle, nullptr, nullptr);
}

void LastCounter::watch(const std::string &table, bool hasCounter)
{
    if (hasCounter)
        m_tables.insert(table);
    else
        m_tables.erase(table);
}

void LastCounter::rowChanged(void *self, int operation, const char *, const char *table, long long row)
{
    auto *counter = static_cast<LastCounter *>(self);
    if (operation == SQLITE_INSERT && counter->m_tables.contains(std::string_view(table)))
        counter->m_last = row;
}

} // namespace jet
