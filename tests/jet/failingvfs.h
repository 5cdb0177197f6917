#pragma once

#include <sqlite3.h>

/// A file system that fails on demand, beneath every SQLite handle opened while it is installed.
/// It does what the real one does until its n-th call of a kind, which fails once or for good.
namespace failingvfs {

enum class Kind { Read, Write, Sync, Lock };

/// The result code that the call with this number (from 1) gives instead of being done.
struct Plan
{
    Kind kind = Kind::Write;
    int call = 0; ///< 0: none fails
    int result = 0;
    bool forGood = false; ///< all calls behind fail, too, as on a disk that is full
};

/// What happens to disks.
struct Fault
{
    const char *name;
    Kind kind;
    int result;
    bool forGood;
};

inline constexpr Fault faults[] = {
    {"ReadError", Kind::Read, SQLITE_IOERR_READ, false},
    {"WriteError", Kind::Write, SQLITE_IOERR_WRITE, false},
    {"DiskFull", Kind::Write, SQLITE_FULL, true},
    {"SyncError", Kind::Sync, SQLITE_IOERR_FSYNC, false},
    {"Locked", Kind::Lock, SQLITE_BUSY, false},
    {"LockError", Kind::Lock, SQLITE_IOERR_LOCK, false},
};

/// Becomes the default file system of the process on construction, the real one again at the end.
class Installed final
{
public:
    Installed();
    ~Installed();
    Installed(const Installed &) = delete;
    Installed &operator=(const Installed &) = delete;

    void plan(const Plan &plan);
    /// Whether the planned call has come.
    [[nodiscard]] bool hasFailed() const;
};

} // namespace failingvfs
