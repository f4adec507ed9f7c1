#include "replay/Keys.h"

#include <cstddef>

namespace wheelwright::replay {
namespace {

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

std::string CharacterAt(const std::string& utf8, std::size_t start) {
  std::size_t end = start + 1;
  while (end < utf8.size() && ContinuesCharacter(utf8[end])) ++end;
  return utf8.substr(start, end - start);
}

// In UTF-8 the characters 80 to 9F are C2 80 to C2 9F.
bool IsControlCharacter(const std::string& character) {
  const auto lead = static_cast<unsigned char>(character.front());
  if (character.size() == 1) return lead < 0x20 || lead == 0x7F;
  return lead == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

}  // namespace

std::vector<std::string> KeysOf(const std::string& utf8) {
  std::vector<std::string> keys;
  for (std::size_t at = 0; at < utf8.size();) {
    std::string character = CharacterAt(utf8, at);
    at += character.size();
    if (!IsControlCharacter(character)) keys.push_back(std::move(character));
  }
  return keys;
}

}  // namespace wheelwright::replay
