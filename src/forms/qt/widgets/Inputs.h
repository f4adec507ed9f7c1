// The toolkit's inputs where its own don't do: each is a common one that behaves otherwise.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QProxyStyle>
#include <QScrollBar>

namespace wheelwright {

// A click asks only; the plain control says what state it gives.
class AskingCheckBox : public QCheckBox {
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

// A scroll bar for the keyboard. The toolkit inverts all its keys, which is right for up and down
// only; and no style shows focus on a scroll bar, as none of theirs takes it. The mouse wheel moves
// it only while it has the focus.
class FocusedScrollBar : public QScrollBar {
 public:
  explicit FocusedScrollBar(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

// A combo box that drops down as a list with a scroll bar in every style, also for very many rows.
// The mouse wheel turns it only while it has the focus.
class PickBox : public QComboBox {
 public:
  explicit PickBox(QWidget* parent);

 private:
  class ListDropDown : public QProxyStyle {
   public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
  };

  ListDropDown style_;
};

}  // namespace wheelwright
