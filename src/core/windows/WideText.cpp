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

std::wstring WideOf(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  const int wideSize = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(wideSize), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), wideSize);
  return wide;
}

std::string Utf8Of(std::wstring_view wide) {
  const int wideSize = static_cast<int>(wide.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideSize, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideSize, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

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
