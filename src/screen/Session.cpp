#include "screen/Session.h"

#include "core/CodePage.h"

namespace wheelwright {

std::string Message(const Session& session, int langEntry) {
  return ToUnicode(session.vars.Lang.at(static_cast<std::size_t>(langEntry)));
}

}  // namespace wheelwright
