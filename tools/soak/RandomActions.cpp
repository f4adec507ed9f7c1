#include "soak/RandomActions.h"

#include "replay/Names.h"
#include "screen/Controls.h"
#include "screen/Lists.h"

#include <array>

namespace wheelwright::soak {
namespace {

constexpr std::array<const char*, 44> kPieces = {
    "1500.0",  "-0.5", "0",      "1,5",    "2e-3",   " ",      "  ",  ",",   ";",     "#",   "%",
    "!",       "$",    "-",      "\t",     "&",      "&&",     "\"",  "'",   "\\",    "\\n", "/",
    "<b>",     "ä",    "Ü",      "ß",      "€",      "Ž",      "ž",   "ÿ",   "Ÿ",     "→",   "😀",
    "e\u0301", "אב",   "\u00A0", "\u00AD", "\u200B", "NEWCAR", "BUS", "car", "plane", "end", "0000a00"};

// What is typed into a box, UTF-8: numbers, words, marks of the file formats, letters of many
// kinds.
std::string TypedText(testing::Dice& dice) {
  std::string text;
  const int pieces = dice.OneIn(20) ? 9 : dice.Below(4);
  for (int i = 0; i < pieces; ++i) text += dice.OneOf(kPieces);
  return text;
}

Step StepAt(const Control& control, const std::string& verb, bool isForced) {
  Step step;
  step.verb = verb;
  step.control = replay::ScriptName(control);
  step.action[verb] = step.control;
  step.isForced = isForced;
  return step;
}

bool OffersNothing(const Control& control) {
  return dynamic_cast<const Label*>(&control) != nullptr || dynamic_cast<const Frame*>(&control) != nullptr ||
         dynamic_cast<const Picture*>(&control) != nullptr ||
         dynamic_cast<const Swatch*>(&control) != nullptr ||
         dynamic_cast<const ReportList*>(&control) != nullptr;
}

const Control& OutermostAround(const Control& control) {
  const Control* outermost = &control;
  while (outermost->Container() != nullptr) outermost = outermost->Container();
  return *outermost;
}

Step Edit(testing::Dice& dice, const TextBox& box, bool isForced) {
  switch (dice.Below(4)) {
    case 0: {
      Step step = StepAt(box, "append", isForced);
      step.action["text"] = TypedText(dice);
      return step;
    }
    case 1: {
      Step step = StepAt(box, "erase", isForced);
      step.action["count"] = dice.Below(4);
      return step;
    }
    default: {
      Step step = StepAt(box, "type", isForced);
      step.action["text"] = TypedText(dice);
      return step;
    }
  }
}

std::optional<Step> ChooseRow(testing::Dice& dice, const RowList& list, const char* verb, const char* part,
                              bool isForced) {
  if (list.Count() == 0) return std::nullopt;
  Step step = StepAt(list, verb, isForced);
  step.action[part] = dice.Below(list.Count());
  return step;
}

Step Mark(testing::Dice& dice, const MarkList& list, bool isForced) {
  Step step = StepAt(list, "mark", isForced);
  step.action["rows"] = Json::array();
  for (int row = 0; row < list.Count(); ++row) {
    if (dice.OneIn(2)) step.action["rows"].push_back(row);
  }
  return step;
}

template <class Value>
Step With(Step step, const char* part, const Value& value) {
  step.action[part] = value;
  return step;
}

}  // namespace

std::vector<Control*> AllControls(Session& session) {
  std::vector<Control*> controls;
  for (const Window* window : replay::WindowsOf(session)) {
    for (Control* control : window->Controls()) {
      if (!OffersNothing(*control)) controls.push_back(control);
    }
  }
  return controls;
}

std::vector<Control*> ControlsOnTabs(Session& session) {
  const std::array<const Control*, 3> groups = {&session.main.SSTab1, &session.main.SSTab2,
                                                &session.main.SSTab3};
  const Control* group = groups.at(static_cast<std::size_t>(session.vars.CurrentFileType));
  std::vector<Control*> controls;
  for (Control* control : session.main.Controls()) {
    if (!OffersNothing(*control) && &OutermostAround(*control) == group) controls.push_back(control);
  }
  return controls;
}

std::optional<Step> RandomAction(testing::Dice& dice, Control& control, bool isForced) {
  if (dynamic_cast<Button*>(&control) != nullptr) return Click(control, isForced);
  if (auto* box = dynamic_cast<TextBox*>(&control)) return Edit(dice, *box, isForced);
  if (dynamic_cast<CheckBox*>(&control) != nullptr)
    return With(StepAt(control, "tick", isForced), "state", dice.Below(2));
  if (dynamic_cast<ScrollBar*>(&control) != nullptr)
    return With(StepAt(control, "scroll", isForced), "value", dice.Between(-2, 300));
  if (auto* list = dynamic_cast<MarkList*>(&control)) return Mark(dice, *list, isForced);
  if (auto* list = dynamic_cast<PickList*>(&control)) return ChooseRow(dice, *list, "pick", "row", isForced);
  if (auto* list = dynamic_cast<ListBox*>(&control)) return ChooseRow(dice, *list, "row", "to", isForced);
  if (auto* group = dynamic_cast<TabGroup*>(&control))
    return With(StepAt(control, "tab", isForced), "to", dice.Below(static_cast<int>(group->Tabs().size())));
  return std::nullopt;
}

Step Click(const Control& button, bool isForced) { return StepAt(button, "click", isForced); }

}  // namespace wheelwright::soak
