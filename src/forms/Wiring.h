// Which event of which control runs which handler: the one place that knows them all.
#pragma once

#include "screen/Session.h"

namespace wheelwright {

// Wires every event of the three windows. The session must outlive its controls' events.
void WireEvents(Session& session);

}  // namespace wheelwright
