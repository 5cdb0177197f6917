#pragma once

#include <QString>

#include <cstdint>

namespace jet {

/// What the header of a store file says of itself.
inline constexpr std::uint32_t ApplicationId = 0x4B564C4E;
inline constexpr std::uint32_t FileVersion = 2;

/// Raises Failure with a text that names the file unless it is a store this program can
/// read: missing, in a missing folder, a folder, no store at all, made by a newer version. Looks only.
void checkStoreFile(const QString &path);

/// Makes a new, empty store file and closes it. Raises Failure when the path exists or
/// cannot be made; nothing is left behind then.
void createDatabase(const QString &path);

/// Copies the store as it was last committed, also while it is being written. Raises Failure when the copy
/// exists or cannot be made; nothing is left behind then.
void copyDatabase(const QString &path, const QString &copy);

} // namespace jet
