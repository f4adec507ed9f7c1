#include "soak/WidgetSession.h"

#include "replay/Player.h"
#include "replay/RealScreen.h"

#include <exception>
#include <sstream>

namespace wheelwright::soak {
namespace {

// The first line that isn't the same; empty if all are.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
  std::istringstream expectedLines(expected);
  std::istringstream actualLines(actual);
  for (int number = 1;; ++number) {
    std::string expectedLine = "(the end)";
    std::string actualLine = "(the end)";
    const bool hasExpected = !std::getline(expectedLines, expectedLine).fail();
    const bool hasActual = !std::getline(actualLines, actualLine).fail();
    if (!hasExpected && !hasActual) return "";
    if (hasExpected == hasActual && expectedLine == actualLine) continue;
    return "line " + std::to_string(number) + " of the result\n  plain:   " + expectedLine +
           "\n  widgets: " + actualLine;
  }
}

std::string DifferenceOnDisk(const Files& expected, const Files& actual) {
  for (const auto& [name, bytes] : expected) {
    const auto found = actual.find(name);
    if (found == actual.end()) return name + " is missing with widgets";
    if (found->second != bytes) return name + " has other bytes with widgets";
  }
  return expected.size() == actual.size() ? "" : "there are more files with widgets";
}

}  // namespace

std::string ReplayOnWidgets(const Recording& recording, const Folder& folder) {
  folder.Fill(recording.before);
  std::ostringstream result;
  std::string complaint;
  try {
    replay::RealScreen screen(result);
    replay::Player player(screen.stage, screen.hands, folder.PathOf("app"));
    for (const std::string& line : recording.script) {
      if (!player.HasEnded()) player.PlayLine(line);
    }
  } catch (const std::exception& error) {
    complaint = std::string(error.what()) + "\n";
  }
  complaint += FirstDifference(recording.result, result.str());
  return complaint.empty() ? DifferenceOnDisk(recording.after, folder.Contents()) : complaint;
}

}  // namespace wheelwright::soak
