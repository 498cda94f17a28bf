#include "decode/ContentTrials.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "decode/MovieTrial.h"
#include "decode/SoonAfterStop.h"

namespace vantor {

namespace {

using Bytes = std::vector<std::uint8_t>;

// Of the file from an offset on, so many; fewer where it ends or cannot be read.
Bytes bytesOf(int descriptor, std::uint64_t offset, std::uint64_t count) {
    Bytes bytes(static_cast<std::size_t>(count));
    std::size_t done = 0;
    for (ssize_t got = 1; got > 0 && done < bytes.size();) {
        got = pread(descriptor, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
        done += static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    }
    bytes.resize(done);
    return bytes;
}

// HEIC and AVIF: their decoders take almost any bytes, so that nothing would be proved.
bool isStillPicture(const Bytes& head) {
    constexpr std::size_t kBrandAt = 8;
    const std::string_view text(reinterpret_cast<const char*>(head.data()), head.size());
    if (text.size() < kBrandAt + 4 || text.substr(4, 4) != "ftyp") {
        return false;
    }
    constexpr std::array<std::string_view, 8> kBrands = {"heic", "heix", "heim", "heis",
                                                         "mif1", "msf1", "avif", "avis"};
    return std::find(kBrands.begin(), kBrands.end(), text.substr(kBrandAt, 4)) != kBrands.end();
}

bool isJpeg(const Bytes& head) {
    return head.size() > 2 && head[0] == 0xFF && head[1] == 0xD8 && head[2] == 0xFF;
}

FileDescriptor fileInMemory() {
    return FileDescriptor(memfd_create("movie", MFD_CLOEXEC));
}

bool append(const FileDescriptor& file, std::span<const std::uint8_t> bytes) {
    return write(file.get(), bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

// The movie behind a photo, from its box "ftyp" on; not open where there is none.
FileDescriptor movieBehind(int photo, std::uint64_t bytes) {
    constexpr std::string_view kBox = "ftyp";
    const Bytes all = bytesOf(photo, 0, bytes);
    const auto at = std::find_end(all.begin(), all.end(), kBox.begin(), kBox.end());
    if (all.size() != bytes || at == all.end() || at - all.begin() < 4) {
        return {};
    }
    FileDescriptor movie = fileInMemory();
    return append(movie, {at - 4, all.end()}) ? std::move(movie) : FileDescriptor();
}

}  // namespace

bool ContentTrials::mayTry(std::uint64_t bytes) const {
    return bytes != 0 && bytes <= m_bounds.bytes && m_bounds.forAll.count() > 0;
}

bool ContentTrials::decodes(int descriptor, const StopRequest& stop) {
    struct stat facts {};
    if (fstat(descriptor, &facts) != 0 || !mayTry(static_cast<std::uint64_t>(facts.st_size)) ||
        (stop && stop())) {
        return false;
    }
    constexpr std::uint64_t kHeadBytes = 12;
    const Bytes head = bytesOf(descriptor, 0, kHeadBytes);
    if (isStillPicture(head)) {
        return false;
    }
    if (isJpeg(head)) {
        const FileDescriptor movie = movieBehind(descriptor, static_cast<std::uint64_t>(facts.st_size));
        return movie && decodesMovie(movie.get(), stop);
    }
    return decodesMovie(descriptor, stop);
}

bool ContentTrials::decodesMovie(int descriptor, const StopRequest& stop) {
    using Clock = std::chrono::steady_clock;
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
    FileDescriptor file = fileInMemory();
    std::vector<std::uint8_t> chunk(1 << 20);
    for (std::uint64_t at = 0; file && at < bytes;) {
        const auto part = std::span(chunk).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(chunk.size(), bytes - at)));
        if ((stop && stop()) || source.read(at, part) != part.size() || !append(file, part)) {
            return {};
        }
        at += part.size();
    }
    return file;
}

}  // namespace vantor
