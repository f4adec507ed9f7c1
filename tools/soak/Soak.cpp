#include "soak/Soak.h"

#include "soak/Finding.h"

#include <chrono>

namespace wheelwright::soak {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kMostFindings = 5;

// A session that crashes can say nothing, so its seed is written down before.
void NoteSeed(const Options& options, std::uint64_t seed) {
  const std::string mode = options.onWidgets ? "widgets" : "plain";
  WriteFiles(options.findings, {{mode + ".seed", std::to_string(seed) + "\n"}});
}

}  // namespace

bool Soak(const Options& options, const SecondPlay& again, std::ostream& report) {
  const Folder folder;
  const auto end = Clock::now() + std::chrono::duration<double>(options.seconds);
  std::uint64_t seed = options.seed;
  std::uint64_t actions = 0;
  int findings = 0;
  do {
    NoteSeed(options, seed);
    Recording recording = PlayPlainly(seed, folder, again ? Questions::Many : Questions::None);
    if (recording.complaint.empty() && again) recording.complaint = again(recording, folder);
    actions += recording.script.size();
    if (!recording.complaint.empty()) {
      ++findings;
      report << "seed " << seed << ": " << recording.complaint << "\n  "
             << WriteFinding(options.findings, recording, folder) << std::endl;
    }
    ++seed;
  } while (Clock::now() < end && findings < kMostFindings);
  report << seed - options.seed << (again ? " sessions through real widgets, " : " plain sessions, ")
         << actions << " lines, seeds " << options.seed << " to " << seed - 1 << ", " << findings
         << " findings" << std::endl;
  return findings == 0;
}

}  // namespace wheelwright::soak
