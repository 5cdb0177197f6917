#include "rawstore.h"

#include "platform/jet/sqlitesetup.h"

RawStore::RawStore(const QString &path)
{
    if (sqlite3_open_v2(path.toUtf8().constData(), &m_handle, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        jet::raiseSqlite(m_handle, SQLITE_CANTOPEN);
    jet::registerDialect(m_handle);
    jet::applyPragmas(m_handle);
}

RawStore::~RawStore()
{
    sqlite3_close(m_handle);
}

RawStatement::RawStatement(const RawStore &store, std::string_view sql)
    : m_statement(jet::prepareSqlite(store.handle(), sql))
{
}

RawStatement &RawStatement::bind(int place, std::string_view text)
{
    sqlite3_bind_text(m_statement.get(), place, text.data(), int(text.size()), SQLITE_STATIC);
    return *this;
}

RawStatement &RawStatement::bind(int place, qint64 number)
{
    sqlite3_bind_int64(m_statement.get(), place, number);
    return *this;
}

bool RawStatement::step()
{
    const int result = sqlite3_step(m_statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        jet::raiseSqlite(sqlite3_db_handle(m_statement.get()), result);
    return result == SQLITE_ROW;
}

void RawStatement::run()
{
    while (step()) {
    }
    reset();
}

void RawStatement::reset()
{
    sqlite3_reset(m_statement.get());
}

qint64 RawStatement::number(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

std::string_view RawStatement::text(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement.get(), column));
    return {text, std::size_t(sqlite3_column_bytes(m_statement.get(), column))};
}

int RawStatement::columns() const
{
    return sqlite3_column_count(m_statement.get());
}

bool RawStatement::isNumber(int column) const
{
    const int type = sqlite3_column_type(m_statement.get(), column);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}
