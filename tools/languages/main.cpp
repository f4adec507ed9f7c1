// Checks language files and says what their translators have to do.
#include "core/DiskFiles.h"
#include "core/Failure.h"
#include "languages/Report.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#ifdef WHEELWRIGHT_REAL_WINDOWS
#include "languages/RoomFaults.h"
#include "replay/Toolkit.h"
#endif

namespace wheelwright::languages {
namespace {

enum ExitCode { kAllIsWell, kFaults, kNotUnderstood };

std::string InUtf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::vector<Fault> FaultsOfFile(const std::filesystem::path& file) {
  std::vector<Fault> faults = FaultsOfName(InUtf8(file.filename()));
  const std::string bytes = DiskFiles().Read(InUtf8(file));
  for (const Fault& fault : FaultsOf(bytes)) faults.push_back(fault);
#ifdef WHEELWRIGHT_REAL_WINDOWS
  const std::vector<std::string> entries = EntriesOf(bytes);
  if (faults.empty()) faults = RoomFaults(entries);
#endif
  return faults;
}

// Whether nothing is wrong with the file.
bool Check(const std::filesystem::path& file) {
  const std::vector<Fault> faults = FaultsOfFile(file);
  std::cout << ReportOf(InUtf8(file.filename()), faults);
  return faults.empty();
}

ExitCode CheckAll(const std::vector<std::filesystem::path>& files) {
  if (files.empty()) {
    std::cerr << "usage: wheelwright-check-language FILE...\n";
    return kNotUnderstood;
  }
  ExitCode code = kAllIsWell;
  for (const std::filesystem::path& file : files) {
    try {
      if (!Check(file)) code = kFaults;
    } catch (const Failure& failure) {
      std::cerr << InUtf8(file) << ": " << failure.Description() << '\n';
      return kNotUnderstood;
    }
  }
  return code;
}

}  // namespace
}  // namespace wheelwright::languages

int main(int count, char** arguments) {
#ifdef WHEELWRIGHT_REAL_WINDOWS
  const wheelwright::replay::Toolkit toolkit;
#endif
  return wheelwright::languages::CheckAll({arguments + 1, arguments + count});
}
