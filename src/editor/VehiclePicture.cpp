#include "editor/VehiclePicture.h"

#include "core/CodePage.h"
#include "core/DiskFiles.h"
#include "core/Text.h"

#include <optional>
#include <vector>

namespace wheelwright {
namespace {

// Only names that the folder itself lists are candidates, so a key never reaches outside it.
std::optional<std::string> FindName(const std::vector<std::string>& names, const std::string& wanted) {
  std::optional<std::string> found;
  for (const std::string& name : names) {
    const std::string inCodePage = FromUnicode(name);
    if (inCodePage == wanted) return name;
    if (!found && EqualsIgnoringCase(inCodePage, wanted)) found = name;
  }
  return found;
}

std::optional<std::string> FindPicture(const Session& session, const std::string& key) {
  const std::string folder = session.vars.AppPath + "gfx";
  const std::vector<std::string> names = session.files.List(folder);
  for (const std::string& wanted : {key + ".bmp", key + ".jpg", std::string("nopictureavailable.jpg")}) {
    if (const auto name = FindName(names, wanted)) return folder + kPathSeparator + *name;
  }
  return std::nullopt;
}

}  // namespace

void ShowVehiclePicture(Session& session, const std::string& key, Picture& image) {
  const std::optional<std::string> file = FindPicture(session, key);
  const std::optional<PictureSize> size = file ? session.desktop.SizeOfPicture(*file) : std::nullopt;
  if (!size) {
    image.Clear();
    return;
  }
  image.Show(*file, size->width, size->height);
  image.MoveTo(kPictureFrameWidth / 2.0 - size->width / 2.0, kPictureFrameHeight / 2.0 - size->height / 2.0);
}

}  // namespace wheelwright
