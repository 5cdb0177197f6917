#include "views/displaymodes.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr ModeFamily database = ModeFamily::Database;
constexpr ModeFamily live = ModeFamily::Live;

// clang-format off
constexpr DisplayMode table[] = {
    //                                     family    banner row
    {mode::DisplayGlobalGroups,            database,   1,    1},
    {mode::DisplayLocalGroups,             database,   2,    2},
    {mode::DisplayUsers,                   database,   3,    3},
    {mode::DisplayFolders,                 database,   4,    4},
    {mode::DisplayFolderDefaultPermissions, database, 12,   14},
    {mode::DisplayHWType,                  database,   7,    8},
    {mode::DisplayHW,                      database,   5,    7},
    {mode::DisplayRooms,                   database,   6,    6},
    {mode::DisplaySW,                      database,   8,    9},
    {mode::DisplayQRY,                     database,   9,    5},
    {mode::DisplayUnknown,                 database,  10,   10},
    {mode::NTDisplayGlobalGroups,          live,       1,    1},
    {mode::NTDisplayLocalGroups,           live,       2,    2},
    {mode::NTDisplayUsers,                 live,       3,    3},
    {mode::NTDisplayFolders,               live,       4,   10},
    {mode::NTDisplayFolderPermission,      live,       4,   10},
    {mode::NTDisplayServers,               live,      11,   11},
};
// clang-format on

constexpr DisplayMode noMode{{}, ModeFamily::None, 10, 10};

template <typename Text>
const DisplayMode *find(Text mode)
{
    const auto *const found =
        std::ranges::find_if(table, [mode](const DisplayMode &row) { return row.mode == mode; });
    return found == std::end(table) ? nullptr : found;
}

} // namespace

std::span<const DisplayMode> displayModes()
{
    return table;
}

const DisplayMode &displayMode(QStringView mode)
{
    const DisplayMode *found = find(mode);
    return found ? *found : noMode;
}

int displayModeIndex(QStringView mode)
{
    const DisplayMode *found = find(mode);
    return int((found ? found : find(mode::DisplayUnknown)) - table);
}
