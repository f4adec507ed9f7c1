// What a person's hands can do at the windows. The plain hands act on the plain controls; the
// widget hands go through the real widgets of a toolkit. Both are only asked for what a person
// could do now.
#pragma once

#include "screen/Controls.h"
#include "screen/Lists.h"

#include <string>
#include <vector>

namespace wheelwright::replay {

class Hands {
 public:
  Hands() = default;
  Hands(const Hands&) = delete;
  Hands& operator=(const Hands&) = delete;
  virtual ~Hands() = default;

  virtual void Click(Button& button) = 0;
  // One click, whatever state that gives.
  virtual void Click(CheckBox& box) = 0;
  // Empties the box by hand, in one step; nothing happens if it is empty.
  virtual void Empty(TextBox& box) = 0;
  // Types the characters (UTF-8) behind the text that stands there, a keystroke for each.
  virtual void Append(TextBox& box, const std::string& characters) = 0;
  // Deletes one character at the end of the text; nothing happens if there is none.
  virtual void EraseLast(TextBox& box) = 0;
  virtual void Choose(PickList& list, int row) = 0;
  virtual void Choose(ListBox& list, int row) = 0;
  virtual void Mark(MarkList& list, const std::vector<int>& rows) = 0;
  virtual void Scroll(ScrollBar& bar, int value) = 0;
  virtual void ClickTab(TabGroup& group, int tab) = 0;
  // The window's own close box.
  virtual void Close(Window& window) = 0;

  // A picture of the window; does nothing where there is no real window.
  virtual void Shoot(Window& window, const std::string& file) = 0;

  // What the screen shows otherwise than the plain control says, empty if they agree.
  virtual std::string Difference(const Control& control) = 0;
};

}  // namespace wheelwright::replay
