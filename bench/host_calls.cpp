// How many calls each operation makes on the spreadsheet.
//
//   build/release/bench/host_calls
#include <cstdio>
#include <functional>
#include <vector>

#include "automation/conversions.h"
#include "scene.h"

namespace {

using rangewerks::automation::Date;
using rangewerks::automation::DateOf;
using rangewerks::bench::Scene;

std::size_t Calls(Scene& scene, const std::function<void()>& operation) {
  scene.host.Calls().Reset();
  operation();
  return scene.host.Calls().Count();
}

void PrintLocating() {
  std::printf("SetIfRangesExist            names  declared  host calls  calls for each name\n");
  for (const int names : {0, 10, 100, 1000, 10000}) {
    for (const int declared : {0, 100, 1000}) {
      Scene scene(names, declared, true);
      const std::size_t calls = Calls(scene, [&] { scene.list->SetIfRangesExist(); });
      const double each =
          names == 0 ? 0 : (static_cast<double>(calls) - 5) / static_cast<double>(names);
      std::printf("%33d %9d %11zu %20.2f\n", names, declared, calls, each);
    }
  }
}

void PrintReads() {
  std::printf("\nOne typed read      plain scheme  sheet scheme\n");
  Scene plain(1, 1, false);
  Scene sheet(1, 1, true);
  struct Read {
    const char* name;
    rangewerks::automation::Variant content;
    std::function<void(rangewerks::clsInterfaceRangeList&)> run;
  };
  const std::string range = Scene::RangeName(0);
  const std::vector<Read> reads = {
      {"GetValRange", 12.5,
       [&](auto& list) {
         double value = 0;
         list.GetValRange(range, value, 1);
       }},
      {"GetIntRange", 12,
       [&](auto& list) {
         std::int16_t value = 0;
         list.GetIntRange(range, value, 1);
       }},
      {"GetYNRange", "Y",
       [&](auto& list) {
         bool value = false;
         list.GetYNRange(range, value, 1);
       }},
      {"GetStrRange", "text",
       [&](auto& list) {
         std::string value;
         list.GetStrRange(range, value, 1);
       }},
      {"GetStrRangeBlk", "text", [&](auto& list) { list.GetStrRangeBlk(range, 1); }},
      {"GetDateRange", DateOf(2024, 1, 31),
       [&](auto& list) {
         Date value;
         list.GetDateRange(range, value, 1);
       }},
  };
  for (Scene* scene : {&plain, &sheet}) scene->list->SetIfRangesExist();
  for (const Read& read : reads) {
    std::printf("%-19s", read.name);
    for (Scene* scene : {&plain, &sheet}) {
      scene->Put(1, read.content);
      std::printf(" %12zu ", Calls(*scene, [&] { read.run(*scene->list); }));
    }
    std::printf("\n");
  }
}

}  // namespace

int main() {
  PrintLocating();
  PrintReads();
}
