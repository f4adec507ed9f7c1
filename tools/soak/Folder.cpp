#include "soak/Folder.h"

#include "core/DiskFiles.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>

namespace wheelwright::soak {
namespace {

namespace fs = std::filesystem;

fs::path NewDirectory() {
  std::random_device device;
  for (int attempt = 0; attempt < 100; ++attempt) {
    fs::path path = fs::temp_directory_path() / ("wheelwright-soak-" + std::to_string(device()));
    if (fs::create_directory(path)) return path;
  }
  throw std::runtime_error("no temporary folder can be made");
}

}  // namespace

Folder::Folder() : path_(NewDirectory().string()) {}

Folder::~Folder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string Folder::NameOf(const std::string& path) const {
  return path.starts_with(path_ + "/") ? path.substr(path_.size() + 1) : "";
}

void Folder::Fill(const Files& files) const {
  for (const auto& entry : fs::directory_iterator(path_)) fs::remove_all(entry);
  WriteFiles(path_, files);
  fs::create_directories(path_ + "/data/folder.cfg");
}

Files Folder::Contents() const {
  const DiskFiles disk;
  Files files;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    if (!entry.is_directory()) files[NameOf(entry.path().string())] = disk.Read(entry.path().string());
  }
  return files;
}

void WriteFiles(const std::string& directory, const Files& files) {
  for (const auto& [name, bytes] : files) {
    const fs::path path = fs::path(directory) / name;
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
}

}  // namespace wheelwright::soak
