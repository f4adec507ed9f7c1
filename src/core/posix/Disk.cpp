// The disk of every system but Windows.
#include "core/DiskFiles.h"
#include "core/Failure.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace wheelwright {
namespace {

namespace fs = std::filesystem;

enum class Purpose { Reading, Writing };

fs::path DiskPath(const std::string& path) {
  return fs::path(std::u8string(path.begin(), path.end()));
}

std::string PathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

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
      return Failure(FailureNumber::PathFileAccess);
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

bool FolderIsThere(const std::string& path) {
  std::error_code ignored;
  const fs::path folder = DiskPath(path).parent_path();
  return folder.empty() || fs::is_directory(folder, ignored);
}

Failure FailureOfOpening(int error, Purpose purpose, const std::string& path) {
  if (error == ENOENT && !FolderIsThere(path)) return Failure(FailureNumber::PathNotFound);
  return FailureOf(error, purpose);
}

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile Open(const std::string& path, Purpose purpose) {
  errno = 0;
  OpenFile file(std::fopen(path.c_str(), purpose == Purpose::Reading ? "rb" : "wb"));
  if (!file) throw FailureOfOpening(errno, purpose, path);
  std::setvbuf(file.get(), nullptr, _IONBF, 0);
  return file;
}

bool IsReadOnly(const std::string& path) {
  std::error_code ignored;
  const fs::file_status status = fs::status(DiskPath(path), ignored);
  constexpr fs::perms kAnyoneMayWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return fs::is_regular_file(status) && (status.permissions() & kAnyoneMayWrite) == fs::perms::none;
}

std::size_t SizeHint(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(DiskPath(path), error);
  return error ? 0 : static_cast<std::size_t>(size);
}

}  // namespace

bool DiskFiles::Exists(const std::string& path) const {
  std::error_code ignored;
  const fs::file_status status = fs::status(DiskPath(path), ignored);
  return fs::exists(status) && !fs::is_directory(status);
}

std::string DiskFiles::Read(const std::string& path) const {
  const OpenFile file = Open(path, Purpose::Reading);
  constexpr std::size_t kSmallestStep = 65536;
  std::string text;
  std::size_t length = 0;
  for (std::size_t step = SizeHint(path) + 1;; step = std::max(kSmallestStep, length)) {
    text.resize(length + step);
    const std::size_t got = std::fread(text.data() + length, 1, step, file.get());
    length += got;
    if (got < step) break;
  }
  if (std::ferror(file.get()) != 0) throw FailureOf(errno, Purpose::Reading);
  text.resize(length);
  return text;
}

void DiskFiles::Write(const std::string& path, std::string_view text) {
  if (IsReadOnly(path)) throw Failure(FailureNumber::PathFileAccess);
  OpenFile file = Open(path, Purpose::Writing);
  if (std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) {
    throw FailureOf(errno, Purpose::Writing);
  }
  if (std::fclose(file.release()) != 0) throw FailureOf(errno, Purpose::Writing);
}

void DiskFiles::ClearAttributes(const std::string& path) {
  if (!IsReadOnly(path)) return;
  std::error_code error;
  fs::permissions(DiskPath(path), fs::perms::owner_write, fs::perm_options::add, error);
  if (error) throw FailureOf(error.value(), Purpose::Writing);
}

std::vector<std::string> DiskFiles::NamesIn(const std::string& directory) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(DiskPath(directory), error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    if (!entry->is_directory(ignored)) names.push_back(PathText(entry->path().filename()));
  }
  return names;
}

}  // namespace wheelwright
