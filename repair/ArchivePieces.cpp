// The directory tells the place of every member, each of which begins with its name: that gives the clusters
// where members begin. What lies between is tried, the likeliest first, until the sum of the member is right.
#include "repair/ArchivePieces.h"

#include <algorithm>
#include <utility>

#include "formats/Crc.h"
#include "formats/Inflate.h"
#include "repair/ClusterFile.h"

namespace vantor {

namespace {

constexpr std::uint64_t kWidestArchiveTurn = 6;  // files written at the same time
constexpr std::uint64_t kMostWaysAMember = 4096;

}  // namespace

// Pays for the blocks read since.
bool ArchivePieces::mayGoOn() {
    m_effort.spend((m_medium.fetched() - std::exchange(m_fetched, m_medium.fetched())) *
                   ArchiveEffort::kBlock);
    return m_stop == 0 && m_effort.left != 0;
}

std::optional<PiecedArchive> ArchivePieces::assemble(std::uint64_t firstCluster, ArchiveEffort& effort) {
    m_effort.left = std::min(effort.left, ArchiveEffort::kOfOne);
    const std::uint64_t before = m_effort.left;
    m_fetched = m_medium.fetched();
    std::vector<std::uint8_t> head(
        static_cast<std::size_t>(std::min<std::uint64_t>(m_free.clusterBytes(), 1024)));
    const std::uint64_t first = m_free.firstSectorOf(firstCluster) * kSectorBytes;
    m_medium.read(first, head);
    // Those behind the first cluster in front, as files are mostly written.
    const auto behind = std::lower_bound(m_places.ends.begin(), m_places.ends.end(), first,
                                         [](const auto& end, std::uint64_t at) { return end.at < at; });
    const auto skipped = static_cast<std::size_t>(behind - m_places.ends.begin());
    m_laid.used.resize(static_cast<std::size_t>(m_free.count()), false);
    std::optional<PiecedArchive> found;
    for (std::size_t i = 0; i < m_places.ends.size() && !found && mayGoOn(); ++i) {
        m_effort.spend(1);
        if (tryEnd(firstCluster, head, (skipped + i) % m_places.ends.size())) {
            found = PiecedArchive{m_laid.places, m_end.bytes, m_proved && isShown()};
        }
        m_laid.liftAll();
    }
    mayGoOn();
    effort.spend(before - m_effort.left);
    return found;
}

bool ArchivePieces::tryEnd(std::uint64_t firstCluster, std::span<const std::uint8_t> head,
                           std::size_t which) {
    const std::uint64_t endPlace = m_places.ends[which].at;
    const ArchiveEnd& end = m_places.ends[which].told;
    const std::uint64_t cluster = m_free.clusterBytes();
    const auto known = m_fronts.find(which);
    const std::uint64_t within = end.at % cluster;
    if ((known != m_fronts.end() && (!known->second || !beginsMember(*known->second, head))) ||
        end.bytes / cluster >= m_free.count() || endPlace < within ||
        (endPlace - within) % kSectorBytes != 0) {
        return false;
    }
    const auto last = m_free.beginningAt((endPlace - within) / kSectorBytes);
    if (!last || !m_free.isFree(*last)) {
        return false;
    }
    m_end = end;
    m_proved = true;
    m_laid.places.assign(static_cast<std::size_t>((end.bytes + cluster - 1) / cluster),
                         LaidClusters::kUnplaced);
    m_effort.spend(m_laid.places.size());
    // One that begins with the archive is only found with it.
    if (known == m_fronts.end() && end.directory >= cluster) {
        const bool there = placeDirectory({}, *last);
        if (there || mayGoOn()) {
            m_fronts[which] = there ? std::optional(m_members.front()) : std::nullopt;
        }
        if (!there || !beginsMember(m_members.front(), head)) {
            return false;
        }
    }
    return placeDirectory(firstCluster, *last) && beginsMember(m_members.front(), head) && placeMembers();
}

// The directory lies in a row up to its end, or in turn with another file.
bool ArchivePieces::placeDirectory(std::optional<std::uint64_t> firstCluster, std::uint64_t lastCluster) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t first = m_end.directory / cluster;
    const std::uint64_t last = m_end.at / cluster;
    for (std::uint64_t step = 1; step <= kWidestArchiveTurn && mayGoOn(); ++step) {
        m_laid.liftAll();
        if (firstCluster) {
            m_laid.place(0, *firstCluster);
        }
        std::optional<std::uint64_t> at = lastCluster;
        bool there = true;
        for (std::uint64_t number = last + 1; number-- > first && there;) {
            there = at && m_free.isFree(*at) && (number == 0 ? at == firstCluster : !m_laid.isUsed(*at));
            if (there) {
                m_laid.place(number, *at);
                at = m_free.back(*at, step);
            }
        }
        // What little may follow the record goes on behind it.
        for (std::uint64_t number = last + 1; number < m_laid.places.size() && there; ++number) {
            const auto next = m_free.ahead(m_laid.at(number - 1), step);
            there = next && !m_laid.isUsed(*next);
            if (there) {
                m_laid.place(number, *next);
            }
        }
        m_effort.spend(m_laid.places.size());
        ClusterFile file(m_medium, m_free, m_laid.places, m_end.bytes);
        ByteView view(file);
        auto members = there ? archiveMembers(view, m_end) : std::nullopt;
        if (members) {
            m_effort.spend(members->size() + (m_end.at - m_end.directory) / ArchiveEffort::kBytesAStep);
            m_members = std::move(*members);
            return true;
        }
        if (first == last) {
            break;
        }
    }
    return false;
}

// Whether more than its place speaks for every cluster: none holds nothing but what no sum is of.
bool ArchivePieces::isShown() {
    const std::uint64_t cluster = m_free.clusterBytes();
    ClusterFile file(m_medium, m_free, m_laid.places, m_end.bytes);
    ByteView view(file);
    return (m_end.bytes - 1) / cluster == (m_end.at + ArchiveEnd::kBytes - 1) / cluster &&
           std::all_of(m_members.begin(), m_members.end(), [&](const ArchiveMember& member) {
               const auto content = memberContent(view, member);
               return content && member.aside < cluster && *content - member.at < cluster &&
                      member.end - *content - member.packed < cluster;
           });
}

bool ArchivePieces::placeMembers() {
    return std::all_of(m_members.begin(), m_members.end(),
                       [this](const ArchiveMember& member) { return placeHead(member); }) &&
           std::all_of(m_members.begin(), m_members.end(),
                       [this](const ArchiveMember& member) { return mayGoOn() && fill(member); });
}

// Where the member begins. A head that goes on in the next cluster may lie there with the content.
bool ArchivePieces::placeHead(const ArchiveMember& member) {
    constexpr std::uint64_t kTelling = 26;  // to the end of its sizes
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t within = member.at % cluster;
    const auto number = static_cast<std::size_t>(member.at / cluster);
    std::vector<std::uint8_t> head(
        static_cast<std::size_t>(std::min<std::uint64_t>(cluster - within, 30 + member.name.size())));
    const auto isAt = [&](std::uint64_t place) {
        m_medium.read(place, head);
        return beginsMember(member, head);
    };
    if (m_laid.isPlaced(number)) {
        return isAt(m_free.firstSectorOf(m_laid.at(number)) * kSectorBytes + within);
    }
    if (head.size() < kTelling) {
        return true;
    }
    const std::uint64_t first = m_free.firstSectorOf(m_laid.places.front()) * kSectorBytes;
    const auto behind = std::lower_bound(m_places.members.begin(), m_places.members.end(), first);
    const auto skipped = static_cast<std::size_t>(behind - m_places.members.begin());
    for (std::size_t i = 0; i < m_places.members.size() && mayGoOn(); ++i) {
        m_effort.spend(1);
        const std::uint64_t place = m_places.members[(skipped + i) % m_places.members.size()];
        if (place < within || (place - within) % kSectorBytes != 0) {
            continue;
        }
        const auto begins = m_free.beginningAt((place - within) / kSectorBytes);
        if (begins && m_free.isFree(*begins) && !m_laid.isUsed(*begins) && isAt(place)) {
            m_laid.place(number, *begins);
            return true;
        }
    }
    return false;
}

// As far as its sum or its codes tell.
ArchivePieces::Look ArchivePieces::look(const ArchiveMember& member) {
    ClusterFile file(m_medium, m_free, m_laid.places, member.end);
    ByteView view(file);
    const auto content = memberContent(view, member);
    if (!content) {
        return {false, member.at};
    }

    if (!member.isProvable()) {
        m_proved = m_proved && member.packed == 0;
        return {true, member.end};
    }
    if (member.isStored()) {
        m_effort.spend(member.packed / ArchiveEffort::kBytesAStep);
        bool read = true;
        return {crc32(view, *content, *content + member.packed, read) == member.sum && read, member.end};
    }
    const InflateResult result = inflate(view, *content, member.unpacked);
    m_effort.spend((result.produced + (result.end - *content)) / ArchiveEffort::kBytesAStep);
    return {result.outcome == InflateOutcome::Done && result.produced == member.unpacked &&
                result.end == *content + member.packed && result.crc == member.sum,
            result.outcome == InflateOutcome::Done ? member.end : result.end};
}

// `ahead` of the clusters of the file in (before, end) `step` free ones apart from the one before, the others
// in a row up to the one behind.
bool ArchivePieces::lay(std::uint64_t before, std::uint64_t end, std::uint64_t ahead, std::uint64_t step) {
    m_effort.spend(end - before);
    return m_laid.lay(
        before, end, ahead, [&](std::uint64_t, std::uint64_t last) { return m_free.ahead(last, step); },
        [&](std::uint64_t, std::uint64_t next) { return m_free.back(next, 1); });
}

// What of the member is not placed: evenly, as while files are written in turn; on behind the cluster before,
// up to where that breaks; and in a row from somewhere else up to the one behind.
bool ArchivePieces::fill(const ArchiveMember& member) {
    const std::uint64_t cluster = m_free.clusterBytes();
    const std::uint64_t last = (member.end - 1) / cluster;
    std::uint64_t before = member.at / cluster;
    if (!m_laid.isPlaced(before)) {
        --before;  // the end of the member before it, which is placed
    }
    std::uint64_t end = before + 1;
    while (end <= last && !m_laid.isPlaced(end)) {
        ++end;
    }
    if (end == before + 1) {
        return look(member).whole;
    }
    const bool open = end >= m_laid.places.size() || !m_laid.isPlaced(end);
    const std::uint64_t missing = end - before - 1;
    const auto tryWay = [&](std::uint64_t ahead, std::uint64_t step) {
        if (!lay(before, end, ahead, step)) {
            return Look{false, member.at};
        }
        const Look seen = look(member);
        if (!seen.whole) {
            m_laid.lift(before, end);
        }
        return seen;
    };
    const Look onwards = tryWay(missing, 1);
    if (onwards.whole) {
        return true;
    }
    const std::uint64_t apart = open ? 0 : m_free.stepsBetween(m_laid.at(before), m_laid.at(end));
    for (std::uint64_t step = 2; step <= kWidestArchiveTurn; ++step) {
        if ((open || apart == step * (missing + 1)) && tryWay(missing, step).whole) {
            return true;
        }
    }
    if (open) {
        return false;
    }
    // The cut is where it breaks or before.
    const std::uint64_t farthest = onwards.brokenAt / cluster;
    std::uint64_t ahead = farthest <= before ? 0 : std::min(missing, farthest - before);
    for (std::uint64_t ways = 0; ways < kMostWaysAMember && mayGoOn(); ++ways) {
        if (tryWay(ahead, 1).whole) {
            return true;
        }
        if (ahead-- == 0) {
            break;
        }
    }
    return false;
}

}  // namespace vantor
