// Hands that act on the plain controls alone.
#pragma once

#include "forms/EventEdge.h"
#include "replay/Hands.h"

#include <string>
#include <vector>

namespace wheelwright::replay {

class PlainHands : public Hands {
 public:
  explicit PlainHands(EventEdge& edge) : edge_(edge) {}

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
  void Shoot(Window& /*window*/, const std::string& /*file*/) override {}
  std::string Difference(const Control& /*control*/) override { return {}; }

 private:
  EventEdge& edge_;
};

}  // namespace wheelwright::replay
