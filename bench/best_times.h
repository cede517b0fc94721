// Times of one run, from which ratios are made.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace rangewerks::bench {

/// Keeps the best time of each measurement; ratios of those are steadier than of means.
class BestTimes final : public benchmark::BenchmarkReporter {
 public:
  /// Runs what is registered five times over.
  static BestTimes Measure() {
    BestTimes times;
    for (int round = 0; round < 5; ++round) benchmark::RunSpecifiedBenchmarks(&times);
    return times;
  }

  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double time = run.GetAdjustedCPUTime();
      const auto [best, added] = times_.try_emplace(
          run.run_name.function_name + (run.run_name.args.empty() ? "" : "/") + run.run_name.args,
          time);
      if (!added && time < best->second) best->second = time;
    }
  }
  double Of(const std::string& name) const { return times_.at(name); }

 private:
  std::map<std::string, double> times_;
};

inline void PrintFigure(const char* what, double ratio) {
  std::printf("%-62s %6.2f\n", what, ratio);
}

}  // namespace rangewerks::bench
