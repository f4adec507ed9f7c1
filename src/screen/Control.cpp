#include "screen/Control.h"

#include <algorithm>

namespace wheelwright {

void Window::SetTitle(std::string text) {
  title_ = std::move(text);
  Run(notice);
}

void Window::SetVisible(bool visible) {
  visible_ = visible;
  Run(notice);
}

void Window::Translate(std::span<const std::string> lang) {
  for (Control* control : controls_) control->Translate(lang);
}

Control* Window::Find(const std::string& name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

Control::Control(Window& window, std::string name) : window_(window), name_(std::move(name)) {
  window.controls_.push_back(this);
}

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Tell(Aspect::State);
}

void Control::SetVisible(bool visible) {
  visible_ = visible;
  Tell(Aspect::State);
}

bool Control::IsEnabledHere() const {
  return enabled_ && (container_ == nullptr || container_->IsEnabledHere());
}

bool Control::IsVisibleHere() const {
  return visible_ && (container_ == nullptr || container_->IsVisibleHere());
}

void Control::PutInto(Control& container, int page) {
  container_ = &container;
  page_ = page;
}

}  // namespace wheelwright
