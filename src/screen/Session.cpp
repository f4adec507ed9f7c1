#include "screen/Session.h"

#include "core/CodePage.h"

namespace wheelwright {

std::string Message(const Session& session, LangEntry entry) { return ToUnicode(session.vars.Lang[entry]); }

void Guarded(Session& session, const std::function<void()>& steps, const std::function<void()>& atOnce) {
  try {
    steps();
  } catch (...) {
    const Failure failure = FailureInFlight();
    Run(atOnce);
    if (!failure.IsCancel()) session.desktop.ShowError(failure.Message());
  }
}

}  // namespace wheelwright
