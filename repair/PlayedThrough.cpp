#include "repair/PlayedThrough.h"

#include <QtEndian>
#include <algorithm>

#include "repair/PictureTrack.h"

namespace vantor {

namespace {

// Decoding can begin there; before the last picture, lest that one alone be tried.
std::size_t beginningBefore(const MovieWalk& walk, std::size_t place) {
    std::size_t from = place < 2 ? 0 : place - 2;
    while (from != 0 && !walk.pictures[from].sync) {
        --from;
    }
    return from;
}

void leaveOutFrom(MovieWalk& walk, std::size_t kept) {
    walk.pictures.resize(kept);
    const std::uint64_t end = walk.pictures.back().end;
    walk.gaps.erase(std::find_if(walk.gaps.begin(), walk.gaps.end(),
                                 [&](const MovieGap& gap) { return gap.place.from > end; }),
                    walk.gaps.end());
}

}  // namespace

bool PlayedThrough::plays(const MovieWalk& walk, std::size_t from, std::size_t to) const {
    if (from >= to) {
        return false;
    }
    const auto at = [&](std::size_t i) { return walk.pictures.begin() + static_cast<std::ptrdiff_t>(i); };
    IndexedTrack track = pictureTrack({at(from), at(to)}, m_reference);
    RepairedMovie part;
    part.head = m_head;
    part.data = {walk.pictures[from].at, walk.pictures[to - 1].end};
    part.pictures = to - from;
    for (IndexedChunk& chunk : track.chunks) {
        chunk.at += static_cast<std::uint64_t>(part.head.size()) - part.data.from;
    }
    part.index = writeIndex({track});
    qToBigEndian(part.data.to - part.data.from + 16, part.head.data() + part.head.size() - 8);
    return m_plays(part);
}

void PlayedThrough::shorten(MovieWalk& walk, const std::atomic<int>* stop) const {
    constexpr std::size_t kMostDoubts = 64;
    constexpr std::size_t kPicturesBehind = 8;
    std::vector<std::size_t> places(walk.doubtful);
    places.resize(std::min(places.size(), kMostDoubts));
    places.push_back(walk.pictures.size());
    for (const std::size_t place : places) {
        if (stop != nullptr && *stop != 0) {
            return;
        }
        const std::size_t from = beginningBefore(walk, place);
        const std::size_t to = std::min(place + kPicturesBehind, walk.pictures.size());
        if (plays(walk, from, to)) {
            continue;
        }
        for (std::size_t kept = std::min(place, to - 1); kept + 2 >= place && kept != 0; --kept) {
            if (plays(walk, from, kept)) {
                leaveOutFrom(walk, kept);
                return;
            }
        }
    }
}

}  // namespace vantor
