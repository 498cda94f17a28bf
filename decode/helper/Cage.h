// Shuts the helper in before it sees the first carved byte.
#pragma once

#include <sys/types.h>

#include <cstdint>

namespace vantor::decode {

struct CageOptions {
    std::uint64_t addressSpaceBytes = std::uint64_t{2} << 30;
    std::uint64_t processorSeconds = 3600;
    std::uint64_t openFiles = 32;
    std::uint64_t moreThreads = 1000;  // than the whole system has when the cage is entered
    pid_t parent = 0;                  // the helper ends with this process
};

// Nothing of a broken decoder's chatter reaches the user's terminal; builds with a sanitizer keep its
// reports.
void silenceErrors();

// To be called by the only thread, after every library is loaded: from here on no file can be opened, asked
// for or made longer, no socket made, no program started, no flood of threads let loose, and no memory made
// executable. Returns whether all of that is in force; where it is not, nothing may be decoded. False and
// parentGone when the parent has ended meanwhile.
bool enterCage(const CageOptions& options, bool& parentGone);

}  // namespace vantor::decode
