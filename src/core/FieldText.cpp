#include "core/FieldText.h"

namespace wheelwright {

void FieldText::PutElsewhere(std::string_view text) {
  const std::string* const there = new std::string(text);
  bytes_ = {};
  std::memcpy(bytes_.data(), &there, sizeof(void*));
}

}  // namespace wheelwright
