// What must hold after every step of a session, whatever the person did.
#pragma once

#include "oracle/HandlingReference.h"
#include "replay/Stage.h"
#include "soak/Folder.h"
#include "soak/Moment.h"
#include "soak/SessionState.h"
#include "soak/Step.h"
#include "soak/StepResult.h"

#include <optional>

namespace wheelwright::soak {

class Laws {
 public:
  // The session has been started.
  Laws(replay::Stage& stage, const Folder& folder);

  // Before each step, and after it; throws LawBroken.
  void Before(const Step& step);
  void After(const Step& step, const StepResult& result);
  // At the end of the session.
  void AtEnd();

 private:
  void NoteWhatIsShown(const Moment& moment);
  void NoteVehicle(const Vars& vars);

  replay::Stage& stage_;
  const Folder& folder_;
  SessionState held_;
  std::optional<ExpectedHandling> expectedHandling_;
  Shown shown_;
};

}  // namespace wheelwright::soak
