// Matroska and WebM: the segment's elements by their size, and live recordings whose sizes are unknown.
// Sources: RFC 8794 (EBML), RFC 9559 (Matroska).
#include <algorithm>
#include <array>
#include <bit>

#include "formats/Among.h"
#include "formats/Crc.h"
#include "formats/Dates.h"
#include "formats/Format.h"
#include "formats/PlayingTime.h"

namespace vantor {

namespace {

constexpr std::uint32_t kEbml = 0x1A45DFA3, kSegment = 0x18538067, kVoid = 0xEC, kCrc = 0xBF;
constexpr std::uint32_t kInfo = 0x1549A966, kTracks = 0x1654AE6B, kCluster = 0x1F43B675;
constexpr std::uint32_t kTrackEntry = 0xAE, kMatroskaVideo = 0xE0, kPixelWidth = 0xB0, kPixelHeight = 0xBA,
                        kDate = 0x4461, kTimeScale = 0x2AD7B1, kDuration = 0x4489;

// Children of a segment: seek head, info, tracks, cluster, cues, attachments, chapters, tags.
constexpr std::array<std::uint32_t, 10> kInSegment = {
    0x114D9B74, kInfo, kTracks, kCluster, 0x1C53BB6B, 0x1941A469, 0x1043A770, 0x1254C367, kVoid, kCrc};
// Children of a cluster: timestamp, silent tracks, position, previous size, simple block, group, encrypted
// block.
constexpr std::array<std::uint32_t, 9> kInCluster = {0xE7, 0x5854, 0xA7, 0xAB, 0xA3, 0xA0, 0xAF, kVoid, kCrc};

constexpr std::uint32_t kLeastLongId = 0x200000;  // three bytes and more
constexpr int kMostStrangers = 16;
constexpr int kMostFactElements = 512;

// A file of up to so much is looked at block by block; in a longer one so many clusters, spread evenly, and
// so many blocks of each. Sums are taken of elements up to the first size.
constexpr std::uint64_t kSmallFile = 4 * 1024 * 1024;
constexpr std::uint64_t kClustersLookedAt = 48;
constexpr int kBlocksLookedAt = 16;
constexpr int kMatroskaMostBlocks = 1 << 16;

struct Element {
    std::uint32_t id = 0;
    std::uint64_t body = 0;
    std::uint64_t bytes = 0;
    bool unknownSize = false;

    std::uint64_t end() const { return addClamped(body, bytes); }
};

// Length in bytes of a variable number by its first byte; 0 = none.
unsigned numberBytes(std::uint8_t first) {
    unsigned bytes = 1;
    for (unsigned mask = 0x80; mask != 0 && (first & mask) == 0; mask >>= 1)
        ++bytes;
    return bytes <= 8 ? bytes : 0;
}

std::optional<Element> readElement(ByteView& view, std::uint64_t at) {
    Element element;
    const unsigned idBytes = numberBytes(view.u8(at).value_or(0));
    if (idBytes == 0 || idBytes > 4)
        return std::nullopt;
    const auto id = view.number(at, idBytes, Endian::Big);
    const unsigned sizeBytes = numberBytes(view.u8(at + idBytes).value_or(0));
    if (!id || sizeBytes == 0)
        return std::nullopt;
    const auto size = view.number(at + idBytes, sizeBytes, Endian::Big);
    if (!size)
        return std::nullopt;
    const std::uint64_t mask = (std::uint64_t{1} << (7 * sizeBytes)) - 1;
    element.id = static_cast<std::uint32_t>(*id);
    element.bytes = *size & mask;
    element.unknownSize = element.bytes == mask;
    element.body = at + idBytes + sizeBytes;
    return element;
}

// A floating-point number of four or eight bytes, of units of so many nanoseconds.
std::uint64_t matroskaMs(std::uint64_t bits, std::uint64_t bytes, std::uint64_t unitNanoseconds) {
    constexpr double kMostMilliseconds = 1e15;
    const double units = bytes == 4   ? std::bit_cast<float>(static_cast<std::uint32_t>(bits))
                         : bytes == 8 ? std::bit_cast<double>(bits)
                                      : 0.0;
    const double milliseconds = units * static_cast<double>(unitNanoseconds) / 1e6;
    const bool sensible = milliseconds > 0 && milliseconds < kMostMilliseconds;
    return sensible ? playingTimeMs(static_cast<std::uint64_t>(milliseconds), 1000) : 0;
}

// Pixel size, date and length out of the info and track elements, entering only the masters that lead to
// them.
void addFacts(ByteView& view, const Element& parent, Facts& facts) {
    std::uint64_t at = parent.body;
    std::uint64_t unitNanoseconds = 1'000'000, length = 0, lengthBytes = 0;
    for (int i = 0; i < kMostFactElements && at < parent.end(); ++i) {
        const auto element = readElement(view, at);
        if (!element || element->unknownSize)
            break;
        const bool small = element->bytes >= 1 && element->bytes <= 8;
        const auto value = small ? view.number(element->body, element->bytes, Endian::Big).value_or(0) : 0;
        at = element->end();
        if (element->id == kTrackEntry || element->id == kMatroskaVideo)
            at = element->body;
        else if (element->id == kPixelWidth && parent.id == kTracks)
            facts.width = std::max(facts.width, static_cast<std::uint32_t>(value));
        else if (element->id == kPixelHeight && parent.id == kTracks)
            facts.height = std::max(facts.height, static_cast<std::uint32_t>(value));
        else if (element->id == kDate && parent.id == kInfo)
            facts.taken = dateFromNanosecondsSince2001(static_cast<std::int64_t>(value));
        else if (element->id == kTimeScale && parent.id == kInfo)
            unitNanoseconds = value;
        else if (element->id == kDuration && parent.id == kInfo) {
            length = value;
            lengthBytes = element->bytes;
        }
    }
    if (lengthBytes != 0)
        facts.durationMs = matroskaMs(length, lengthBytes, unitNanoseconds);
}

// Whether a child of an element of unknown size looks like what it is said to be: nothing else tells the
// end from bytes of another file.
bool isPlausible(ByteView& view, const Element& element) {
    constexpr std::uint64_t kMostNumberBytes = 8, kBlockHead = 4;
    constexpr std::array<std::uint8_t, 7> kInGroup = {0xA1, 0x9B, 0xFB, 0xFA, 0xA4, 0x75, 0xBF};
    const auto first = view.u8(element.body).value_or(0);
    switch (element.id) {
        case 0xA3:  // a block: its track's number in one byte, flags of which three are kept free
        case 0xAF:
            return element.bytes >= kBlockHead && first > 0x80 &&
                   (view.u8(element.body + 3).value_or(0xFF) & 0x70) == 0;
        case 0xA0:
            return std::find(kInGroup.begin(), kInGroup.end(), first) != kInGroup.end();
        case 0xE7:
        case 0xA7:
        case 0xAB:
            return element.bytes <= kMostNumberBytes;
        case kVoid:
            return element.bytes == 0 || first == 0;
        default:
            return true;
    }
}

class MatroskaWalk {
  public:
    explicit MatroskaWalk(ByteView& view) : m_view(view) {}

    Extent walk();

  private:
    Extent segment(const Element& segment);
    void openCluster();
    void lookInto(const Element& element, std::uint64_t segmentBytes);
    bool isRowOfBlocks(const Element& cluster, bool all);

    ByteView& m_view;
    std::uint64_t m_at = 0;
    bool m_sawCluster = false;
    bool m_sound = true;  // whatever was looked into
    std::uint64_t m_nextLook = 0;
    std::uint64_t m_widest = 0;  // of the blocks
    Facts m_facts;
};

// m_at moves behind the last whole element of a cluster of unknown size.
void MatroskaWalk::openCluster() {
    for (;;) {
        const auto element = readElement(m_view, m_at);
        if (!element || element->unknownSize || !isAmong(kInCluster, element->id) ||
            element->end() > m_view.size() || !isPlausible(m_view, *element))
            return;
        m_at = element->end();
    }
}

// Whether a cluster's children fill it, or its first ones are such.
bool MatroskaWalk::isRowOfBlocks(const Element& cluster, bool all) {
    int strangers = 0;
    std::uint64_t at = cluster.body;
    for (int i = 0; i < (all ? kMatroskaMostBlocks : kBlocksLookedAt) && at < cluster.end(); ++i) {
        const auto element = readElement(m_view, at);
        if (!element || element->unknownSize || element->end() > cluster.end())
            return false;
        if (!isAmong(kInCluster, element->id) && ++strangers > kMostStrangers)
            return false;
        m_widest = std::max(m_widest, element->bytes);
        at = element->end();
    }
    return true;
}

// The sum that an element tells of itself in its first child, and the blocks of a cluster.
void MatroskaWalk::lookInto(const Element& element, std::uint64_t segmentBytes) {
    constexpr std::uint64_t kSumBytes = 4;
    const bool all = segmentBytes <= kSmallFile;
    if (!isAmong(kInSegment, element.id) || (!all && element.body < m_nextLook))
        return;
    if (element.id == kCluster) {
        m_sound = m_sound && isRowOfBlocks(element, all);
        m_nextLook = addClamped(element.body, segmentBytes / kClustersLookedAt);
    }
    const auto sum = readElement(m_view, element.body);
    if (!sum || sum->id != kCrc || sum->bytes != kSumBytes || element.bytes > kSmallFile || !all ||
        element.id == kVoid)
        return;
    bool readable = true;
    const auto crc = crc32(m_view, sum->end(), element.end(), readable);
    m_sound = m_sound && readable && m_view.le32(sum->body) == crc;
}

Extent MatroskaWalk::segment(const Element& segment) {
    const auto limit = segment.unknownSize ? m_view.size() : segment.end();
    m_at = segment.body;
    int strangers = 0;
    while (m_at < limit) {
        const auto element = readElement(m_view, m_at);
        if (!element && !m_view.holds(m_at, 12))
            return cutOffAt(m_view, m_at, m_facts);
        if (!element)
            break;
        // Elements of later versions and of vendors are taken only where the segment's size vouches for them.
        const bool foreign = !isAmong(kInSegment, element->id);
        if (segment.unknownSize && !isPlausible(m_view, *element))
            break;
        if (foreign && (segment.unknownSize || element->id < kLeastLongId || ++strangers > kMostStrangers))
            break;
        if (element->id == kInfo || element->id == kTracks)
            addFacts(m_view, *element, m_facts);
        m_sawCluster = m_sawCluster || element->id == kCluster;
        if (element->unknownSize) {
            if (element->id != kCluster)
                break;
            m_at = element->body;
            openCluster();
            continue;
        }
        if (element->end() > limit && !segment.unknownSize)
            break;
        if (element->end() > m_view.size())
            return cutOffAt(m_view, m_view.size(), m_facts);
        lookInto(*element, limit - segment.body);
        m_at = element->end();
    }
    if (segment.unknownSize)
        return m_sawCluster ? inexact(completeAt(m_view, m_at, m_facts)) : damagedAt(m_view, m_at, m_facts);
    if (m_at != limit)
        return damagedAt(m_view, m_at, m_facts);
    if (!m_sound)
        return spoiltUpTo(m_view, m_at, m_facts);
    const Extent whole = completeAt(m_view, m_at, m_facts);
    // One block that is most of the file says little of it.
    return m_sawCluster && m_widest <= segment.bytes / 4 ? withFrames(whole) : whole;
}

Extent MatroskaWalk::walk() {
    const auto head = readElement(m_view, 0);
    if (!head || head->id != kEbml || head->unknownSize || head->bytes > 4096)
        return unknownExtent();
    m_at = head->end();
    for (int padding = 0; padding < 16; ++padding) {
        const auto element = readElement(m_view, m_at);
        if (!element)
            return m_view.holds(m_at, 12) ? damagedAt(m_view, m_at) : cutOffAt(m_view, m_at);
        if (element->id == kSegment)
            return segment(*element);
        if (element->id != kVoid)
            break;
        m_at = element->end();
    }
    return damagedAt(m_view, m_at);
}

Extent walkMatroska(ByteView& view) {
    return MatroskaWalk(view).walk();
}

}  // namespace

extern constexpr Format kMatroska = {
    .name = "Matroska",
    .group = Group::Movies,
    .walk = walkMatroska,
    .extensions = " MKV WEBM MKA MK3D MKS ",
    .large = true,
};

}  // namespace vantor
