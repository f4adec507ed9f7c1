// The two ways in which a handler meets a failure: a guarded one catches it, any other lets it
// pass.
#pragma once

#include "screen/Session.h"

#include <functional>

namespace wheelwright {

// Runs the steps of a guarded handler. A failure ends them: `atOnce` runs first, then a cancelled
// file dialog ends without a word and any other failure shows its message in an error box. What the
// steps did until then stays done.
void Guarded(Session& session, const std::function<void()>& steps,
             const std::function<void()>& atOnce = {});

}  // namespace wheelwright
