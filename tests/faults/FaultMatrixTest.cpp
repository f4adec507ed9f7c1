// Holds the program against the matrix of docs/faults.md, row by row. With WRITE_FAULTS in the
// environment the page is written anew as it comes, for review.
#include "faults/FaultMatrix.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

using Lines = std::vector<std::string>;

const std::string kPage = std::string(WHEELWRIGHT_SOURCE_DIR) + "/docs/faults.md";

Lines PageLines() {
  std::ifstream file(kPage);
  Lines lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

void Write(const Lines& page) {
  std::ofstream file(kPage, std::ios::binary);
  for (const std::string& line : page) file << line << '\n';
}

// What stands before the first section, and the sections as they come.
Lines PlayedPage(const Lines& page) {
  const auto isHeading = [](const std::string& line) { return line.starts_with("## "); };
  Lines played(page.begin(), std::ranges::find_if(page, isHeading));
  for (const FaultCommand& command : FaultCommands()) {
    const Lines section = FaultSectionOf(command);
    played.insert(played.end(), section.begin(), section.end());
    played.emplace_back();
  }
  played.pop_back();
  return played;
}

// Every line behind the heading it stands under.
Lines Placed(const Lines& page) {
  Lines placed;
  std::string heading;
  for (const std::string& line : page) {
    if (line.starts_with("## ")) heading = line.substr(3);
    placed.push_back(heading + ": " + line);
  }
  return placed;
}

std::string LinesOnlyIn(const Lines& lines, const Lines& others, const char* side) {
  std::string report;
  for (const std::string& line : lines) {
    if (std::ranges::find(others, line) == others.end()) report += side + line + "\n";
  }
  return report;
}

TEST(FaultMatrixTest, EveryFaultOfEveryCallComesToWhatThePageSays) {
  const Lines page = PageLines();
  const Lines played = PlayedPage(page);
  if (std::getenv("WRITE_FAULTS") != nullptr) Write(played);
  EXPECT_TRUE(page == played) << "docs/faults.md differs from what comes, if only in the order:\n"
                              << LinesOnlyIn(Placed(page), Placed(played), "it says  ")
                              << LinesOnlyIn(Placed(played), Placed(page), "it comes ")
                              << "With WRITE_FAULTS=1 this test writes the page as it comes.";
}

// A handler that comes to reach the disk needs a section of the matrix.
TEST(FaultMatrixTest, AllOtherButtonsReachNoFile) {
  for (const FaultCommand& kind : FaultCommands()) {
    FaultySession s;
    kind.arrange(s);
    s.files.FailAt(0, Fault::None);
    s.desktop.answers.assign(8, true);
    for (Button* button :
         {&s.main.cmdInfo, &s.main.cmdExportCar, &s.main.cmdNewCar, &s.main.cmdNewColor,
          &s.main.cmdDeleteColor, &s.main.cmdAddColor, &s.main.cmdRemColor, &s.exporter.cmdAddAll,
          &s.exporter.cmdDelAll, &s.exporter.cmdClose, &s.session.error.cmdClose, &s.main.cmdEnde}) {
      s.Do([button] { button->ClickByHand(); });
      EXPECT_EQ(s.files.calls.size(), 0U) << button->Name() << " after " << kind.name;
    }
  }
}

}  // namespace
}  // namespace wheelwright::testing
