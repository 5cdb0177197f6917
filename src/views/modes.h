#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <array>
#include <optional>

/// What a list shows: the display mode of an object view. In the order of the columns of every table
/// by mode.
enum class Mode : quint8 {
    GlobalGroups,
    LocalGroups,
    Users,
    Folders,
    FolderDefaultPermissions,
    HWType,
    HW,
    Rooms,
    SW,
    QRY,
    Unknown, ///< the result of a query on no known table
    NTGlobalGroups,
    NTLocalGroups,
    NTUsers,
    NTFolders,
    NTFolderPermission,
    NTServers,
};
inline constexpr int modeCount = 17;

enum class ModeFamily : quint8 { None, Database, Live };

struct ModeLook
{
    QLatin1StringView text;    ///< the mode where it is a text: "DisplayUsers"
    QLatin1StringView objects; ///< as a sentence calls them: "rooms"
    ModeFamily family;
    int bannerPicture; ///< of ImageListContext
    int rowPicture;    ///< of ImageListList
    /// The name of a row's object in titles, columns in braces. Empty where the first visible column is the
    /// name.
    QLatin1StringView objectName;
    /// The first visible columns that a dialog needs to edit a row of the list; a drill-down may have others.
    QLatin1StringView editedColumns; ///< with bars between; empty where the dialog reads its own record
};

/// A view without a mode has no family and the pictures of an unknown object.
[[nodiscard]] const ModeLook &lookOf(std::optional<Mode> mode);
/// Nothing for a text that names no mode; case counts.
[[nodiscard]] std::optional<Mode> modeOf(QStringView text);

/// Modes as bits.
using ModeSet = quint32;
[[nodiscard]] constexpr ModeSet bitOf(Mode mode)
{
    return ModeSet(1) << int(mode);
}
/// Reads a row of a table by mode: seventeen characters, x where the mode belongs to the set. A text of
/// another length does not compile.
[[nodiscard]] consteval ModeSet modes(const char (&cells)[modeCount + 1])
{
    ModeSet set = 0;
    for (int i = 0; i < modeCount; ++i) {
        if (cells[i] != 'x' && cells[i] != '.')
            throw "a cell is x or .";
        if (cells[i] == 'x')
            set |= ModeSet(1) << i;
    }
    return set;
}
[[nodiscard]] constexpr bool contains(ModeSet set, Mode mode)
{
    return (set & bitOf(mode)) != 0;
}
