#include "views/modes.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr ModeFamily database = ModeFamily::Database;
constexpr ModeFamily live = ModeFamily::Live;

constexpr auto group = "{Server}\\{Name}"_L1;
constexpr auto groupColumns = "Name|Server|Description"_L1;

// clang-format off
constexpr ModeLook table[] = {
    //                                    objects                family  banner row  name of an object, columns that are edited
    {"DisplayGlobalGroups"_L1,               "global groups"_L1,        database,   1,    1,  group, groupColumns},
    {"DisplayLocalGroups"_L1,                "local groups"_L1,         database,   2,    2,  group, groupColumns},
    {"DisplayUsers"_L1,                      "users"_L1,                database,   3,    3,  "{ServerName}\\{UserName}"_L1, {}},
    {"DisplayFolders"_L1,                    "folders"_L1,              database,   4,    4,  "{FolderName}"_L1, "FolderName|Description"_L1},
    {"DisplayFolderDefaultPermissions"_L1,   "default permissions"_L1,  database,  12,   14,  {}, "Account|Permission"_L1},
    {"DisplayHWType"_L1,                     "hardware types"_L1,       database,   7,    8,  "{Type} {Manufacturer} {Model} {TypeNumber}"_L1,
                                                                 "Type|Manufacturer|Model|TypeNumber|Description"_L1},
    {"DisplayHW"_L1,                         "hardware"_L1,             database,   5,    7,  "{Hardware Type} SN: {SerialNumber}"_L1, {}},
    {"DisplayRooms"_L1,                      "rooms"_L1,                database,   6,    6,  "{RoomNumber}"_L1, "RoomNumber|Description"_L1},
    {"DisplaySW"_L1,                         "software"_L1,             database,   8,    9,  "{Type} {Manufacturer} {Name} {Version}"_L1,
                                                                 "Type|Manufacturer|Name|Version|Description"_L1},
    {"DisplayQRY"_L1,                        "queries"_L1,              database,   9,    5,  {}, "Name|Description|SQLString"_L1},
    {"DisplayUnknown"_L1,                    "rows"_L1,                 database,  10,   10,  {}, {}},
    {"NTDisplayGlobalGroups"_L1,             "global groups"_L1,        live,       1,    1,  group, {}},
    {"NTDisplayLocalGroups"_L1,              "local groups"_L1,         live,       2,    2,  group, {}},
    {"NTDisplayUsers"_L1,                    "users"_L1,                live,       3,    3,  "{Server}\\{UserName}"_L1, {}},
    {"NTDisplayFolders"_L1,                  "folders"_L1,              live,       4,   10,  {}, {}},
    {"NTDisplayFolderPermission"_L1,         "folder permissions"_L1,   live,       4,   10,  {}, {}},
    {"NTDisplayServers"_L1,                  "servers"_L1,              live,      11,   11,  {}, {}},
};
// clang-format on
static_assert(std::size(table) == modeCount);

constexpr ModeLook noMode{{}, {}, ModeFamily::None, 10, 10, {}, {}};

} // namespace

const ModeLook &lookOf(std::optional<Mode> mode)
{
    return mode ? table[std::size_t(*mode)] : noMode;
}

std::optional<Mode> modeOf(QStringView text)
{
    const auto found = std::ranges::find_if(table, [text](const ModeLook &row) { return row.text == text; });
    if (found == std::end(table))
        return std::nullopt;
    return Mode(found - std::begin(table));
}
