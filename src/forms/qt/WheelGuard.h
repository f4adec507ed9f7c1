// Keeps the mouse wheel from changing an input that merely lies under the pointer.
#pragma once

#include <QObject>
#include <QWidget>

namespace wheelwright {

class WheelGuard : public QObject {
 public:
  // Guards the widget for as long as it lives.
  static void Guard(QWidget& widget);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using QObject::QObject;
};

}  // namespace wheelwright
