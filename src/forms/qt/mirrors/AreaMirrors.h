// The mirrors of what is only looked at: picture and swatch.
#pragma once

#include "forms/qt/mirrors/Mirror.h"
#include "forms/qt/widgets/Pictures.h"
#include "forms/qt/widgets/Swatches.h"
#include "screen/Controls.h"

namespace wheelwright {

// The picture lies over the whole inside of its frame, which cuts it.
class PictureMirror : public MirrorOf<Picture, PictureArea> {
 public:
  PictureMirror(Picture& picture, EventEdge& edge, QWidget* frame);

 protected:
  void FollowContent() override;
};

class SwatchMirror : public MirrorOf<Swatch, ColorArea> {
 public:
  SwatchMirror(Swatch& swatch, EventEdge& edge, QWidget* parent);

 protected:
  void FollowContent() override;
};

}  // namespace wheelwright
