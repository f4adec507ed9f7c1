#include "soak/PreparedAnswers.h"

#include "core/Failure.h"
#include "core/Numbers.h"
#include "replay/Names.h"
#include "replay/Usable.h"

#include <map>
#include <string>
#include <vector>

namespace wheelwright::soak {
namespace {

// The prepared index of the open dialog must be a number, or the dialog never comes up.
bool OpenDialogComesUp(const Session& session) {
  try {
    ToInteger16(session.settings.GetOr("Settings", "FileIndex", "0"));
    return true;
  } catch (const Failure&) {
    return false;
  }
}

// The files to choose from. Equal names multiply with every load and save, so a file that has grown
// big is left alone.
std::vector<std::string> NamesInData(const Folder& folder) {
  constexpr std::size_t kBig = 20000;
  std::vector<std::string> names;
  for (const auto& [name, bytes] : folder.Contents()) {
    if (name.starts_with("data/") && bytes.size() < kBig) names.push_back(name);
  }
  return names;
}

std::string NewName(testing::Dice& dice) {
  return dice.OneOf({"data/new.cfg", "data/new.ide", "data/new.dat", "data/missing.cfg", "data/none/x.cfg",
                     "data/folder.cfg", "data/\u00E4 &.cfg"});
}

int FilterFor(testing::Dice& dice, const std::string& name) {
  if (dice.OneIn(20)) return dice.Below(5);
  if (name.find(".ide") != std::string::npos) return 2;
  return name.find(".dat") != std::string::npos ? 3 : 1;
}

Json OpenAnswer(testing::Dice& dice, const Folder& folder) {
  if (dice.OneIn(14)) return "cancel";
  const std::vector<std::string> names = NamesInData(folder);
  const std::string name = dice.OneIn(20) || names.empty() ? NewName(dice) : dice.OneOf(names);
  return {{"file", folder.PathOf(name)}, {"filter", FilterFor(dice, name)}};
}

Json SaveAnswer(testing::Dice& dice, const Folder& folder) {
  if (dice.OneIn(8)) return "cancel";
  const std::vector<std::string> names = NamesInData(folder);
  const std::string name = dice.OneIn(2) || names.empty() ? NewName(dice) : dice.OneOf(names);
  Json answer{{"file", folder.PathOf(name)}};
  if (dice.OneIn(3)) answer["filter"] = 1;
  return answer;
}

class Asker {
 public:
  Asker(testing::Dice& dice, Session& session, const Folder& folder)
      : dice_(dice), session_(session), folder_(folder) {}

  void Prepare(Step& step) {
    static const std::map<std::string, void (Asker::*)(Step&)> kAsking = {
        {"cmdOpen", &Asker::Open},
        {"cmdSaveAs", &Asker::SaveAs},
        {"cmdUndo", &Asker::YesOrNo},
        {"cmdDeleteCar", &Asker::YesOrNo},
        {"cmdBackup", &Asker::Backup},
        {"cmdDeleteColor", &Asker::DeleteColor},
        {"cmdRemColor", &Asker::RemoveColor},
        {"cmdImportCar", &Asker::Import},
        {"cmdEnde", &Asker::End},
        {"frmMain", &Asker::End},
        {"frmExport.cmdExport", &Asker::Export},
        {"frmExport.Spez", &Asker::Export}};
    const auto asking = kAsking.find(step.control);
    if (asking != kAsking.end()) (this->*asking->second)(step);
  }

 private:
  void YesOrNo(Step& step) { step.answers.emplace_back(dice_.OneIn(4) ? "no" : "yes"); }

  void Open(Step& step) {
    if (!session_.vars.IsSaved) {
      YesOrNo(step);
      if (step.answers.back() == "no") return;
    }
    if (OpenDialogComesUp(session_)) step.answers.push_back(OpenAnswer(dice_, folder_));
  }

  void SaveAs(Step& step) { step.answers.push_back(SaveAnswer(dice_, folder_)); }
  void Import(Step& step) { step.answers.push_back(OpenAnswer(dice_, folder_)); }

  void Backup(Step& step) {
    const std::string& file = session_.vars.CurrentFile;
    if (!file.empty() && session_.files.Exists(file + ".backup")) YesOrNo(step);
  }

  void DeleteColor(Step& step) {
    const ListBox& list = session_.main.lstColors;
    if (list.Row() >= 0 || list.Count() >= 1) YesOrNo(step);
  }

  void RemoveColor(Step& step) {
    const ListBox& list = session_.main.lstCarColors;
    if (list.Row() >= 0 && list.Count() >= 1) YesOrNo(step);
  }

  void Export(Step& step) {
    if (session_.exporter.lst2.Count() > 0) step.answers.push_back(SaveAnswer(dice_, folder_));
  }

  void End(Step& step) {
    if (!session_.vars.IsSaved) YesOrNo(step);
  }

  testing::Dice& dice_;
  Session& session_;
  const Folder& folder_;
};

bool WillBeRefused(Session& session, const Step& step) {
  if (step.isForced) return false;
  if (const Window* window = replay::FindWindow(session, step.control)) return !window->IsVisible();
  return !replay::CanBeUsedNow(*replay::FindControl(session, step.control));
}

}  // namespace

void PrepareAnswers(testing::Dice& dice, Session& session, const Folder& folder, Step& step) {
  if (!WillBeRefused(session, step)) Asker(dice, session, folder).Prepare(step);
}

}  // namespace wheelwright::soak
