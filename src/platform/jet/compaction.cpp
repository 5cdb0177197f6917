#include "platform/jet/compaction.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/sqlite.h"
#include "platform/jet/sqlitesetup.h"
#include "platform/jet/storefile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace jet {

class HeldStore::Handle final
{
public:
    explicit Handle(const QString &path)
    {
        sqlite3 *raw = nullptr;
        const int result = sqlite3_open_v2(path.toUtf8().constData(), &raw,
                                           SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
        m_handle.reset(raw);
        if (result != SQLITE_OK)
            raiseSqlite(raw, result);
    }

    [[nodiscard]] sqlite3 *get() const { return m_handle.get(); }

private:
    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_handle{nullptr, sqlite3_close};
};

HeldStore::HeldStore(const QString &path)
{
    checkStoreFile(path);
    m_handle = std::make_unique<Handle>(path);
    registerDialect(m_handle->get());
    // In this mode the lock of a transaction stays after its end.
    runSqlite(m_handle->get(), "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT");
}

HeldStore::~HeldStore() = default;

void HeldStore::copyCompacted(const QString &target)
{
    if (QFileInfo::exists(target))
        throwError(Failure, "Could not create '"_L1 + target + "': the file exists already."_L1);
    try {
        const StatementHandle vacuum = prepareSqlite(m_handle->get(), "VACUUM INTO ?1");
        const QByteArray path = target.toUtf8();
        sqlite3_bind_text(vacuum.get(), 1, path.constData(), int(path.size()), SQLITE_TRANSIENT);
        runToEnd(m_handle->get(), vacuum.get());
    } catch (const Error &error) {
        QFile::remove(target);
        throwError(error.number(), "Could not write '"_L1 + target + "': "_L1 + error.description());
    }
}

} // namespace jet
