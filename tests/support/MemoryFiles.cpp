#include "support/MemoryFiles.h"

namespace wheelwright::testing {

std::string MemoryFiles::Read(const std::string& path) const {
  if (const auto fault = failingReads.find(path); fault != failingReads.end()) throw Failure(fault->second);
  const auto found = contents.find(path);
  if (found == contents.end()) throw Failure(FailureNumber::FileNotFound);
  return found->second;
}

void MemoryFiles::Write(const std::string& path, std::string_view text) {
  if (readOnly.contains(path)) throw Failure(FailureNumber::PathFileAccess);
  if (const auto fault = failingWrites.find(path); fault != failingWrites.end()) throw Failure(fault->second);
  contents[path] = text;
  written.push_back(path);
}

std::vector<std::string> MemoryFiles::List(const std::string& directory) const {
  std::string prefix = directory;
  if (!prefix.ends_with('/')) prefix += '/';
  std::vector<std::string> names;
  for (const auto& [path, text] : contents) {
    const bool inside = path.starts_with(prefix) && path.find('/', prefix.size()) == std::string::npos;
    if (inside) names.push_back(path.substr(prefix.size()));
  }
  return names;
}

}  // namespace wheelwright::testing
