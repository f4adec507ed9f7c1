// A text box in a code page in which a letter has two bytes: the cursor stands between letters.
#include "forms/qt/MirrorBench.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest/QTest>

namespace wheelwright::testing {
namespace {

const QString kLetters = QString::fromUtf8("\u3042\u3044\u3046");
constexpr const char* kLettersInBytes = "\x82\xA0\x82\xA2\x82\xA4";

class DoubleByteTextBox : public MirrorBench {
 protected:
  void PasteAt(int cursor, const QString& pasted) {
    edit.setCursorPosition(cursor);
    QGuiApplication::clipboard()->setText(pasted);
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
  }

  QLineEdit& edit = Show<QLineEdit>(text);
};

TEST_F(DoubleByteTextBox, ALetterIsTypedWhereTheCursorStands) {
  text.SetText(kLettersInBytes);
  EXPECT_EQ(edit.text(), kLetters);
  PasteAt(1, kLetters.left(1));
  EXPECT_EQ(text.Text(), "\x82\xA0\x82\xA0\x82\xA2\x82\xA4");
  EXPECT_EQ(edit.cursorPosition(), 2);
}

TEST_F(DoubleByteTextBox, TheCursorStaysBehindACharacterThatTheCodePageLacks) {
  text.SetText(kLettersInBytes);
  PasteAt(1, QString(QChar(0x03A9)));
  EXPECT_EQ(text.Text(), "\x82\xA0?\x82\xA2\x82\xA4");
  EXPECT_EQ(edit.cursorPosition(), 2);
}

TEST_F(DoubleByteTextBox, ALimitInBytesCutsAPasteBetweenLetters) {
  text.LimitTyping(11);
  text.SetText(kLettersInBytes);
  PasteAt(1, kLetters);
  EXPECT_EQ(text.Text(), "\x82\xA0\x82\xA0\x82\xA2\x82\xA2\x82\xA4");
  EXPECT_EQ(edit.cursorPosition(), 3);
}

}  // namespace
}  // namespace wheelwright::testing
