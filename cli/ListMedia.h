// The list of storage media in a terminal.
#pragma once

#include "media/MediaSource.h"

namespace vantor {

// Prints the media of the machine, as a table or as one JSON object a medium; the program's exit code.
int listMedia(MediaSource& source, bool asJson);

}  // namespace vantor
