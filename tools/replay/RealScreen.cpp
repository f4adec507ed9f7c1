#include "replay/RealScreen.h"

#include "forms/qt/widgets/Pictures.h"

#include <optional>
#include <string>

#include <QImage>

namespace wheelwright::replay {
namespace {

std::optional<PictureSize> SizeOfReadPicture(const std::string& file) {
  const QImage picture = ReadPicture(file);
  if (picture.isNull()) return std::nullopt;
  return PictureSize{picture.width(), picture.height()};
}

}  // namespace

RealScreen::RealScreen(std::ostream& result)
    : stage(result, SizeOfReadPicture), windows(stage.session, stage.edge), hands(windows) {}

void RealScreen::Fill(QSize size) {
  windows.FitInto(size);
  windows.Of(stage.session.main).resize(size);
}

}  // namespace wheelwright::replay
