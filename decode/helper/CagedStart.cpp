#include "decode/helper/CagedStart.h"

#include <time.h>
#include <unistd.h>

#include <cstdlib>

#include "decode/Sanitized.h"

namespace vantor::decode {

void enterCageOrEnd(Channel& channel, const char* parent, CageOptions options) {
    // Reads the time zone before the cage shuts its files away.
    tzset();
    options.parent = static_cast<pid_t>(std::strtol(parent, nullptr, 10));
    bool parentGone = false;
    const bool caged = enterCage(options, parentGone);
    // Outside the cage nothing is decoded; the program is told, and says why.
    if (parentGone || !channel.sayReady(caged) || (!caged && !kSanitized)) {
        _exit(EXIT_SUCCESS);
    }
}

}  // namespace vantor::decode
