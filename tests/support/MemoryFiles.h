// Files that live in memory, with read-only marks and prepared faults.
#pragma once

#include "core/Failure.h"
#include "core/Files.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace wheelwright::testing {

class MemoryFiles : public Files {
 public:
  bool Exists(const std::string& path) const override { return contents.contains(path); }
  std::string Read(const std::string& path) const override;
  void Write(const std::string& path, std::string_view text) override;
  void CheckRoom(const std::string& /*path*/, std::string_view /*text*/) override {}
  void Copy(const std::string& from, const std::string& to) override { Write(to, Read(from)); }
  void ClearAttributes(const std::string& path) override { readOnly.erase(path); }
  std::vector<std::string> List(const std::string& directory) const override;

  std::map<std::string, std::string> contents;
  std::set<std::string> readOnly;
  // A read or write of one of these paths fails with the number; the file stays as it is.
  std::map<std::string, FailureNumber> failingReads;
  std::map<std::string, FailureNumber> failingWrites;
  // The paths written, in order.
  std::vector<std::string> written;
};

}  // namespace wheelwright::testing
