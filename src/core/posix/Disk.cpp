// The disk of every system but Windows.
#include "core/DiskFiles.h"
#include "core/posix/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace wheelwright {
namespace {

namespace fs = std::filesystem;

fs::path DiskPath(const std::string& path) { return fs::path(std::u8string(path.begin(), path.end())); }

std::string PathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool IsReadOnly(const std::string& path) {
  std::error_code ignored;
  const fs::file_status status = fs::status(DiskPath(path), ignored);
  constexpr fs::perms kAnyoneMayWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return fs::is_regular_file(status) && (status.permissions() & kAnyoneMayWrite) == fs::perms::none;
}

// Fills the text from this length on. The new length; the same at the end of the file.
std::size_t ReadOn(int file, std::string& text, std::size_t length) {
  for (;;) {
    const ssize_t got = read(file, text.data() + length, text.size() - length);
    if (got >= 0) return length + static_cast<std::size_t>(got);
    if (errno != EINTR) throw FailureOf(errno, Purpose::Reading);
  }
}

std::string ReadAll(const Descriptor& file) {
  constexpr std::size_t kSmallestStep = 65536;
  std::string text(static_cast<std::size_t>(FactsOf(file, Purpose::Reading).st_size) + 1, '\0');
  std::size_t length = 0;
  for (;;) {
    const std::size_t before = length;
    length = ReadOn(file.Number(), text, length);
    if (length == before) break;
    if (length == text.size()) text.resize(length + std::max(kSmallestStep, length));
  }
  text.resize(length);
  return text;
}

}  // namespace

void LetWritesFail() {
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
}

bool DiskFiles::Exists(const std::string& path) const {
  std::error_code ignored;
  const fs::file_status status = fs::status(DiskPath(path), ignored);
  return fs::exists(status) && !fs::is_directory(status);
}

std::string DiskFiles::Read(const std::string& path) const {
  return ReadAll(OpenRegularFile(path, Purpose::Reading, O_RDONLY));
}

void DiskFiles::Write(const std::string& path, std::string_view text) { WholeFile(path).Write(text); }

void DiskFiles::CheckRoom(const std::string& path, std::string_view text) {
  try {
    WholeFile(path).Reserve(text);
  } catch (const Failure& failure) {
    if (failure.Number() == FailureNumber::DiskFull) throw;
  }
}

// Until it has its model's mode, a new file is its owner's alone.
void DiskFiles::Copy(const std::string& from, const std::string& to) {
  constexpr mode_t kOwnerAlone = 0600;
  const Descriptor model = OpenRegularFile(from, Purpose::Reading, O_RDONLY);
  const std::string text = ReadAll(model);
  WholeFile copy(to, kOwnerAlone);
  copy.Reserve(text);
  copy.ShareNoMoreThan(FactsOf(model, Purpose::Reading));
  copy.Write(text);
}

void DiskFiles::ClearAttributes(const std::string& path) {
  if (!IsReadOnly(path)) return;
  std::error_code ignored;
  fs::permissions(DiskPath(path), fs::perms::owner_write, fs::perm_options::add, ignored);
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
