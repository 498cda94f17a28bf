// Resource limits, privileges, and the bond to the parent process.
#include "decode/helper/Cage.h"

#include <fcntl.h>
#include <grp.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include "decode/helper/SystemCallFilter.h"

namespace vantor::decode {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// Their shadow memory alone is terabytes of address space, and their reports go to the
// standard error, which may be a file.
constexpr bool kSanitized = true;
#else
constexpr bool kSanitized = false;
#endif

constexpr rlim_t kOpenFiles = 32;
// The customary "nobody".
constexpr uid_t kNobody = 65534;

void limit(__rlimit_resource resource, rlim_t most) {
    const rlimit both{most, most};
    setrlimit(resource, &both);
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
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_NOFILE, kOpenFiles);
    limit(RLIMIT_CPU, options.processorSeconds);
    if (!kSanitized) {
        limit(RLIMIT_FSIZE, 0);
        limit(RLIMIT_AS, options.addressSpaceBytes);
        dropRoot();
        prctl(PR_SET_DUMPABLE, 0);
    }
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    // After the change of user, which would undo it.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    parentGone = getppid() != options.parent;
    return !parentGone && !kSanitized && installSystemCallFilter();
}

}  // namespace vantor::decode
