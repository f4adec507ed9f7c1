#include "hostile/LargeFile.h"

namespace wheelwright::hostile {

LargeFile& LargeFile::Add(std::string_view text) {
  out_.write(text.data(), static_cast<std::streamsize>(text.size()));
  return *this;
}

LargeFile& LargeFile::AddBytes(std::string_view piece, std::size_t bytes) {
  constexpr std::size_t kBlock = 1 << 20;
  std::string block;
  while (block.size() < kBlock) block += piece;
  for (; bytes > block.size(); bytes -= block.size()) Add(block);
  const std::size_t pieces = (bytes + piece.size() - 1) / piece.size();
  return Add(std::string_view(block).substr(0, pieces * piece.size()));
}

}  // namespace wheelwright::hostile
