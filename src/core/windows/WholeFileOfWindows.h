// Files on Windows: its error numbers as failures of the program's own, and how a file gets a whole
// new text in place, so that it keeps its links, its rights and its attributes.
#pragma once

#include "core/Failure.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <windows.h>

namespace wheelwright {

// The failure for an error of opening or reading a file; an error that no row knows is failure 57.
Failure FailureOfReading(unsigned long windowsError);

// The same for writing, where a file that isn't there means that its folder isn't.
Failure FailureOfWriting(unsigned long windowsError);

// A single call moves at most this much.
inline constexpr std::size_t kLargestStep = 1U << 24U;

struct CloseHandleOf {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, CloseHandleOf>;

// CreateFile(); no handle if it fails.
Handle OpenAnything(const std::wstring& path, DWORD access, DWORD share, DWORD how, DWORD flags,
                    SECURITY_ATTRIBUTES* rights = nullptr);

// Failure 75 for what is no file on a disk: a pipe, a port, the console.
void RefuseDevices(const Handle& file);

class WholeFile {
 public:
  // Opens the file; makes an empty one, with these rights or those that its folder gives, if there
  // is none.
  explicit WholeFile(const std::wstring& path, SECURITY_ATTRIBUTES* rightsOfNew = nullptr);
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;
  // If nothing was written, gives back the room that was reserved, and takes a new file away again.
  ~WholeFile();

  // Sets the file's end so far behind that a text of this size has room, or is failure 61.
  void Reserve(std::size_t size);

  // Reserves, writes the text over the old one, cuts the rest off and waits for the disk. Until the
  // text has room nothing is changed.
  void Write(std::string_view text);

 private:
  std::size_t Size() const;
  void SetEnd(std::size_t size);
  std::size_t WriteFrom(std::string_view text);

  std::wstring path_;
  Handle file_;
  bool isNew_ = false;
  bool isUntouched_ = true;
  std::size_t oldSize_ = 0;
};

}  // namespace wheelwright
