// A wired session over fakes with its three real windows; the main one is up and active.
#pragma once

#include "forms/qt/QtPrinters.h"
#include "forms/qt/RecordingEdge.h"
#include "forms/qt/layout/WindowSet.h"
#include "support/TestSession.h"

#include <array>
#include <gtest/gtest.h>

namespace wheelwright::testing {

class RealWindows : public ::testing::Test {
 protected:
  // A definition file with one vehicle, a colour file with two colours and one.
  static constexpr const char* kDefinition =
      "cars\r\n130, bus, bus, car, BUS, BUS, null, big, 30, 7, 0, 250, 0.7\r\nend\r\n";
  static constexpr const char* kColors =
      "col\r\n1,2,3\t# 0 black\r\n200,100,50\t# 1 brown\r\nend\r\ncar\r\nbus, 0,1\r\nend\r\n";

  RealWindows();

  template <class WidgetType>
  WidgetType& Of(const Control& control) {
    return static_cast<WidgetType&>(windows.Of(control));
  }

  // Makes a window that is up the active one.
  void Activate(const Window& window);

  // Saves most of the time where nothing looks at what is painted.
  void StopPainting();

  // What all windows and controls show otherwise than the plain ones say, a line each.
  std::string Differences();

  void TearDown() override { EXPECT_EQ(edge.ends, std::vector<std::string>()); }

  TestSession test;
  RecordingEdge edge;
  WindowSet windows{test.session, edge};
  FrmMain& main = test.main;
  const std::array<Window*, 3> all{&main, &test.error, &test.exporter};
};

}  // namespace wheelwright::testing
