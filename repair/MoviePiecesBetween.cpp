// What lies between two anchors of a movie in pieces.
#include <algorithm>

#include "repair/MoviePieces.h"

namespace vantor {

namespace {

// Coded units of a photo: every 0xFF is followed by zero or is part of a restart mark, and there are too many
// of them for chance. Source: ITU-T T.81, F.1.2.3.
bool isOfAPhoto(std::span<const std::uint8_t> bytes) {
    constexpr unsigned kTelling = 6;
    unsigned stuffed = 0;
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
        if (bytes[i] != 0xFF) {
            continue;
        }
        const std::uint8_t next = bytes[i + 1];
        if (next != 0 && (next < 0xD0 || next > 0xD7)) {
            return next == 0xD9 && stuffed >= kTelling;
        }
        stuffed += next == 0 ? 1 : 0;
    }
    return stuffed >= kTelling;
}

}  // namespace

// What lies between two anchors of a movie that holds no JPEG pictures is not of it where it is of a photo.
void MoviePieces::passOverPhotos(std::uint64_t before, std::uint64_t end) {
    constexpr std::uint64_t kFarthest = 8192;  // clusters
    const std::uint64_t from = m_laid.at(before) + 1;
    const bool open = end >= m_laid.places.size();
    const std::uint64_t to = open ? m_free.count() : m_laid.at(end);
    if (holdsPhotos() || to <= from || (!open && to - from > kFarthest)) {
        return;
    }
    std::uint64_t left = end - before - 1;
    std::vector<std::uint8_t> content(static_cast<std::size_t>(m_free.clusterBytes()));
    for (std::uint64_t cluster = from; cluster < std::min(to, from + kFarthest) && (!open || left != 0);
         ++cluster) {
        if (!m_left.isFree(cluster) || m_laid.isUsed(cluster)) {
            continue;
        }
        m_medium.read(m_free.firstSectorOf(cluster) * kSectorBytes, content);
        if (isOfAPhoto(content)) {
            m_left.takeCluster(cluster);
        } else {
            --left;
        }
    }
}

void MoviePieces::fillBetween() {
    for (std::size_t number = 1; number < m_laid.places.size();) {
        if (m_laid.isPlaced(number)) {
            ++number;
            continue;
        }
        std::size_t end = number;
        while (end < m_laid.places.size() && !m_laid.isPlaced(end)) {
            ++end;
        }
        fillRow(number - 1, end);
        number = end;
    }
}

std::optional<std::uint64_t> MoviePieces::ifLeft(std::optional<std::uint64_t> cluster) const {
    return cluster && m_left.isFree(*cluster) ? cluster : std::nullopt;
}

// `ahead` of the clusters of the file in (before, end) `step` free ones apart from the one before, the others
// in a row up to the one behind.
bool MoviePieces::lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, std::uint64_t step) {
    const FreeClusters& among = step == 1 ? m_left : m_free;
    return m_laid.lay(
        before, end, ahead,
        [&](std::uint64_t, std::uint64_t last) { return ifLeft(among.ahead(last, step)); },
        [&](std::uint64_t, std::uint64_t next) { return m_left.back(next, 1); });
}

// Of the samples that reach into the clusters of the file in (before, end).
MoviePieces::RowLook MoviePieces::lookAtRow(std::uint64_t before, std::uint64_t end) {
    const std::uint64_t from = (before + 1) * m_free.clusterBytes();
    const std::uint64_t to = end * m_free.clusterBytes();
    ClusterFile file(m_medium, m_free, m_laid.places, m_layout.bytes);
    ByteView view(file);
    auto sample = std::lower_bound(
        m_samples.begin(), m_samples.end(), from,
        [](const PromisedSample& each, std::uint64_t at) { return each.at + each.bytes <= at; });
    RowLook look;
    for (; sample != m_samples.end() && sample->at < to; ++sample) {
        const auto even = isEvenPicture(view, *sample);
        const bool broken = even ? !*even : sample->tells() && !isWholeSample(view, *sample);
        look.broken += broken ? 1 : 0;
        look.proved = look.proved && even.value_or(false);
    }
    return look;
}

// The ways in which clusters are given out, the likeliest first: evenly, as while movies are written in turn;
// on behind the one before; and in a row from somewhere else up to the one behind. The one is taken that
// leaves the fewest samples broken.
void MoviePieces::fillRow(std::uint64_t before, std::uint64_t end) {
    struct Way {
        std::uint64_t ahead = 0;
        std::uint64_t step = 1;
    };
    constexpr std::uint64_t kMostWays = 64;
    passOverPhotos(before, end);
    const std::uint64_t missing = end - before - 1;
    const bool open = end >= m_laid.places.size();
    const std::uint64_t apart = open ? 0 : m_free.stepsBetween(m_laid.at(before), m_laid.at(end));
    std::vector<Way> ways;
    if (open && m_stepKept) {
        ways.push_back({missing, m_step});
    } else if (apart > missing && apart % (missing + 1) == 0) {
        ways.push_back({missing, apart / (missing + 1)});
    }
    // The head of a movie that was written last lies behind it: what follows joins what it leads up to.
    if (!open && m_laid.at(end) < m_laid.at(before)) {
        ways.push_back({0, 1});
    }
    ways.push_back({missing, 1});
    for (std::uint64_t back = 1; !open && back <= std::min(missing, kMostWays); ++back) {
        ways.push_back({missing - back, 1});
    }
    const bool onlyWay = !open && m_left.stepsBetween(m_laid.at(before), m_laid.at(end)) == missing + 1;
    std::optional<Way> best;
    std::size_t fewest = 0;
    for (const Way& way : ways) {
        if (m_stop != 0 || !lay(before, end, way.ahead, way.step)) {
            continue;
        }
        const RowLook look = onlyWay ? RowLook() : lookAtRow(before, end);
        if (look.broken == 0) {
            m_guessed += look.proved ? 0 : static_cast<std::size_t>(missing);
            return;
        }
        if (!best || look.broken < fewest) {
            best = way;
            fewest = look.broken;
        }
        m_laid.lift(before, end);
    }
    if (best && lay(before, end, best->ahead, best->step)) {
        m_guessed += static_cast<std::size_t>(missing);
    }
}

}  // namespace vantor
