#include "replay/Replies.h"

#include "core/CodePage.h"
#include "replay/Names.h"
#include "screen/Controls.h"
#include "screen/Lists.h"

#include <string>
#include <vector>

namespace wheelwright::replay {
namespace {

template <class Texts>
Json UnicodeList(const Texts& texts) {
  Json list = Json::array();
  for (const std::string& text : texts) list.push_back(ToUnicode(text));
  return list;
}

void AddParts(Json& reply, const TextBox& box) { reply["text"] = ToUnicode(box.Text()); }

void AddParts(Json& reply, const Captioned& control) { reply["caption"] = ToUnicode(control.Caption()); }

void AddParts(Json& reply, const CheckBox& box) {
  reply["caption"] = ToUnicode(box.Caption());
  reply["state"] = box.State();
}

void AddParts(Json& reply, const RowList& list) {
  reply["rows"] = UnicodeList(list.Rows());
  reply["row"] = list.Row();
}

void AddParts(Json& reply, const MarkList& list) {
  reply["rows"] = UnicodeList(list.Rows());
  reply["row"] = list.Row();
  reply["marked"] = list.Marked();
}

void AddParts(Json& reply, const ScrollBar& bar) {
  reply["value"] = bar.Value();
  reply["min"] = ScrollBar::kMinimum;
  reply["max"] = ScrollBar::kMaximum;
}

void AddParts(Json& reply, const TabGroup& group) {
  reply["tabs"] = UnicodeList(group.Tabs());
  reply["tab"] = group.Tab();
}

void AddParts(Json& reply, const Picture& picture) {
  reply["file"] = picture.File();
  reply["left"] = picture.Left();
  reply["top"] = picture.Top();
  reply["width"] = picture.Width();
  reply["height"] = picture.Height();
}

void AddParts(Json& reply, const Swatch& swatch) {
  reply["color"] = swatch.Color() ? Json(*swatch.Color()) : Json();
}

void AddParts(Json& reply, const ReportList& list) {
  reply["columns"] = UnicodeList(list.Columns());
  reply["rows"] = Json::array();
  for (const ReportList::Row& row : list.Rows()) reply["rows"].push_back(UnicodeList(row));
}

// Whether the control is of that kind; its parts are then in the reply.
template <class Kind>
bool AddIfIs(Json& reply, const Control& control) {
  const auto* kind = dynamic_cast<const Kind*>(&control);
  if (kind != nullptr) AddParts(reply, *kind);
  return kind != nullptr;
}

// A kind stands before the one that it is derived from.
template <class... Kinds>
void AddPartsOfKind(Json& reply, const Control& control) {
  (AddIfIs<Kinds>(reply, control) || ...);
}

}  // namespace

Json ReplyAbout(const Control& control) {
  Json reply{{"get", ScriptName(control)}};
  AddPartsOfKind<TextBox, CheckBox, Captioned, MarkList, RowList, ScrollBar, TabGroup, Picture, Swatch,
                 ReportList>(reply, control);
  reply["enabled"] = control.IsEnabledHere();
  reply["visible"] = control.IsVisibleHere();
  return reply;
}

Json ReplyAbout(const Window& window) {
  return {{"get", window.Name()}, {"title", window.Title()}, {"visible", window.IsVisible()}};
}

Json ReplyAbout(const Vars& vars) {
  Json values{{"AppPath", vars.AppPath},
              {"CurrentFile", vars.CurrentFile},
              {"CurrentFileType", vars.CurrentFileType},
              {"CurrentCar", vars.CurrentCar},
              {"CurrentIde", vars.CurrentIde},
              {"CurrentCarColor", vars.CurrentCarColor},
              {"IsSaved", vars.IsSaved}};
  return {{"vars", std::move(values)}};
}

}  // namespace wheelwright::replay
