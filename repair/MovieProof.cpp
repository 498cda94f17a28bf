#include "repair/MovieProof.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "decode/MovieTrial.h"
#include "media/FileDescriptor.h"

namespace vantor {

namespace {

bool writeAll(int descriptor, const void* bytes, std::size_t count) {
    const auto* at = static_cast<const char*>(bytes);
    while (count != 0) {
        const ssize_t written = write(descriptor, at, count);
        if (written <= 0) {
            return false;
        }
        at += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

bool writeTwin(int descriptor, ByteSource& movie, const RepairedMovie& repaired) {
    if (!writeAll(descriptor, repaired.head.constData(), static_cast<std::size_t>(repaired.head.size()))) {
        return false;
    }
    std::vector<std::uint8_t> chunk(1 << 20);
    for (std::uint64_t at = repaired.data.from; at < repaired.data.to;) {
        const std::size_t wanted = std::min<std::uint64_t>(chunk.size(), repaired.data.to - at);
        const std::size_t arrived = movie.read(at, std::span(chunk).first(wanted));
        if (arrived == 0 || !writeAll(descriptor, chunk.data(), arrived)) {
            return false;
        }
        at += arrived;
    }
    return writeAll(descriptor, repaired.index.constData(), static_cast<std::size_t>(repaired.index.size()));
}

std::optional<MovieTrial> tried(ByteSource& movie, const RepairedMovie& repaired, TrialLength length,
                                const MovieReaderOptions& options) {
    if (repaired.bytes() > kMostTriedBytes) {
        return std::nullopt;
    }
    const FileDescriptor file(memfd_create("movie", MFD_CLOEXEC));
    return file && writeTwin(file.get(), movie, repaired) ? tryMovie(file.get(), length, options)
                                                          : std::nullopt;
}

}  // namespace

bool playsWithoutErrors(ByteSource& movie, const RepairedMovie& repaired, const MovieReaderOptions& options) {
    const auto trial = tried(movie, repaired, TrialLength::Beginning, options);
    return trial && trial->pictures != 0 && trial->errors == 0;
}

bool mayPlayWholly(ByteSource& movie, const RepairedMovie& repaired, const MovieReaderOptions& options) {
    const auto trial = tried(movie, repaired, TrialLength::Whole, options);
    return !trial || trial->errors == 0;
}

bool decodesWholly(ByteSource& movie, std::size_t pictures, const MovieReaderOptions& options) {
    RepairedMovie asItIs;
    asItIs.data = {0, movie.size()};
    const auto trial = tried(movie, asItIs, TrialLength::Whole, options);
    return trial && trial->pictures == pictures && trial->errors == 0;
}

}  // namespace vantor
