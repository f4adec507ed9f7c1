#include "replay/Names.h"

namespace wheelwright::replay {

std::array<Window*, 3> WindowsOf(Session& session) {
  return {&session.main, &session.error, &session.exporter};
}

Window* FindWindow(Session& session, const std::string& name) {
  for (Window* window : WindowsOf(session)) {
    if (window->Name() == name) return window;
  }
  return nullptr;
}

Control* FindControl(Session& session, const std::string& name) {
  const std::size_t dot = name.find('.');
  if (dot == std::string::npos) return session.main.Find(name);
  const Window* window = FindWindow(session, name.substr(0, dot));
  if (window == nullptr || window == &session.main) return nullptr;
  return window->Find(name.substr(dot + 1));
}

std::string ScriptName(const Control& control) {
  const std::string& window = control.Owner().Name();
  return window == "frmMain" ? control.Name() : window + "." + control.Name();
}

}  // namespace wheelwright::replay
