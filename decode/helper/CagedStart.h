// How every caged program begins.
#pragma once

#include "decode/helper/Cage.h"
#include "decode/helper/Channel.h"

namespace vantor::decode {

// Enters the cage and tells the program through the channel whether it is shut; `parent` is the program's
// process number as the command line has it, which the options need not tell. Ends the process where nothing
// may be decoded: outside a cage, and behind a program that has gone. To be called by the only thread, after
// every library is loaded.
void enterCageOrEnd(Channel& channel, const char* parent, CageOptions options = {});

}  // namespace vantor::decode
