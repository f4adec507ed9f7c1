#include "replay/PlainHands.h"

#include "core/CodePage.h"
#include "replay/Keys.h"

namespace wheelwright::replay {

void PlainHands::Click(Button& button) {
  edge_.Enter([&] { button.ClickByHand(); });
}

void PlainHands::Click(CheckBox& box) {
  edge_.Enter([&] { box.ClickByHand(); });
}

void PlainHands::Empty(TextBox& box) {
  edge_.Enter([&] { box.EditByHand(""); });
}

void PlainHands::Append(TextBox& box, const std::string& characters) {
  for (const std::string& key : KeysOf(characters)) {
    edge_.Enter([&] { box.EditByHand(box.Text() + FromUnicode(key)); });
  }
}

void PlainHands::EraseLast(TextBox& box) {
  if (box.Text().empty()) return;
  edge_.Enter([&] { box.EditByHand(box.Text().substr(0, box.Text().size() - 1)); });
}

void PlainHands::Choose(PickList& list, int row) {
  edge_.Enter([&] { list.ChooseByHand(row); });
}

void PlainHands::Choose(ListBox& list, int row) {
  edge_.Enter([&] { list.ChooseByHand(row); });
}

void PlainHands::Mark(MarkList& list, const std::vector<int>& rows) {
  edge_.Enter([&] { list.MarkByHand(rows); });
}

void PlainHands::Scroll(ScrollBar& bar, int value) {
  edge_.Enter([&] { bar.MoveByHand(value); });
}

void PlainHands::ClickTab(TabGroup& group, int tab) {
  edge_.Enter([&] { group.ClickByHand(tab); });
}

void PlainHands::Close(Window& window) {
  edge_.Enter([&] { Run(window.closeRequested); });
}

}  // namespace wheelwright::replay
