// The files of the real disk.
#pragma once

#include "core/Files.h"

namespace wheelwright {

#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif

// To be called when a program starts: a write beyond the process's limit on the size of files, or
// into a pipe that nobody reads any more, is a failure from then on and not the process's end.
void LetWritesFail();

// A file that nobody may write counts as read-only even for a user whom the system would let write,
// such as root: the mark is there to protect the file. A path on Windows may be longer than 260
// characters.
class DiskFiles : public Files {
 public:
  bool Exists(const std::string& path) const override;
  std::string Read(const std::string& path) const override;
  void Write(const std::string& path, std::string_view text) override;
  void CheckRoom(const std::string& path, std::string_view text) override;
  void Copy(const std::string& from, const std::string& to) override;
  void ClearAttributes(const std::string& path) override;
  std::vector<std::string> List(const std::string& directory) const override;

 private:
  // The same in the order in which the system gives them.
  static std::vector<std::string> NamesIn(const std::string& directory);
};

}  // namespace wheelwright
