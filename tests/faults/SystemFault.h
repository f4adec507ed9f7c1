// Makes a call of the system fail for a reason that a test can't bring about, such as a disk that
// may only be read, a network drive that tells of a fault at the close, or a full disk that does so
// when it is waited for.
#pragma once

namespace wheelwright::testing {

enum class SystemCall { Open, Fallocate, Pwrite, Ftruncate, Fsync, Close, Fchmodat };

// While one lives, the call fails with this number of errno: each time, or the n-th time alone. A
// close succeeds in truth.
class SystemFault {
 public:
  SystemFault(SystemCall call, int error, int time = 0);
  SystemFault(const SystemFault&) = delete;
  SystemFault& operator=(const SystemFault&) = delete;
  ~SystemFault();
};

}  // namespace wheelwright::testing
