#include "faults/TinyDisk.h"

#ifdef __linux__
#include "core/DiskFiles.h"

#include <fstream>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <utility>

namespace wheelwright::testing {
namespace {

bool Mount(const std::string& folder) {
  return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("tiny", folder.c_str(), "tmpfs", 0, "size=256k") == 0;
}

// Gives the limit that was.
rlim_t LimitFileSizes(rlim_t size) {
  LetWritesFail();
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlim_t before = std::exchange(limit.rlim_cur, size);
  setrlimit(RLIMIT_FSIZE, &limit);
  return before;
}

}  // namespace

TinyDisk::TinyDisk(std::string folder, TinyKind kind)
    : folder_(std::move(folder)), mounted_(kind == TinyKind::FileSystem && Mount(folder_)) {}

TinyDisk::~TinyDisk() {
  if (mounted_) {
    umount2(folder_.c_str(), MNT_DETACH);
  } else if (limitBefore_) {
    LimitFileSizes(*limitBefore_);
  }
}

void TinyDisk::Fill() {
  if (!mounted_) {
    limitBefore_ = LimitFileSizes(kPage);
    return;
  }
  std::ofstream filler(folder_ + "/filler", std::ios::binary);
  while (filler << std::string(kPage, 'x') << std::flush) {
  }
}

}  // namespace wheelwright::testing
#endif
