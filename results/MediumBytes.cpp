// Keeping what was read, and knowing when to stop asking a medium that refuses.
#include "results/MediumBytes.h"

#include <algorithm>
#include <cstring>

namespace vantor {

namespace {

constexpr std::uint64_t kStepBytes = 256 * 1024;
constexpr std::size_t kBlockBytes = 64 * 1024;
// A walker that hops no further than this is followed by reading on: the bytes between are wanted anyway.
constexpr std::uint64_t kSmallHop = 1024 * 1024;

// Runs that follow each other with nothing but refused sectors between them are one; others stay as they are.
std::vector<SectorRun> withGapsClosed(const std::vector<SectorRun>& runs) {
    const auto backwards = [](const SectorRun& a, const SectorRun& b) { return b.first < a.end; };
    if (runs.empty() || std::adjacent_find(runs.begin(), runs.end(), backwards) != runs.end()) {
        return runs;
    }
    return {{runs.front().first, runs.back().end}};
}

std::uint64_t sectorsOf(const std::vector<SectorRun>& runs) {
    return CarvedRun{runs, false}.sectors();
}

}  // namespace

std::uint64_t mostVainReads(std::uint64_t mediumSectors) {
    constexpr std::uint64_t kBytes = std::uint64_t{4} << 30;
    return std::clamp<std::uint64_t>(kBytes / kSectorBytes / std::max<std::uint64_t>(1, mediumSectors), 2,
                                     16);
}

MediumBytes::MediumBytes(const ItemSource& source, std::vector<std::uint8_t>& kept)
    : m_source(source),
      m_runs(source.asPublished ? source.carved.runs : withGapsClosed(source.carved.runs)),
      m_carvedBytes(sectorsOf(m_runs) * kSectorBytes),
      m_kept(kept) {
    holdFirstBytes();
    if (!m_runs.empty() && !source.asPublished) {
        m_runs.back().end = std::max(m_runs.back().end, source.mediumSectors);
    }
    m_wholeSize = std::max(sectorsOf(m_runs) * kSectorBytes, m_keptStart);
    m_carvedBytes = std::max(m_carvedBytes, m_keptStart);
    m_size = m_wholeSize;
    m_expected = m_carvedBytes;
    m_kept.reserve(kMostKept);  // growing must not move what others look at
}

// The published bytes of an item in which a read failed repeat sectors; without these they are the runs' own.
void MediumBytes::holdFirstBytes() {
    const CarvedRun& carved = m_source.carved;
    const auto bytes = static_cast<std::uint64_t>(m_source.firstBytes.size());
    if (m_source.asPublished || !carved.readFailed || carved.runs.empty()) {
        m_keptStart = m_keptEnd = bytes;
        return;
    }
    const auto* const published = reinterpret_cast<const std::uint8_t*>(m_source.firstBytes.data());
    const std::uint64_t end = bytes / kSectorBytes;
    auto repeat = carved.repeats.begin();
    std::uint64_t at = 0;  // published sector
    for (const SectorRun& run : carved.runs) {
        for (std::uint64_t sector = run.first; sector < run.end && at < end;) {
            if (repeat != carved.repeats.end() && at >= repeat->first) {
                at = repeat->end;
                ++repeat;
                continue;
            }
            const std::uint64_t stop = repeat == carved.repeats.end() ? end : std::min(end, repeat->first);
            const std::uint64_t count = std::min(stop - at, run.end - sector);
            m_held[sector] = {sector + count, published + at * kSectorBytes};
            sector += count;
            at += count;
        }
    }
    if (const auto first = m_held.find(carved.runs.front().first); first != m_held.end()) {
        m_keptStart = m_keptEnd = (first->second.end - first->first) * kSectorBytes;
    }
}

// Null when the medium has to be asked.
const std::uint8_t* MediumBytes::heldSector(std::uint64_t onMedium) const {
    const auto after = m_held.upper_bound(onMedium);
    if (after == m_held.begin()) {
        return nullptr;
    }
    const auto& [first, held] = *std::prev(after);
    return onMedium < held.end ? held.bytes + (onMedium - first) * kSectorBytes : nullptr;
}

bool MediumBytes::holdsAnyFrom(std::uint64_t sector) const {
    return !m_held.empty() && onMedium(sector) < std::prev(m_held.end())->second.end;
}

void MediumBytes::limitTo(std::uint64_t bytes) {
    m_size = std::min(m_size, std::max(bytes, m_carvedBytes));
}

void MediumBytes::expect(std::uint64_t bytes) {
    m_expected = std::max(m_carvedBytes, bytes);
}

std::size_t MediumBytes::read(std::uint64_t offset, std::span<std::uint8_t> into) {
    std::size_t done = 0;
    while (done < into.size() && offset + done < m_size) {
        const auto bytes = bytesFrom(offset + done);
        const auto count =
            std::min<std::uint64_t>({bytes.size(), into.size() - done, m_size - offset - done});
        if (count == 0) {
            break;
        }
        std::copy_n(bytes.begin(), count, into.begin() + static_cast<std::ptrdiff_t>(done));
        done += static_cast<std::size_t>(count);
    }
    return done;
}

std::size_t MediumBytes::readPast(std::uint64_t offset, std::span<std::uint8_t> into) {
    const auto count = std::min<std::uint64_t>(into.size(), m_size - std::min(offset, m_size));
    into = into.first(static_cast<std::size_t>(count));
    if (m_readableSectors != kNoLimit && offset >= m_readableSectors * kSectorBytes) {
        return 0;
    }
    if (offset % kSectorBytes == 0 && count % kSectorBytes == 0 && offset >= m_keptEnd) {
        return readSectors(offset / kSectorBytes, into);
    }
    return read(offset, into);
}

// Some bytes from the offset on, also behind m_size; none where reading ended early.
std::span<const std::uint8_t> MediumBytes::bytesFrom(std::uint64_t offset) {
    auto bytes = keptFrom(offset);
    if (bytes.empty() && offset < m_keptStart + kMostKept && offset < m_keptEnd + kSmallHop) {
        // A small item does not read what lies behind it before somebody asks.
        const std::uint64_t step = m_keptEnd + kStepBytes;
        keepUpTo(std::max(offset + 1, m_keptEnd < m_carvedBytes ? std::min(step, m_carvedBytes) : step));
        bytes = keptFrom(offset);
    }
    return bytes.empty() ? blockAt(offset) : bytes;
}

std::span<const std::uint8_t> MediumBytes::keptFrom(std::uint64_t offset) const {
    if (offset < m_keptStart) {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(m_source.firstBytes.data());
        return {bytes + offset, static_cast<std::size_t>(m_keptStart - offset)};
    }
    const std::uint64_t end =
        m_readableSectors == kNoLimit ? m_keptEnd : std::min(m_keptEnd, m_readableSectors * kSectorBytes);
    if (offset >= end) {
        return {};
    }
    return {m_kept.data() + (offset - m_keptStart), static_cast<std::size_t>(end - offset)};
}

void MediumBytes::keepUpTo(std::uint64_t end) {
    const std::uint64_t stop = std::min(
        {(end + kSectorBytes - 1) / kSectorBytes * kSectorBytes, m_wholeSize, m_keptStart + kMostKept});
    if (stop <= m_keptEnd) {
        return;
    }
    const auto held = static_cast<std::size_t>(m_keptEnd - m_keptStart);
    const auto wanted = static_cast<std::size_t>(stop - m_keptStart);
    if (m_kept.size() < wanted) {
        m_kept.resize(std::max(wanted, std::min<std::size_t>(kMostKept, m_kept.size() * 2)));
    }
    m_keptEnd += readSectors(m_keptEnd / kSectorBytes, std::span(m_kept).subspan(held, wanted - held));
}

std::span<const std::uint8_t> MediumBytes::blockAt(std::uint64_t offset) {
    if (offset < m_blockStart || offset - m_blockStart >= m_blockFill) {
        m_block.resize(kBlockBytes);
        m_blockStart = offset - offset % kSectorBytes;
        const auto wanted = std::min<std::uint64_t>(kBlockBytes, m_wholeSize - m_blockStart);
        m_blockFill = readSectors(m_blockStart / kSectorBytes,
                                  std::span(m_block).first(static_cast<std::size_t>(wanted)));
    }
    const auto skip = static_cast<std::size_t>(offset - m_blockStart);
    return skip < m_blockFill ? std::span<const std::uint8_t>(m_block).subspan(skip, m_blockFill - skip)
                              : std::span<const std::uint8_t>();
}

// Bytes that arrived, from the item's sector on.
std::size_t MediumBytes::readSectors(std::uint64_t first, std::span<std::uint8_t> into) {
    SectorReader* const medium = m_source.medium ? m_source.medium() : nullptr;
    for (std::size_t done = 0; done < into.size(); done += kSectorBytes) {
        const std::uint64_t sector = first + done / kSectorBytes;
        if (!mayReadOn(sector)) {
            return done;
        }
        if (sector < m_readableSectors && !readSector(medium, sector, into.data() + done)) {
            std::memset(into.data() + done, 0, kSectorBytes);
            m_unreadable.add(sector);
        }
        if (sector >= m_readableSectors) {
            return static_cast<std::size_t>(std::max(m_readableSectors, first) - first) * kSectorBytes;
        }
        done += readFetched(medium, sector + 1, into.subspan(done + kSectorBytes)) * kSectorBytes;
    }
    return into.size();
}

// Sectors that the medium's reader has at hand behind one that was read, where nothing is to be asked of
// each.
std::uint64_t MediumBytes::readFetched(SectorReader* medium, std::uint64_t sector,
                                       std::span<std::uint8_t> into) {
    const bool counted = m_measuring && m_source.readInVain != nullptr;
    const std::uint64_t end =
        std::min({sector + into.size() / kSectorBytes, endOfRun(sector), m_readableSectors,
                  m_unreadable.firstFrom(sector), counted ? m_carvedBytes / kSectorBytes : kNoLimit});
    if (medium == nullptr || m_mediumIsGone || !m_held.empty() || end <= sector ||
        medium->position() != onMedium(sector)) {
        return 0;
    }
    return medium->readFetched(into.data(), end - sector);
}

// Counts what is read behind the carved run; false at a place that was read in vain too often.
bool MediumBytes::mayReadOn(std::uint64_t sector) {
    if (!m_measuring || m_source.readInVain == nullptr || sector * kSectorBytes < m_carvedBytes) {
        return true;
    }
    const std::uint64_t at = onMedium(sector);
    if (m_source.readInVain->isSpent(at, mostVainReads(m_source.mediumSectors))) {
        m_ranOut = true;
        return false;
    }
    ++m_readBeyond[at / PlaceBudget::kPlaceSectors];
    return true;
}

void MediumBytes::spendReading(PlaceBudget& budget) const {
    for (const auto& [place, sectors] : m_readBeyond) {
        // Read several times over is spent several times over.
        for (std::uint64_t left = sectors; left > 0;) {
            const std::uint64_t once = std::min(left, PlaceBudget::kPlaceSectors);
            budget.spend({place * PlaceBudget::kPlaceSectors, place * PlaceBudget::kPlaceSectors + once});
            left -= once;
        }
    }
}

SectorRun MediumBytes::stretchBeyond(std::uint64_t bytes) const {
    const std::uint64_t end = (std::min(bytes, m_wholeSize) + kSectorBytes - 1) / kSectorBytes;
    const std::uint64_t carved = m_carvedBytes / kSectorBytes;
    if (m_runs.empty() || end <= carved) {
        return {};
    }
    const std::uint64_t first = onMedium(carved);
    return {first, first + (end - carved)};
}

bool MediumBytes::readSector(SectorReader* medium, std::uint64_t sector, std::uint8_t* place) {
    const std::uint64_t at = onMedium(sector);
    if (const std::uint8_t* const held = heldSector(at)) {
        std::memcpy(place, held, kSectorBytes);
        return true;
    }
    if (medium == nullptr || m_mediumIsGone) {
        m_mediumIsGone = true;
        if (!holdsAnyFrom(sector)) {
            m_readableSectors = std::min(m_readableSectors, sector);
        }
        return false;
    }
    if (m_unreadable.contains(sector)) {
        return false;
    }
    if ((medium->position() == at || medium->seek(at)) && medium->read()) {
        std::memcpy(place, medium->current(), kSectorBytes);
        return true;
    }
    noteRefusal(*medium, sector);
    return false;
}

void MediumBytes::noteRefusal(SectorReader& medium, std::uint64_t sector) {
    if (medium.isGone()) {
        m_mediumIsGone = true;
        if (!holdsAnyFrom(sector)) {
            m_readableSectors = std::min(m_readableSectors, sector);
        }
        return;
    }
    m_refusedInRow = sector == m_lastRefused + 1 ? m_refusedInRow + 1 : 1;
    m_lastRefused = sector;
    if (sector * kSectorBytes < m_expected) {
        if (m_refusedInRow == kZoneRefusals) {
            passOverZone(medium, sector + 1);
        }
    } else if (m_refusedInRow == kHopelessSectors) {
        m_readableSectors = std::min(m_readableSectors, sector + 1 - kHopelessSectors);
    }
}

// Steps forward, ever further, to a sector that can be read, and halves the last step to where the good ones
// begin. Each refusal may take the medium seconds, and a zone may hold many thousands.
void MediumBytes::passOverZone(SectorReader& medium, std::uint64_t sector) {
    const std::uint64_t end = std::min((m_expected + kSectorBytes - 1) / kSectorBytes, m_readableSectors);
    const auto isGood = [&](std::uint64_t probed) {
        const std::uint64_t at = onMedium(probed);
        return heldSector(at) != nullptr || (medium.seek(at) && medium.read());
    };
    std::uint64_t bad = sector - 1;
    std::uint64_t good = end;
    for (std::uint64_t step = kZoneRefusals; bad + step < end && good == end && !medium.isGone();
         step = std::min(2 * step, kMostZoneStep)) {
        (isGood(bad + step) ? good : bad) = bad + step;
    }
    while (good - bad > 1 && !medium.isGone()) {
        const std::uint64_t middle = bad + (good - bad) / 2;
        (isGood(middle) ? good : bad) = middle;
    }
    const std::uint64_t carved = m_carvedBytes / kSectorBytes;
    if (good == end && end > carved) {
        // Nothing more of the file is there.
        m_readableSectors = std::min(m_readableSectors, std::max(sector - kZoneRefusals, carved));
        return;
    }
    for (; sector < good; ++sector) {
        m_unreadable.add(sector);
    }
}

std::uint64_t MediumBytes::onMedium(std::uint64_t sector) const {
    for (const SectorRun& run : m_runs) {
        if (sector < run.end - run.first) {
            return run.first + sector;
        }
        sector -= run.end - run.first;
    }
    return kNoLimit;
}

// The first sector of the item that does not lie behind the one given on the medium.
std::uint64_t MediumBytes::endOfRun(std::uint64_t sector) const {
    std::uint64_t end = 0;
    for (const SectorRun& run : m_runs) {
        end += run.end - run.first;
        if (sector < end) {
            break;
        }
    }
    return end;
}

std::uint64_t MediumBytes::sectorsUnreadable(std::uint64_t bytes) const {
    const std::uint64_t end = (bytes + kSectorBytes - 1) / kSectorBytes;
    std::uint64_t count = 0;
    for (std::uint64_t sector = m_unreadable.firstFrom(0); sector < end;
         sector = m_unreadable.firstFrom(sector + 1)) {
        ++count;
    }
    return count;
}

bool MediumBytes::nothingReadable(std::uint64_t bytes) const {
    return bytes != 0 && sectorsUnreadable(bytes) == (bytes + kSectorBytes - 1) / kSectorBytes;
}

}  // namespace vantor
