// Opens and saves a file as a person does who has just started the program, and a third time with memory
// that was touched before; prints how many milliseconds each of the four took:
//   wheelwright-bench-first handling|definition|colour FILE PROGRAM-FOLDER
#include "bench/Bench.h"
#include "replay/PlainScreen.h"

#include <chrono>
#include <cstdio>

namespace wheelwright::bench {
namespace {

using PlainBench = Bench<replay::PlainScreen>;

double Milliseconds(PlainBench& bench, void (PlainBench::*action)()) {
  const auto begin = std::chrono::steady_clock::now();
  (bench.*action)();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

}  // namespace
}  // namespace wheelwright::bench

int main(int count, char** arguments) {
  using namespace wheelwright::bench;
  for (const DataFile* data : {&kHandlingData, &kDefinitionData, &kColorData}) {
    if (count != 4 || std::string(arguments[1]) != data->kind) continue;
    PlainBench bench(*data, arguments[2], arguments[3]);
    for (int round = 1; round <= 3; ++round) {
      const double open = Milliseconds(bench, &PlainBench::Open);
      const double save = Milliseconds(bench, &PlainBench::Save);
      if (round != 2) std::printf("%f %f\n", open, save);
    }
    return 0;
  }
  std::fputs("usage: wheelwright-bench-first handling|definition|colour FILE PROGRAM-FOLDER\n", stderr);
  return 2;
}
