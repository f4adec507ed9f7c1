// Makes the system report a fault at the close of a file and nowhere before, as a network drive
// does.
#pragma once

namespace wheelwright::testing {

// While one lives, every close of a C stream succeeds in truth and tells of an I/O error.
class CloseFault {
 public:
  CloseFault();
  CloseFault(const CloseFault&) = delete;
  CloseFault& operator=(const CloseFault&) = delete;
  ~CloseFault();
};

}  // namespace wheelwright::testing
