#include "faults/SystemFault.h"

#ifdef __linux__
#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <map>
#include <sys/stat.h>

namespace {

using wheelwright::testing::SystemCall;

struct Refusal {
  int error = 0;
  int time = 0;
  int calls = 0;
};

std::map<SystemCall, Refusal>& Refusals() {
  static std::map<SystemCall, Refusal> refusals;
  return refusals;
}

bool Fails(SystemCall call) {
  const auto found = Refusals().find(call);
  if (found == Refusals().end()) return false;
  Refusal& refusal = found->second;
  ++refusal.calls;
  if (refusal.time != 0 && refusal.time != refusal.calls) return false;
  errno = refusal.error;
  return true;
}

template <class Function>
Function* Systems(Function* /*ours*/, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// These stand before the system library's own.
extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  if (Fails(SystemCall::Open)) return -1;
  return Systems(&open, "open")(path, flags, mode);
}

int fallocate(int file, int mode, off_t from, off_t size) {
  if (Fails(SystemCall::Fallocate)) return -1;
  return Systems(&fallocate, "fallocate")(file, mode, from, size);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t position) {
  if (Fails(SystemCall::Pwrite)) return -1;
  return Systems(&pwrite, "pwrite")(file, bytes, size, position);
}

int ftruncate(int file, off_t size) noexcept {
  if (Fails(SystemCall::Ftruncate)) return -1;
  return Systems(&ftruncate, "ftruncate")(file, size);
}

int fsync(int file) {
  if (Fails(SystemCall::Fsync)) return -1;
  return Systems(&fsync, "fsync")(file);
}

int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
  if (Fails(SystemCall::Fchmodat)) return -1;
  return Systems(&fchmodat, "fchmodat")(folder, path, mode, flags);
}

int close(int file) {
  const bool fails = Fails(SystemCall::Close);
  const int error = errno;
  const int result = Systems(&close, "close")(file);
  if (!fails) return result;
  errno = error;
  return -1;
}

}  // extern "C"

namespace wheelwright::testing {

SystemFault::SystemFault(SystemCall call, int error, int time) { Refusals()[call] = {error, time, 0}; }
SystemFault::~SystemFault() { Refusals().clear(); }

}  // namespace wheelwright::testing
#endif
