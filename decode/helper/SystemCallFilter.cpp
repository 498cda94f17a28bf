// A classic BPF program over the system-call number and, for a few, one argument. Whatever is not named fails
// with EPERM rather than killing, since libraries probe for features and take "no" for an answer. Sources:
// the kernel's seccomp_filter documentation and <linux/seccomp.h>.
#include "decode/helper/SystemCallFilter.h"

#include <errno.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <stddef.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <vector>

namespace vantor::decode {

namespace {

#if defined(__x86_64__)
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_AARCH64;
#else
constexpr std::uint32_t kArchitecture = 0;
#endif

// Plainly harmless: memory, time, threads, waiting, and reading and writing what is open already. Not
// newfstatat: it asks for paths as well, and a filter cannot look at the path; see PlainFstat.cpp.
constexpr std::array kAllowed{
    SYS_read,
    SYS_write,
    SYS_readv,
    SYS_pread64,
    SYS_lseek,
    SYS_close,
    SYS_fstat,
    SYS_recvmsg,
    SYS_sendto,
    SYS_dup,
    SYS_munmap,
    SYS_mremap,
    SYS_madvise,
    SYS_brk,
    SYS_futex,
    SYS_rt_sigaction,
    SYS_rt_sigprocmask,
    SYS_rt_sigreturn,
    SYS_sigaltstack,
    SYS_exit,
    SYS_exit_group,
    SYS_sched_yield,
    SYS_sched_getaffinity,
    SYS_set_robust_list,
    SYS_rseq,
    SYS_gettid,
    SYS_getpid,
    SYS_clock_gettime,
    SYS_clock_nanosleep,
    SYS_clock_getres,
    SYS_nanosleep,
    SYS_gettimeofday,
    SYS_getrandom,
    SYS_ppoll,
    SYS_eventfd2,
    SYS_getrusage,
    SYS_sysinfo,
    SYS_uname,
    SYS_membarrier,
    SYS_getcpu,
    SYS_restart_syscall,
#ifdef SYS_poll
    SYS_poll,
#endif
#ifdef SYS_time
    SYS_time,
#endif
};

// What the C library's threads are made with, to the bit.
constexpr std::uint32_t kThread = CLONE_VM | CLONE_FS | CLONE_FILES | CLONE_SYSVSEM | CLONE_SIGHAND |
                                  CLONE_THREAD | CLONE_SETTLS | CLONE_PARENT_SETTID | CLONE_CHILD_CLEARTID;

enum class Test { AnyBitSet, Equal };

// A call allowed (or not) by the low half of one argument.
struct Condition {
    long call;
    unsigned argument;
    Test test;
    std::uint32_t value;
    bool allowWhenTrue;
};

class Program {
  public:
    void add(std::uint16_t code, std::uint32_t k, std::uint8_t ifTrue = 0, std::uint8_t ifFalse = 0) {
        m_steps.push_back({code, ifTrue, ifFalse, k});
    }
    void load(std::size_t offset) { add(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset)); }
    void give(std::uint32_t verdict) { add(BPF_RET | BPF_K, verdict); }

    void whenCall(long call, std::uint32_t verdict) {
        add(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(call), 0, 1);
        give(verdict);
    }

    void whenCondition(const Condition& condition) {
        const std::uint32_t yes = condition.allowWhenTrue ? SECCOMP_RET_ALLOW : kRefused;
        const std::uint32_t no = condition.allowWhenTrue ? kRefused : SECCOMP_RET_ALLOW;
        add(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(condition.call), 0, 4);
        load(lowHalfOfArgument(condition.argument));
        const std::uint16_t jump = condition.test == Test::AnyBitSet ? BPF_JSET : BPF_JEQ;
        add(static_cast<std::uint16_t>(BPF_JMP | BPF_K | jump), condition.value, 0, 1);
        give(yes);
        give(no);
    }

    bool install() {
        sock_fprog program{static_cast<unsigned short>(m_steps.size()), m_steps.data()};
        return prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
    }

    static constexpr std::uint32_t kRefused = SECCOMP_RET_ERRNO | EPERM;

  private:
    // Both processors are little-endian.
    static std::size_t lowHalfOfArgument(unsigned argument) {
        return offsetof(seccomp_data, args) + argument * sizeof(std::uint64_t);
    }

    std::vector<sock_filter> m_steps;
};

}  // namespace

bool installSystemCallFilter() {
    if (kArchitecture == 0) {
        return false;
    }
    Program program;
    program.load(offsetof(seccomp_data, arch));
    program.add(BPF_JMP | BPF_JEQ | BPF_K, kArchitecture, 1, 0);
    program.give(SECCOMP_RET_KILL_PROCESS);
    program.load(offsetof(seccomp_data, nr));
    for (const long call : kAllowed) {
        program.whenCall(call, SECCOMP_RET_ALLOW);
    }
    // Threads yes, processes no. The newer call hides its flags in memory, where a filter cannot look; told
    // that there is none, the C library falls back to the older.
    program.whenCall(SYS_clone3, SECCOMP_RET_ERRNO | ENOSYS);
    const std::array conditions{
        Condition{SYS_clone, 0, Test::Equal, kThread, true},
        Condition{SYS_mmap, 2, Test::AnyBitSet, PROT_EXEC, false},
        Condition{SYS_mprotect, 2, Test::AnyBitSet, PROT_EXEC, false},
        Condition{SYS_prctl, 0, Test::Equal, PR_SET_NAME, true},
        // Ourselves: abort() must still end in a signal.
        Condition{SYS_tgkill, 0, Test::Equal, static_cast<std::uint32_t>(getpid()), true},
    };
    for (const Condition& condition : conditions) {
        program.whenCondition(condition);
    }
    program.give(Program::kRefused);
    return program.install();
}

}  // namespace vantor::decode
