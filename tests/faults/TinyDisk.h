// A place where files find hardly any room.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace wheelwright::testing {

enum class TinyKind { FileSystem, Limit };

// A file system of a few pages in a folder that exists, in a name space of the process's own, so
// that nothing of it stays; or a limit on the size of any file that the process writes, which is
// also taken where the system doesn't let the process mount anything.
class TinyDisk {
 public:
  static constexpr std::size_t kPage = 4096;

  TinyDisk(std::string folder, TinyKind kind);
  TinyDisk(const TinyDisk&) = delete;
  TinyDisk& operator=(const TinyDisk&) = delete;
  ~TinyDisk();

  // From now on no file of a page grows, and none of more than a page can be made.
  void Fill();

  bool IsMounted() const { return mounted_; }

 private:
  std::string folder_;
  bool mounted_ = false;
  std::optional<std::uintmax_t> limitBefore_;
};

}  // namespace wheelwright::testing
