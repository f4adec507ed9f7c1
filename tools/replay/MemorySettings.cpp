#include "replay/MemorySettings.h"

namespace wheelwright::replay {

std::optional<std::string> MemorySettings::Get(const std::string& section, const std::string& key) const {
  const auto itsSection = sections_.find(section);
  if (itsSection == sections_.end()) return std::nullopt;
  const auto value = itsSection->second.find(key);
  if (value == itsSection->second.end()) return std::nullopt;
  return value->second;
}

void MemorySettings::Set(const std::string& section, const std::string& key, const std::string& value) {
  sections_[section][key] = value;
}

}  // namespace wheelwright::replay
