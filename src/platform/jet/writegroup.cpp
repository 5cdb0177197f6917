#include "platform/jet/writegroup.h"

#include "base/error.h"
#include "platform/jet/errors.h"

#include <QString>

namespace jet {
namespace {

constexpr int mostChanges = 20000;
constexpr auto mostAge = std::chrono::milliseconds(250);

} // namespace

WriteGroup::WriteGroup(sqlite3 *handle)
    : m_handle(handle)
    , m_begin(prepareSqlite(handle, "BEGIN IMMEDIATE"))
    , m_commit(prepareSqlite(handle, "COMMIT"))
{
}

bool WriteGroup::open()
{
    if (m_open)
        return false;
    requireFileInPlace();
    runToEnd(m_handle, m_begin.get());
    m_open = true;
    m_wasEverOpen = true;
    m_changes = 0;
    m_changesSinceTry = 0;
    m_lastTry = std::chrono::steady_clock::now();
    return true;
}

// Writes to a file that has lost its name would be gone with it.
void WriteGroup::requireFileInPlace() const
{
    int moved = 0;
    sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    if (moved != 0)
        throw StoreFailure(
            Failure, QStringLiteral("Could not find file '%1'. It was moved or deleted while it was open.")
                         .arg(QString::fromUtf8(sqlite3_db_filename(m_handle, "main"))));
}

void WriteGroup::take(bool changed)
{
    m_changes += changed ? 1 : 0;
    m_changesSinceTry += changed ? 1 : 0;
}

void WriteGroup::commitIfDue()
{
    if (!m_open)
        return;
    if (m_changesSinceTry >= mostChanges || std::chrono::steady_clock::now() - m_lastTry >= mostAge)
        commitUnlessRead();
}

bool WriteGroup::isGivenUp() const
{
    return m_open && sqlite3_get_autocommit(m_handle) != 0;
}

void WriteGroup::raiseIfLost()
{
    if (isGivenUp())
        raiseLost();
}

// Called where an exception is being handled: the cause.
void WriteGroup::raiseLost()
{
    m_open = false;
    if (m_changes == 0)
        throw;
    try {
        throw;
    } catch (const Error &cause) {
        throw ChangesLost(cause.number(),
                          cause.description() +
                              QStringLiteral(" The last %1 change(s) are lost.").arg(m_changes));
    }
}

void WriteGroup::endUnlessChanged()
{
    if (m_changes == 0)
        rollBack();
}

void WriteGroup::rollBack()
{
    if (!m_open)
        return;
    sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
    m_open = false;
}

void WriteGroup::commit()
{
    if (!m_open)
        return;
    try {
        runToEnd(m_handle, m_commit.get());
        m_open = false;
    } catch (const Error &) {
        if (!isGivenUp() && (sqlite3_errcode(m_handle) & 0xff) == SQLITE_BUSY)
            throw;
        if (!isGivenUp())
            sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
        raiseLost();
    }
}

void WriteGroup::commitUnlessRead()
{
    try {
        commit();
    } catch (const Error &) {
        if (!m_open)
            throw;
        m_changesSinceTry = 0;
        m_lastTry = std::chrono::steady_clock::now();
    }
}

void WriteGroup::commitOrLose()
{
    try {
        commit();
    } catch (const Error &) {
        if (!m_open)
            throw;
        sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
        raiseLost();
    }
}

} // namespace jet
