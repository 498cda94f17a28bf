// The calls of the C library, before it.
#include "tests/saving/PoorFileSystem.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/statfs.h>
#include <sys/types.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <optional>
#include <utility>

namespace vantor::test {

namespace {

std::optional<PoorFileSystem::Has> has;
std::atomic<int> flushes{0};
int actAt = 0;
std::function<void()> act;

template <typename Call>
Call real(const char* name) {
    return reinterpret_cast<Call>(::dlsym(RTLD_NEXT, name));
}

int refuse(int why) {
    errno = why;
    return -1;
}

}  // namespace

PoorFileSystem::PoorFileSystem(Has what) {
    has = what;
}

PoorFileSystem::~PoorFileSystem() {
    has.reset();
}

int flushesSoFar() {
    return flushes;
}

void beforeFlush(int further, std::function<void()> action) {
    actAt = flushes + further + 1;
    act = std::move(action);
}

void countFlush() {
    if (++flushes == actAt && act) {
        std::exchange(act, nullptr)();
    }
}

}  // namespace vantor::test

using vantor::test::has;

extern "C" {

int fsync(int fd) {
    vantor::test::countFlush();
    return vantor::test::real<int (*)(int)>("fsync")(fd);
}

int openat(int folder, const char* path, int flags, ...) {
    std::va_list list;
    va_start(list, flags);
    const auto mode = static_cast<mode_t>(va_arg(list, unsigned));
    va_end(list);
    if (has && !has->unnamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
        return vantor::test::refuse(EOPNOTSUPP);
    }
    return vantor::test::real<int (*)(int, const char*, int, mode_t)>("openat")(folder, path, flags, mode);
}

int statfs(const char* path, struct statfs* info) noexcept {
    const int result = vantor::test::real<int (*)(const char*, struct statfs*)>("statfs")(path, info);
    if (has && !has->longFiles) {
        info->f_type = MSDOS_SUPER_MAGIC;
    }
    return result;
}

int linkat(int from, const char* oldPath, int to, const char* newPath, int flags) noexcept {
    if (has && !has->secondNames) {
        return vantor::test::refuse(EPERM);
    }
    return vantor::test::real<int (*)(int, const char*, int, const char*, int)>("linkat")(from, oldPath, to,
                                                                                          newPath, flags);
}

int renameat2(int from, const char* oldPath, int to, const char* newPath, unsigned flags) noexcept {
    if (has && !has->namesThatReplaceNone && flags != 0) {
        return vantor::test::refuse(EINVAL);
    }
    return vantor::test::real<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(
        from, oldPath, to, newPath, flags);
}
}
