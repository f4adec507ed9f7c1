#include "faults/FaultySession.h"

namespace wheelwright::testing {

std::optional<PictureSize> FaultyDesktop::SizeOfPicture(const std::string& file) {
  try {
    const int length = static_cast<int>(files_.ReadPicture(file).size());
    return PictureSize{length, length};
  } catch (const Failure&) {
    return std::nullopt;
  }
}

FaultySession::FaultySession() : EdgedSession(faultyDesktop, files) {
  auto& disk = files.disk.contents;
  disk["/app/Deutsch.lng"] = LanguageTextOf('E');
  disk["/app/English.lng"] = LanguageTextOf('F');
  disk["/app/Anleitung.htm"] = "<html>";
  disk["/app/gfx/BUS.bmp"] = "bus";
  disk["/app/gfx/VAN.jpg"] = "a van";
  disk["/app/gfx/nopictureavailable.jpg"] = "nothing";
  files.changedTexts = {{"/app/Deutsch.lng", "short\r\n"},
                        {"/app/English.lng", "short\r\n"},
                        {"/app/Anleitung.htm", "<body>"},
                        {"/app/gfx/BUS.bmp", "a longer bus"},
                        {"/app/gfx/nopictureavailable.jpg", "still nothing"}};
}

}  // namespace wheelwright::testing
