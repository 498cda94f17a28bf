// Resource limits, privileges, and the bond to the parent process.
#include "decode/helper/Cage.h"

#include <fcntl.h>
#include <grp.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <string>

#include "decode/Sanitized.h"
#include "decode/helper/SystemCallFilter.h"

namespace vantor::decode {

namespace {

// The customary "nobody".
constexpr uid_t kNobody = 65534;

// A limit that is narrower already stays.
bool limit(__rlimit_resource resource, rlim_t most) {
    rlimit both{};
    if (getrlimit(resource, &both) != 0) {
        return false;
    }
    both.rlim_cur = both.rlim_max = std::min(most, both.rlim_max);
    return setrlimit(resource, &both) == 0;
}

// Threads are counted together with whatever else the user runs, which nobody can tell in advance: so many
// more than there are in the whole system now. Nothing where the system does not tell.
std::optional<rlim_t> mostThreads(std::uint64_t more) {
    // Three averages, then "running/all".
    std::ifstream load("/proc/loadavg");
    std::string word;
    for (int i = 0; i < 4; ++i) {
        load >> word;
    }
    const std::size_t slash = word.find('/');
    const unsigned long all =
        slash == std::string::npos ? 0 : std::strtoul(word.c_str() + slash + 1, nullptr, 10);
    return all > 0 ? std::optional<rlim_t>(all + more) : std::nullopt;
}

// Only a program run as root gets here with something to drop.
void dropRoot() {
    if (geteuid() == 0 && setgroups(0, nullptr) == 0 && setresgid(kNobody, kNobody, kNobody) == 0) {
        [[maybe_unused]] const int dropped = setresuid(kNobody, kNobody, kNobody);
    }
}

}  // namespace

void silenceErrors() {
    if (!kSanitized) {
        dup2(STDOUT_FILENO, STDERR_FILENO);
    }
}

bool enterCage(const CageOptions& options, bool& parentGone) {
    bool limited = limit(RLIMIT_CORE, 0);
    const std::optional<rlim_t> threads = mostThreads(options.moreThreads);
    limited = limit(RLIMIT_NOFILE, options.openFiles) && limited;
    limited = limit(RLIMIT_CPU, options.processorSeconds) && limited;
    if (!kSanitized) {
        limited = limit(RLIMIT_FSIZE, 0) && limited;
        limited = limit(RLIMIT_AS, options.addressSpaceBytes) && limited;
        limited = threads && limit(RLIMIT_NPROC, *threads) && limited;
        dropRoot();
        prctl(PR_SET_DUMPABLE, 0);
    }
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // After the change of user, which would undo it.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    parentGone = getppid() != options.parent;
    return !parentGone && !kSanitized && limited && installSystemCallFilter();
}

}  // namespace vantor::decode
