// A session without any real window.
#pragma once

#include "replay/PlainHands.h"
#include "replay/Stage.h"

#include <optional>
#include <ostream>
#include <string>

namespace wheelwright::replay {

struct PlainScreen {
  explicit PlainScreen(std::ostream& result);

  Stage stage;
  PlainHands hands;
};

// The size in the header of a picture file; nothing if it can't be read.
std::optional<PictureSize> SizeInPictureFile(const std::string& path);

}  // namespace wheelwright::replay
