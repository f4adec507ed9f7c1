#include "forms/qt/mirrors/AreaMirrors.h"

#include <QVBoxLayout>

namespace wheelwright {
namespace {

QColor ColorOf(const Swatch& swatch) {
  if (!swatch.Color()) return {};
  const auto& [red, green, blue] = *swatch.Color();
  return {red, green, blue};
}

}  // namespace

PictureMirror::PictureMirror(Picture& picture, EventEdge& edge, QWidget* frame)
    : MirrorOf(picture, edge, *new PictureArea(frame)) {
  auto* layout = new QVBoxLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&widget_);
  FollowAll();
}

void PictureMirror::FollowContent() { widget_.Show(plain_.File(), {plain_.Left(), plain_.Top()}); }

SwatchMirror::SwatchMirror(Swatch& swatch, EventEdge& edge, QWidget* parent)
    : MirrorOf(swatch, edge, *new ColorArea(parent)) {
  FollowAll();
}

void SwatchMirror::FollowContent() { widget_.Fill(ColorOf(plain_)); }

}  // namespace wheelwright
