#include "core/posix/RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace wheelwright {
namespace {

bool FolderIsThere(const std::string& path) {
  std::error_code ignored;
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  return folder.empty() || std::filesystem::is_directory(folder, ignored);
}

Failure FailureOfOpening(int error, Purpose purpose, const std::string& path) {
  if (error == ENOENT && !FolderIsThere(path)) return Failure(FailureNumber::PathNotFound);
  return FailureOf(error, purpose);
}

void RefuseOthers(const struct stat& facts) {
  if (!S_ISREG(facts.st_mode)) throw Failure(FailureNumber::PathFileAccess);
}

}  // namespace

Failure FailureOf(int error, Purpose purpose) {
  switch (error) {
    case ENOENT:
      return Failure(purpose == Purpose::Reading ? FailureNumber::FileNotFound
                                                 : FailureNumber::PathNotFound);
    case ENOTDIR:
    case ENAMETOOLONG:
      return Failure(FailureNumber::PathNotFound);
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ENXIO:
    case ENODEV:
      return Failure(FailureNumber::PathFileAccess);
    case EAGAIN:
      return Failure(FailureNumber::PermissionDenied);
    case ENOSPC:
    case EFBIG:
    case EDQUOT:
      return Failure(FailureNumber::DiskFull);
    case ENOMEM:
      return Failure(FailureNumber::OutOfMemory);
    default:
      return Failure(FailureNumber::DeviceIoError);
  }
}

Descriptor::~Descriptor() {
  if (IsOpen()) close(number_);
}

void Descriptor::Close() {
  // Interrupted or not, the number is free afterwards.
  if (close(std::exchange(number_, -1)) != 0 && errno != EINTR) {
    throw FailureOf(errno, Purpose::Writing);
  }
}

struct stat FactsOf(const Descriptor& file, Purpose purpose) {
  struct stat facts {};
  if (fstat(file.Number(), &facts) != 0) throw FailureOf(errno, purpose);
  return facts;
}

Descriptor OpenRegularFile(const std::string& path, Purpose purpose, int flags, mode_t mode) {
  // Before, since to open a pipe or a device already does something to it; behind, since another
  // thing may have come into the file's place in between.
  struct stat facts {};
  if (stat(path.c_str(), &facts) == 0) RefuseOthers(facts);
  Descriptor file(open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, mode));
  if (!file.IsOpen()) throw FailureOfOpening(errno, purpose, path);
  RefuseOthers(FactsOf(file, purpose));
  return file;
}

}  // namespace wheelwright
