#include "core/posix/WholeFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/resource.h>
#include <system_error>
#include <tuple>
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

void Check(int result) {
  if (result != 0) throw FailureOf(errno, Purpose::Writing);
}

bool FileIsThere(const std::string& path) {
  struct stat facts {};
  return stat(path.c_str(), &facts) == 0 || errno != ENOENT;
}

std::string TruePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path truePath = std::filesystem::canonical(path, error);
  return error ? path : truePath.string();
}

// What is written beyond the limit of the process is refused only when the old text is half gone.
void CheckLimitOfProcess(std::size_t size) {
  rlimit limit{};
  Check(getrlimit(RLIMIT_FSIZE, &limit));
  if (limit.rlim_cur != RLIM_INFINITY && size > limit.rlim_cur) {
    throw Failure(FailureNumber::DiskFull);
  }
}

// Reserves room, also behind the end, without a change of the size. False where neither the system
// nor the kind of disk can. What the C library offers for that case isn't used: it writes zeros
// into the file.
bool ReserveRoom(int file, std::size_t size) {
#ifdef __linux__
  int result = 0;
  do {
    result = fallocate(file, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size));
  } while (result != 0 && errno == EINTR);
  if (result == 0) return true;
  if (errno != EOPNOTSUPP && errno != ENOSYS && errno != EINVAL) {
    throw FailureOf(errno, Purpose::Writing);
  }
#else
  static_cast<void>(file);
  static_cast<void>(size);
#endif
  return false;
}

// The rights of the model, for a file of this group: who isn't in the model's group is one of the
// others there.
mode_t RightsFrom(const struct stat& model, gid_t group) {
  const mode_t rights = model.st_mode & 0777U;
  return group == model.st_gid ? rights : (rights & 0707U) | ((rights & 07U) << 3U);
}

}  // namespace

Failure FailureOf(int error, Purpose purpose) {
  switch (error) {
    case ENOENT:
      return Failure(purpose == Purpose::Reading ? FailureNumber::FileNotFound : FailureNumber::PathNotFound);
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

WholeFile::WholeFile(const std::string& path, mode_t modeOfNew) {
  constexpr mode_t kAnyoneMayWrite = 0222;
  // A file that is there is opened without O_CREAT: in a folder for all, like /tmp, the system may
  // refuse to open another's file with it.
  const bool isThere = FileIsThere(path);
  file_ = OpenRegularFile(path, Purpose::Writing, O_WRONLY | (isThere ? 0 : O_CREAT), modeOfNew);
  const struct stat facts = FactsOf(file_, Purpose::Writing);
  if (isThere && (facts.st_mode & kAnyoneMayWrite) == 0) {
    throw Failure(FailureNumber::PathFileAccess);
  }
  if (!isThere) newPath_ = TruePath(path);
  oldSize_ = facts.st_size;
}

WholeFile::~WholeFile() {
  if (!isUntouched_ || !file_.IsOpen()) return;
  std::ignore = ftruncate(file_.Number(), oldSize_);
  if (IsNew() && oldSize_ == 0) unlink(newPath_.c_str());
}

// Where room can't be reserved, what will stand behind the old text is written first, and the disk
// must have it before the old text is touched.
void WholeFile::Reserve(std::string_view text) {
  CheckLimitOfProcess(text.size());
  if (ReserveRoom(file_.Number(), text.size())) return;
  const auto oldSize = static_cast<std::size_t>(oldSize_);
  if (text.size() <= oldSize) return;
  WriteAt(text.substr(oldSize), oldSize_);
  Check(fsync(file_.Number()));
}

void WholeFile::ShareNoMoreThan(const struct stat& model) {
  constexpr mode_t kOwnerMayWrite = 0200;
  if (IsNew()) std::ignore = fchown(file_.Number(), static_cast<uid_t>(-1), model.st_gid);
  const struct stat facts = FactsOf(file_, Purpose::Writing);
  const mode_t mode = facts.st_mode & 07777U;
  const mode_t rights = RightsFrom(model, facts.st_gid);
  const mode_t wanted = IsNew() ? rights | kOwnerMayWrite : mode & (rights | 0700U);
  if (wanted != mode && fchmod(file_.Number(), wanted) != 0 && !IsNew()) {
    throw FailureOf(errno, Purpose::Writing);
  }
}

void WholeFile::Write(std::string_view text) {
  Reserve(text);
  isUntouched_ = false;
  WriteAt(text, 0);
  Check(ftruncate(file_.Number(), static_cast<off_t>(text.size())));
  Check(fsync(file_.Number()));
  if (IsNew()) WaitForFolder();
  file_.Close();
}

void WholeFile::WriteAt(std::string_view text, off_t position) {
  while (!text.empty()) {
    const ssize_t put = pwrite(file_.Number(), text.data(), text.size(), position);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) throw FailureOf(errno, Purpose::Writing);
    if (put == 0) throw Failure(FailureNumber::DiskFull);
    text.remove_prefix(static_cast<std::size_t>(put));
    position += put;
  }
}

// A new file is on the disk only when its name is. A folder that may be written but not read can't
// be waited for, and some kinds of disk know no waiting for folders.
void WholeFile::WaitForFolder() const {
  const std::string folder = std::filesystem::path(newPath_).parent_path().string();
  const Descriptor opened(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!opened.IsOpen() && errno == EACCES) return;
  if (!opened.IsOpen()) throw FailureOf(errno, Purpose::Writing);
  if (fsync(opened.Number()) != 0 && errno != EINVAL) throw FailureOf(errno, Purpose::Writing);
}

}  // namespace wheelwright
