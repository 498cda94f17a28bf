// Preloaded into a program under test: makes chosen sectors of one file unreadable with a real error number,
// and writes down every opening of that file.
//
// VANTOR_FAULT_FILE     canonical path of the file
// VANTOR_FAULT_SECTORS  "100,200-215"
// VANTOR_FAULT_ERRNO    number; EIO where absent
// VANTOR_FAULT_SLOWLY   microseconds that each sector of a good read takes; none where absent
// VANTOR_FAULT_LOG      file that gets a line for each opening: "open FLAGS" (octal), "fopen MODE"; for each
//                       refused request "refused FIRST COUNT" (sectors), and where reads are slow for each
//                       good one "read FIRST COUNT MILLISECONDS" (of the machine's clock, at its end)
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr long kSector = 512;

template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

bool isTheFile(const char* path) {
    const char* wanted = std::getenv("VANTOR_FAULT_FILE");
    char real[PATH_MAX];
    return wanted != nullptr && path != nullptr && ::realpath(path, real) != nullptr &&
           std::strcmp(real, wanted) == 0;
}

bool isTheFile(int fd) {
    char link[64];
    std::snprintf(link, sizeof(link), "/proc/self/fd/%d", fd);
    return isTheFile(link);
}

void note(const char* text) {
    const char* path = std::getenv("VANTOR_FAULT_LOG");
    if (path == nullptr) {
        return;
    }
    const auto realOpen = next<int(const char*, int, ...)>("open64");
    const int fd = realOpen(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (fd >= 0) {
        [[maybe_unused]] const ssize_t written = ::write(fd, text, std::strlen(text));
        ::close(fd);
    }
}

void noteOpening(const char* path, int flags) {
    if (isTheFile(path)) {
        char line[64];
        std::snprintf(line, sizeof(line), "open %o\n", static_cast<unsigned>(flags));
        note(line);
    }
}

// True when a sector of the request is to fail.
bool touchesFault(off_t offset, size_t bytes) {
    const char* at = std::getenv("VANTOR_FAULT_SECTORS");
    const long first = offset / kSector;
    const long end = (offset + static_cast<off_t>(bytes) + kSector - 1) / kSector;
    while (at != nullptr && *at != '\0') {
        char* rest = nullptr;
        const long from = std::strtol(at, &rest, 10);
        const long to = *rest == '-' ? std::strtol(rest + 1, &rest, 10) : from;
        if (from < end && to >= first) {
            return true;
        }
        at = *rest == ',' ? rest + 1 : nullptr;
    }
    return false;
}

template <class Call>
ssize_t readSlowly(int fd, off_t offset, Call call) {
    const char* slowly = std::getenv("VANTOR_FAULT_SLOWLY");
    const ssize_t got = call();
    if (slowly == nullptr || got <= 0 || !isTheFile(fd)) {
        return got;
    }
    ::usleep(static_cast<useconds_t>(std::atol(slowly) * (got / kSector)));
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    char line[96];
    std::snprintf(line, sizeof(line), "read %ld %ld %ld\n", static_cast<long>(offset / kSector),
                  static_cast<long>(got / kSector), now.tv_sec * 1000 + now.tv_nsec / 1000000);
    note(line);
    return got;
}

template <class Call>
ssize_t readOrFail(int fd, size_t bytes, off_t offset, Call call) {
    if (!touchesFault(offset, bytes) || !isTheFile(fd)) {
        return readSlowly(fd, offset, call);
    }
    char line[96];
    std::snprintf(line, sizeof(line), "refused %ld %zu\n", static_cast<long>(offset / kSector),
                  bytes / kSector);
    note(line);
    const char* number = std::getenv("VANTOR_FAULT_ERRNO");
    errno = number != nullptr ? std::atoi(number) : EIO;
    return -1;
}

mode_t modeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

}  // namespace

extern "C" {

#define VANTOR_OPEN(name)                                                  \
    int name(const char* path, int flags, ...) {                           \
        va_list arguments;                                                 \
        va_start(arguments, flags);                                        \
        const mode_t mode = modeOf(flags, arguments);                      \
        va_end(arguments);                                                 \
        noteOpening(path, flags);                                          \
        return next<int(const char*, int, ...)>(#name)(path, flags, mode); \
    }
VANTOR_OPEN(open)
VANTOR_OPEN(open64)
#undef VANTOR_OPEN

#define VANTOR_OPENAT(name)                                                             \
    int name(int folder, const char* path, int flags, ...) {                            \
        va_list arguments;                                                              \
        va_start(arguments, flags);                                                     \
        const mode_t mode = modeOf(flags, arguments);                                   \
        va_end(arguments);                                                              \
        noteOpening(path, flags);                                                       \
        return next<int(int, const char*, int, ...)>(#name)(folder, path, flags, mode); \
    }
VANTOR_OPENAT(openat)
VANTOR_OPENAT(openat64)
#undef VANTOR_OPENAT

#define VANTOR_FOPEN(name)                                               \
    FILE* name(const char* path, const char* mode) {                     \
        if (isTheFile(path)) {                                           \
            char line[64];                                               \
            std::snprintf(line, sizeof(line), "fopen %.20s\n", mode);    \
            note(line);                                                  \
        }                                                                \
        return next<FILE*(const char*, const char*)>(#name)(path, mode); \
    }
VANTOR_FOPEN(fopen)
VANTOR_FOPEN(fopen64)
#undef VANTOR_FOPEN

#define VANTOR_PREAD(name)                                                                   \
    ssize_t name(int fd, void* into, size_t bytes, off_t offset) {                           \
        return readOrFail(fd, bytes, offset, [&] {                                           \
            return next<ssize_t(int, void*, size_t, off_t)>(#name)(fd, into, bytes, offset); \
        });                                                                                  \
    }
VANTOR_PREAD(pread)
VANTOR_PREAD(pread64)
#undef VANTOR_PREAD

ssize_t read(int fd, void* into, size_t bytes) {
    const off_t offset = ::lseek(fd, 0, SEEK_CUR);
    const auto call = [&] { return next<ssize_t(int, void*, size_t)>("read")(fd, into, bytes); };
    return offset < 0 ? call() : readOrFail(fd, bytes, offset, call);
}

}  // extern "C"
