// Positioned reading that survives signals.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <limits>
#include <span>

namespace vantor {

// One request: the bytes read, 0 at the end, -1 with errno set on an error.
inline std::int64_t positionedRead(int fd, std::uint64_t offset, std::span<std::uint8_t> into) {
    if (offset > static_cast<std::uint64_t>(std::numeric_limits<off_t>::max())) {
        errno = EOVERFLOW;
        return -1;
    }
    for (;;) {
        const ssize_t n = ::pread(fd, into.data(), into.size(), static_cast<off_t>(offset));
        if (n >= 0 || errno != EINTR) {
            return n;
        }
    }
}

}  // namespace vantor
