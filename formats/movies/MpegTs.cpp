// MPEG transport streams (TS, and M2TS/MTS with a time stamp before each packet): packets while they are in
// step. Sources: ISO/IEC 13818-1; BDAV (packets of 192 bytes).
#include <array>

#include "formats/Format.h"
#include "formats/PlayingTime.h"

namespace vantor {

namespace {

constexpr std::uint64_t kPacketBytes = 188;
constexpr int kMpegTsProof = 5;  // packets in step that make a stream

struct Layout {
    std::uint64_t stride;
    std::uint64_t lead;  // bytes before the sync byte
};
constexpr std::array<Layout, 3> kLayouts = {Layout{188, 0}, Layout{192, 4}, Layout{204, 0}};

bool isInStep(ByteView& view, const Layout& layout) {
    int seen = 0;
    for (std::uint64_t at = layout.lead; seen < kMpegTsProof; at += layout.stride, ++seen) {
        const auto sync = view.u8(at);
        if (!sync)
            return seen >= 2;
        if (*sync != 0x47)
            return false;
    }
    return true;
}

// Continuity of the program association table, by which a stream that happens to follow in step is told from
// ours.
class TableContinuity {
  public:
    // Whether the packet begins another stream: its table does not count on from ours.
    bool breaks(std::uint32_t head) {
        constexpr std::uint32_t kPayload = 0x10;
        if ((head >> 8 & 0x1FFF) != 0 || (head & kPayload) == 0)
            return false;
        const int counter = static_cast<int>(head & 15);
        const bool broken = m_last >= 0 && counter != (m_last + 1) % 16 && counter != m_last;
        m_last = counter;
        return broken;
    }

  private:
    int m_last = -1;
};

// From the first to the last time that the stream's own clock tells.
class StreamClock {
  public:
    void pass(ByteView& view, std::uint64_t packet, std::uint32_t head) {
        constexpr std::uint32_t kAdaptation = 0x20;
        constexpr std::uint8_t kTellsTime = 0x10;
        constexpr std::uint64_t kLeastBytes = 7;
        const std::uint32_t stream = head >> 8 & 0x1FFF;
        if ((head & kAdaptation) == 0 || view.u8(packet + 4).value_or(0) < kLeastBytes ||
            (view.u8(packet + 5).value_or(0) & kTellsTime) == 0 || (m_known && stream != m_stream))
            return;
        const auto told = view.number(packet + 6, 5, Endian::Big);
        if (!told)
            return;
        m_last = *told >> 7;
        if (!m_known)
            m_first = m_last;
        m_known = true;
        m_stream = stream;
    }
    Facts facts() const {
        constexpr std::uint64_t kPerSecond = 90000,
                                kMost = (std::uint64_t{1} << 33) - 1;  // where it begins anew
        Facts facts;
        facts.durationMs = playingTimeMs((m_last - m_first) & kMost, kPerSecond);
        return facts;
    }

  private:
    bool m_known = false;
    std::uint32_t m_stream = 0;
    std::uint64_t m_first = 0, m_last = 0;
};

Extent walkMpegTs(ByteView& view) {
    const Layout* layout = nullptr;
    for (const auto& candidate : kLayouts) {
        if (layout == nullptr && isInStep(view, candidate))
            layout = &candidate;
    }
    if (layout == nullptr)
        return unknownExtent();
    TableContinuity tables;
    StreamClock clock;
    std::uint64_t at = 0;
    for (;; at += layout->stride) {
        const auto head = view.be32(at + layout->lead);
        if (!head) {
            const bool whole = at == view.size();
            return inexact(whole ? completeAt(view, at, clock.facts()) : cutOffAt(view, at, clock.facts()));
        }
        const bool valid = *head >> 24 == 0x47 && (*head & 0x30) != 0;
        // A new recording begins at a sector's start; inside one the counter may jump.
        const bool other = valid && tables.breaks(*head) && isSectorStart(at);
        if (!valid || other)
            return inexact(completeAt(view, at, clock.facts()));
        if (!view.holds(at, layout->lead + kPacketBytes))
            return inexact(cutOffAt(view, at, clock.facts()));
        clock.pass(view, at + layout->lead, *head);
    }
}

}  // namespace

extern constexpr Format kMpegTs = {
    .name = "MPEG transport stream",
    .group = Group::Movies,
    .walk = walkMpegTs,
    .extensions = " TS M2TS MTS M2T TRP TP ",
    .strongMagic = false,
    .large = true,
    .frameStream = true,
};

}  // namespace vantor
