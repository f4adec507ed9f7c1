#include "support/FaultyFiles.h"

#include "core/Failure.h"

#include <algorithm>

namespace wheelwright::testing {
namespace {

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

bool LiesIn(const std::string& path, const std::string& folder) {
  return path.starts_with(folder.ends_with('/') ? folder : folder + "/");
}

// Half of the new text lies over the old one.
std::string HalfWay(const std::string& old, std::string_view text) {
  const std::size_t half = text.size() / 2;
  return std::string(text.substr(0, half)) + old.substr(std::min(half, old.size()));
}

template <class Container>
Container FirstHalf(const Container& whole) {
  return Container(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(whole.size() / 2));
}

}  // namespace

void FaultyFiles::FailAt(int call, Fault fault) {
  calls.clear();
  faultyCall_ = call;
  fault_ = fault;
}

Fault FaultyFiles::Enter(Operation operation, const std::string& path, std::string_view text) const {
  calls.push_back({operation, path, std::string(text)});
  if (static_cast<int>(calls.size()) != faultyCall_) return Fault::None;
  DoToDisk(fault_, path);
  return fault_;
}

void FaultyFiles::DoToDisk(Fault fault, const std::string& path) const {
  switch (fault) {
    case Fault::Missing:
    case Fault::Vanished:
      std::erase_if(disk.contents,
                    [&](const auto& file) { return file.first == path || LiesIn(file.first, path); });
      break;
    case Fault::NoFolder:
      disk.contents.erase(path);
      goneFolders_.insert(FolderOf(path));
      break;
    case Fault::Directory:
      disk.contents.erase(path);
      directories.insert(path);
      break;
    case Fault::Changed:
      disk.contents[path] = changedTexts.at(path);
      break;
    default:
      break;
  }
}

bool FaultyFiles::Exists(const std::string& path) const {
  return Enter(Operation::Exists, path) != Fault::NoAccess && disk.Exists(path);
}

std::string FaultyFiles::ReadAt(Fault fault, const std::string& path) const {
  if (goneFolders_.contains(FolderOf(path))) throw Failure(FailureNumber::PathNotFound);
  if (fault == Fault::NoAccess || directories.contains(path)) {
    throw Failure(FailureNumber::PathFileAccess);
  }
  if (fault == Fault::IoError) throw Failure(FailureNumber::DeviceIoError);
  return disk.Read(path);
}

std::string FaultyFiles::Read(const std::string& path) const {
  return ReadAt(Enter(Operation::Read, path), path);
}

std::string FaultyFiles::ReadPicture(const std::string& path) const {
  return ReadAt(Enter(Operation::Picture, path), path);
}

void FaultyFiles::Write(const std::string& path, std::string_view text) {
  const Fault fault = Enter(Operation::Write, path, text);
  if (goneFolders_.contains(FolderOf(path))) throw Failure(FailureNumber::PathNotFound);
  if (fault == Fault::NoAccess || directories.contains(path)) {
    throw Failure(FailureNumber::PathFileAccess);
  }
  if (fault == Fault::Full) throw Failure(FailureNumber::DiskFull);
  const bool isHalf = fault == Fault::CutShort || fault == Fault::IoError;
  disk.Write(path, isHalf ? HalfWay(disk.contents[path], text) : text);
  if (fault == Fault::CutShort) throw Failure(FailureNumber::DiskFull);
  if (isHalf || fault == Fault::CloseError) throw Failure(FailureNumber::DeviceIoError);
}

void FaultyFiles::CheckRoom(const std::string& path, std::string_view /*text*/) {
  if (Enter(Operation::Room, path) == Fault::Full) throw Failure(FailureNumber::DiskFull);
}

void FaultyFiles::ClearAttributes(const std::string& path) {
  if (Enter(Operation::Clear, path) != Fault::NoAccess) disk.ClearAttributes(path);
}

std::vector<std::string> FaultyFiles::List(const std::string& directory) const {
  const Fault fault = Enter(Operation::List, directory);
  if (fault == Fault::NoAccess) return {};
  const std::vector<std::string> names = disk.List(directory);
  return fault == Fault::IoError ? FirstHalf(names) : names;
}

}  // namespace wheelwright::testing
