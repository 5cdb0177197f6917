#include "failingvfs.h"

#include <sqlite3.h>

namespace failingvfs {
namespace {

Plan current;
int calls = 0;
bool failed = false;

int verdict(Kind kind)
{
    if (current.call == 0 || kind != current.kind)
        return SQLITE_OK;
    ++calls;
    if (calls != current.call && !(current.forGood && calls > current.call))
        return SQLITE_OK;
    failed = true;
    return current.result;
}

// The real file lies right behind this one in the memory that SQLite gives.
struct File
{
    sqlite3_file base;
    sqlite3_file *real;
};

sqlite3_file *real(sqlite3_file *file)
{
    return reinterpret_cast<File *>(file)->real;
}

sqlite3_vfs *realVfs = nullptr;

int close(sqlite3_file *file)
{
    return real(file)->pMethods->xClose(real(file));
}

int read(sqlite3_file *file, void *data, int amount, sqlite3_int64 offset)
{
    const int result = verdict(Kind::Read);
    return result != SQLITE_OK ? result : real(file)->pMethods->xRead(real(file), data, amount, offset);
}

int write(sqlite3_file *file, const void *data, int amount, sqlite3_int64 offset)
{
    const int result = verdict(Kind::Write);
    return result != SQLITE_OK ? result : real(file)->pMethods->xWrite(real(file), data, amount, offset);
}

int truncate(sqlite3_file *file, sqlite3_int64 size)
{
    return real(file)->pMethods->xTruncate(real(file), size);
}

int sync(sqlite3_file *file, int flags)
{
    const int result = verdict(Kind::Sync);
    return result != SQLITE_OK ? result : real(file)->pMethods->xSync(real(file), flags);
}

int fileSize(sqlite3_file *file, sqlite3_int64 *size)
{
    return real(file)->pMethods->xFileSize(real(file), size);
}

int lock(sqlite3_file *file, int level)
{
    const int result = verdict(Kind::Lock);
    return result != SQLITE_OK ? result : real(file)->pMethods->xLock(real(file), level);
}

int unlock(sqlite3_file *file, int level)
{
    return real(file)->pMethods->xUnlock(real(file), level);
}

int checkReservedLock(sqlite3_file *file, int *reserved)
{
    return real(file)->pMethods->xCheckReservedLock(real(file), reserved);
}

int fileControl(sqlite3_file *file, int operation, void *argument)
{
    return real(file)->pMethods->xFileControl(real(file), operation, argument);
}

int sectorSize(sqlite3_file *file)
{
    return real(file)->pMethods->xSectorSize(real(file));
}

int deviceCharacteristics(sqlite3_file *file)
{
    return real(file)->pMethods->xDeviceCharacteristics(real(file));
}

const sqlite3_io_methods methods = {
    1,
    close,
    read,
    write,
    truncate,
    sync,
    fileSize,
    lock,
    unlock,
    checkReservedLock,
    fileControl,
    sectorSize,
    deviceCharacteristics,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
};

int open(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    auto *wrapped = reinterpret_cast<File *>(file);
    wrapped->real = reinterpret_cast<sqlite3_file *>(wrapped + 1);
    wrapped->base.pMethods = nullptr;
    const int result = realVfs->xOpen(realVfs, name, wrapped->real, flags, outFlags);
    if (result == SQLITE_OK)
        wrapped->base.pMethods = &methods;
    return result;
}

sqlite3_vfs shim;

} // namespace

Installed::Installed()
{
    realVfs = sqlite3_vfs_find(nullptr);
    shim = *realVfs;
    shim.zName = "failing";
    shim.szOsFile = int(sizeof(File)) + realVfs->szOsFile;
    shim.xOpen = open;
    sqlite3_vfs_register(&shim, 1);
    plan({});
}

Installed::~Installed()
{
    plan({});
    sqlite3_vfs_unregister(&shim);
    sqlite3_vfs_register(realVfs, 1);
}

void Installed::plan(const Plan &plan)
{
    current = plan;
    calls = 0;
    failed = false;
}

bool Installed::hasFailed() const
{
    return failed;
}

} // namespace failingvfs
