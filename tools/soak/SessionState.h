// What a session holds at one moment, in copies of its own.
#pragma once

#include "core/Records.h"
#include "screen/Session.h"
#include "soak/Folder.h"

#include <string>
#include <vector>

namespace wheelwright::soak {

struct Tables {
  std::vector<Car> cars;
  std::vector<IdeEntry> ides;
  std::vector<ColorEntry> colors;
  std::vector<CarColorEntry> carColors;

  bool operator==(const Tables&) const = default;
};

struct SessionState {
  Tables working;
  Tables snapshot;
  std::string file;
  int fileType = 0;
  bool isSaved = true;
  std::vector<std::string> vehicles;  // the rows of cmbAutos
  std::vector<std::string> exported;  // the rows of lst2
  std::string author;
  std::string date;
  Files disk;  // as it was last looked at
};

// `disk` is what the folder holds.
SessionState StateOf(const Session& session, Files disk);

// Texts in the order of a list that sorts itself.
std::vector<std::string> SortedAsInLists(std::vector<std::string> texts);

}  // namespace wheelwright::soak
