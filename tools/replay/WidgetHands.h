// Hands that go through the real widgets, with the events that a keyboard and a mouse would send.
#pragma once

#include "forms/qt/layout/WindowSet.h"
#include "replay/Hands.h"

#include <QAbstractItemView>

namespace wheelwright::replay {

class WidgetHands : public Hands {
 public:
  explicit WidgetHands(WindowSet& windows) : windows_(windows) {}

  void Click(Button& button) override;
  void Click(CheckBox& box) override;
  void Empty(TextBox& box) override;
  void Append(TextBox& box, const std::string& characters) override;
  void EraseLast(TextBox& box) override;
  void Choose(PickList& list, int row) override;
  void Choose(ListBox& list, int row) override;
  void Mark(MarkList& list, const std::vector<int>& rows) override;
  void Scroll(ScrollBar& bar, int value) override;
  void ClickTab(TabGroup& group, int tab) override;
  void Close(Window& window) override;
  // Throws std::runtime_error if the picture can't be written.
  void Shoot(Window& window, const std::string& file) override;
  std::string Difference(const Control& control) override;

 private:
  // The control's widget, after everything that was asked of the toolkit before has been done.
  template <class WidgetType>
  WidgetType& Reach(const Control& control) const {
    return static_cast<WidgetType&>(Reached(control));
  }
  QWidget& Reached(const Control& control) const;

  WindowSet& windows_;
};

}  // namespace wheelwright::replay
