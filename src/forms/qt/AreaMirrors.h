// The mirrors of what is only looked at: picture and swatch.
#pragma once

#include "forms/qt/Mirror.h"
#include "screen/Controls.h"

namespace wheelwright {

class PictureArea;
class ColorArea;

// The picture lies over the whole inside of its frame, which cuts it.
class PictureMirror : public Mirror {
 public:
  PictureMirror(Picture& picture, EventEdge& edge, QWidget* frame);

 protected:
  void Follow(Aspect aspect) override;

 private:
  const Picture& picture_;
  PictureArea& widget_;
};

class SwatchMirror : public Mirror {
 public:
  SwatchMirror(Swatch& swatch, EventEdge& edge, QWidget* parent);

 protected:
  void Follow(Aspect aspect) override;

 private:
  const Swatch& swatch_;
  ColorArea& widget_;
};

}  // namespace wheelwright
