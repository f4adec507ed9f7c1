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

QString Name(const QColor& color) { return color.isValid() ? color.name() : QString("none"); }

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

std::string PictureMirror::ContentDifference() const {
  const std::string file = Compare("file", widget_.File(), FileOf(picture_));
  if (!file.empty()) return file;
  const QImage& image = widget_.Image();
  const std::string width = Compare("width", image.width(), picture_.Width());
  if (!width.empty()) return width;
  const std::string height = Compare("height", image.height(), picture_.Height());
  if (!height.empty()) return height;
  return widget_.Place() == QPointF(picture_.Left(), picture_.Top()) ? "" : "another place";
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

std::string SwatchMirror::ContentDifference() const {
  return Compare("color", Name(widget_.Color()), Name(ColorOf(swatch_)));
}

}  // namespace wheelwright
