#pragma once

#include <QString>

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

/// What all benchmarks share: stores in a folder that vanishes, and a clock around the step that counts.
namespace workbench {

/// A new, empty store at a path of its own.
[[nodiscard]] QString emptyStore();
/// The sample company of so many users, made once; nobody writes to it.
[[nodiscard]] const QString &sampleStore(int users);
/// A copy of a store at a path of its own.
[[nodiscard]] QString copyOf(const QString &store);
void removeStore(const QString &path);

/// Runs the step once as one iteration whose time is its own alone. An Error ends the benchmark with its
/// text.
void measure(benchmark::State &state, const std::function<void()> &step);

/// Rows that the benchmarks run with.
inline void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(10'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark->Iterations(1)->Repetitions(5)->ReportAggregatesOnly();
}

} // namespace workbench
