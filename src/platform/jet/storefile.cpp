#include "platform/jet/storefile.h"

#include "base/error.h"
#include "platform/jet/errors.h"
#include "platform/jet/sqlite.h"
#include "platform/jet/sqlitesetup.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace jet {
namespace {

// The header of a SQLite file, of which two numbers are the program's own.
constexpr qsizetype headerSize = 100;
constexpr qsizetype versionOffset = 60;
constexpr qsizetype applicationOffset = 68;

quint32 numberAt(const QByteArray &header, qsizetype offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

[[noreturn]] void raiseInvalidPath(const QString &path)
{
    throwError(
        Failure,
        "'"_L1 + path +
            "' is not a valid path.  Make sure that the path name is spelled correctly and that you are "
            "connected to the server on which the file resides."_L1);
}

using Handle = std::unique_ptr<sqlite3, int (*)(sqlite3 *)>;

Handle openFile(const QString &path, int flags)
{
    sqlite3 *raw = nullptr;
    const int result = sqlite3_open_v2(path.toUtf8().constData(), &raw, flags, nullptr);
    Handle handle(raw, sqlite3_close);
    if (result != SQLITE_OK)
        raiseSqlite(raw, result);
    return handle;
}

void copyPages(const QString &path, const QString &copy)
{
    const Handle from = openFile(path, SQLITE_OPEN_READONLY);
    const Handle to = openFile(copy, SQLITE_OPEN_READWRITE);
    sqlite3_backup *backup = sqlite3_backup_init(to.get(), "main", from.get(), "main");
    if (backup == nullptr)
        raiseSqlite(to.get(), sqlite3_errcode(to.get()));
    constexpr int allPages = -1;
    sqlite3_backup_step(backup, allPages);
    if (const int result = sqlite3_backup_finish(backup); result != SQLITE_OK)
        raiseSqlite(to.get(), result);
}

} // namespace

void checkStoreFile(const QString &path)
{
    if (path.isEmpty())
        throwError(Failure, u"Could not find file ''. No store has been chosen."_s);
    const QFileInfo info(path);
    if (!info.exists() && info.dir().exists())
        throwError(Failure, "Could not find file '"_L1 + path + "'."_L1);
    if (!info.isFile())
        raiseInvalidPath(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throwError(Failure, "Could not read file '"_L1 + path + "': "_L1 + file.errorString() + '.'_L1);
    const QByteArray header = file.read(headerSize);
    if (header.size() < headerSize || !header.startsWith("SQLite format 3") ||
        numberAt(header, applicationOffset) != ApplicationId)
        throwError(Failure, "Unrecognized database format '"_L1 + path + "'."_L1);
    if (const quint32 version = numberAt(header, versionOffset); version > FileVersion)
        throwError(Failure, "The store '"_L1 + path +
                                "' was made by a newer version of the program (format "_L1 +
                                QString::number(version) + "; this program knows formats up to "_L1 +
                                QString::number(FileVersion) + ")."_L1);
}

void copyDatabase(const QString &path, const QString &copy)
{
    QFile file(copy);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throwError(Failure, "Could not create '"_L1 + copy + "': "_L1 + file.errorString() + u'.');
    file.close();
    try {
        file.setPermissions(QFile::permissions(path));
        copyPages(path, copy);
    } catch (const Error &error) {
        QFile::remove(copy);
        throwError(Failure, "Could not copy the store to '"_L1 + copy + "': "_L1 + error.description());
    }
}

void createDatabase(const QString &path)
{
    if (path.isEmpty())
        throwError(Failure, u"Could not create a store: no file name was given."_s);
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink())
        throwError(Failure, "Could not create '"_L1 + path + "': the file exists already."_L1);
    try {
        const Handle handle = openFile(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        // The file is worth nothing yet: whoever fills it makes it safe on the disk.
        const QByteArray marks = "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA encoding = "
                                 "'UTF-8'; PRAGMA application_id = " +
                                 QByteArray::number(ApplicationId) +
                                 "; PRAGMA user_version = " + QByteArray::number(FileVersion);
        runSqlite(handle.get(), marks.constData());
    } catch (const Error &error) {
        QFile::remove(path);
        throwError(Failure, "Could not create '"_L1 + path + "': "_L1 + error.description());
    }
}

} // namespace jet
