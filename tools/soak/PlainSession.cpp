#include "soak/PlainSession.h"

#include "oracle/Dice.h"
#include "replay/PlainScreen.h"
#include "replay/Player.h"
#include "soak/Laws.h"
#include "soak/Person.h"
#include "soak/RandomFiles.h"

#include <exception>
#include <sstream>

namespace wheelwright::soak {
namespace {

class PlainSession {
 public:
  PlainSession(std::uint64_t seed, const Folder& folder, Questions questions)
      : dice_(seed),
        questions_(questions),
        folder_(folder),
        player_(screen_.stage, screen_.hands, folder.PathOf("app")) {
    recording_.seed = seed;
    recording_.before = RandomFiles(dice_);
    folder_.Fill(recording_.before);
  }

  Recording Play() {
    try {
      PlayAll();
    } catch (const std::exception& error) {
      recording_.complaint = error.what();
    }
    recording_.result = result_.str();
    recording_.after = folder_.Contents();
    return std::move(recording_);
  }

 private:
  void PlayAll() {
    Start();
    if (player_.HasEnded()) return;
    Laws laws(screen_.stage, folder_);
    Person person(dice_, screen_.stage.session, folder_);
    const int steps = dice_.Between(8, 50);
    for (int i = 0; i < steps && !player_.HasEnded() && !HasGrownBig(); ++i) {
      PlayStep(person.Next(), laws);
      if (dice_.OneIn(16)) AskForControls();
    }
    laws.AtEnd();
    AskForEverything();
  }

  // A save writes every vehicle once for each row of its name, which multiplies equal names.
  bool HasGrownBig() const {
    constexpr int kMostLines = 4000;
    const Session& session = screen_.stage.session;
    return session.vars.Cars.Count() * session.main.cmbAutos.Count() > kMostLines;
  }

  void Start() {
    if (dice_.OneIn(10)) PlayLine(R"({"setting":["Settings","Language","Odd"]})");
    if (dice_.OneIn(60)) PlayLine(R"({"setting":["Settings","FileIndex","one"]})");
    PlayLine(R"({"start":true})");
  }

  void PlayStep(const Step& step, Laws& laws) {
    for (const Json& answer : step.answers) PlayLine(Json{{"answer", answer}}.dump());
    laws.Before(step);
    const auto begin = result_.tellp();
    PlayLine(step.action.dump());
    laws.After(step, StepResult(result_.str().substr(static_cast<std::size_t>(begin))));
  }

  bool MayAsk() const { return questions_ == Questions::Many && !player_.HasEnded(); }

  void AskForControls() {
    if (MayAsk()) PlayLine(R"({"get":"*"})");
  }

  void AskForEverything() {
    AskForControls();
    if (!MayAsk()) return;
    PlayLine(R"({"vars":true})");
    for (const char* table : {"Cars", "Ides", "Colors", "CarColors"}) {
      PlayLine(Json{{"table", table}}.dump());
      PlayLine(Json{{"table", std::string("Kopie_") + table}}.dump());
    }
    PlayLine(R"({"settings":true})");
    PlayLine(R"({"pointer":true})");
  }

  void PlayLine(const std::string& line) {
    recording_.script.push_back(line);
    player_.PlayLine(line);
  }

  testing::Dice dice_;
  Questions questions_;
  const Folder& folder_;
  std::ostringstream result_;
  replay::PlainScreen screen_{result_};
  replay::Player player_;
  Recording recording_;
};

}  // namespace

Recording PlayPlainly(std::uint64_t seed, const Folder& folder, Questions questions) {
  return PlainSession(seed, folder, questions).Play();
}

}  // namespace wheelwright::soak
