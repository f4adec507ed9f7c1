#include "faults/CloseFault.h"

#ifdef __linux__
#include <cerrno>
#include <cstdio>
#include <dlfcn.h>

namespace {

bool closesFail = false;

using Close = int (*)(std::FILE*);

Close SystemsClose() {
  static const auto close = reinterpret_cast<Close>(dlsym(RTLD_NEXT, "fclose"));
  return close;
}

}  // namespace

// Stands before the system library's own.
extern "C" int fclose(std::FILE* file) {
  const int result = SystemsClose()(file);
  if (!closesFail) return result;
  errno = EIO;
  return EOF;
}

namespace wheelwright::testing {

CloseFault::CloseFault() { closesFail = true; }
CloseFault::~CloseFault() { closesFail = false; }

}  // namespace wheelwright::testing
#endif
