// What a hostile file looks like, and how each must end.
#pragma once

#include "core/DiskFiles.h"
#include "support/EdgedSession.h"

#include <string>
#include <vector>

namespace wheelwright::hostile {

// A started session on the real disk, in a folder of its own.
class Stage {
 public:
  explicit Stage(std::string folder);

  // Opens the file of that name; the index says which kind it is.
  Stage& Open(const std::string& name, int filterIndex);
  Stage& Click(Button& button);

  // The last thing that the desktop showed, then the counts of vehicles, records and problems.
  std::string Outcome() const;

  std::string In(const std::string& name) const { return folder_ + "/" + name; }

 private:
  std::string folder_;
  DiskFiles files_;
  testing::FakeDesktop desktop_;

 public:
  testing::EdgedSession s{desktop_, files_};
};

struct Case {
  const char* name;
  void (*prepare)(const std::string& folder);
  std::string (*play)(const std::string& folder);
  std::string outcome;
  int mostMegabytes;
};

std::vector<Case> HandlingCases();
std::vector<Case> ColorCases();
std::vector<Case> OtherCases();

inline constexpr std::size_t kMegabyte = 1000000;
inline constexpr std::size_t kLongLine = 200 * kMegabyte;

// Opens the file of that kind, "in.cfg", "in.ide" or "in.dat", saves it, and gives both outcomes.
std::string OpenAndSave(const std::string& folder, int filterIndex);
// Only opens it.
std::string JustOpen(const std::string& folder, int filterIndex);

}  // namespace wheelwright::hostile
