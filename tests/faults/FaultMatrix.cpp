#include "faults/FaultMatrix.h"

#include <sstream>
#include <string_view>

namespace wheelwright::testing {
namespace {

constexpr std::string_view kBetweenCells = " | ";

constexpr const char* kIntroduction =
    R"(# What happens when a file fails

Every command that reaches the disk, every call that it makes there, and every fault that the call
can meet. The tests play each cell and compare what the program shows, holds and has on disk with
this table; a command that gains a call fails them until the table has its rows. The page is written
from the table of the tests (`tests/faults`), and a test keeps the two equal.

The calls are numbered in the order in which the command makes them. To copy a file is to read it and
to write it, and a reader that goes over a file twice reads it from the disk once.

| Fault | What happens at the call |
| --- | --- |
| missing, vanished | the file isn't there; vanished, when an earlier call of the command has met it |
| no folder | the folder of the file isn't there |
| directory | a directory lies in the file's place |
| no access | no permission, or a file marked as read-only |
| disk full | a write has emptied the file, then no byte finds room |
| cut short | the disk is full behind the first half of a write |
| device | an I/O error: of a read, behind the first half of a write, half-way through a listing |
| close | an I/O error that a write shows only at its close |
| changed | another program has put another text into the file just before the call |

The cells behind a fault are: all boxes, dialogs and pointer changes in order, and "ends with" the
number of the failure that ends the program; the tables, each followed by "/" and its snapshot;
whether edits are pending; the open file; the commands and tab groups that are enabled ("commands"
for Save, Save As, Backup, Undo and the vehicle frame together); the list of vehicles; the picture on
screen and its width; the first two texts of the language; the settings and the files that differ
from before the command. "As of call 4" is the text that the fourth call writes when nothing goes
wrong.
)";

constexpr const char* kHead =
    "| call | fault | shows | tables | edits | open file | enabled | vehicles | picture | texts | "
    "settings | disk |\n"
    "| --- | --- | --- | --- | --- | --- | --- | --- | --- | --- | --- | --- |";

// Cuts the text up to the separator off the front of the rest.
std::string_view Cut(std::string_view& rest, std::string_view separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view cut = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + separator.size());
  return cut;
}

void AddCells(std::vector<FaultCell>& cells, const char* command, std::string_view row) {
  row.remove_prefix(2);
  row.remove_suffix(2);
  const std::string label(Cut(row, kBetweenCells));
  std::string_view faults = Cut(row, kBetweenCells);
  const int call = label == "-" ? 0 : std::stoi(label);
  while (!faults.empty()) {
    cells.push_back({command, call, label, std::string(Cut(faults, ", ")), std::string(row)});
  }
}

}  // namespace

std::vector<FaultSection> FaultSections() {
  std::vector<FaultSection> all;
  for (const auto* part : {&kOpeningFaults, &kSavingFaults, &kSavingAsFaults, &kOtherFaults}) {
    all.insert(all.end(), part->begin(), part->end());
  }
  return all;
}

std::vector<FaultCell> CellsOf(const FaultSection& section) {
  std::vector<FaultCell> cells;
  std::istringstream rows(section.rows);
  for (std::string row; std::getline(rows, row);) {
    if (!row.empty()) AddCells(cells, section.command, row);
  }
  return cells;
}

std::string FaultPage() {
  std::string page = kIntroduction;
  for (const FaultSection& section : FaultSections()) {
    page += std::string("\n## To ") + section.command + "\n\n" + kHead + section.rows;
  }
  return page;
}

}  // namespace wheelwright::testing
