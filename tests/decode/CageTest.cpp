// The cage itself: a process enters it as a helper does and tries what a decoder gone wrong would try.
#include <errno.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <pthread.h>
#include <sched.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "decode/DecodeProtocol.h"
#include "decode/Sanitized.h"
#include "decode/helper/Cage.h"
#include "tests/decode/Fixtures.h"

namespace vantor {
namespace {

using namespace test;
using decode::Answer;

// What a prisoner tells the world: a number and what came of it.
struct Report {
    long what = 0;
    long result = 0;
    long error = 0;
};

// Runs `tries` in a process of its own that has entered the cage; nothing when it could not, or did not come
// to its end.
std::optional<std::vector<Report>> fromInside(const std::function<void(std::function<void(Report)>)>& tries,
                                              decode::CageOptions options = {}) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    const pid_t parent = getpid();
    const pid_t prisoner = fork();
    if (prisoner == 0) {
        const auto tell = [to = ends[1]](Report report) {
            [[maybe_unused]] const auto told = write(to, &report, sizeof report);
        };
        options.parent = parent;
        bool parentGone = false;
        if (!decode::enterCage(options, parentGone)) {
            _exit(1);
        }
        tries(tell);
        _exit(0);
    }
    close(ends[1]);
    std::vector<Report> reports;
    for (Report report; read(ends[0], &report, sizeof report) == static_cast<ssize_t>(sizeof report);) {
        reports.push_back(report);
    }
    close(ends[0]);
    int status = -1;
    waitpid(prisoner, &status, 0);
    return prisoner > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0 ? std::optional(reports)
                                                                         : std::nullopt;
}

Report tried(long what, long result) {
    return {what, result, result < 0 ? errno : 0};
}

class Cage : public testing::Test {
  protected:
    void SetUp() override {
        if (decode::kSanitized) {
            GTEST_SKIP() << "the cage and the sanitizers exclude each other";
        }
    }
};

// Written down here once more, so that one who adds a call to the filter has to say so in two places.
const std::set<long> kHarmless{
    SYS_read, SYS_write, SYS_readv, SYS_pread64, SYS_lseek, SYS_close, SYS_fstat, SYS_recvmsg, SYS_sendto,
    SYS_dup, SYS_munmap, SYS_mremap, SYS_madvise, SYS_brk, SYS_futex, SYS_rt_sigaction, SYS_rt_sigprocmask,
    SYS_rt_sigreturn, SYS_sigaltstack, SYS_exit, SYS_exit_group, SYS_sched_yield, SYS_sched_getaffinity,
    SYS_set_robust_list, SYS_rseq, SYS_gettid, SYS_getpid, SYS_clock_gettime, SYS_clock_nanosleep,
    SYS_clock_getres, SYS_nanosleep, SYS_gettimeofday, SYS_getrandom, SYS_ppoll, SYS_eventfd2, SYS_getrusage,
    SYS_sysinfo, SYS_uname, SYS_membarrier, SYS_getcpu, SYS_restart_syscall,
#ifdef SYS_poll
    SYS_poll,
#endif
#ifdef SYS_time
    SYS_time,
#endif
    // Allowed with some arguments alone.
    SYS_mmap, SYS_mprotect};

// Calls that end the process that makes them here.
const std::set<long> kNotForTrying {
#ifdef SYS_vfork
    // Comes back upon this stack, should it be allowed; tried below.
    SYS_vfork,
#endif
#if defined(__x86_64__)
        // The kernel's own trampolines of probes: it asks no filter, and answers everybody else with a
        // signal.
        335, 336,
#endif
};

TEST_F(Cage, EveryCallThatNoDecoderNeeds_IsRefused) {
    constexpr long kBeyondAllCalls = 1024;
    const auto reports = fromInside([](const auto& tell) {
        const pid_t self = getpid();
        for (long call = 0; call < kBeyondAllCalls; ++call) {
            if (kHarmless.contains(call) || kNotForTrying.contains(call)) {
                continue;
            }
            const Report report = tried(call, syscall(call, -1L, -1L, -1L, -1L, -1L, -1L));
            if (getpid() != self) {
                _exit(0);
            }
            tell(report);
        }
    });
    ASSERT_TRUE(reports);
    EXPECT_EQ(reports->size() + kHarmless.size() + kNotForTrying.size(),
              static_cast<std::size_t>(kBeyondAllCalls));
    for (const Report& report : *reports) {
        EXPECT_EQ(report.result, -1) << "call " << report.what;
        // Told that there is none, the C library makes its threads by the older call.
        EXPECT_EQ(report.error, report.what == SYS_clone3 ? ENOSYS : EPERM) << "call " << report.what;
    }
}

enum Try : long {
    kFork,
    kVfork,
    kProcess,
    kThreadInNewNamespace,
    kProgram,
    kExecutableMap,
    kExecutableProtect,
    kExecutableAndWritableProtect,
    kExecutableProtectByKey,
    kStatOfPath,
    kStatOfPathBesideEmptyFlag,
    kExtendedStat,
    kOpen,
    kSocket,
    kSignalToParent,
    kSignalToParentsThread,
    kDumpable,
    kAnotherFilter,
    kRaiseLimit,
    kOtherMachine,
};

// A process that comes to be where none may.
long processOrRefusal(long made) {
    if (made == 0) {
        _exit(0);
    }
    return made;
}

TEST_F(Cage, CallsThatDependOnTheirArguments_AreRefusedWithTheseOnes) {
    const pid_t parent = getpid();
    const auto reports = fromInside([parent](const auto& tell) {
        const auto attempt = [&](Try what, long result) { tell(tried(what, result)); };
        constexpr std::size_t kPage = 4096;
        struct stat facts {};
        std::array<char, 512> room{};
        rlimit more{RLIM_INFINITY, RLIM_INFINITY};
        std::array<const char*, 2> arguments{"true", nullptr};
        attempt(kFork, processOrRefusal(syscall(SYS_clone, SIGCHLD, 0L, 0L, 0L, 0L)));
        // As a process of its own memory: one that shares ours would come back upon our stack.
        attempt(kProcess, processOrRefusal(syscall(SYS_clone, CLONE_PARENT | SIGCHLD, 0L, 0L, 0L, 0L)));
        attempt(kThreadInNewNamespace,
                syscall(SYS_clone, CLONE_VM | CLONE_SIGHAND | CLONE_THREAD | CLONE_NEWNET,
                        room.data() + room.size(), 0L, 0L, 0L));
#ifdef SYS_vfork
        attempt(kVfork, processOrRefusal(syscall(SYS_vfork)));
#endif
        attempt(kProgram, syscall(SYS_execve, "/bin/true", arguments.data(), arguments.data() + 1));
        constexpr int kAnonymous = MAP_PRIVATE | MAP_ANONYMOUS;
        void* const map = mmap(nullptr, kPage, PROT_READ | PROT_EXEC, kAnonymous, -1, 0);
        attempt(kExecutableMap, map == MAP_FAILED ? -1 : 0);
        void* const page = mmap(nullptr, kPage, PROT_READ | PROT_WRITE, kAnonymous, -1, 0);
        attempt(kExecutableProtect, mprotect(page, kPage, PROT_READ | PROT_EXEC));
        attempt(kExecutableAndWritableProtect, mprotect(page, kPage, PROT_READ | PROT_WRITE | PROT_EXEC));
        attempt(kExecutableProtectByKey, syscall(SYS_pkey_mprotect, page, kPage, PROT_READ | PROT_EXEC, -1L));
        attempt(kStatOfPath, syscall(SYS_newfstatat, AT_FDCWD, "/etc/passwd", &facts, 0L));
        attempt(kStatOfPathBesideEmptyFlag,
                syscall(SYS_newfstatat, AT_FDCWD, "/etc/passwd", &facts, AT_EMPTY_PATH));
        attempt(kExtendedStat, syscall(SYS_statx, AT_FDCWD, "/etc/passwd", 0L, 0L, room.data()));
        attempt(kOpen, syscall(SYS_openat, AT_FDCWD, "/dev/null", O_RDONLY, 0L));
        attempt(kSocket, syscall(SYS_socket, AF_UNIX, SOCK_STREAM, 0L));
        attempt(kSignalToParent, syscall(SYS_kill, parent, 0L));
        attempt(kSignalToParentsThread, syscall(SYS_tgkill, parent, parent, 0L));
        attempt(kDumpable, prctl(PR_SET_DUMPABLE, 1));
        attempt(kAnotherFilter, prctl(PR_SET_SECCOMP, SECCOMP_MODE_STRICT));
        attempt(kRaiseLimit, syscall(SYS_prlimit64, 0L, RLIMIT_FSIZE, &more, 0L));
        // The same calls by the numbers of another kind of programs on this machine.
        attempt(kOtherMachine, syscall(0x40000000L + SYS_openat, AT_FDCWD, "/dev/null", O_RDONLY, 0L));
    });
    ASSERT_TRUE(reports);
    EXPECT_GE(reports->size(), 19U);
    for (const Report& report : *reports) {
        EXPECT_EQ(report.result, -1) << "try " << report.what;
        EXPECT_EQ(report.error, EPERM) << "try " << report.what;
    }
}

TEST_F(Cage, WhatDecodersNeed_Works) {
    enum Need : long { kMemory, kWritableProtect, kFacts, kFactsOfOther, kThread };
    const int file = open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
    ASSERT_GE(file, 0);
    const auto reports = fromInside([file](const auto& tell) {
        constexpr std::size_t kPage = 4096;
        void* const page = mmap(nullptr, kPage, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        tell(tried(kMemory, page == MAP_FAILED ? -1 : 0));
        tell(tried(kWritableProtect, mprotect(page, kPage, PROT_READ | PROT_WRITE)));
        struct stat facts {};
        tell(tried(kFacts, fstat(file, &facts) == 0 && facts.st_size > 0 ? 0 : -1));
        struct stat64 same {};
        tell(tried(kFactsOfOther, fstat64(file, &same) == 0 && same.st_size == facts.st_size ? 0 : -1));
        pthread_t thread{};
        const int failure = pthread_create(
            &thread, nullptr, [](void* mark) { return mark; }, page);
        void* mark = nullptr;
        tell(tried(kThread, failure == 0 && pthread_join(thread, &mark) == 0 && mark == page ? 0 : -1));
    });
    close(file);
    ASSERT_TRUE(reports);
    EXPECT_EQ(reports->size(), 5U);
    for (const Report& report : *reports) {
        EXPECT_EQ(report.result, 0) << "need " << report.what << ": "
                                    << std::strerror(static_cast<int>(report.error));
    }
}

TEST_F(Cage, AFileOpenForWriting_CannotBeMadeLonger) {
    std::FILE* const file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    ASSERT_EQ(write(fileno(file), "word", 4), 4);
    const auto reports = fromInside([to = fileno(file)](const auto& tell) {
        signal(SIGXFSZ, SIG_IGN);
        tell(tried(0, write(to, "more", 4)));
    });
    ASSERT_TRUE(reports);
    ASSERT_EQ(reports->size(), 1U);
    EXPECT_EQ(reports->front().result, -1);
    EXPECT_EQ(reports->front().error, EFBIG);
    EXPECT_EQ(lseek(fileno(file), 0, SEEK_END), 4);
    std::fclose(file);
}

TEST_F(Cage, AFloodOfThreads_Ends) {
    constexpr long kFlood = 20'000;
    // Fewer than helpers are given, so that those that other tests run at the same time still get theirs.
    decode::CageOptions few;
    few.moreThreads = 50;
    const auto reports = fromInside(
        [](const auto& tell) {
            pthread_attr_t small;
            pthread_attr_init(&small);
            pthread_attr_setstacksize(&small, 32 * 1024);
            long made = 0;
            int failure = 0;
            // Each waits for what never comes.
            const auto wait = [](void*) -> void* {
                ppoll(nullptr, 0, nullptr, nullptr);
                return nullptr;
            };
            while (made < kFlood && failure == 0) {
                pthread_t thread{};
                failure = pthread_create(&thread, &small, wait, nullptr);
                made += failure == 0;
            }
            tell({0, made, failure});
        },
        few);
    ASSERT_TRUE(reports);
    ASSERT_EQ(reports->size(), 1U);
    EXPECT_LT(reports->front().result, kFlood);
    EXPECT_EQ(reports->front().error, EAGAIN);
}

// The limits as the system has them for a helper at work.
TEST_F(Cage, LimitsOfAHelper_AreInForce) {
    DecodePool pool(poolOptions(1));
    ASSERT_FALSE(pool.thumbnail(encoded(twoColours({64, 64}), "png")).isEmpty());
    const QByteArray limits =
        bytesOfFile(QStringLiteral("/proc/%1/limits").arg(pool.helperPids().front())).simplified();
    for (const char* limit : {"Max core file size 0 0 ", "Max file size 0 0 ", "Max open files 32 32 ",
                              "Max cpu time 3600 3600 ", "Max address space 2147483648 2147483648 "}) {
        EXPECT_TRUE(limits.contains(limit)) << limit << "is not in " << limits.constData();
    }
    EXPECT_FALSE(limits.contains("Max processes unlimited"));
}

// A system without filters, as this process sees it from here on: the call that installs one fails.
bool takeFiltersAway() {
    std::array<sock_filter, 6> steps{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_prctl, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, PR_SET_SECCOMP, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EINVAL),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    sock_fprog program{static_cast<unsigned short>(steps.size()), steps.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

TEST_F(Cage, AHelperThatGetsNone_SaysSoAndLeaves) {
    for (const char* helper : {VANTOR_DECODE_HELPER, VANTOR_MOVIE_HELPER}) {
        if (access(helper, X_OK) != 0) {
            continue;
        }
        SCOPED_TRACE(helper);
        std::array<int, 2> ends{};
        ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()), 0);
        const std::string parent = std::to_string(getpid());
        const pid_t pid = fork();
        if (pid == 0) {
            // Not the number that is already the socket's, which would be closed by the program's start.
            const int socket = fcntl(ends[1], F_DUPFD, decode::kHelperSocket + 10);
            dup2(socket, decode::kHelperSocket);
            close(socket);
            if (ends[0] != decode::kHelperSocket) {
                close(ends[0]);
            }
            if (takeFiltersAway()) {
                execl(helper, helper, parent.c_str(), nullptr);
            }
            _exit(1);
        }
        close(ends[1]);
        Answer answer;
        EXPECT_EQ(recv(ends[0], &answer, sizeof answer, 0), static_cast<ssize_t>(sizeof answer));
        EXPECT_EQ(answer.status, decode::AnswerStatus::Ready);
        EXPECT_EQ(answer.flags, 0U);
        if (HasFailure()) {
            kill(pid, SIGKILL);  // it would wait for ever
        }
        EXPECT_EQ(recv(ends[0], &answer, sizeof answer, 0), 0) << "it waits for nothing to decode";
        close(ends[0]);
        int status = -1;
        EXPECT_EQ(waitpid(pid, &status, 0), pid);
        EXPECT_TRUE(WIFEXITED(status));
    }
}

}  // namespace
}  // namespace vantor
