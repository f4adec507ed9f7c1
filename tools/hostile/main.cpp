// Plays every hostile file, each in a process of its own, and prints how it ended, how long that
// took and how much memory. Exit code 1 if one ended otherwise or went over its bound.
//
// usage: wheelwright-hostile [WORD]      with a word, only the cases whose names hold it
#include "hostile/Cases.h"
#include "hostile/Measured.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>

namespace wheelwright::hostile {
namespace {

namespace fs = std::filesystem;

std::vector<Case> AllCases() {
  std::vector<Case> all = HandlingCases();
  for (const auto& more : {ColorCases(), OtherCases()}) {
    all.insert(all.end(), more.begin(), more.end());
  }
  return all;
}

bool Play(const Case& played) {
  const fs::path folder =
      fs::temp_directory_path() / ("hostile-" + std::to_string(std::random_device{}()));
  fs::create_directory(folder);
  const Measured measured = Measure([&] { played.prepare(folder.string()); },
                                    [&] { return played.play(folder.string()); });
  fs::remove_all(folder);
  const bool asWanted = measured.outcome == played.outcome;
  const bool inBound = measured.megabytes <= played.mostMegabytes;
  std::printf("%-38s %7.2f s %6d MB of %5d  %s\n", played.name, measured.seconds,
              measured.megabytes, played.mostMegabytes, measured.outcome.c_str());
  if (!asWanted) std::printf("    must end with: %s\n", played.outcome.c_str());
  if (!inBound) std::printf("    goes over its bound\n");
  std::fflush(stdout);
  return asWanted && inBound;
}

int PlayAll(const std::string& word) {
  int bad = 0;
  for (const Case& played : AllCases()) {
    if (std::string(played.name).find(word) == std::string::npos) continue;
    if (!Play(played)) ++bad;
  }
  return bad == 0 ? 0 : 1;
}

}  // namespace
}  // namespace wheelwright::hostile

int main(int count, char** words) {
  return wheelwright::hostile::PlayAll(count > 1 ? words[1] : "");
}
