// Opens and saves a file once, as a person does who has just started the program, and prints how many
// milliseconds each took: wheelwright-bench-first handling|definition|colour FILE PROGRAM-FOLDER
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
    const double open = Milliseconds(bench, &PlainBench::Open);
    std::printf("%f %f\n", open, Milliseconds(bench, &PlainBench::Save));
    return 0;
  }
  std::fputs("usage: wheelwright-bench-first handling|definition|colour FILE PROGRAM-FOLDER\n", stderr);
  return 2;
}
