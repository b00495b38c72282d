#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <optional>

namespace tavrelin {

/// How many times the bare cost our work may take; without a value the ratio is only told.
using Goal = std::optional<double>;

/// Works that are compared. Neither is timed while it is prepared.
struct Pair {
  std::function<void()> ours;
  std::function<void()> bare;     ///< the same result as cheaply as it can be had
  std::function<void()> prepare;  ///< before each of them; may be empty
};

/// Runs both in turn, so that they meet the same machine, as often as the benchmark has iterations,
/// and tells the medians of the time passed: one line in the table of ./bench.
///
///     void RankTheClass(benchmark::State& state) {
///       Club club;
///       Compare(state, 2.0, {[&] { club.Rank(); }, [&] { club.WriteBare(); }, {}});
///     }
///     BENCHMARK(RankTheClass)->Name("RankTheClass, 20 players")->Iterations(15);
void Compare(benchmark::State& state, Goal goal, const Pair& pair);

/// The same line for two amounts that were measured otherwise: "ms" or "kB".
void Tell(benchmark::State& state, Goal goal, double ours, double bare, const char* unit);

/// The milliseconds that a work takes, once.
double Milliseconds(const std::function<void()>& work);

/// Runs the benchmarks that the command line asks for and writes a line for each, its cells between
/// tabs: what, ours, bare, ratio, goal, verdict. Returns 1 when a goal is missed by more than a
/// quarter or a benchmark failed, and 0 otherwise.
int RunBenches(int argc, char** argv);

}  // namespace tavrelin
