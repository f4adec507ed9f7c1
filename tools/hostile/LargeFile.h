// Files of a size that memory had better not hold twice, written piece by piece.
#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace wheelwright::hostile {

class LargeFile {
 public:
  explicit LargeFile(const std::string& path) : out_(path, std::ios::binary) {}

  LargeFile& Add(std::string_view text);
  // The piece again and again, until it makes that many bytes or a little more.
  LargeFile& AddBytes(std::string_view piece, std::size_t bytes);

 private:
  std::ofstream out_;
};

}  // namespace wheelwright::hostile
