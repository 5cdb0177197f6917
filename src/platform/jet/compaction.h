#pragma once

#include <QString>

#include <memory>

namespace jet {

/// A store file held against every other program, so that it can be replaced by a copy of itself.
class HeldStore final
{
public:
    /// Raises StoreLocked when another program works on the file, Failure when it is no store.
    explicit HeldStore(const QString &path);
    ~HeldStore();
    HeldStore(const HeldStore &) = delete;
    HeldStore &operator=(const HeldStore &) = delete;

    /// Writes what the store holds into a new file, without the room that deleted rows have left. Raises
    /// Failure when the target exists or cannot be written; nothing is left of it then.
    void copyCompacted(const QString &target);

private:
    class Handle;
    std::unique_ptr<Handle> m_handle;
};

} // namespace jet
