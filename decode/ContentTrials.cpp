#include "decode/ContentTrials.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <span>
#include <vector>

#include "decode/MovieTrial.h"
#include "decode/SoonAfterStop.h"
#include "media/FileDescriptor.h"

namespace vantor {

bool ContentTrials::mayTry(std::uint64_t bytes, const StopRequest& stop) const {
    return bytes != 0 && bytes <= m_bounds.bytes && m_bounds.forAll.count() > 0 && !(stop && stop());
}

bool ContentTrials::decodes(int descriptor, const StopRequest& stop) {
    using Clock = std::chrono::steady_clock;
    struct stat facts {};
    if (fstat(descriptor, &facts) != 0 || !mayTry(static_cast<std::uint64_t>(facts.st_size), stop)) {
        return false;
    }
    const decode::SoonAfterStop stopped(stop, std::chrono::milliseconds(0));
    MovieReaderOptions options = m_options;
    if (stop) {
        options.cancel = &stopped.signal();
    }
    const auto begin = Clock::now();
    const bool whole = decodesInFull(descriptor, std::min(m_bounds.forOne, m_bounds.forAll), options);
    m_bounds.forAll -= std::chrono::ceil<std::chrono::milliseconds>(Clock::now() - begin);
    return whole;
}

bool ContentTrials::decodes(ByteSource& movie, std::uint64_t bytes, const StopRequest& stop) {
    const FileDescriptor file(mayTry(bytes, stop) ? memfd_create("movie", MFD_CLOEXEC) : -1);
    if (!file) {
        return false;
    }
    std::vector<std::uint8_t> chunk(1 << 20);
    for (std::uint64_t at = 0; at < bytes;) {
        const auto part = std::span(chunk).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(chunk.size(), bytes - at)));
        if ((stop && stop()) || movie.read(at, part) != part.size() ||
            write(file.get(), part.data(), part.size()) != static_cast<ssize_t>(part.size())) {
            return false;
        }
        at += part.size();
    }
    return decodes(file.get(), stop);
}

}  // namespace vantor
