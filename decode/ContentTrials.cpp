#include "decode/ContentTrials.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <span>
#include <vector>

#include "decode/MovieTrial.h"
#include "decode/SoonAfterStop.h"

namespace vantor {

bool ContentTrials::mayTry(std::uint64_t bytes) const {
    return bytes != 0 && bytes <= m_bounds.bytes && m_bounds.forAll.count() > 0;
}

bool ContentTrials::decodes(int descriptor, const StopRequest& stop) {
    using Clock = std::chrono::steady_clock;
    struct stat facts {};
    if (fstat(descriptor, &facts) != 0 || !mayTry(static_cast<std::uint64_t>(facts.st_size)) ||
        (stop && stop())) {
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

FileDescriptor inMemory(ByteSource& source, std::uint64_t bytes, const StopRequest& stop) {
    FileDescriptor file(memfd_create("movie", MFD_CLOEXEC));
    std::vector<std::uint8_t> chunk(1 << 20);
    for (std::uint64_t at = 0; file && at < bytes;) {
        const auto part = std::span(chunk).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(chunk.size(), bytes - at)));
        if ((stop && stop()) || source.read(at, part) != part.size() ||
            write(file.get(), part.data(), part.size()) != static_cast<ssize_t>(part.size())) {
            return {};
        }
        at += part.size();
    }
    return file;
}

}  // namespace vantor
