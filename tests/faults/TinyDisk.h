// A place where files find hardly any room.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace wheelwright::testing {

// A file system of four pages in a folder that exists, in a name space of the process's own, so
// that nothing of it stays. Where the system doesn't let the process mount one, a limit on the size
// of any file that the process writes stands in for it, from Fill() until the end.
class TinyDisk {
 public:
  static constexpr std::size_t kSize = 16384;

  explicit TinyDisk(std::string folder);
  TinyDisk(const TinyDisk&) = delete;
  TinyDisk& operator=(const TinyDisk&) = delete;
  ~TinyDisk();

  // From now on no file grows beyond kSize.
  void Fill();

  // "a mounted file system" or "a limit on file sizes".
  const char* Kind() const { return mounted_ ? "a mounted file system" : "a limit on file sizes"; }

 private:
  std::string folder_;
  bool mounted_ = false;
  std::optional<std::uintmax_t> limitBefore_;
};

}  // namespace wheelwright::testing
