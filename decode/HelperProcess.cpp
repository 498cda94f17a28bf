// Starting a helper, and the exchange of one request for one answer against the clock.
#include "decode/HelperProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include "decode/AnswerCheck.h"
#include "decode/Sanitized.h"

namespace vantor::decode {

namespace {

// Buffers grow in powers of two from here and are kept up to the second size; a larger item's buffer goes
// again.
constexpr std::uint64_t kSmallestBuffer = std::uint64_t{1} << 20;
constexpr std::uint64_t kLargestKeptBuffer = std::uint64_t{64} << 20;

// Nothing of our environment is the helper's business but where its libraries are.
std::vector<std::string> helperEnvironment() {
    std::vector<std::string> environment{"OMP_NUM_THREADS=1", "LC_ALL=C.UTF-8"};
    for (const char* name :
         {"LD_LIBRARY_PATH", "QT_PLUGIN_PATH", "TZ", "ASAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS"}) {
        if (const char* value = getenv(name)) {
            environment.push_back(std::string(name) + "=" + value);
        }
    }
    return environment;
}

// The helper's end becomes its descriptor 3; the standard error stays until the helper silences it, all other
// descriptors of ours are closed, also those somebody opened without the close-on-exec mark.
pid_t spawnHelper(const QByteArray& executable, int helperEnd) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDWR, 0);
    posix_spawn_file_actions_adddup2(&actions, STDIN_FILENO, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, helperEnd, kHelperSocket);
    posix_spawn_file_actions_addclosefrom_np(&actions, kHelperSocket + 1);

    // Signals that we block or ignore must not stay so in the helper.
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    std::string parent = std::to_string(getpid());
    std::string name = executable.toStdString();
    std::array<char*, 3> arguments{name.data(), parent.data(), nullptr};
    std::vector<std::string> environment = helperEnvironment();
    std::vector<char*> pointers;
    for (std::string& entry : environment) {
        pointers.push_back(entry.data());
    }
    pointers.push_back(nullptr);

    pid_t pid = -1;
    const int failure =
        posix_spawn(&pid, executable.constData(), &actions, &attributes, arguments.data(), pointers.data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? pid : -1;
}

bool makeRoom(SharedMemory& memory, std::uint64_t bytes, SharedAccess access, bool& sent) {
    const bool tooSmall = memory.size() < bytes;
    const bool wasteful = memory.size() > kLargestKeptBuffer && bytes <= kLargestKeptBuffer;
    if (memory.isValid() && !tooSmall && !wasteful) {
        return true;
    }
    sent = false;
    memory = SharedMemory();
    memory = SharedMemory(std::max(kSmallestBuffer, std::bit_ceil(bytes)), access);
    return memory.isValid();
}

}  // namespace

std::unique_ptr<HelperProcess> HelperProcess::start(const QString& executable,
                                                    std::chrono::milliseconds deadline, int cancel,
                                                    StartFailure* failure) {
    const auto because = [&](StartFailure reason) {
        if (failure) {
            *failure = reason;
        }
    };
    because(StartFailure::NotRunning);
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
        return nullptr;
    }
    // A dup2 onto itself would keep the close-on-exec mark, so the helper's end must not be 3 already.
    const int helperEnd = fcntl(ends[1], F_DUPFD_CLOEXEC, kHelperSocket + 1);
    close(ends[1]);
    const pid_t pid = helperEnd < 0 ? -1 : spawnHelper(QFile::encodeName(executable), helperEnd);
    if (helperEnd >= 0) {
        close(helperEnd);
    }
    if (pid < 0) {
        close(ends[0]);
        return nullptr;
    }
    std::unique_ptr<HelperProcess> helper(new HelperProcess(pid, ends[0], cancel));
    Answer answer;
    if (helper->receive({deadline, helper->processorTime()}, answer) != AskOutcome::Answered) {
        return nullptr;
    }
    const std::optional<Answer> ready = believedReady(answer);
    if (!ready) {
        return nullptr;
    }
    if ((ready->flags & kCaged) == 0 && !kSanitized) {
        because(StartFailure::NotCaged);
        return nullptr;
    }
    because(StartFailure::None);
    return helper;
}

HelperProcess::~HelperProcess() {
    finish();
}

HelperEnd HelperProcess::finish() {
    HelperEnd end;
    if (m_socket >= 0) {
        close(m_socket);
        m_socket = -1;
    }
    if (m_pid <= 0) {
        return end;
    }
    kill(m_pid, SIGKILL);
    int status = 0;
    pid_t reaped;
    do {
        reaped = waitpid(m_pid, &status, 0);
    } while (reaped < 0 && errno == EINTR);
    m_pid = -1;
    if (reaped > 0) {
        end.bySignal = WIFSIGNALED(status);
        end.code = end.bySignal ? WTERMSIG(status) : WEXITSTATUS(status);
    }
    return end;
}

AskOutcome HelperProcess::ask(Request request, QByteArrayView encoded, std::chrono::milliseconds deadline,
                              Answer& answer) {
    const auto bytes = std::min<std::uint64_t>(static_cast<std::uint64_t>(encoded.size()), kMaxInputBytes);
    if (!makeRoom(m_input, bytes, SharedAccess::HelperReads, m_inputSent)) {
        return AskOutcome::NotPossible;
    }
    std::memcpy(m_input.data(), encoded.data(), bytes);
    request.inputBytes = bytes;
    return exchange(request, -1, deadline, answer);
}

AskOutcome HelperProcess::askFile(Request request, int file, std::chrono::milliseconds deadline,
                                  Answer& answer) {
    return exchange(request, file, deadline, answer);
}

AskOutcome HelperProcess::exchange(Request& request, int file, std::chrono::milliseconds deadline,
                                   Answer& answer) {
    request.maxWidth = std::clamp<std::uint32_t>(request.maxWidth, 1, kMaxAnswerSide);
    request.maxHeight = std::clamp<std::uint32_t>(request.maxHeight, 1, kMaxAnswerSide);
    const std::uint64_t pixels = std::uint64_t{request.maxWidth} * request.maxHeight * kBytesPerPixel;
    if (!makeRoom(m_output, pixels, SharedAccess::HelperWrites, m_outputSent)) {
        return AskOutcome::NotPossible;
    }
    request.serial = ++m_serial;
    const bool withInput = file < 0 && request.inputBytes != 0 && !m_inputSent;
    const WorkDeadline until(deadline, processorTime());
    if (!send(request, file, withInput, !m_outputSent)) {
        return AskOutcome::NotTaken;
    }
    m_inputSent = m_inputSent || withInput;
    m_outputSent = true;
    Answer received;
    const AskOutcome outcome = receive(until, received);
    if (outcome != AskOutcome::Answered) {
        return outcome;
    }
    const std::optional<Answer> clean = believed(request, received);
    if (!clean) {
        return AskOutcome::BadAnswer;
    }
    answer = *clean;
    ++m_answered;
    return outcome;
}

bool HelperProcess::send(const Request& filled, int file, bool withInput, bool withOutput) {
    Request request = filled;
    std::array<int, kMaxDescriptors> descriptors{};
    std::size_t count = 0;
    const auto attach = [&](bool wanted, int descriptor, std::uint32_t flag) {
        if (wanted) {
            descriptors[count++] = descriptor;
            request.descriptors |= flag;
        }
    };
    request.descriptors = 0;
    attach(withInput, m_input.descriptor(), kNewInput);
    attach(withOutput, m_output.descriptor(), kNewOutput);
    attach(file >= 0, file, kInputFile);

    iovec part{&request, sizeof request};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int) * kMaxDescriptors)> control{};
    if (count > 0) {
        message.msg_control = control.data();
        message.msg_controllen = CMSG_SPACE(sizeof(int) * count);
        cmsghdr* header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof(int) * count);
        std::memcpy(CMSG_DATA(header), descriptors.data(), sizeof(int) * count);
    }
    ssize_t sent;
    do {
        // A helper takes one request at a time, so there is always room for it.
        sent = sendmsg(m_socket, &message, MSG_NOSIGNAL | MSG_DONTWAIT);
    } while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(sizeof request);
}

AskOutcome HelperProcess::receive(WorkDeadline deadline, Answer& answer) {
    using std::chrono::milliseconds;
    const auto begin = Clock::now();
    auto until = begin + deadline.allowed();
    for (;;) {
        const auto left = std::chrono::ceil<milliseconds>(until - Clock::now()).count();
        // A negative descriptor is passed over.
        std::array<pollfd, 2> waited{{{m_socket, POLLIN, 0}, {m_cancel, POLLIN, 0}}};
        const int ready = poll(waited.data(), waited.size(),
                               static_cast<int>(std::clamp<std::int64_t>(left, 0, 1'000'000)));
        if (ready == 0) {
            const auto now = Clock::now();
            const auto more =
                deadline.more(std::chrono::duration_cast<milliseconds>(now - begin), processorTime());
            if (!more) {
                return AskOutcome::Late;
            }
            until = now + *more;
            continue;
        }
        if (ready > 0 && waited[1].revents != 0) {
            return AskOutcome::Late;
        }
        if (ready < 0) {
            if (errno == EINTR) {
                continue;
            }
            return AskOutcome::Died;
        }
        const ssize_t got = recv(m_socket, &answer, sizeof answer, MSG_DONTWAIT | MSG_TRUNC);
        if (got < 0 && (errno == EINTR || errno == EAGAIN)) {
            continue;
        }
        if (got <= 0) {
            return AskOutcome::Died;
        }
        return got == static_cast<ssize_t>(sizeof answer) ? AskOutcome::Answered : AskOutcome::BadAnswer;
    }
}

std::optional<std::uint64_t> HelperProcess::residentBytes() const {
    QFile statm(QStringLiteral("/proc/%1/statm").arg(m_pid));
    if (!statm.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const QList<QByteArray> fields = statm.readAll().split(' ');
    if (fields.size() < 3) {
        return std::nullopt;
    }
    // Resident less shared: what the helper itself holds, not the libraries and the buffers of ours.
    const qint64 pages = fields.at(1).toLongLong() - fields.at(2).toLongLong();
    return static_cast<std::uint64_t>(std::max<qint64>(pages, 0)) *
           static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

std::chrono::milliseconds HelperProcess::processorTime() const {
    clockid_t clock{};
    timespec spent{};
    if (clock_getcpuclockid(m_pid, &clock) != 0 || clock_gettime(clock, &spent) != 0) {
        return std::chrono::milliseconds{0};
    }
    return std::chrono::seconds{spent.tv_sec} +
           std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::nanoseconds{spent.tv_nsec});
}

}  // namespace vantor::decode
