#include "screen/Controls.h"

#include "core/CodePage.h"

#include <algorithm>

namespace wheelwright {
namespace {

std::string WithoutMnemonicMarks(const std::string& caption) {
  std::string read;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&') ++i;
    if (i < caption.size()) read += caption[i];
  }
  return read;
}

const std::string& EntryFor(const Wording& wording, std::span<const std::string> lang) {
  return lang[static_cast<std::size_t>(wording.lang)];
}

}  // namespace

Captioned::Captioned(Window& window, std::string name, Wording wording)
    : Control(window, std::move(name)), wording_(wording), caption_(FromUnicode(wording.design)) {}

void Captioned::Translate(std::span<const std::string> lang) {
  if (wording_.lang != kNoLang) SetCaption(EntryFor(wording_, lang));
}

void Captioned::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Tell(Aspect::Content);
}

void TextBox::SetText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  Tell(Aspect::Content);
  Run(changed);
}

void TextBox::EditByHand(const std::string& text) {
  if (text.size() <= LongestByHand()) SetText(text);
}

std::size_t TextBox::LongestByHand() const {
  return limit_ == 0 ? std::string::npos : std::max(limit_, text_.size());
}

void CheckBox::SetState(int state) {
  if (state == state_) return;
  state_ = state;
  Tell(Aspect::Content);
  Run(clicked);
}

void ScrollBar::SetValue(int value) {
  const int within = std::clamp(value, kMinimum, kMaximum);
  if (within == value_) return;
  value_ = within;
  Tell(Aspect::Content);
  Run(changed);
}

TabGroup::TabGroup(Window& window, std::string name, std::vector<Wording> wordings)
    : Control(window, std::move(name)), wordings_(std::move(wordings)) {
  for (const Wording& tab : wordings_) {
    tabs_.push_back(WithoutMnemonicMarks(FromUnicode(tab.design)));
  }
}

void TabGroup::Translate(std::span<const std::string> lang) {
  for (std::size_t tab = 0; tab < tabs_.size(); ++tab) {
    SetTab(static_cast<int>(tab), EntryFor(wordings_[tab], lang));
  }
}

void TabGroup::SetTab(int tab, const std::string& caption) {
  tabs_.at(static_cast<std::size_t>(tab)) = WithoutMnemonicMarks(caption);
  Tell(Aspect::Content);
}

void TabGroup::BringToFront(int tab) {
  if (tab == tab_) return;
  tab_ = tab;
  Tell(Aspect::Choice);
}

void TabGroup::ClickByHand(int tab) {
  if (tab == tab_) return;
  const int left = tab_;
  BringToFront(tab);
  if (clicked) clicked(left);
}

void Picture::Show(std::string file, int width, int height) {
  file_ = std::move(file);
  width_ = width;
  height_ = height;
  Tell(Aspect::Content);
}

void Picture::MoveTo(double left, double top) {
  left_ = left;
  top_ = top;
  Tell(Aspect::Content);
}

void Swatch::Fill(int red, int green, int blue) {
  const auto cut = [](int component) { return std::clamp(component, 0, 255); };
  color_ = {cut(red), cut(green), cut(blue)};
  Tell(Aspect::Content);
}

ReportList::ReportList(Window& window, std::string name, const Headers& headers)
    : Control(window, std::move(name)), headers_(headers) {
  for (std::size_t i = 0; i < kColumns; ++i) columns_[i] = FromUnicode(headers_[i].design);
}

void ReportList::Translate(std::span<const std::string> lang) {
  for (std::size_t i = 0; i < kColumns; ++i) SetColumn(i, EntryFor(headers_[i], lang));
}

void ReportList::SetColumn(std::size_t column, std::string header) {
  columns_.at(column) = std::move(header);
  Tell(Aspect::Content);
}

void ReportList::AddRow(Row row) {
  rows_.push_back(std::move(row));
  Tell(Aspect::Rows);
}

void ReportList::Clear() {
  rows_.clear();
  Tell(Aspect::Rows);
}

}  // namespace wheelwright
