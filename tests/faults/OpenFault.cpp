#include "faults/OpenFault.h"

#ifdef __linux__
#include <cerrno>
#include <cstdio>
#include <dlfcn.h>

namespace {

int refusal = 0;

using Open = std::FILE* (*)(const char*, const char*);

Open SystemsOpen() {
  static const auto open = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "fopen"));
  return open;
}

}  // namespace

// Stands before the system library's own.
extern "C" std::FILE* fopen(const char* path, const char* mode) {
  if (refusal == 0) return SystemsOpen()(path, mode);
  errno = refusal;
  return nullptr;
}

namespace wheelwright::testing {

OpenFault::OpenFault(int error) { refusal = error; }
OpenFault::~OpenFault() { refusal = 0; }

}  // namespace wheelwright::testing
#endif
