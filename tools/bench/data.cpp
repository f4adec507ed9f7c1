// Writes a made-up data file: wheelwright-bench-data handling|definition|colour VEHICLES FILE
#include "bench/DataFiles.h"
#include "core/DiskFiles.h"

#include <cstdio>
#include <string>

int main(int count, char** arguments) {
  using namespace wheelwright::bench;
  for (const DataFile* data : {&kHandlingData, &kDefinitionData, &kColorData}) {
    if (count != 4 || std::string(arguments[1]) != data->kind) continue;
    wheelwright::DiskFiles().Write(arguments[3], data->text(std::stoi(arguments[2])));
    return 0;
  }
  std::fputs("usage: wheelwright-bench-data handling|definition|colour VEHICLES FILE\n", stderr);
  return 2;
}
