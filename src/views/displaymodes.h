#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <span>

/// The texts of the display modes.
namespace mode {

inline constexpr QLatin1StringView DisplayGlobalGroups{"DisplayGlobalGroups"};
inline constexpr QLatin1StringView DisplayLocalGroups{"DisplayLocalGroups"};
inline constexpr QLatin1StringView DisplayUsers{"DisplayUsers"};
inline constexpr QLatin1StringView DisplayFolders{"DisplayFolders"};
inline constexpr QLatin1StringView DisplayFolderDefaultPermissions{"DisplayFolderDefaultPermissions"};
inline constexpr QLatin1StringView DisplayHWType{"DisplayHWType"};
inline constexpr QLatin1StringView DisplayHW{"DisplayHW"};
inline constexpr QLatin1StringView DisplayRooms{"DisplayRooms"};
inline constexpr QLatin1StringView DisplaySW{"DisplaySW"};
inline constexpr QLatin1StringView DisplayQRY{"DisplayQRY"};
inline constexpr QLatin1StringView DisplayUnknown{"DisplayUnknown"};
inline constexpr QLatin1StringView NTDisplayGlobalGroups{"NTDisplayGlobalGroups"};
inline constexpr QLatin1StringView NTDisplayLocalGroups{"NTDisplayLocalGroups"};
inline constexpr QLatin1StringView NTDisplayUsers{"NTDisplayUsers"};
inline constexpr QLatin1StringView NTDisplayFolders{"NTDisplayFolders"};
inline constexpr QLatin1StringView NTDisplayFolderPermission{"NTDisplayFolderPermission"};
inline constexpr QLatin1StringView NTDisplayServers{"NTDisplayServers"};

} // namespace mode

enum class ModeFamily { None, Database, Live };

struct DisplayMode
{
    QLatin1StringView mode;
    ModeFamily family;
    int bannerPicture; ///< of ImageListContext
    int rowPicture;    ///< of ImageListList
};

/// All modes, in the order of the columns of every mode table.
[[nodiscard]] std::span<const DisplayMode> displayModes();
/// A text that is no mode has no family and the pictures of an unknown object.
[[nodiscard]] const DisplayMode &displayMode(QStringView mode);
/// The place in displayModes(), that of DisplayUnknown for a text that is no mode.
[[nodiscard]] int displayModeIndex(QStringView mode);
