// Room for what may be larger than the screen.
#pragma once

#include <QScrollArea>

namespace wheelwright {

// Shows all of its widget, which is empty at first, but where there isn't the room: then it scrolls, and what
// gets the focus by the keyboard comes into sight.
class ContentArea : public QScrollArea {
 public:
  explicit ContentArea(QWidget* parent = nullptr);

  // Lets no more than that be asked for. Areas inside give way first, so that what lies around them stays in
  // sight.
  void FitInto(QSize room);

  QSize sizeHint() const override { return widget()->sizeHint().expandedTo(Needed()).boundedTo(room_); }
  QSize minimumSizeHint() const override { return Needed().boundedTo(room_); }

 protected:
  bool event(QEvent* event) override;

 private:
  void LetInsideGiveWay();
  QSize Needed() const;

  QSize room_{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
};

}  // namespace wheelwright
