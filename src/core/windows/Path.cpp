#include "core/windows/Path.h"

#include "core/windows/WideText.h"

#include <windows.h>

namespace wheelwright {
namespace {

std::wstring FullPath(const std::wstring& path) {
  const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(size, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), size, full.data(), nullptr));
  return full;
}

}  // namespace

std::wstring DiskPath(const std::string& path) {
  // The limit for folders is twelve less than that for files.
  constexpr std::size_t kLongestUnmarked = MAX_PATH - 13;
  const std::wstring wide = WideOf(path);
  if (wide.size() <= kLongestUnmarked || wide.starts_with(L"\\\\?\\")) return wide;
  const std::wstring full = FullPath(wide);
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + full.substr(2);
  return L"\\\\?\\" + full;
}

}  // namespace wheelwright
