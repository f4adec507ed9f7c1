#include "forms/qt/AreaMirrors.h"

#include "forms/qt/Areas.h"

#include <QVBoxLayout>

namespace wheelwright {
namespace {

QString FileOf(const Picture& picture) { return QString::fromStdString(picture.File()); }

QColor ColorOf(const Swatch& swatch) {
  if (!swatch.Color()) return {};
  const auto& [red, green, blue] = *swatch.Color();
  return {red, green, blue};
}

}  // namespace

PictureMirror::PictureMirror(Picture& picture, EventEdge& edge, QWidget* frame)
    : Mirror(picture, edge, *new PictureArea(frame)),
      picture_(picture),
      widget_(static_cast<PictureArea&>(Widget())) {
  auto* layout = new QVBoxLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&widget_);
  FollowAll();
}

void PictureMirror::Follow(Aspect aspect) {
  if (aspect != Aspect::Content) return;
  widget_.Show(FileOf(picture_));
  widget_.MoveTo({picture_.Left(), picture_.Top()});
}

SwatchMirror::SwatchMirror(Swatch& swatch, EventEdge& edge, QWidget* parent)
    : Mirror(swatch, edge, *new ColorArea(parent)),
      swatch_(swatch),
      widget_(static_cast<ColorArea&>(Widget())) {
  FollowAll();
}

void SwatchMirror::Follow(Aspect aspect) {
  if (aspect == Aspect::Content) widget_.Fill(ColorOf(swatch_));
}

}  // namespace wheelwright
