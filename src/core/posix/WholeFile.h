// How a file gets a whole new text on every system but Windows: in place, so that it keeps its
// links, its owner and its mode.
#pragma once

#include "core/posix/RegularFile.h"

#include <string>
#include <string_view>

namespace wheelwright {

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
