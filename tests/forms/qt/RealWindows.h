// A wired session over fakes with its three real windows; the main one is up and active.
#pragma once

#include "forms/qt/QtPrinters.h"
#include "forms/qt/RecordingEdge.h"
#include "forms/qt/WindowSet.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

namespace wheelwright::testing {

class RealWindows : public ::testing::Test {
 protected:
  RealWindows();

  template <class WidgetType>
  WidgetType& Of(const Control& control) {
    return static_cast<WidgetType&>(windows.Of(control));
  }

  // Makes a window that is up the active one.
  void Activate(const Window& window);

  // What all windows and controls show otherwise than the plain ones say, a line each.
  std::string Differences();

  void TearDown() override { EXPECT_EQ(edge.ends, std::vector<std::string>()); }

  TestSession test;
  RecordingEdge edge;
  WindowSet windows{test.session, edge};
  FrmMain& main = test.main;
};

}  // namespace wheelwright::testing
