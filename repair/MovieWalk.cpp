#include "repair/MovieWalk.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vantor {

namespace {

// Between two pictures there may be more than the reference ever had, but not by much.
constexpr std::uint64_t kLeastGap = 64 * 1024;

bool stopped(const WalkLimits& limits) {
    return limits.stop != nullptr && *limits.stop != 0;
}

// Files that lie behind a movie begin with a sector; so may a picture of the movie itself, but not as a photo
// does.
bool beginsAnotherFile(ByteView& view, const PictureSyntax& syntax, std::uint64_t at) {
    return isSectorStart(at) && (view.matches(at + 4, "ftyp") || view.matches(at, "\xFF\xD8\xFF\xE1") ||
                                 (syntax.coding != Coding::Jpeg && view.matches(at, "\xFF\xD8\xFF\xE0")));
}

class Walker {
  public:
    Walker(ByteView& view, const ReferenceMovie& reference, const DataPlace& data, const SplitSound& split)
        : m_view(view),
          m_reference(reference),
          m_syntax(reference.syntax),
          m_plainSoundBytes(reference.sound ? reference.plainSoundBytes : 0),
          m_split(split),
          m_data(data),
          m_reach(std::max(kLeastGap, addClamped(reference.widestGap, reference.widestGap))) {}

    // The picture at `at`, or the next one within reach, after the gap before it; false at the end.
    bool step(std::uint64_t at, MovieWalk& walk);
    void addTail(MovieWalk& walk);

  private:
    bool goesOn(const MovieWalk& walk, const CodedPicture& picture) const {
        return walk.pictures.empty() ? picture.sync : follows(m_syntax, walk.pictures.back(), picture);
    }
    std::uint64_t reachFrom(std::uint64_t at) const { return std::min(m_data.to, addClamped(at, m_reach)); }
    bool fillGap(MovieGap& gap) const;
    std::uint64_t nextPacket(std::uint64_t at, std::uint64_t to) const;

    ByteView& m_view;
    const ReferenceMovie& m_reference;
    const PictureSyntax& m_syntax;
    const std::uint64_t m_plainSoundBytes;
    const SplitSound& m_split;
    const DataPlace m_data;
    const std::uint64_t m_reach;
};

// Packets from the first byte on, and where a camera writes notes of its own as well, behind these. Whether
// the gap is filled with sound to its last byte.
bool Walker::fillGap(MovieGap& gap) const {
    const DataPlace& place = gap.place;
    if (m_plainSoundBytes != 0) {
        return (place.to - place.from) % m_plainSoundBytes == 0;
    }
    if (!m_split) {
        return true;
    }
    constexpr std::size_t kMostTries = 4096;
    bool even = true;
    std::uint64_t at = place.from;
    for (std::size_t tries = 0; at < place.to && tries < kMostTries; ++tries) {
        const std::uint64_t from = at;
        for (const std::uint32_t bytes : m_split({at, place.to})) {
            // Louder sound has longer packets than the reference may ever have had.
            if (bytes > 2 * m_reference.mostSoundBytes) {
                break;
            }
            gap.packets.push_back({at, bytes});
            at += bytes;
        }
        if (at < place.to && at == from) {
            even = false;
            at = m_reference.more ? nextPacket(from + 1, place.to) : place.to;
        }
    }
    return even && at == place.to;
}

std::uint64_t Walker::nextPacket(std::uint64_t at, std::uint64_t to) const {
    while (at < to && !m_reference.soundHeads[m_view.u8(at).value_or(0)]) {
        ++at;
    }
    return at;
}

bool Walker::step(std::uint64_t at, MovieWalk& walk) {
    if (const auto picture = pictureAt(m_view, m_syntax, at, m_data.to)) {
        walk.pictures.push_back(*picture);
        return true;
    }
    constexpr int kMostCandidates = 16;
    constexpr std::uint64_t kLeastUnproved = 256;
    std::optional<CodedPicture> first;
    MovieGap firstGap;
    bool explained = false;
    int candidates = 0;
    const std::uint64_t far = reachFrom(at);
    for (std::uint64_t here = at; here < far && candidates < kMostCandidates; ++here) {
        if (beginsAnotherFile(m_view, m_syntax, here)) {
            break;
        }
        if (!mayBeginPicture(m_view, m_syntax, here)) {
            continue;
        }
        const auto picture = pictureAt(m_view, m_syntax, here, m_data.to);
        if (!picture || !goesOn(walk, *picture)) {
            continue;
        }
        MovieGap gap{{at, here}, {}};
        const bool even = fillGap(gap);
        // A few bytes look like a picture soon.
        if (even || (!first && picture->end - picture->at >= kLeastUnproved)) {
            first = picture;
            explained = even && here - at <= m_reference.widestGap;
            firstGap = std::move(gap);
        }
        if (even) {
            break;
        }
        // Notes of the camera's own leave nothing to go by.
        if (first && m_reference.more) {
            break;
        }
        ++candidates;
    }
    if (!first) {
        return false;
    }
    if (firstGap.place.to > firstGap.place.from) {
        walk.gaps.push_back(std::move(firstGap));
    }
    if (!explained && !m_reference.more && !walk.pictures.empty()) {
        walk.doubtful.push_back(walk.pictures.size());
    }
    walk.pictures.push_back(*first);
    return true;
}

// What lies behind the last picture: sound, unless a picture begins there that is not whole.
void Walker::addTail(MovieWalk& walk) {
    const std::uint64_t at = walk.pictures.back().end;
    if (mayBeginPicture(m_view, m_syntax, at)) {
        return;
    }
    const std::uint64_t far = reachFrom(at);
    std::uint64_t tail = at;
    while (tail < far && !beginsAnotherFile(m_view, m_syntax, tail)) {
        tail = std::min(far, (tail / 512 + 1) * 512);
    }
    if (tail > at) {
        MovieGap gap{{at, tail}, {}};
        fillGap(gap);
        walk.gaps.push_back(std::move(gap));
        walk.end = tail;
    }
}

}  // namespace

MovieWalk walkMovie(ByteView& view, const ReferenceMovie& reference, const DataPlace& data,
                    const SplitSound& split, const WalkLimits& limits) {
    Walker walker(view, reference, data, split);
    MovieWalk walk;
    walk.end = data.from;
    while (walk.end < data.to && walk.pictures.size() < limits.pictures && !stopped(limits) &&
           walker.step(walk.end, walk)) {
        walk.end = walk.pictures.back().end;
    }
    if (walk.pictures.empty()) {
        return walk;
    }
    // A picture that lacks slices was cut off.
    const bool cut = walk.pictures.back().slices < reference.slices;
    if (cut) {
        walk.pictures.pop_back();
    }
    walk.end = walk.pictures.empty() ? data.from : walk.pictures.back().end;
    if (!cut && walk.pictures.size() < limits.pictures) {
        walker.addTail(walk);
    }
    return walk;
}

}  // namespace vantor
