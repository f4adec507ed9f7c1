#include "replay/Actions.h"

#include "core/CodePage.h"
#include "replay/Keys.h"
#include "replay/Names.h"
#include "replay/ScriptError.h"
#include "replay/Usable.h"

#include <algorithm>
#include <array>

namespace wheelwright::replay {
namespace {

constexpr Part kForce{"force", Form::Boolean, false};

// Every page that the control lies on comes to the front, which is no click on its tab.
void BringToFront(const Control& control) {
  for (const Control* inner = &control; inner->Container() != nullptr; inner = inner->Container()) {
    auto* group = dynamic_cast<TabGroup*>(inner->Container());
    if (group != nullptr) group->BringToFront(inner->Page());
  }
}

void CheckRow(int row, std::size_t rows) {
  if (row < 0 || static_cast<std::size_t>(row) >= rows) {
    throw ScriptError("there is no row " + std::to_string(row));
  }
}

int RowOfText(const PickList& list, const std::string& utf8) {
  const auto& rows = list.Rows();
  const auto found = std::find(rows.begin(), rows.end(), FromUnicode(utf8));
  if (found == rows.end()) throw ScriptError("there is no entry \"" + utf8 + "\"");
  return static_cast<int>(found - rows.begin());
}

void TypeInto(TextBox& box, const std::string& text, Hands& hands) {
  for (const std::string& key : KeysOf(text)) hands.Append(box, key);
}

}  // namespace

const Verb<Actions>* Actions::Find(const ScriptLine& line) {
  static const std::array<Verb<Actions>, 11> kVerbs = {{
      {{"click", Form::Text, {kForce}}, &Actions::Click},
      {{"type", Form::Text, {{"text", Form::Text}, kForce}}, &Actions::Type},
      {{"append", Form::Text, {{"text", Form::Text}, kForce}}, &Actions::Append},
      {{"erase", Form::Text, {{"count", Form::Count}, kForce}}, &Actions::Erase},
      {{"pick", Form::Text, {{"row", Form::Whole, false}, {"text", Form::Text, false}, kForce}},
       &Actions::Pick},
      {{"tick", Form::Text, {{"state", Form::Whole}, kForce}}, &Actions::Tick},
      {{"scroll", Form::Text, {{"value", Form::Whole}, kForce}}, &Actions::Scroll},
      {{"row", Form::Text, {{"to", Form::Whole}, kForce}}, &Actions::ClickRow},
      {{"mark", Form::Text, {{"rows", Form::Rows}, kForce}}, &Actions::Mark},
      {{"tab", Form::Text, {{"to", Form::Whole}, kForce}}, &Actions::ClickTab},
      {{"close", Form::Text, {kForce}}, &Actions::Close},
  }};
  return VerbOf<Actions>(line, kVerbs);
}

void Actions::Click(const ScriptLine& line) {
  auto& button = Named<Button>(line, "click");
  if (Hands* hands = HandsAt(button, line)) hands->Click(button);
}

void Actions::Type(const ScriptLine& line) {
  auto& box = Named<TextBox>(line, "type");
  Hands* hands = HandsAt(box, line);
  if (hands == nullptr) return;
  hands->Empty(box);
  TypeInto(box, line.Text("text"), *hands);
}

void Actions::Append(const ScriptLine& line) {
  auto& box = Named<TextBox>(line, "append");
  Hands* hands = HandsAt(box, line);
  if (hands != nullptr) TypeInto(box, line.Text("text"), *hands);
}

void Actions::Erase(const ScriptLine& line) {
  auto& box = Named<TextBox>(line, "erase");
  Hands* hands = HandsAt(box, line);
  if (hands == nullptr) return;
  const int count = line.Whole("count");
  for (int key = 0; key < count && !box.Text().empty(); ++key) hands->EraseLast(box);
}

void Actions::Pick(const ScriptLine& line) {
  if (line.Has("row") == line.Has("text")) throw ScriptError("\"pick\" takes a row or a text");
  auto& list = Named<PickList>(line, "pick");
  Hands* hands = HandsAt(list, line);
  if (hands == nullptr) return;
  const int row = line.Has("row") ? line.Whole("row") : RowOfText(list, line.Text("text"));
  CheckRow(row, list.Rows().size());
  hands->Choose(list, row);
}

// A click leads from 0 to 1 and from every other state to 0.
void Actions::Tick(const ScriptLine& line) {
  auto& box = Named<CheckBox>(line, "tick");
  Hands* hands = HandsAt(box, line);
  if (hands == nullptr) return;
  const int wanted = line.Whole("state");
  if (wanted != box.State() && wanted != 0 && wanted != 1) {
    throw ScriptError("no click gives state " + std::to_string(wanted));
  }
  constexpr int kMostClicks = 2;
  for (int click = 0; click < kMostClicks && box.State() != wanted; ++click) hands->Click(box);
}

void Actions::Scroll(const ScriptLine& line) {
  auto& bar = Named<ScrollBar>(line, "scroll");
  Hands* hands = HandsAt(bar, line);
  if (hands == nullptr) return;
  hands->Scroll(bar, std::clamp(line.Whole("value"), ScrollBar::kMinimum, ScrollBar::kMaximum));
}

// Where several rows may be marked, a click marks one alone.
void Actions::ClickRow(const ScriptLine& line) {
  if (dynamic_cast<MarkList*>(FindControl(stage_.session, line.Text("row"))) != nullptr) {
    MarkRows(line, "row", {line.Whole("to")});
    return;
  }
  auto& list = Named<ListBox>(line, "row");
  Hands* hands = HandsAt(list, line);
  if (hands == nullptr) return;
  CheckRow(line.Whole("to"), list.Rows().size());
  hands->Choose(list, line.Whole("to"));
}

void Actions::Mark(const ScriptLine& line) {
  MarkRows(line, "mark", line.Value("rows").get<std::vector<int>>());
}

void Actions::MarkRows(const ScriptLine& line, const char* verb, const std::vector<int>& rows) {
  auto& list = Named<MarkList>(line, verb);
  Hands* hands = HandsAt(list, line);
  if (hands == nullptr) return;
  for (const int row : rows) CheckRow(row, list.Rows().size());
  hands->Mark(list, rows);
}

void Actions::ClickTab(const ScriptLine& line) {
  auto& group = Named<TabGroup>(line, "tab");
  Hands* hands = HandsAt(group, line);
  if (hands == nullptr) return;
  CheckRow(line.Whole("to"), group.Tabs().size());
  hands->ClickTab(group, line.Whole("to"));
}

void Actions::Close(const ScriptLine& line) {
  Window* window = FindWindow(stage_.session, line.Text("close"));
  if (window == nullptr) throw ScriptError("there is no window " + line.Text("close"));
  if (Hands* hands = HandsAt(*window, line)) hands->Close(*window);
}

template <class Kind>
Kind& Actions::Named(const ScriptLine& line, const char* verb) {
  const std::string name = line.Text(verb);
  Control* control = FindControl(stage_.session, name);
  if (control == nullptr) throw ScriptError("there is no control " + name);
  auto* kind = dynamic_cast<Kind*>(control);
  if (kind == nullptr) throw ScriptError("nobody can do that to " + name);
  return *kind;
}

Hands* Actions::HandsAt(const Control& control, const ScriptLine& line) {
  if (line.Boolean("force")) return &forcedHands_;
  if (!CanBeUsedNow(control)) return Refuse(ScriptName(control));
  BringToFront(control);
  return &hands_;
}

Hands* Actions::HandsAt(const Window& window, const ScriptLine& line) {
  if (line.Boolean("force")) return &forcedHands_;
  return window.IsVisible() ? &hands_ : Refuse(window.Name());
}

Hands* Actions::Refuse(const std::string& name) {
  stage_.lines.Print({{"refused", name}});
  return nullptr;
}

}  // namespace wheelwright::replay
