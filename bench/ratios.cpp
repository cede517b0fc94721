// What the library costs beside the same work done by hand, as ratios within one run.
//
//   build/release/bench/ratios
#include <benchmark/benchmark.h>

#include <string>

#include "automation/conversions.h"
#include "best_times.h"
#include "errors/procedure.h"
#include "scene.h"

namespace {

using rangewerks::Line;
using rangewerks::Procedure;
using rangewerks::automation::Locale;
using rangewerks::bench::BestTimes;
using rangewerks::bench::PrintFigure;
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

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  const BestTimes times = BestTimes::Measure();

  PrintFigure("a procedure that succeeds : its body without the wrapper",
              times.Of("procedure/wrapped") / times.Of("procedure/by hand"));
  PrintFigure("GetValRange : the same late-bound calls by hand",
              times.Of("GetValRange/typed") / times.Of("GetValRange/by hand"));
  const auto each = [&](int names) {
    return times.Of("SetIfRangesExist/" + std::to_string(names)) / names;
  };
  PrintFigure("SetIfRangesExist, time a name, 1,000 names : 100 names", each(1000) / each(100));
  PrintFigure("SetIfRangesExist, time a name, 10,000 names : 1,000 names",
              each(10000) / each(1000));
}
