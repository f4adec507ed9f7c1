// The picture of a vehicle, from the folder "gfx" beside the program.
#pragma once

#include "screen/Session.h"

#include <string>

namespace wheelwright {

// Finds the picture of a list key (code page): KEY.bmp, else KEY.jpg, else nopictureavailable.jpg,
// all directly in the folder and matched ignoring case. Shows it centred in its frame, or clears
// the image and leaves it where it is if there is none or it can't be read.
void ShowVehiclePicture(Session& session, const std::string& key, Picture& image);

}  // namespace wheelwright
