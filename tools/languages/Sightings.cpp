#include "languages/Sightings.h"

#include "editor/DefinitionRecord.h"
#include "editor/ShowVehicle.h"
#include "language/LanguageFiles.h"
#include "replay/Names.h"
#include "replay/PlainScreen.h"
#include "screen/Fields.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <utility>

namespace wheelwright::languages {
namespace {

constexpr char kMark = '\x01';

void MarkEntries(Vars& vars) {
  for (std::size_t entry = 0; entry < kUsedEntries; ++entry) {
    vars.Lang[entry] = kMark + std::to_string(entry);
  }
}

bool IsHint(const Session& session, const Control& control) {
  const FrmMain& main = session.main;
  const auto shownBy = [&](const auto& field) {
    const auto& hint = LabelsOf(main, field).hint;
    return hint && &*hint == &control;
  };
  return std::any_of(kHandlingFields.begin(), kHandlingFields.end(), shownBy) ||
         std::any_of(kDefinitionFields.begin(), kDefinitionFields.end(), shownBy);
}

// The texts of a control, and what they are to a person.
std::pair<Use, std::vector<std::string>> TextsOf(const Session& session, const Control& control) {
  if (const auto* list = dynamic_cast<const RowList*>(&control)) return {Use::Row, list->Rows()};
  if (const auto* tabs = dynamic_cast<const TabGroup*>(&control)) return {Use::Tab, tabs->Tabs()};
  if (const auto* report = dynamic_cast<const ReportList*>(&control)) {
    return {Use::Column, {report->Columns().begin(), report->Columns().end()}};
  }
  const auto* captioned = dynamic_cast<const Captioned*>(&control);
  if (captioned == nullptr) return {};
  const std::vector<std::string> texts = {captioned->Caption()};
  if (dynamic_cast<const Button*>(&control) != nullptr) return {Use::Button, texts};
  if (dynamic_cast<const Frame*>(&control) != nullptr) return {Use::Frame, texts};
  return {IsHint(session, control) ? Use::Hint : Use::Label, texts};
}

View SeenOn(const Session& session, const Control& control) {
  View seen;
  const auto [use, texts] = TextsOf(session, control);
  for (const std::string& text : texts) {
    if (!text.starts_with(kMark)) continue;
    seen.push_back({std::stoul(text.substr(1)), use, replay::ScriptName(control)});
  }
  return seen;
}

// The page of a tab group on which a control lies; no group for what is always in sight.
using Page = std::pair<const Control*, int>;

Page PageOf(const Control& control) {
  const Control* inner = &control;
  while (inner->Container() != nullptr) {
    if (dynamic_cast<const TabGroup*>(inner->Container()) != nullptr) {
      return {inner->Container(), inner->Page()};
    }
    inner = inner->Container();
  }
  return {nullptr, 0};
}

void Append(View& view, const View& more) { view.insert(view.end(), more.begin(), more.end()); }

void AddViewsOf(const Window& window, const Session& session, std::vector<View>& views) {
  View always;
  std::map<Page, View> pages;
  for (const Control* control : window.Controls()) {
    const Page page = PageOf(*control);
    Append(page.first == nullptr ? always : pages[page], SeenOn(session, *control));
  }
  if (pages.empty()) views.push_back(always);
  for (auto& [page, view] : pages) {
    Append(view, always);
    views.push_back(std::move(view));
  }
}

void ShowCar(Session& /*session*/) {}

void ShowBoat(Session& session) { ApplyLineKindCaptions(session, kPercentLine); }

void ShowPlane(Session& session) {
  session.vars.Ides.Reset();
  session.vars.Ides.At(session.vars.CurrentIde).Typ = "plane";
  ApplyTypeRules(session);
}

std::vector<View> ViewsWith(const std::function<void(Session&)>& show) {
  std::ostringstream unread;
  replay::PlainScreen screen(unread);
  Session& session = screen.stage.session;
  MarkEntries(session.vars);
  ApplyLanguage(session);
  show(session);
  std::vector<View> views;
  for (const Window* window : replay::WindowsOf(session)) AddViewsOf(*window, session, views);
  return views;
}

}  // namespace

std::vector<View> AllViews() {
  std::vector<View> views;
  for (const auto& show : {ShowCar, ShowBoat, ShowPlane}) {
    for (View& view : ViewsWith(show)) views.push_back(std::move(view));
  }
  return views;
}

std::map<std::size_t, Sighting> SightingsByEntry(const std::vector<View>& views) {
  std::map<std::size_t, Sighting> byEntry;
  for (const View& view : views) {
    for (const Sighting& sighting : view) byEntry.emplace(sighting.entry, sighting);
  }
  return byEntry;
}

}  // namespace wheelwright::languages
