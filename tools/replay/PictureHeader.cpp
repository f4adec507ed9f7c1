#include "replay/PictureHeader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace wheelwright::replay {
namespace {

using Size = std::optional<PictureSize>;

std::uint32_t ByteAt(std::string_view file, std::size_t at) { return static_cast<unsigned char>(file[at]); }

std::uint32_t LittleEndian(std::string_view file, std::size_t at, std::size_t bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = bytes; i > 0; --i) value = value << 8U | ByteAt(file, at + i - 1);
  return value;
}

std::uint32_t BigEndian16(std::string_view file, std::size_t at) {
  return ByteAt(file, at) << 8U | ByteAt(file, at + 1);
}

Size SizeIfPlausible(std::int64_t width, std::int64_t height) {
  constexpr std::int64_t kMostPixels = 128 * 1024 * 1024 / 4;
  if (width <= 0 || height <= 0 || width > kMostPixels || height > kMostPixels) return {};
  if (width * height > kMostPixels) return {};
  return PictureSize{static_cast<int>(width), static_cast<int>(height)};
}

constexpr std::size_t kFileHeader = 14;

constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kRunLength8 = 1;
constexpr std::uint32_t kRunLength4 = 2;
constexpr std::uint32_t kBitFields = 3;

// What a BMP file says of its picture behind the file header.
struct BmpInfo {
  std::size_t length;
  // A negative height tells that the rows run from the top.
  std::int64_t width;
  std::int64_t height;
  std::uint32_t planes;
  std::uint32_t bits;
  std::uint32_t compression;
  std::size_t colorsUsed;
  std::size_t bytesPerColor;
};

BmpInfo NewInfoOf(std::string_view file, std::size_t length) {
  return {.length = length,
          .width = static_cast<std::int32_t>(LittleEndian(file, 18, 4)),
          .height = static_cast<std::int32_t>(LittleEndian(file, 22, 4)),
          .planes = LittleEndian(file, 26, 2),
          .bits = LittleEndian(file, 28, 2),
          .compression = LittleEndian(file, 30, 4),
          .colorsUsed = LittleEndian(file, 46, 4),
          .bytesPerColor = 4};
}

// The oldest files know no compression and have three bytes for a colour.
BmpInfo OldInfoOf(std::string_view file, std::size_t length) {
  return {.length = length,
          .width = static_cast<std::int16_t>(LittleEndian(file, 18, 2)),
          .height = static_cast<std::int16_t>(LittleEndian(file, 20, 2)),
          .planes = LittleEndian(file, 22, 2),
          .bits = LittleEndian(file, 24, 2),
          .compression = kUncompressed,
          .colorsUsed = 0,
          .bytesPerColor = 3};
}

std::optional<BmpInfo> InfoOf(std::string_view file) {
  constexpr std::size_t kLength = 14;
  constexpr std::size_t kOldLength = 12;
  constexpr std::size_t kShortest = 40;
  if (file.size() < kFileHeader + kOldLength) return {};
  const std::size_t length = LittleEndian(file, kLength, 4);
  if (length == kOldLength) return OldInfoOf(file, length);
  const bool isNew = length == kShortest || length == 64 || length == 108 || length == 124;
  if (!isNew || file.size() < kFileHeader + kShortest) return {};
  return NewInfoOf(file, length);
}

bool IsBitDepth(std::uint32_t bits) {
  return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

bool FitsBitDepth(std::uint32_t compression, std::uint32_t bits) {
  return compression == kUncompressed || (compression == kRunLength8 && bits == 8) ||
         (compression == kRunLength4 && bits == 4) ||
         (compression == kBitFields && (bits == 16 || bits == 32));
}

// The length of what stands between the headers and the pixels: a colour table or bit masks.
// Nothing for a table that can't be.
std::optional<std::size_t> LengthBeforePixels(const BmpInfo& info) {
  if (info.bits > 8) {
    constexpr std::size_t kMasks = 12;
    return info.compression == kBitFields && info.length < 108 ? kMasks : 0;
  }
  const std::size_t colors = info.colorsUsed != 0 ? info.colorsUsed : std::size_t{1} << info.bits;
  if (colors > 256) return std::nullopt;
  return colors * info.bytesPerColor;
}

// Missing rows show black; a picture without any byte of pixels is none.
bool HoldsPixels(std::string_view file, const BmpInfo& info) {
  const std::optional<std::size_t> before = LengthBeforePixels(info);
  return before && file.size() > kFileHeader + info.length + *before;
}

Size SizeOfBmp(std::string_view file) {
  const std::optional<BmpInfo> info = InfoOf(file);
  if (!info || info->planes != 1) return {};
  if (!IsBitDepth(info->bits) || !FitsBitDepth(info->compression, info->bits)) return {};
  if (!HoldsPixels(file, *info)) return {};
  return SizeIfPlausible(info->width, std::abs(info->height));
}

// The markers of a JPEG file that matter here.
constexpr std::uint32_t kStartOfScan = 0xDA;
constexpr std::uint32_t kEndOfImage = 0xD9;

// Baseline, extended and progressive frames; the others hardly any reader takes.
bool IsFrame(std::uint32_t marker) { return marker >= 0xC0 && marker <= 0xC2; }

bool StandsAlone(std::uint32_t marker) { return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8); }

// Length, precision, height, width and number of components, then three bytes a component.
Size SizeOfFrame(std::string_view segment) {
  constexpr std::size_t kFixed = 8;
  if (segment.size() < kFixed || ByteAt(segment, 2) != 8) return {};
  const std::uint32_t components = ByteAt(segment, 7);
  if (components != 1 && components != 3 && components != 4) return {};
  constexpr std::size_t kPerComponent = 3;
  if (segment.size() != kFixed + kPerComponent * components) return {};
  return SizeIfPlausible(BigEndian16(segment, 5), BigEndian16(segment, 3));
}

// Walks the segments from the start of the image to the first scan. Stray bytes between two
// segments are passed over.
Size SizeOfJpeg(std::string_view file) {
  Size size;
  std::size_t at = 2;
  while (at + 1 < file.size()) {
    const std::uint32_t marker = ByteAt(file, at) == 0xFF ? ByteAt(file, at + 1) : 0;
    if (marker == 0 || marker == 0xFF) {
      ++at;
      continue;
    }
    at += 2;
    if (StandsAlone(marker)) continue;
    if (marker == kEndOfImage || at + 2 > file.size()) return {};
    const std::uint32_t length = BigEndian16(file, at);
    if (length < 2 || length > file.size() - at) return {};
    if (marker == kStartOfScan) return size;
    if (IsFrame(marker)) size = SizeOfFrame(file.substr(at, length));
    if (IsFrame(marker) && !size) return {};
    at += length;
  }
  return {};
}

}  // namespace

std::optional<PictureSize> SizeInHeader(std::string_view file) {
  if (file.substr(0, 2) == "BM") return SizeOfBmp(file);
  if (file.substr(0, 2) == "\xFF\xD8") return SizeOfJpeg(file);
  return {};
}

}  // namespace wheelwright::replay
