// Holds the program against the matrix of faults, cell by cell.
#include "faults/FaultMatrix.h"
#include "faults/FaultRun.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <gtest/gtest.h>
#include <set>

namespace wheelwright::testing {
namespace {

std::string NameForTests(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](unsigned char byte) { return std::isalnum(byte) == 0; }, '_');
  return text;
}

Fault FaultOf(const std::string& name) {
  for (int fault = 0; fault <= static_cast<int>(Fault::CloseError); ++fault) {
    if (name == NameOf(static_cast<Fault>(fault))) return static_cast<Fault>(fault);
  }
  ADD_FAILURE() << "no such fault: " << name;
  return Fault::None;
}

// "3 read handling.cfg: device" for everything that can happen to the command.
std::set<std::string> PossibleFaults(const FaultCommand& command) {
  std::set<std::string> possible = {"-: none"};
  const std::vector<FileCall> calls = CallsOf(command);
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const std::string label = std::to_string(i + 1) + " " + LabelOf(calls[i]);
    for (const Fault fault : FaultsOf(calls, i)) possible.insert(label + ": " + NameOf(fault));
  }
  return possible;
}

class FaultSectionTest : public ::testing::TestWithParam<FaultSection> {};

TEST_P(FaultSectionTest, HasACellForEveryFaultOfEveryCallAndNoOther) {
  std::multiset<std::string> listed;
  for (const FaultCell& cell : CellsOf(GetParam())) listed.insert(cell.label + ": " + cell.fault);
  const std::set<std::string> possible = PossibleFaults(FaultCommandOf(GetParam().command));
  EXPECT_EQ(listed, std::multiset<std::string>(possible.begin(), possible.end()));
}

TEST_P(FaultSectionTest, EveryCellIsWhatHappens) {
  for (const FaultCell& cell : CellsOf(GetParam())) {
    EXPECT_EQ(OutcomeOf(FaultCommandOf(cell.command), cell.call, FaultOf(cell.fault)), cell.outcome)
        << cell.command << ", " << cell.label << ", " << cell.fault;
  }
}

INSTANTIATE_TEST_SUITE_P(AllCommands, FaultSectionTest, ::testing::ValuesIn(FaultSections()),
                         [](const auto& section) { return NameForTests(section.param.command); });

TEST(FaultMatrixTest, EveryCommandHasItsSection) {
  std::vector<std::string> commands;
  std::vector<std::string> sections;
  for (const FaultCommand& command : FaultCommands()) commands.emplace_back(command.name);
  for (const FaultSection& section : FaultSections()) sections.emplace_back(section.command);
  EXPECT_EQ(sections, commands);
}

// A handler that comes to reach the disk needs a section of the matrix.
TEST(FaultMatrixTest, AllOtherButtonsReachNoFile) {
  for (const FaultCommand& kind : FaultCommands()) {
    FaultySession s;
    kind.arrange(s);
    s.files.FailAt(0, Fault::None);
    s.desktop.answers.assign(8, true);
    for (Button* button : {&s.main.cmdInfo, &s.main.cmdExportCar, &s.main.cmdNewCar,
                           &s.main.cmdNewColor, &s.main.cmdDeleteColor, &s.main.cmdAddColor,
                           &s.main.cmdRemColor, &s.exporter.cmdAddAll, &s.exporter.cmdDelAll,
                           &s.exporter.cmdClose, &s.session.error.cmdClose, &s.main.cmdEnde}) {
      s.Do([button] { button->ClickByHand(); });
      EXPECT_EQ(s.files.calls.size(), 0U) << button->Name() << " after " << kind.name;
    }
  }
}

TEST(FaultMatrixTest, ThePageShowsTheTable) {
  const std::string path = std::string(WHEELWRIGHT_SOURCE_DIR) + "/docs/faults.md";
  std::ifstream file(path, std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  if (page != FaultPage()) {
    const std::string wanted = ::testing::TempDir() + "faults.md";
    std::ofstream(wanted, std::ios::binary) << FaultPage();
    FAIL() << "docs/faults.md isn't the table of the tests; what it must be stands in " << wanted;
  }
}

}  // namespace
}  // namespace wheelwright::testing
