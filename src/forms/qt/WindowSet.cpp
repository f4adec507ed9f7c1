#include "forms/qt/WindowSet.h"

namespace wheelwright {

WindowSet::WindowSet(Session& session, EventEdge& edge) : session_(session), mirrors_(edge) {
  main_ = std::make_unique<MainWindow>(session.main, edge, mirrors_);
  QWidget* owner = main_.get();
  error_ = std::make_unique<ErrorWindow>(session.error, edge, mirrors_, owner);
  exporter_ = std::make_unique<ExportWindow>(session.exporter, edge, mirrors_, owner);
}

WindowShell& WindowSet::Of(const Window& window) {
  if (&window == &session_.error) return *error_;
  if (&window == &session_.exporter) return *exporter_;
  return *main_;
}

}  // namespace wheelwright
