// What a card's directories tell of its files, for scripts.
#pragma once

#include "cli/CliMedium.h"

namespace vantor {

// Reads the whole medium once and prints one JSON object a file system and a file; the program's exit code.
// `stop` ends the reading.
int listFiles(const CliMedium& medium, const StopRequest& stop);

}  // namespace vantor
