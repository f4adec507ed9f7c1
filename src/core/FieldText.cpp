#include "core/FieldText.h"

namespace wheelwright {

FieldText::FieldText(std::string_view text) {
  if (text.size() > kMark) {
    PutElsewhere(text);
    return;
  }
  text.copy(bytes_.data(), text.size());
  bytes_[kMark] = static_cast<char>(text.size() + 1);
}

void FieldText::PutElsewhere(std::string_view text) {
  const std::string* const there = new std::string(text);
  bytes_ = {};
  std::memcpy(bytes_.data(), &there, sizeof(void*));
}

}  // namespace wheelwright
