// Times what a person does with files of 500, 4,000 and 32,000 vehicles, without and with real
// windows.
#include "bench/Bench.h"
#include "core/DiskFiles.h"
#include "replay/PlainScreen.h"
#include "replay/RealScreen.h"
#include "replay/Toolkit.h"

#include <benchmark/benchmark.h>

namespace wheelwright::bench {
namespace {

// The folder of the language files, and where the data files may lie.
struct Folders {
  std::string program;
  std::string data;
};

using replay::PlainScreen;
using replay::RealScreen;

template <class Screen>
using Action = void (Bench<Screen>::*)();

template <class Screen>
struct NamedAction {
  const char* name;
  Action<Screen> action;
};

template <class Screen>
void Time(benchmark::State& state, const DataFile& data, Action<Screen> action, const Folders& folders) {
  const auto vehicles = static_cast<int>(state.range(0));
  const std::string path = folders.data + "/" + data.name;
  DiskFiles().Write(path, data.text(vehicles));
  Bench<Screen> bench(data, path, folders.program);
  bench.Open();
  for (auto _ : state) (bench.*action)();
  state.SetComplexityN(vehicles);
}

template <class Screen>
void Register(const std::string& screen, const Folders& folders) {
  static constexpr NamedAction<Screen> kActions[] = {
      {"open", &Bench<Screen>::Open},
      {"save", &Bench<Screen>::Save},
      {"select", &Bench<Screen>::Select},
      {"keystroke", &Bench<Screen>::Keystroke},
  };
  for (const DataFile* data : {&kHandlingData, &kDefinitionData, &kColorData}) {
    for (const NamedAction<Screen>& named : kActions) {
      const auto run = [=](benchmark::State& state) { Time<Screen>(state, *data, named.action, folders); };
      const std::string name = screen + "/" + data->kind + "/" + named.name;
      benchmark::RegisterBenchmark(name.c_str(), run)
          ->Arg(500)
          ->Arg(4000)
          ->Arg(32000)
          ->Complexity()
          ->Unit(benchmark::kMicrosecond);
    }
  }
}

}  // namespace
}  // namespace wheelwright::bench

// usage: wheelwright-bench PROGRAM-FOLDER DATA-FOLDER [options of Google Benchmark]
int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (count != 3) {
    std::fputs("usage: wheelwright-bench PROGRAM-FOLDER DATA-FOLDER [--benchmark_...]\n", stderr);
    return 2;
  }
  const wheelwright::bench::Folders folders{arguments[1], arguments[2]};
  const wheelwright::replay::Toolkit toolkit;
  wheelwright::bench::Register<wheelwright::replay::PlainScreen>("plain", folders);
  wheelwright::bench::Register<wheelwright::replay::RealScreen>("widgets", folders);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
