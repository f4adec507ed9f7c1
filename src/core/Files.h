// The narrow port through which everything on disk is reached. Paths are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

// Failures: 53 a file to be read isn't there; 76 the directory of a path isn't there; 75 no access,
// a directory in a file's place, or a write to a read-only file; 70 another program keeps the file
// to itself, as it can on Windows; 61 the disk is full; 57 any other fault.
class Files {
 public:
  Files() = default;
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  virtual ~Files() = default;

  // Whether there is a file of that name; a directory is none.
  virtual bool Exists(const std::string& path) const = 0;

  // All bytes of a file.
  virtual std::string Read(const std::string& path) const = 0;

  // Opens a file for writing, which empties it, writes the text and closes it. A fault that the
  // system reports only at the close is a failure too.
  virtual void Write(const std::string& path, std::string_view text) = 0;

  // Copies the bytes of a file; a file of the target's name is replaced.
  virtual void Copy(const std::string& from, const std::string& to) = 0;

  // Makes a read-only file writable; on Windows every attribute goes.
  virtual void ClearAttributes(const std::string& path) = 0;

  // The names of the files directly in a directory, without the directories, ordered by name
  // ignoring case. Empty if the directory isn't there.
  virtual std::vector<std::string> List(const std::string& directory) const = 0;
};

}  // namespace wheelwright
