#pragma once

#include <QString>

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

/// What all benchmarks share: stores in a folder that vanishes, and a clock around the step that counts.
namespace workbench {

/// A path in the folder that vanishes, where nothing stands.
[[nodiscard]] QString freshPath(const QString &suffix);
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

inline void timedByStep(benchmark::internal::Benchmark *benchmark, int repetitions)
{
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark->Iterations(1)->Repetitions(repetitions)->ReportAggregatesOnly();
}

// Rows that the benchmarks run with.

inline constexpr int few = 10'000;
inline constexpr int many = 100'000;
inline constexpr int most = 1'000'000;

inline void sizes(benchmark::internal::Benchmark *benchmark)
{
    timedByStep(benchmark->Arg(few)->Arg(many), 5);
}

inline void mostRows(benchmark::internal::Benchmark *benchmark)
{
    timedByStep(benchmark->Arg(most), 3);
}

} // namespace workbench
