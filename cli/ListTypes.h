// The file types that a search can be narrowed to.
#pragma once

#include "cli/Options.h"

namespace vantor {

// Prints the presets and types of the mode, one a line with what it is (with --list-json as JSON objects);
// the exit code.
int listTypes(const CliOptions& options);

}  // namespace vantor
