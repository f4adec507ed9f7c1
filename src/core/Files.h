// The narrow port through which everything on disk is reached. Paths are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {

// Failures: 53 a file to be read isn't there; 76 the directory of a path isn't there; 75 no access,
// a write to a read-only file, or something else in a file's place, such as a directory, a pipe or
// a device, which is never waited for; 70 another program keeps the file to itself; 61 no room on
// the disk, or a limit on its use; 57 any other fault.
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

  // Gives a file this text and no other. Room for it is found before the old text is touched; when
  // the call returns the text is on the disk, and what the system reports until then is a failure.
  virtual void Write(const std::string& path, std::string_view text) = 0;

  // Failure 61 if Write would find no room for the text. Knows no other failure and changes
  // nothing.
  virtual void CheckRoom(const std::string& path, std::string_view text) = 0;

  // Gives a file the bytes of another. Nobody may do more with it than with the other.
  virtual void Copy(const std::string& from, const std::string& to) = 0;

  // Makes a read-only file writable; on Windows every attribute goes. Where that can't be done
  // nothing happens, and a Write says so.
  virtual void ClearAttributes(const std::string& path) = 0;

  // The names of the files directly in a directory, without the directories, ordered by name
  // ignoring case. Empty if the directory isn't there.
  virtual std::vector<std::string> List(const std::string& directory) const = 0;
};

}  // namespace wheelwright
