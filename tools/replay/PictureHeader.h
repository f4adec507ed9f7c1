// The size of a picture as its file's header tells it, read without any toolkit.
#pragma once

#include "screen/Desktop.h"

#include <optional>
#include <string_view>

namespace wheelwright::replay {

// The size of a BMP or JPEG picture. Nothing for any other file, for a header that is cut off or
// says what can't be, for a picture that would take more than 128 MB on screen, and for a picture
// without any pixels. A picture that is cut off behind its headers has its size all the same, as it
// has for the editor.
std::optional<PictureSize> SizeInHeader(std::string_view file);

}  // namespace wheelwright::replay
