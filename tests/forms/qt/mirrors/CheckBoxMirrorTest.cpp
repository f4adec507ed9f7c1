// A check box and its widget, in both directions.
#include "forms/qt/MirrorBench.h"

#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class CheckBoxMirrorTest : public MirrorBench {
 protected:
  CheckBoxMirrorTest() { check.clicked = Counts(); }

  void Click() { QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2)); }

  // The state that stands on both sides.
  int State() {
    EXPECT_EQ(Difference(check), "");
    return check.State();
  }

  QCheckBox& widget = Show<QCheckBox>(check);
};

TEST_F(CheckBoxMirrorTest, AClickTicksAndUnticks) {
  Click();
  EXPECT_EQ(State(), 1);
  EXPECT_EQ(widget.checkState(), Qt::Checked);
  Click();
  EXPECT_EQ(State(), 0);
  EXPECT_EQ(widget.checkState(), Qt::Unchecked);
  EXPECT_EQ(runs, 2);
}

TEST_F(CheckBoxMirrorTest, TheSpaceKeyTicks) {
  widget.setFocus();
  QTest::keyClick(&widget, Qt::Key_Space);
  EXPECT_EQ(State(), 1);
}

TEST_F(CheckBoxMirrorTest, StateTwoShowsAsHalfTickedAndAClickTakesItAway) {
  check.SetState(2);
  EXPECT_EQ(widget.checkState(), Qt::PartiallyChecked);
  Click();
  EXPECT_EQ(State(), 0);
  Click();
  EXPECT_EQ(State(), 1);
}

TEST_F(CheckBoxMirrorTest, TheProgramsStateRunsTheHandlerOnce) {
  check.SetState(1);
  EXPECT_EQ(State(), 1);
  EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace wheelwright::testing
