#include "faults/FaultMatrix.h"

#include "faults/FaultRun.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

using Cells = std::vector<std::string>;

constexpr const char* kColumns =
    "| call | fault | shows | tables | edits | open file | enabled | vehicles | picture | texts | "
    "settings | disk |";
constexpr const char* kRule = "| --- | --- | --- | --- | --- | --- | --- | --- | --- | --- | --- | --- |";

// A row of the page: some faults of one call that come to the same.
struct FaultRow {
  std::string call;
  std::string faults;
  Cells outcome;
};

// The row without a fault is whole; of the others a cell that equals its cell is empty.
Cells DifferencesFrom(const Cells& faultless, Cells outcome) {
  for (std::size_t i = 0; i < outcome.size(); ++i) {
    if (outcome[i] == faultless[i]) outcome[i].clear();
  }
  return outcome;
}

std::string TextOf(const FaultRow& row) {
  std::string text = "| " + row.call + " | " + row.faults + " |";
  for (const std::string& cell : row.outcome) text += cell.empty() ? " |" : " " + cell + " |";
  return text;
}

std::vector<FaultRow> RowsOf(const FaultCommand& command, int call, const std::string& label,
                             const std::vector<Fault>& faults, const Cells& faultless) {
  std::vector<FaultRow> rows;
  for (const Fault fault : faults) {
    const Cells cells = DifferencesFrom(faultless, OutcomeOf(command, call, fault));
    const auto same = std::ranges::find_if(rows, [&](const FaultRow& row) { return row.outcome == cells; });
    if (same == rows.end()) {
      rows.push_back({std::to_string(call) + " " + label, NameOf(fault), cells});
    } else {
      same->faults += std::string(", ") + NameOf(fault);
    }
  }
  return rows;
}

}  // namespace

std::vector<std::string> FaultSectionOf(const FaultCommand& command) {
  const Cells faultless = OutcomeOf(command, 0, Fault::None);
  Cells lines = {std::string("## To ") + command.name, "", kColumns, kRule,
                 TextOf({"-", NameOf(Fault::None), faultless})};
  const std::vector<FileCall> calls = CallsOf(command);
  for (std::size_t i = 0; i < calls.size(); ++i) {
    for (const FaultRow& row :
         RowsOf(command, static_cast<int>(i) + 1, LabelOf(calls[i]), FaultsOf(calls, i), faultless)) {
      lines.push_back(TextOf(row));
    }
  }
  return lines;
}

}  // namespace wheelwright::testing
