// What the library costs beside the same work done by hand, as ratios within one run.
//
//   build/release/bench/ratios
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

#include "automation/conversions.h"
#include "errors/procedure.h"
#include "scene.h"

namespace {

using rangewerks::Line;
using rangewerks::Procedure;
using rangewerks::automation::Locale;
using rangewerks::bench::Scene;

// --- a procedure and the same body without one ---------------------------------------------------

[[gnu::noinline]] int Step(int value) {
  benchmark::DoNotOptimize(value);
  return value + 1;
}

[[gnu::noinline]] int Bare(int value) {
  value = Step(value);
  value = Step(value);
  return Step(value);
}

[[gnu::noinline]] int Wrapped(int value) {
  return Procedure("Wrapped of Class Module Bench Line#:", [&](Line& at) {
    at();
    value = Step(value);
    at();
    value = Step(value);
    at();
    return Step(value);
  });
}

template <int (*Function)(int)>
void Run(benchmark::State& state) {
  int value = 0;
  for (auto _ : state) benchmark::DoNotOptimize(value = Function(value));
}
BENCHMARK(Run<Bare>)->Name("procedure/by hand");
BENCHMARK(Run<Wrapped>)->Name("procedure/wrapped");

// --- a typed read and the same late-bound calls --------------------------------------------------

void ReadByHand(benchmark::State& state) {
  const Scene scene(1, 1, false);
  scene.Put(3, 1234.56);
  const rangewerks::excel::Worksheet sheet = scene.list->get_ActSheet();
  const std::string name = Scene::RangeName(0);
  for (auto _ : state) {
    const auto area = sheet.get_Parent().get_Names(name).get_RefersToRange();
    const auto value = area.get_Cells(3, 1).get_Value();
    benchmark::DoNotOptimize(ToDouble(value, Locale::Current()));
  }
}
void ReadTyped(benchmark::State& state) {
  const Scene scene(1, 1, false);
  scene.Put(3, 1234.56);
  scene.list->SetIfRangesExist();
  const std::string name = Scene::RangeName(0);
  double value = 0;
  for (auto _ : state) benchmark::DoNotOptimize(scene.list->GetValRange(name, value, 3));
}
BENCHMARK(ReadByHand)->Name("GetValRange/by hand");
BENCHMARK(ReadTyped)->Name("GetValRange/typed");

// --- locating over growing workbooks -------------------------------------------------------------

void Locate(benchmark::State& state) {
  const Scene scene(static_cast<int>(state.range(0)), 1000, true);
  for (auto _ : state) scene.list->SetIfRangesExist();
}
BENCHMARK(Locate)->Name("SetIfRangesExist")->Arg(100)->Arg(1000)->Arg(10000);

/// Keeps the best time of each measurement; ratios of those are steadier than of means.
class BestTimes final : public benchmark::BenchmarkReporter {
 public:
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

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  BestTimes times;
  for (int round = 0; round < 5; ++round) benchmark::RunSpecifiedBenchmarks(&times);

  const auto print = [](const char* what, double ratio) {
    std::printf("%-62s %6.2f\n", what, ratio);
  };
  print("a procedure that succeeds : its body without the wrapper",
        times.Of("procedure/wrapped") / times.Of("procedure/by hand"));
  print("GetValRange : the same late-bound calls by hand",
        times.Of("GetValRange/typed") / times.Of("GetValRange/by hand"));
  const auto each = [&](int names) {
    return times.Of("SetIfRangesExist/" + std::to_string(names)) / names;
  };
  print("SetIfRangesExist, time a name, 1,000 names : 100 names", each(1000) / each(100));
  print("SetIfRangesExist, time a name, 10,000 names : 1,000 names", each(10000) / each(1000));
}
