#include "replay/Questions.h"

#include "core/CodePage.h"
#include "replay/Names.h"
#include "replay/Replies.h"
#include "replay/ScriptError.h"
#include "replay/Tables.h"

#include <array>

namespace wheelwright::replay {

const Verb<Questions>* Questions::Find(const ScriptLine& line) {
  static const std::array<Verb<Questions>, 6> kVerbs = {{
      {{"get", Form::Text, {}}, &Questions::Get},
      {{"vars", Form::True, {}}, &Questions::TellVars},
      {{"table", Form::Text, {}}, &Questions::TellTable},
      {{"lang", Form::Whole, {}}, &Questions::TellLang},
      {{"pointer", Form::True, {}}, &Questions::TellPointer},
      {{"shot", Form::Text, {{"file", Form::Text}}}, &Questions::Shoot},
  }};
  return VerbOf<Questions>(line, kVerbs);
}

void Questions::Get(const ScriptLine& line) {
  const std::string name = line.Text("get");
  if (name == "*") return TellAll();
  if (const Window* window = FindWindow(stage_.session, name)) {
    return stage_.lines.Print(ReplyAbout(*window));
  }
  const Control* control = FindControl(stage_.session, name);
  if (control == nullptr) throw ScriptError("there is no control " + name);
  Tell(*control);
}

void Questions::TellAll() {
  for (const Window* window : WindowsOf(stage_.session)) {
    stage_.lines.Print(ReplyAbout(*window));
    for (const Control* control : window->Controls()) Tell(*control);
  }
}

void Questions::Tell(const Control& control) {
  stage_.lines.Print(ReplyAbout(control));
  const std::string difference = hands_.Difference(control);
  if (difference.empty()) return;
  throw ScriptError(ScriptName(control) + " on screen: " + difference, ExitCode::ScreenDiffers);
}

void Questions::TellVars(const ScriptLine& /*line*/) { stage_.lines.Print(ReplyAbout(stage_.session.vars)); }

void Questions::TellTable(const ScriptLine& line) {
  const std::string table = line.Text("table");
  stage_.lines.Print({{"table", table}, {"records", RecordsOf(stage_.session.vars, table)}});
}

void Questions::TellLang(const ScriptLine& line) {
  const int entry = line.Whole("lang");
  if (entry < 0 || entry >= Vars::kLangEntries) {
    throw ScriptError("there is no language entry " + std::to_string(entry));
  }
  stage_.lines.Print(
      {{"lang", entry}, {"text", ToUnicode(stage_.session.vars.Lang.at(static_cast<std::size_t>(entry)))}});
}

void Questions::TellPointer(const ScriptLine& /*line*/) {
  stage_.lines.Print({{"pointer", NameOf(stage_.desktop.CurrentPointer())}});
}

void Questions::Shoot(const ScriptLine& line) {
  Window* window = FindWindow(stage_.session, line.Text("shot"));
  if (window == nullptr) throw ScriptError("there is no window " + line.Text("shot"));
  hands_.Shoot(*window, line.Text("file"));
}

}  // namespace wheelwright::replay
