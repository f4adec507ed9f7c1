// Makes the system refuse to open a file for a reason that a test can't bring about, such as a disk
// that may only be read, or a missing right of a user who has them all.
#pragma once

namespace wheelwright::testing {

// While one lives, no C stream can be opened; the system says this number of errno.
class OpenFault {
 public:
  explicit OpenFault(int error);
  OpenFault(const OpenFault&) = delete;
  OpenFault& operator=(const OpenFault&) = delete;
  ~OpenFault();
};

}  // namespace wheelwright::testing
