#include "language/LanguageFiles.h"

#include "core/CodePage.h"
#include "editor/ShowVehicle.h"
#include "formats/LanguageFile.h"
#include "screen/Fields.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace wheelwright {
namespace {

constexpr std::string_view kExtension = ".lng";

// UTF-8, without the extension.
std::vector<std::string> LanguagesBeside(const Session& session) {
  std::vector<std::string> languages;
  for (const std::string& name : session.files.List(session.vars.AppPath)) {
    if (name.ends_with(kExtension)) {
      languages.push_back(name.substr(0, name.size() - kExtension.size()));
    }
  }
  return languages;
}

void ChooseRowWithText(PickList& list, const std::string& text) {
  const auto found = std::find(list.Rows().begin(), list.Rows().end(), text);
  if (found == list.Rows().end()) throw Failure(FailureNumber::InvalidPropertyValue);
  list.Choose(static_cast<int>(found - list.Rows().begin()));
}

}  // namespace

void ApplyLanguage(Session& session) {
  const auto& lang = session.vars.Lang;
  session.main.Translate(lang);
  session.error.Translate(lang);
  session.exporter.Translate(lang);
  for (const FieldRow<Car>& field : kHandlingFields) {
    auto* const list = InputOf<PickList>(session.main, field);
    for (int row = 0; list != nullptr && row < list->Count(); ++row) {
      list->ReplaceRow(row, lang.at(static_cast<std::size_t>(field.entries.firstLang + row)));
    }
  }
}

void DiscoverLanguages(Session& session) {
  const std::vector<std::string> languages = LanguagesBeside(session);
  if (languages.empty()) {
    session.desktop.ShowError("No language-file found! Please reinstall the application.");
    session.desktop.EndProgram();
    return;
  }
  PickList& list = session.main.cmbSprache;
  list.Clear();
  for (const std::string& language : languages) list.AddRow(FromUnicode(language));
  ChooseRowWithText(list, FromUnicode(session.settings.GetOr("Settings", "Language", languages.front())));
  LoadChosenLanguage(session);
}

void ChooseLanguage(Session& session) {
  LoadChosenLanguage(session);
  session.settings.Set("Settings", "Language", ToUnicode(session.main.cmbSprache.Text()));
  ShowVehicle(session);
}

void LoadChosenLanguage(Session& session) {
  const std::string language = ToUnicode(session.main.cmbSprache.Text());
  const std::string file = session.vars.AppPath + language + std::string(kExtension);
  if (session.files.Exists(file)) {
    ReadLanguage(session.files.Read(file), session.vars.Lang);
    session.desktop.SetLanguage(language);
  }
  ApplyLanguage(session);
}

}  // namespace wheelwright
