// Files on every system but Windows: regular files alone are opened, and never with a wait; a whole
// new text is written in place, so that the file keeps its links, its owner and its mode.
#pragma once

#include "core/Failure.h"

#include <string>
#include <string_view>
#include <sys/stat.h>
#include <utility>

namespace wheelwright {

enum class Purpose { Reading, Writing };

// The failure for a number of errno.
Failure FailureOf(int error, Purpose purpose);

// An open file, which closes itself.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor();

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }
  // What a file on a network tells only now is a failure too.
  void Close();

 private:
  int number_ = -1;
};

struct stat FactsOf(const Descriptor& file, Purpose purpose);

// Opens a file, with open()'s flags, and doesn't wait for anybody's leave. Anything but a regular
// file is failure 75.
Descriptor OpenRegularFile(const std::string& path, Purpose purpose, int flags, mode_t mode = 0);

class WholeFile {
 public:
  // Opens the file; makes an empty one, with this mode, if there is none. Failure 75 if nobody may
  // write the file.
  explicit WholeFile(const std::string& path, mode_t modeOfNew = 0666);
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;
  // If nothing was written, gives back the room that was reserved, and takes a new file away again.
  ~WholeFile();

  // Finds room for the text, or is failure 61. What the file holds stays.
  void Reserve(std::string_view text);

  // Lets nobody do more with the file than with its model. A new file gets the model's mode; its
  // owner may write it in any case.
  void ShareNoMoreThan(const struct stat& model);

  // Reserves, writes the text over the old one, cuts the rest off and waits for the disk. Until the
  // text has room nothing is changed; from then on the file is never shorter than both texts.
  void Write(std::string_view text);

 private:
  bool IsNew() const { return !newPath_.empty(); }
  void WriteAt(std::string_view text, off_t position);
  void WaitForFolder() const;

  Descriptor file_;
  // Of a new file alone: where it lies in truth, when links lead to it.
  std::string newPath_;
  off_t oldSize_ = 0;
  bool isUntouched_ = true;
};

}  // namespace wheelwright
