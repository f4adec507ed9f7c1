#include "language/LanguageFiles.h"

#include "core/CodePage.h"
#include "core/Text.h"
#include "editor/ShowVehicle.h"
#include "gamefiles/Lines.h"
#include "language/ApplyLanguage.h"

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

// Writes the line over the entry, whose room is used again: a line may be as long as the file.
void PutWithLineBreaks(std::string& entry, std::string_view line) {
  entry.clear();
  entry.reserve(line.size());
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool lineBreak = line[i] == '\\' && i + 1 < line.size() && FoldCase(line[i + 1]) == 'n';
    if (lineBreak) {
      entry += kLineEnd;
      ++i;
    } else {
      entry += line[i];
    }
  }
}

void ReadLanguage(Session& session, std::string_view text) {
  std::size_t entry = 0;
  for (const std::string_view line : Lines(text)) {
    if (entry >= session.vars.Lang.size()) throw Failure(FailureNumber::SubscriptOutOfRange);
    PutWithLineBreaks(session.vars.Lang[entry], line);
    ++entry;
  }
}

void ChooseRowWithText(PickList& list, const std::string& text) {
  const auto found = std::find(list.Rows().begin(), list.Rows().end(), text);
  if (found == list.Rows().end()) throw Failure(FailureNumber::InvalidPropertyValue);
  list.Choose(static_cast<int>(found - list.Rows().begin()));
}

}  // namespace

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
  ChooseRowWithText(list,
                    FromUnicode(session.settings.GetOr("Settings", "Language", languages.front())));
  LoadChosenLanguage(session);
}

void ChooseLanguage(Session& session) {
  LoadChosenLanguage(session);
  session.settings.Set("Settings", "Language", ToUnicode(session.main.cmbSprache.Text()));
  ShowVehicle(session);
}

void LoadChosenLanguage(Session& session) {
  const std::string file =
      session.vars.AppPath + ToUnicode(session.main.cmbSprache.Text()) + std::string(kExtension);
  if (session.files.Exists(file)) ReadLanguage(session, session.files.Read(file));
  ApplyLanguage(session);
}

}  // namespace wheelwright
