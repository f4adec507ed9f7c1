// A settings store that lives in memory and starts empty.
#pragma once

#include "core/Settings.h"

#include <map>
#include <optional>
#include <string>

namespace wheelwright::replay {

class MemorySettings : public Settings {
 public:
  using Section = std::map<std::string, std::string>;

  std::optional<std::string> Get(const std::string& section, const std::string& key) const override;
  void Set(const std::string& section, const std::string& key, const std::string& value) override;

  const std::map<std::string, Section>& Sections() const { return sections_; }

 private:
  std::map<std::string, Section> sections_;
};

}  // namespace wheelwright::replay
