// The folder that a session works in.
#pragma once

#include <map>
#include <string>

namespace wheelwright::soak {

// Bytes by names relative to the folder.
using Files = std::map<std::string, std::string>;

// A temporary folder of its own, gone with the object. It is always the same one for all sessions
// of a process, so results can be compared as they are.
class Folder {
 public:
  Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder();

  const std::string& Path() const { return path_; }
  std::string PathOf(const std::string& name) const { return path_ + "/" + name; }
  // The name of a path in the folder, empty for a path outside it.
  std::string NameOf(const std::string& path) const;

  // Leaves exactly these files there, and a directory "data/folder.cfg".
  void Fill(const Files& files) const;
  Files Contents() const;

 private:
  std::string path_;
};

// Writes the files below a directory, which is made if it isn't there.
void WriteFiles(const std::string& directory, const Files& files);

}  // namespace wheelwright::soak
