// A text box and its line edit, in both directions.
#include "forms/qt/MirrorBench.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

class TextBoxMirrorTest : public MirrorBench {
 protected:
  void Paste(const QString& pasted) {
    QGuiApplication::clipboard()->setText(pasted);
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
  }

  // The text that stands on both sides.
  std::string Text() {
    EXPECT_EQ(Difference(text), "");
    return text.Text();
  }

  QLineEdit& edit = Show<QLineEdit>(text);
};

TEST_F(TextBoxMirrorTest, EachKeyIsAnEdit) {
  text.changed = Counts();
  QTest::keyClicks(&edit, "abc");
  QTest::keyClick(&edit, Qt::Key_Backspace);
  EXPECT_EQ(Text(), "ab");
  EXPECT_EQ(runs, 4);
}

TEST_F(TextBoxMirrorTest, AProgramsTextRunsItsHandlerOnceAndShowsFromItsStart) {
  text.changed = Counts();
  text.SetText("14000.0");
  EXPECT_EQ(edit.text(), "14000.0");
  EXPECT_EQ(edit.cursorPosition(), 0);
  EXPECT_EQ(runs, 1);
}

TEST_F(TextBoxMirrorTest, AHandlersOwnTextShows) {
  text.changed = [this] {
    if (text.Text() == "a") text.SetText("other");
  };
  QTest::keyClicks(&edit, "a");
  EXPECT_EQ(Text(), "other");
}

TEST_F(TextBoxMirrorTest, TypingEndsAtTheLimit) {
  text.LimitTyping(14);
  QTest::keyClicks(&edit, "ABCDEFGHIJKLMNOP");
  EXPECT_EQ(Text(), "ABCDEFGHIJKLMN");
}

TEST_F(TextBoxMirrorTest, ALongTextFromAFileShowsWholeAndMayOnlyShrink) {
  text.LimitTyping(14);
  text.SetText("TWENTY-CHARACTERS-ON");
  EXPECT_EQ(edit.text(), "TWENTY-CHARACTERS-ON");
  QTest::keyClick(&edit, Qt::Key_End);
  QTest::keyClicks(&edit, "X");
  EXPECT_EQ(Text(), "TWENTY-CHARACTERS-ON");
  QTest::keyClick(&edit, Qt::Key_Backspace);
  EXPECT_EQ(Text(), "TWENTY-CHARACTERS-O");
  QTest::keyClicks(&edit, "X");
  EXPECT_EQ(Text(), "TWENTY-CHARACTERS-O");
}

TEST_F(TextBoxMirrorTest, APasteIsCutToTheLimit) {
  text.LimitTyping(14);
  text.SetText("123456789012");
  edit.setCursorPosition(2);
  Paste("ABCDEF");
  EXPECT_EQ(Text(), "12AB3456789012");
  EXPECT_EQ(edit.cursorPosition(), 4);
}

TEST_F(TextBoxMirrorTest, APasteOverASelectionCountsWhatItReplaces) {
  text.LimitTyping(14);
  text.SetText("12345678901234");
  edit.setSelection(0, 4);
  Paste("ABCDEF");
  EXPECT_EQ(Text(), "ABCD5678901234");
}

TEST_F(TextBoxMirrorTest, WithoutALimitAnyLengthIsTaken) {
  text.SetText(std::string(40000, 'x'));
  QTest::keyClick(&edit, Qt::Key_End);
  QTest::keyClicks(&edit, "y");
  EXPECT_EQ(Text(), std::string(40000, 'x') + "y");
}

TEST_F(TextBoxMirrorTest, ACharacterThatTheCodePageLacksBecomesAQuestionMarkInPlace) {
  text.SetText("ab");
  edit.setCursorPosition(1);
  QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QString(QChar(0x03A9)), {});
  EXPECT_EQ(Text(), "a?b");
  EXPECT_EQ(edit.cursorPosition(), 2);
}

TEST_F(TextBoxMirrorTest, TheCursorStaysBehindWhatWasPastedAlsoWhenItIsShorterInTheCodePage) {
  text.SetText("ab");
  edit.setCursorPosition(1);
  Paste(QString::fromUcs4(U"\U0001F600\U0001F600"));
  EXPECT_EQ(Text(), "a??b");
  EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST_F(TextBoxMirrorTest, EveryByteComesBackFromTheScreen) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  text.SetText(all);
  EXPECT_EQ(Difference(text), "");
  QTest::keyClick(&edit, Qt::Key_End);
  QTest::keyClicks(&edit, "y");
  EXPECT_EQ(Text(), all + "y");
}

TEST_F(TextBoxMirrorTest, StateFollows) {
  text.SetEnabled(false);
  EXPECT_FALSE(edit.isEnabled());
  text.SetVisible(false);
  EXPECT_TRUE(edit.isHidden());
  text.SetEnabled(true);
  text.SetVisible(true);
  EXPECT_TRUE(edit.isEnabled());
  EXPECT_TRUE(edit.isVisible());
}

}  // namespace
}  // namespace wheelwright::testing
