#include "forms/qt/system/QtSettings.h"

#include <QString>

namespace wheelwright {
namespace {

QString Address(const std::string& section, const std::string& key) {
  return QString::fromStdString(section + "/" + key);
}

}  // namespace

QtSettings::QtSettings()
    : store_(QSettings::NativeFormat, QSettings::UserScope, "Wheelwright", "Wheelwright") {}

std::optional<std::string> QtSettings::Get(const std::string& section,
                                           const std::string& key) const {
  if (!store_.contains(Address(section, key))) return std::nullopt;
  return store_.value(Address(section, key)).toString().toStdString();
}

void QtSettings::Set(const std::string& section, const std::string& key, const std::string& value) {
  store_.setValue(Address(section, key), QString::fromStdString(value));
  store_.sync();
}

}  // namespace wheelwright
