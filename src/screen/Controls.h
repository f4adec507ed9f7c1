// The plain controls but for the lists. All texts are bytes in the code page unless a comment says
// otherwise. Each control has two doors: the program's (Set..., Show, Fill) and a person's
// (...ByHand).
#pragma once

#include "screen/Control.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace wheelwright {

// Of a text that is in no language.
inline constexpr int kNoLang = -1;

// A text of a control as it is built, in UTF-8, and the entry of the language table for its place.
struct Wording {
  const char* design = "";
  int lang = kNoLang;
};

// Anything with a caption. A caption is kept as it was set, mnemonic marks ("&x", "&&") included.
class Captioned : public Control {
 public:
  Captioned(Window& window, std::string name, Wording wording = {});
  void Translate(std::span<const std::string> lang) override;
  const Wording& Words() const { return wording_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

 private:
  Wording wording_;
  std::string caption_;
};

class Label : public Captioned {
  using Captioned::Captioned;
};

class Frame : public Captioned {
  using Captioned::Captioned;
};

class Button : public Captioned {
 public:
  using Captioned::Captioned;
  void ClickByHand() { Run(clicked); }
  std::function<void()> clicked;
};

class TextBox : public Control {
 public:
  using Control::Control;
  const std::string& Text() const { return text_; }

  // Runs `changed` when the text really changes.
  void SetText(std::string text);

  // The text as a person's keystroke leaves it. An edit that makes a limited text longer than the
  // limit and longer than it was is refused; a text that was too long already may shrink or change.
  void EditByHand(const std::string& text);

  // The greatest length that EditByHand accepts now.
  std::size_t LongestByHand() const;

  // The limit binds typing only; 0 is none.
  void LimitTyping(std::size_t characters) { limit_ = characters; }

  std::function<void()> changed;

 private:
  std::string text_;
  std::size_t limit_ = 0;
};

// A two-state box. A third state, 2, can be set from code and shows as neither ticked nor empty.
class CheckBox : public Captioned {
 public:
  using Captioned::Captioned;
  int State() const { return state_; }

  // Runs `clicked` when the state really changes.
  void SetState(int state);

  // From 0 to 1, from every other state to 0.
  void ClickByHand() { SetState(state_ == 0 ? 1 : 0); }

  std::function<void()> clicked;

 private:
  int state_ = 0;
};

class ScrollBar : public Control {
 public:
  static constexpr int kMinimum = 0;
  static constexpr int kMaximum = 255;

  using Control::Control;
  int Value() const { return value_; }

  // A value outside the range goes to the nearer end. Runs `changed` when the value really changes.
  void SetValue(int value);
  void MoveByHand(int value) { SetValue(value); }

  std::function<void()> changed;

 private:
  int value_ = kMinimum;
};

class TabGroup : public Control {
 public:
  TabGroup(Window& window, std::string name, std::vector<Wording> wordings);
  void Translate(std::span<const std::string> lang) override;
  const std::vector<Wording>& Words() const { return wordings_; }

  // Captions as they are read on screen: a doubled "&" is one, a single one is a mark and goes.
  const std::vector<std::string>& Tabs() const { return tabs_; }
  void SetTab(int tab, const std::string& caption);

  // The tab in front.
  int Tab() const { return tab_; }
  // Brings a tab to the front without any click.
  void BringToFront(int tab);

  // A click on the tab in front runs nothing.
  void ClickByHand(int tab);

  // The handler is given the tab that was left.
  std::function<void(int)> clicked;

 private:
  std::vector<Wording> wordings_;
  std::vector<std::string> tabs_;
  int tab_ = 0;
};

// An image in a frame, at its natural size, in pixels at 96 dots per inch.
class Picture : public Control {
 public:
  using Control::Control;
  void Show(std::string file, int width, int height);
  // An empty picture has the size 0 by 0 and stays where it was.
  void Clear() { Show("", 0, 0); }
  void MoveTo(double left, double top);

  const std::string& File() const { return file_; }  // UTF-8, empty while there is no picture
  int Width() const { return width_; }
  int Height() const { return height_; }
  double Left() const { return left_; }
  double Top() const { return top_; }

 private:
  std::string file_;
  int width_ = 0;
  int height_ = 0;
  double left_ = 0;
  double top_ = 0;
};

// An area filled with one colour.
class Swatch : public Control {
 public:
  using Control::Control;
  // Components outside 0 to 255 are cut to that range.
  void Fill(int red, int green, int blue);
  // Red, green, blue; nothing until the first fill.
  const std::optional<std::array<int, 3>>& Color() const { return color_; }

 private:
  std::optional<std::array<int, 3>> color_;
};

// A list in report form: a header row and three columns.
class ReportList : public Control {
 public:
  static constexpr std::size_t kColumns = 3;
  using Row = std::array<std::string, kColumns>;
  using Headers = std::array<Wording, kColumns>;

  ReportList(Window& window, std::string name, const Headers& headers = {});
  void Translate(std::span<const std::string> lang) override;
  const Headers& Words() const { return headers_; }
  const Row& Columns() const { return columns_; }
  void SetColumn(std::size_t column, std::string header);
  const std::vector<Row>& Rows() const { return rows_; }
  void AddRow(Row row);
  void Clear();

 private:
  Headers headers_;
  Row columns_;
  std::vector<Row> rows_;
};

}  // namespace wheelwright
