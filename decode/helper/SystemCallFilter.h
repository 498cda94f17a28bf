// The system calls that are left to a helper.
#pragma once

namespace vantor::decode {

// Installs the filter for this thread and those it starts; needs no-new-privileges. False where the kernel or
// the processor is not one we know, and the helper then runs without.
bool installSystemCallFilter();

}  // namespace vantor::decode
