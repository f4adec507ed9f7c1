// The per-user settings store: texts (UTF-8) addressed by section and key.
#pragma once

#include <optional>
#include <string>

namespace wheelwright {

class Settings {
 public:
  Settings() = default;
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;
  virtual ~Settings() = default;

  virtual std::optional<std::string> Get(const std::string& section, const std::string& key) const = 0;

  // A failure to write isn't reported.
  virtual void Set(const std::string& section, const std::string& key, const std::string& value) = 0;

  std::string GetOr(const std::string& section, const std::string& key, const std::string& absent) const {
    return Get(section, key).value_or(absent);
  }
};

}  // namespace wheelwright
