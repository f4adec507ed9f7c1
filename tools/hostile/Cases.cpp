#include "hostile/Cases.h"

#include <array>
#include <utility>

namespace wheelwright::hostile {
namespace {

std::string NameOf(int filterIndex) {
  constexpr std::array<const char*, 3> kNames = {"in.cfg", "in.ide", "in.dat"};
  return kNames.at(static_cast<std::size_t>(filterIndex - 1));
}

}  // namespace

Stage::Stage(std::string folder) : folder_(std::move(folder)) {
  if (!files_.Exists(In("Deutsch.lng"))) {
    files_.Write(In("Deutsch.lng"), testing::LanguageTextOf('E'));
  }
  s.Start(folder_);
}

Stage& Stage::Open(const std::string& name, int filterIndex) {
  s.Open(In(name), filterIndex);
  return *this;
}

Stage& Stage::Click(Button& button) {
  s.Click(button);
  return *this;
}

std::string Stage::Outcome() const {
  const Vars& vars = s.vars;
  const int records = vars.Cars.Count() + vars.Ides.Count() + vars.CarColors.Count();
  return (desktop_.shown.empty() ? "nothing" : desktop_.shown.back()) + ", " +
         std::to_string(s.main.cmbAutos.Count()) + " names, " + std::to_string(records) +
         " records, " + std::to_string(s.session.error.lstErrors.Rows().size()) + " problems";
}

std::string OpenAndSave(const std::string& folder, int filterIndex) {
  Stage stage(folder);
  const std::string opened = stage.Open(NameOf(filterIndex), filterIndex).Outcome();
  return opened + "; " + stage.Click(stage.s.main.cmdSave).Outcome();
}

std::string JustOpen(const std::string& folder, int filterIndex) {
  Stage stage(folder);
  return stage.Open(NameOf(filterIndex), filterIndex).Outcome();
}

}  // namespace wheelwright::hostile
