// One run of the command from its options to its exit code.
#pragma once

#include "cli/Options.h"

namespace vantor {

// Searches, saves and prints as asked; the exit code is the program's.
int recover(CliOptions options);

}  // namespace vantor
