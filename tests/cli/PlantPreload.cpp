// Preloaded into the command under test: the folder that it makes for its files turns into a link to another
// place, as if somebody had been quick with a mount.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

extern "C" int mkdir(const char* path, mode_t mode) {
    const char* const name = std::strrchr(path, '/');
    const char* const target = std::getenv("VANTOR_PLANT");
    if (target != nullptr && name != nullptr && std::strcmp(name, "/planted") == 0) {
        return ::symlink(target, path);
    }
    return ::mkdirat(AT_FDCWD, path, mode);
}
