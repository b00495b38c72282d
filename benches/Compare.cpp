#include "Compare.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace tavrelin {
namespace {

// How far a goal may be missed on a machine that others use too.
constexpr double Tolerance = 1.25;

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

std::string Shown(double number, const char* picture) {
  char text[32];
  std::snprintf(text, sizeof text, picture, number);
  return text;
}

std::string Amount(double number, bool kilobytes) {
  if (kilobytes) return Shown(number, "%.0f kB");
  return Shown(number, number < 10 ? "%.3f ms" : "%.1f ms");
}

std::string Ratio(double ratio) {
  return Shown(ratio, ratio < 0.1 ? "%.3f" : "%.2f");
}

constexpr const char* Missed = "MISSED";

const char* Verdict(double ratio, double goal) {
  if (goal <= 0) return "-";
  if (ratio > goal * Tolerance) return Missed;
  return ratio > goal ? "over" : "met";
}

/// A line for each benchmark as it ends.
class TableReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) Report(run);
    std::fflush(stdout);
  }
  bool AnyMissed() const { return missed_; }

 private:
  void Report(const Run& run) {
    const std::string& what = run.run_name.function_name;
    if (run.error_occurred) {
      missed_ = true;
      std::printf("%s\t-\t-\t-\t-\tFAILED: %s\n", what.c_str(), run.error_message.c_str());
      return;
    }
    const auto counter = [&run](const char* name) { return double(run.counters.at(name)); };
    const double ours = counter("ours"), bare = counter("bare"), goal = counter("goal");
    const bool kilobytes = counter("kilobytes") != 0;
    const std::string verdict = Verdict(ours / bare, goal);
    missed_ = missed_ || verdict == Missed;
    std::printf("%s\t%s\t%s\t%s\t%s\t%s\n", what.c_str(), Amount(ours, kilobytes).c_str(),
                Amount(bare, kilobytes).c_str(), Ratio(ours / bare).c_str(),
                goal > 0 ? Ratio(goal).c_str() : "-", verdict.c_str());
  }

  bool missed_ = false;
};

}  // namespace

double Milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

void Compare(benchmark::State& state, Goal goal, const Pair& pair) {
  std::vector<double> ours, bare;
  for (auto _ : state) {
    if (pair.prepare) pair.prepare();
    bare.push_back(Milliseconds(pair.bare));
    if (pair.prepare) pair.prepare();
    ours.push_back(Milliseconds(pair.ours));
  }
  Tell(state, goal, Median(ours), Median(bare), "ms");
}

void Tell(benchmark::State& state, Goal goal, double ours, double bare, const char* unit) {
  state.counters["ours"] = ours;
  state.counters["bare"] = bare;
  state.counters["goal"] = goal.value_or(0);
  state.counters["kilobytes"] = unit == std::string("kB") ? 1 : 0;
}

int RunBenches(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  TableReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.AnyMissed() ? 1 : 0;
}

}  // namespace tavrelin
