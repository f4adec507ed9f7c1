// Files that live in memory, write down what is asked of them, and go wrong at the n-th call.
#pragma once

#include "support/MemoryFiles.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace wheelwright::testing {

enum class Operation { Exists, Clear, Read, Room, Write, List, Picture };

// What goes wrong at one call. The first five are done to the disk just before the call and stay;
// the others happen to the call alone.
enum class Fault {
  None,
  Missing,     // the file, or the listed folder with all in it, isn't there
  Vanished,    // the same, when an earlier step of the command has looked at the file
  NoFolder,    // the folder of the file isn't there
  Directory,   // a directory lies in the file's place
  Changed,     // another program has put another text into the file
  NoAccess,    // the system refuses: no permission, or a file marked as read-only
  Full,        // there is no room for the text
  CutShort,    // room was promised, but the disk is full behind the first half
  IoError,     // the device fails; a write has got half of the way, a listing gives the first half
  CloseError,  // the device fails at the end, when all bytes seem to be out
};

// A call as the program made it, with the text of a write.
struct FileCall {
  Operation operation;
  std::string path;
  std::string text;
};

class FaultyFiles : public Files {
 public:
  bool Exists(const std::string& path) const override;
  std::string Read(const std::string& path) const override;
  void Write(const std::string& path, std::string_view text) override;
  void CheckRoom(const std::string& path, std::string_view text) override;
  // A read and a write.
  void Copy(const std::string& from, const std::string& to) override { Write(to, Read(from)); }
  void ClearAttributes(const std::string& path) override;
  std::vector<std::string> List(const std::string& directory) const override;

  // The bytes of a picture as the desktop reads them. Failure 53, 57 or 75 if it can't.
  std::string ReadPicture(const std::string& path) const;

  // Forgets the calls made until now; of those that follow, this one (counted from 1) goes wrong.
  void FailAt(int call, Fault fault);

  // What another program would put into a file.
  std::map<std::string, std::string> changedTexts;

  mutable MemoryFiles disk;
  mutable std::set<std::string> directories;  // in the place of files
  mutable std::vector<FileCall> calls;

 private:
  // The fault of this call, once it has been done to the disk.
  Fault Enter(Operation operation, const std::string& path, std::string_view text = {}) const;
  void DoToDisk(Fault fault, const std::string& path) const;
  std::string ReadAt(Fault fault, const std::string& path) const;

  int faultyCall_ = 0;
  Fault fault_ = Fault::None;
  mutable std::set<std::string> goneFolders_;
};

}  // namespace wheelwright::testing
