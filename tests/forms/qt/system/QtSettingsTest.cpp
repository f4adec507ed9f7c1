// The settings store on disk.
#include "forms/qt/system/QtPorts.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace wheelwright::testing {
namespace {

class QtSettingsTest : public ::testing::Test {
 protected:
  QtSettingsTest() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path()); }

  QTemporaryDir folder;
};

TEST_F(QtSettingsTest, WhatWasNeverSetIsNothing) {
  EXPECT_EQ(QtSettings().Get("Settings", "Language"), std::nullopt);
}

TEST_F(QtSettingsTest, ATextIsOnDiskAsSoonAsItIsSet) {
  QtSettings settings;
  settings.Set("Settings", "Language", "English");
  QFile file(folder.filePath("Wheelwright/Wheelwright.conf"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "[Settings]\nLanguage=English\n");
}

TEST_F(QtSettingsTest, ATextIsThereForTheNextRun) {
  const std::string text = "/a b/\xC3\xA4;\\n,x=%1";
  {
    QtSettings settings;
    settings.Set("Settings", "OpenPath", text);
    settings.Set("Settings", "Language", "");
    settings.Set("Exe", "OpenPath", "other");
  }
  const QtSettings next;
  EXPECT_EQ(next.Get("Settings", "OpenPath"), text);
  EXPECT_EQ(next.Get("Settings", "Language"), "");
  EXPECT_EQ(next.Get("Exe", "OpenPath"), "other");
}

}  // namespace
}  // namespace wheelwright::testing
