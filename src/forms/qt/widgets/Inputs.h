// The toolkit's inputs where its own don't do: each is a common one that behaves otherwise.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFocusFrame>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace wheelwright {

// Rows of lists are this high at least, buttons and bars that much, so that no steady hand is needed.
constexpr int kLeastRow = 20;
constexpr int kLeastHeight = 24;

// Shows the texts of rows as they are: a menu's delegate would read marks and tabs in them.
class RowDelegate : public QStyledItemDelegate {
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, kLeastRow});
  }
};

// A click asks only; the plain control says what state it gives.
class AskingCheckBox : public QCheckBox {
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

// Keeps the mouse wheel from changing an input that lies under the pointer; what lies around it may
// scroll instead.
class WheelGuard : public QObject {
 public:
  explicit WheelGuard(QWidget& input);

 protected:
  bool eventFilter(QObject* input, QEvent* event) override;
};

// A frame along the edges of an input while it has the focus, where styles hardly show it.
class FocusRing : public QFocusFrame {
 public:
  explicit FocusRing(QWidget& input);

 protected:
  bool eventFilter(QObject* input, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

// A scroll bar that a person sets a value with, by the same keys as a slider. It has an edge: styles draw a
// scroll bar as a part of what it scrolls.
class ValueBar : public QScrollBar {
 public:
  explicit ValueBar(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A combo box that drops down as a list with a scroll bar in every style, also for very many rows.
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
