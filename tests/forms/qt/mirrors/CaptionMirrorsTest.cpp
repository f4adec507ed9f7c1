// Labels, frames and buttons: what their captions show, which keys they give, and what they tell
// assistive technology.
#include "forms/qt/MirrorBench.h"

#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class CaptionMirrorsTest : public MirrorBench {
 protected:
  // A label that names the text box and, below, another that describes it.
  QLabel& ShowLabelOf(QWidget& input) {
    LabelMirror& mirror = mirrors.Add(label, &window);
    mirror.Name(input);
    Raise(mirror.Widget());
    return static_cast<QLabel&>(mirror.Widget());
  }

  Label hint{plain, "hint"};
};

TEST_F(CaptionMirrorsTest, ALabelIsPlainText) {
  label.SetCaption("<b>x</b> R&&D %1");
  auto& widget = Show<QLabel>(label);
  EXPECT_EQ(widget.textFormat(), Qt::PlainText);
  EXPECT_EQ(widget.text(), "<b>x</b> R&D %1");
  label.SetCaption("&R &&&");
  EXPECT_EQ(widget.text(), "R &&");
}

TEST_F(CaptionMirrorsTest, ALabelsMarkIsTheWayToItsInput) {
  auto& input = Show<QLineEdit>(text);
  label.SetCaption("&Mass");
  ShowLabelOf(input);
  QTest::keyClick(&elsewhere, Qt::Key_M, Qt::AltModifier);
  EXPECT_TRUE(input.hasFocus());
}

TEST_F(CaptionMirrorsTest, AnInputHasItsLabelsCaptionAsNameAndItsHintAsDescription) {
  auto& input = Show<QLineEdit>(text);
  label.SetCaption("&R && D");
  hint.SetCaption("(1 && 2)");
  ShowLabelOf(input);
  mirrors.Add(hint, &window).Describe(input);
  EXPECT_EQ(input.accessibleName(), "R & D");
  EXPECT_EQ(input.accessibleDescription(), "(1 & 2)");
  label.SetCaption("R && &D");
  hint.SetCaption("&(2)");
  EXPECT_EQ(input.accessibleName(), "R & D");
  EXPECT_EQ(input.accessibleDescription(), "(2)");
  EXPECT_EQ(Difference(label), "");
  EXPECT_EQ(Difference(hint), "");
}

TEST_F(CaptionMirrorsTest, OfTwoInputsOnOneSpotTheOneThatShowsHasTheMark) {
  text.SetVisible(false);
  auto& edit = Show<QLineEdit>(text);
  auto& combo = Show<QComboBox>(pick);
  edit.hide();
  LabelMirror& mirror = mirrors.Add(label, &window);
  mirror.Name(edit);
  mirror.Name(combo);
  Raise(mirror.Widget());
  const auto& widget = static_cast<QLabel&>(mirror.Widget());
  EXPECT_EQ(widget.buddy(), &combo);
  pick.SetVisible(false);
  text.SetVisible(true);
  EXPECT_EQ(widget.buddy(), &edit);
}

TEST_F(CaptionMirrorsTest, AFramesCaptionIsTheNameOfItsInput) {
  FrameMirror& mirror = mirrors.Add(frame, &window);
  QWidget& input = mirrors.Add(pick, &mirror.Widget()).Widget();
  mirror.Name(input);
  frame.SetCaption("&Vehicles");
  EXPECT_EQ(mirror.Widget().title(), "&Vehicles");
  EXPECT_EQ(input.accessibleName(), "Vehicles");
  Raise(mirror.Widget());
  QTest::keyClick(&elsewhere, Qt::Key_V, Qt::AltModifier);
  EXPECT_TRUE(input.hasFocus());
  frame.SetEnabled(false);
  EXPECT_EQ(Difference(pick), "enabled \"0\" instead of \"1\"");
}

TEST_F(CaptionMirrorsTest, AButtonIsClickedByMouseAndKeys) {
  button.SetCaption("&Save");
  button.clicked = Counts();
  auto& widget = Show<QPushButton>(button);
  QTest::mouseClick(&widget, Qt::LeftButton);
  QTest::keyClick(&elsewhere, Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return runs == 2; }));
  widget.setFocus();
  QTest::keyClick(&widget, Qt::Key_Space);
  EXPECT_EQ(runs, 3);
}

TEST_F(CaptionMirrorsTest, ReturnInATextBoxPressesNoButton) {
  button.clicked = Counts();
  auto& input = Show<QLineEdit>(text);
  const auto& widget = Show<QPushButton>(button);
  QTest::keyClick(&input, Qt::Key_Return);
  EXPECT_FALSE(widget.autoDefault());
  EXPECT_EQ(runs, 0);
}

TEST_F(CaptionMirrorsTest, ADisabledButtonTakesNoClick) {
  button.clicked = Counts();
  auto& widget = Show<QPushButton>(button);
  button.SetEnabled(false);
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_EQ(runs, 0);
}

TEST_F(CaptionMirrorsTest, ALineBreakOfALanguageFileIsOneLineBreakOnScreen) {
  button.SetCaption("two\r\nlines");
  EXPECT_EQ(Show<QPushButton>(button).text(), "two\nlines");
}

}  // namespace
}  // namespace wheelwright::testing
