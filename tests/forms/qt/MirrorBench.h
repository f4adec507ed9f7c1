// A plain control of each kind and the window for its mirror, for tests of one mirror alone.
#pragma once

#include "forms/qt/QtPrinters.h"
#include "forms/qt/RecordingEdge.h"
#include "forms/qt/mirrors/MirrorSet.h"
#include "replay/OnScreen.h"

#include <functional>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QVBoxLayout>

namespace wheelwright::testing {

class MirrorBench : public ::testing::Test {
 protected:
  MirrorBench();

  // Puts the control's widget into the window, which comes up and is active. The focus stays
  // elsewhere.
  template <class WidgetType, class ControlType>
  WidgetType& Show(ControlType& control) {
    QWidget& widget = mirrors.Add(control, &window).Widget();
    Raise(widget);
    return static_cast<WidgetType&>(widget);
  }
  void Raise(QWidget& widget);

  // What a widget shows otherwise than its control says.
  std::string Difference(const Control& control) const {
    return replay::DifferenceOnScreen(control, mirrors.Of(control).Widget());
  }

  // How often the widget paints itself once the action has been done.
  static int PaintsAfter(const std::function<void()>& action, QWidget& widget);

  void TearDown() override { EXPECT_EQ(edge.ends, std::vector<std::string>()); }

  Window plain{"frmBench", "Bench"};
  TextBox text{plain, "text"};
  CheckBox check{plain, "check"};
  ScrollBar bar{plain, "bar"};
  PickList pick{plain, "pick"};
  ListBox list{plain, "list"};
  MarkList marks{plain, "marks"};
  TabGroup tabs{plain, "tabs", {{"One"}, {"R&&D"}, {"Three"}}};
  Label label{plain, "label"};
  Frame frame{plain, "frame"};
  Button button{plain, "button"};
  Picture picture{plain, "picture"};
  Swatch swatch{plain, "swatch"};
  ReportList report{plain, "report"};

  RecordingEdge edge;
  QWidget window;
  QVBoxLayout rows{&window};
  // Takes the focus, so that what is tested has it only when a test gives it.
  QLineEdit elsewhere{&window};
  MirrorSet mirrors{edge};

  // How often the control's handler ran.
  int runs = 0;
  std::function<void()> Counts() {
    return [this] { ++runs; };
  }
};

}  // namespace wheelwright::testing
