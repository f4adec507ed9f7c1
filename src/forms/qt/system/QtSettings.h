// The settings in the place where the platform keeps a user's.
#pragma once

#include "core/Settings.h"

#include <QSettings>

namespace wheelwright {

class QtSettings : public Settings {
 public:
  QtSettings();

  std::optional<std::string> Get(const std::string& section, const std::string& key) const override;
  void Set(const std::string& section, const std::string& key, const std::string& value) override;

 private:
  QSettings store_;
};

}  // namespace wheelwright
