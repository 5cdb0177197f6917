#include "table.h"

#include "plan.h"
#include "readers.h"
#include "workbench.h"

#include <algorithm>
#include <cstdio>

namespace {

struct Comparison
{
    const char *what;
    const char *subject;
    const char *floor;
    double goal;
    bool growth = true; ///< whether a row may hardly cost more among many
};

constexpr Comparison comparisons[] = {
    {"import of new users from a file", "ImportNew", "ImportNewByHand", 2},
    {"the same file again, users updated", "ImportKnown", "ImportKnownByHand", 2.5},
    {"all users into a disconnected recordset", "GetAll", "GetAllByHand", 1.5},
    {"opening the view of all users, against reading them", "OpenAllUsers", "GetAll", 2},
    {"a look-up, from statement text to row, against bind and step", "LookUp", "LookUpByHand", 4},
    {"translating a new statement, against preparing the result", "Translate", "PrepareTranslated", 1},
    {"sorting last names, against NOCASE", "Sort", "SortNoCase", 3, false},
    {"LIKE '%er%', against SQLite's", "Like", "LikeOfSqlite", 2},
    {"`addUsers` of a global group", "AddUsers", "AddUsersByHand", 2, false},
    {"opening the form of a user, against reading it and making bare widgets", "OpenUser", "OpenUserByHand",
     2, false},
    {"sorting a list by texts, against sorting the bare keys", "SortTexts", "SortTextKeys", 2, false},
    {"sorting a list by numbers, against sorting the bare keys", "SortNumbers", "SortNumberKeys", 2, false},
    {"sorting a list by dates, against sorting the bare keys", "SortDates", "SortDateKeys", 2, false},
    {"`AddPermissionsBatch`", "AddPermissionsBatch", "AddPermissionsBatchByHand", 2, false},
    {"importing a file of global groups", "ImportGlobalGroupsFile", "ImportGlobalGroupsFileByHand", 1.3},
    {"importing a file of local groups", "ImportLocalGroupsFile", "ImportLocalGroupsFileByHand", 1.3},
    {"importing a file of users", "ImportUsersFile", "ImportUsersFileByHand", 1.3},
    {"importing a file of members of global groups", "ImportGlobalGroupUsersFile",
     "ImportGlobalGroupUsersFileByHand", 1.3},
    {"importing a file of members of local groups", "ImportLocalGroupMembersFile",
     "ImportLocalGroupMembersFileByHand", 1.3},
    {"importing a file of folders", "ImportFoldersFile", "ImportFoldersFileByHand", 1.3},
    {"importing a file of permissions", "ImportPermissionsFile", "ImportPermissionsFileByHand", 1.3},
    {"exporting a list, against reading and writing its rows", "ExportList", "ExportListByHand", 1.5},
};

using workbench::few;
using workbench::many;
using workbench::most;

constexpr double memoryGoal = 4;
constexpr double fileMemoryGoal = 3;
constexpr double growthGoal = 1.3;
constexpr double readerGoal = 2;

std::string line(const std::string &what, const std::string &rows, const std::string &ours,
                 const std::string &floor, double ratio, double goal)
{
    char numbers[64];
    std::snprintf(numbers, sizeof numbers, "%.2f | %.1f%s", ratio, goal, ratio > goal ? " **missed**" : "");
    return "| " + what + " | " + rows + " | " + ours + " | " + floor + " | " + numbers + " |\n";
}

std::string withUnit(double number, const char *unit)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f %s", number, unit);
    return text;
}

std::string perRow(double milliseconds, int rows)
{
    return withUnit(milliseconds * 1000 / rows, "µs");
}

} // namespace

void TableReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        if (run.error_occurred || run.run_type != Run::RT_Aggregate || run.aggregate_name != "median")
            continue;
        Measured &measured = m_measured[run.run_name.function_name + '/' + run.run_name.args];
        measured.milliseconds = run.GetAdjustedRealTime();
        for (const auto &[name, counter] : run.counters)
            measured.counters[name] = counter.value;
    }
}

const TableReporter::Measured *TableReporter::find(const std::string &name, int rows) const
{
    const auto found = m_measured.find(name + '/' + std::to_string(rows));
    return found == m_measured.end() ? nullptr : &found->second;
}

std::string TableReporter::table() const
{
    std::string table =
        "| what, a row | rows | Kelvane | floor | ratio | goal |\n|---|---|---|---|---|---|\n";
    for (const Comparison &comparison : comparisons)
        for (const int rows : {few, many, most}) {
            const Measured *ours = find(comparison.subject, rows);
            const Measured *floor = find(comparison.floor, rows);
            if (ours && floor)
                table += line(comparison.what, std::to_string(rows), perRow(ours->milliseconds, rows),
                              perRow(floor->milliseconds, rows), ours->milliseconds / floor->milliseconds,
                              comparison.goal);
        }
    const auto addGrowth = [&](const std::string &subject, int rows) {
        const Measured *large = find(subject, rows);
        const Measured *small = find(subject, few);
        if (large && small)
            table += line(subject + ": at " + std::to_string(rows) + " rows, against at 10000", "",
                          perRow(large->milliseconds, rows), perRow(small->milliseconds, few),
                          large->milliseconds / rows / (small->milliseconds / few), growthGoal);
    };
    for (const Comparison &comparison : comparisons) {
        if (!comparison.growth)
            continue;
        addGrowth(comparison.subject, many);
        addGrowth(comparison.subject, most);
    }
    addGrowth("ImportFile", most);
    if (const Measured *file = find("ImportFile", most)) {
        const double bytes = file->counters.at("bytes");
        const double size = file->counters.at("file");
        table += line("greatest memory of importing a file, against the file", std::to_string(most),
                      withUnit(bytes / most, "bytes"), withUnit(size / most, "bytes"), bytes / size,
                      fileMemoryGoal);
    }
    if (const Measured *memory = find("MemoryOfAllUsers", many)) {
        const double bytes = memory->counters.at("bytes");
        const double texts = memory->counters.at("texts");
        table +=
            line("memory of the view of all users, against its texts", std::to_string(many),
                 withUnit(bytes / many, "bytes"), withUnit(texts / many, "bytes"), bytes / texts, memoryGoal);
    }
    return table;
}

std::string TableReporter::viewsTable() const
{
    constexpr const char *names[] = {
        "global groups",  "local groups", "users", "folders",  "default permissions",
        "hardware types", "hardware",     "rooms", "software", "queries"};
    std::string table = "| the view of all | rows | opened in | read in | ratio |\n|---|---|---|---|---|\n";
    bool any = false;
    for (int i = 0; i < int(std::size(names)); ++i) {
        const Measured *opened = find("OpenView", i);
        const Measured *read = find("ReadView", i);
        if (!opened || !read)
            continue;
        any = true;
        char numbers[96];
        std::snprintf(numbers, sizeof numbers, "%.0f | %.2f ms | %.2f ms | %.2f", read->counters.at("rows"),
                      opened->milliseconds, read->milliseconds, opened->milliseconds / read->milliseconds);
        table += std::string("| ") + names[i] + " | " + numbers + " |\n";
    }
    return any ? table : std::string();
}

std::string TableReporter::stepsTable() const
{
    constexpr std::pair<const char *, const char *> steps[] = {
        {"select all (Ctrl+A)", "SelectAll"},          {"select a row in the middle", "SelectOne"},
        {"remove 1,000 rows", "RemoveThousand"},       {"quick jump that finds nothing", "QuickJump"},
        {"close the list, all selected", "CloseList"},
    };
    std::string table = "| a step on a list | 100,000 rows | 1,000,000 rows |\n|---|---|---|\n";
    bool any = false;
    for (const auto &[what, name] : steps) {
        const Measured *smaller = find(name, many);
        const Measured *larger = find(name, most);
        if (!smaller || !larger)
            continue;
        any = true;
        table += std::string("| ") + what + " | " + withUnit(smaller->milliseconds, "ms") + " | " +
                 withUnit(larger->milliseconds, "ms") + " |\n";
    }
    return any ? table : std::string();
}

std::string TableReporter::readersTable() const
{
    std::string table = "| reading method | rows | Kelvane | by hand | ratio | growth | reads with |\n"
                        "|---|---|---|---|---|---|---|\n";
    bool any = false;
    for (const Reader &reader : readers()) {
        const std::string name = reader.name;
        const Measured *large = find(name, manyUsers);
        const Measured *small = find(name, fewUsers);
        const Measured *floor = find(name + "ByHand", manyUsers);
        if (!large || !small || !floor)
            continue;
        any = true;
        const double rows = large->counters.at("rows");
        const double moreRows = std::max(1.0, rows / std::max(1.0, small->counters.at("rows")));
        const double ratio = large->milliseconds / floor->milliseconds;
        const double growth = large->milliseconds / small->milliseconds / moreRows;
        char numbers[160];
        std::snprintf(numbers, sizeof numbers, "%.0f | %.2f ms | %.2f ms | %.2f%s | %.2f", rows,
                      large->milliseconds, floor->milliseconds, ratio,
                      ratio > readerGoal ? " **missed**" : "", growth);
        table += "| `" + name + "` | " + numbers + " | " + planOf(reader, manyUsers) + " |\n";
    }
    return any ? table : std::string();
}
