#include "replay/PlainScreen.h"

#include "core/DiskFiles.h"
#include "core/Failure.h"
#include "replay/PictureHeader.h"

namespace wheelwright::replay {

PlainScreen::PlainScreen(std::ostream& result) : stage(result, SizeInPictureFile), hands(stage.edge) {}

std::optional<PictureSize> SizeInPictureFile(const std::string& path) {
  try {
    return SizeInHeader(DiskFiles().Read(path));
  } catch (const Failure&) {
    return {};
  }
}

}  // namespace wheelwright::replay
