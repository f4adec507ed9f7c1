#include "forms/qt/SpokenCaption.h"

namespace wheelwright {

void SpokenCaption::AddNamed(QWidget& widget) {
  named_.push_back(&widget);
  widget.setAccessibleName(caption_);
}

void SpokenCaption::AddDescribed(QWidget& widget) {
  described_.push_back(&widget);
  widget.setAccessibleDescription(caption_);
}

void SpokenCaption::Say(const QString& caption) {
  caption_ = caption;
  for (QWidget* widget : named_) widget->setAccessibleName(caption);
  for (QWidget* widget : described_) widget->setAccessibleDescription(caption);
}

}  // namespace wheelwright
