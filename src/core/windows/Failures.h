// The error numbers of Windows' file functions as failures of the program's own.
#pragma once

#include "core/Failure.h"

namespace wheelwright {

// The failure for an error of opening or reading a file; an error that no row knows is failure 57.
Failure FailureOfReading(unsigned long windowsError);

// The same for writing, where a file that isn't there means that its folder isn't.
Failure FailureOfWriting(unsigned long windowsError);

}  // namespace wheelwright
