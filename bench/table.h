#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Collects the medians of all runs while it prints them as they come.
class TableReporter final : public benchmark::ConsoleReporter
{
public:
    TableReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run> &runs) override;

    /// Each comparison with its goal as a markdown table; rows that were not run are left out.
    [[nodiscard]] std::string table() const;

    /// What it takes to open the view of all objects of each kind, beside reading them.
    [[nodiscard]] std::string viewsTable() const;
    /// What single steps on a large list take.
    [[nodiscard]] std::string stepsTable() const;

    /// Each reading method beside its query by hand, how its time grows and what it reads with.
    [[nodiscard]] std::string readersTable() const;

private:
    struct Measured
    {
        double milliseconds = 0;
        std::map<std::string, double> counters;
    };

    [[nodiscard]] const Measured *find(const std::string &name, int rows) const;

    std::map<std::string, Measured> m_measured; // by "name/rows"
};
