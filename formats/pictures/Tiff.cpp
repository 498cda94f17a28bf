// TIFF, BigTIFF and the camera raw formats built on them: the file ends behind the last byte that any
// directory refers to. Sources: TIFF 6.0, TIFF-EP, Adobe DNG 1.7, BigTIFF; JPEG XR (ITU-T T.832 annex A).
#include <algorithm>
#include <array>

#include "formats/Format.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

enum Tag : std::uint16_t {
    kSubfileType = 254,
    kBitsPerSample = 258,
    kCompression = 259,
    kStripOffsets = 273,
    kSamplesPerPixel = 277,
    kStripByteCounts = 279,
    kTileOffsets = 324,
    kTileByteCounts = 325,
    kSubDirectories = 330,
    kXmp = 700,
    kJpegOffset = 513,
    kJpegBytes = 514,
    kPanasonicWidth = 2,
    kPanasonicHeight = 3,
    kPanasonicBits = 10,
    kPanasonicRawOffset = 280,
    kPhotoshop = 34377,
    kGps = 34853,
    kInterop = 40965,
    kSonyPrivate = 50740,  // also DNG's private data, then of a byte type
    kXrWidth = 0xBC80,
    kXrHeight = 0xBC81,
    kXrOffset = 0xBCC0,
    kXrBytes = 0xBCC1,
    kXrAlphaOffset = 0xBCC2,
    kXrAlphaBytes = 0xBCC3,
};

constexpr std::uint64_t kRepeated = 4;
constexpr std::uint16_t kPanasonicMagic = 0x55, kJpegXrMagic = 0x01BC;
constexpr std::size_t kMostDirectories = 512;
constexpr std::uint64_t kMostPieces = 1 << 21;  // strips and tiles of one directory
constexpr std::uint64_t kMostValueBytes = 1 << 30;
// No directory tells what lies between: makers keep previews and data of their own there. More than this is
// another file's.
constexpr std::uint64_t kMostGap = std::uint64_t{64} << 20;
constexpr std::size_t kMostStretches = 64;

// TIFF, BigTIFF, the makers' own (Panasonic; Olympus two, one of them in either order of bytes), and JPEG XR.
bool isKnownMagic(std::uint16_t magic) {
    return magic == 42 || magic == 43 || magic == kPanasonicMagic || magic == 0x4F52 || magic == 0x5352 ||
           magic == kJpegXrMagic;
}

class TiffWalk {
  public:
    TiffWalk(ByteView& view, const TiffHeader& header) : m_view(view), m_header(header) {}

    Extent walk();

  private:
    struct Pieces {
        std::optional<TiffEntry> offsets;
        std::optional<TiffEntry> bytes;
    };
    struct Found {
        Pieces strips, tiles, jpeg, xr, xrAlpha;
        std::uint64_t width = 0, height = 0, bits = 1, samples = 1, compression = 1, rawOffset = 0,
                      rawBits = 12;
    };

    void enqueue(std::uint64_t relative);
    void directory(std::uint64_t at);
    void entry(const TiffEntry& entry, Found& found);
    void panasonicEntry(const TiffEntry& entry, Found& found);
    void panasonicRaw(const Found& found);
    void pieces(const Pieces& pieces, const Found& found);
    void sizes(const Found& found);
    void reach(std::uint64_t end);
    void cover(std::uint64_t from, std::uint64_t end);
    std::uint64_t coveredEnd() const;
    bool repeatsItsLastBytes();
    std::uint64_t behindFrameFilling();

    ByteView& m_view;
    const TiffHeader m_header;
    std::array<std::uint64_t, kMostDirectories> m_directories{};  // absolute; visited ones first
    std::size_t m_known = 0;
    struct Stretch {
        std::uint64_t from, end;
    };
    std::array<Stretch, kMostStretches> m_stretches{};  // further apart than kMostGap; the first from 0
    std::size_t m_stretchCount = 1;
    std::uint64_t m_end = 0;
    bool m_broken = false;
    bool m_padsPieces = false;  // to even lengths, the last one as those before it
    bool m_hasNotes = false;    // Exif or XMP: what writes them, cameras and editors, leaves an even length
    bool m_padded = false;      // to four bytes, as the writer of Photoshop's own tag does
    Facts m_facts;
};

void TiffWalk::reach(std::uint64_t end) {
    m_end = std::max(m_end, end);
}

// Reaches to the end, and takes note of what lies between.
void TiffWalk::cover(std::uint64_t from, std::uint64_t end) {
    reach(end);
    const auto last = m_stretches.begin() + static_cast<std::ptrdiff_t>(m_stretchCount);
    const auto isNear = [&](const Stretch& one) {
        return from <= addClamped(one.end, kMostGap) && one.from <= addClamped(end, kMostGap);
    };
    const auto near = std::find_if(m_stretches.begin(), last, isNear);
    if (near != last)
        *near = {std::min(near->from, from), std::max(near->end, end)};
    else if (m_stretchCount < kMostStretches)
        m_stretches[m_stretchCount++] = {from, end};
}

// Behind the last byte that hangs together with the first.
std::uint64_t TiffWalk::coveredEnd() const {
    std::uint64_t end = m_stretches[0].end;
    for (std::size_t turn = 0; turn < m_stretchCount; ++turn) {
        for (std::size_t i = 0; i < m_stretchCount; ++i) {
            if (m_stretches[i].from <= addClamped(end, kMostGap))
                end = std::max(end, m_stretches[i].end);
        }
    }
    return end;
}

void TiffWalk::enqueue(std::uint64_t relative) {
    const auto at = addClamped(m_header.base, relative);
    const auto known = m_directories.begin() + static_cast<std::ptrdiff_t>(m_known);
    if (relative == 0 || m_known == kMostDirectories || std::find(m_directories.begin(), known, at) != known)
        return;
    m_directories[m_known++] = at;
}

void TiffWalk::entry(const TiffEntry& entry, Found& found) {
    const auto number = [&] { return readTiffNumber(m_view, m_header, entry, 0).value_or(0); };
    switch (entry.tag) {
        case kTiffWidth:
        case kXrWidth:
            found.width = number();
            break;
        case kTiffHeight:
        case kXrHeight:
            found.height = number();
            break;
        case kBitsPerSample:
            found.bits = number();
            break;
        case kCompression:
            found.compression = number();
            break;
        case kSamplesPerPixel:
            found.samples = number();
            break;
        case kStripOffsets:
            found.strips.offsets = entry;
            break;
        case kStripByteCounts:
            found.strips.bytes = entry;
            break;
        case kTileOffsets:
            found.tiles.offsets = entry;
            break;
        case kTileByteCounts:
            found.tiles.bytes = entry;
            break;
        case kJpegOffset:
            found.jpeg.offsets = entry;
            break;
        case kJpegBytes:
            found.jpeg.bytes = entry;
            break;
        case kXrOffset:
            found.xr.offsets = entry;
            break;
        case kXrBytes:
            found.xr.bytes = entry;
            break;
        case kXrAlphaOffset:
            found.xrAlpha.offsets = entry;
            break;
        case kXrAlphaBytes:
            found.xrAlpha.bytes = entry;
            break;
        case kXmp:
            m_hasNotes = m_hasNotes || m_header.magic != kJpegXrMagic;
            break;
        case kTiffExif:
            m_hasNotes = true;
            [[fallthrough]];
        case kGps:
        case kInterop:
            enqueue(number());
            break;
        case kSonyPrivate:
            if (entry.type == 4 && entry.count == 1)
                enqueue(number());
            break;
        case kSubDirectories:
            for (std::uint64_t i = 0; i < std::min<std::uint64_t>(entry.count, kMostDirectories); ++i)
                enqueue(readTiffNumber(m_view, m_header, entry, i).value_or(0));
            break;
        case kPhotoshop:
            m_padded = true;
            break;
        default:
            break;
    }
}

// Panasonic's own tags stand in the place of the usual ones.
void TiffWalk::panasonicEntry(const TiffEntry& entry, Found& found) {
    const auto value = readTiffNumber(m_view, m_header, entry, 0).value_or(0);
    if (entry.tag == kPanasonicWidth)
        found.width = value;
    else if (entry.tag == kPanasonicHeight)
        found.height = value;
    else if (entry.tag == kPanasonicBits)
        found.rawBits = value;
    else if (entry.tag == kPanasonicRawOffset)
        found.rawOffset = value;
}

// The length of Panasonic's raw data is told nowhere. Pixels come in packs of 16 bytes: 14 of up to 12 bits,
// of more bits 11 or, at worst, 9.
void TiffWalk::panasonicRaw(const Found& found) {
    constexpr std::uint64_t kMostSide = 1 << 16;
    if (found.rawOffset == 0 || found.width > kMostSide || found.height > kMostSide)
        return;
    const std::uint64_t pixelsPerPack = found.rawBits <= 12 ? 14 : 9;
    const auto at = addClamped(m_header.base, found.rawOffset);
    cover(at, addClamped(at, found.width * found.height / pixelsPerPack * 16));
}

// Reaches to the end of every strip or tile. Offsets and lengths stand in two tables: read in runs, so that
// the window does not jump to and fro for each piece.
void TiffWalk::pieces(const Pieces& pieces, const Found& found) {
    if (!pieces.offsets)
        return;
    constexpr std::uint64_t kRun = 512;
    constexpr std::uint64_t kNoOffset = 0xFFFFFFFF;  // Panasonic: see its own tag
    std::array<std::uint64_t, kRun> offsets{};
    const auto count = std::min(pieces.offsets->count, kMostPieces);
    const std::uint64_t lengths = pieces.bytes ? pieces.bytes->count : 0;
    std::uint64_t before = 0;  // where the last piece ended
    for (std::uint64_t first = 0; first < count; first += kRun) {
        const auto run = std::min(kRun, count - first);
        for (std::uint64_t i = 0; i < run; ++i) {
            const auto offset = readTiffNumber(m_view, m_header, *pieces.offsets, first + i);
            if (!offset)
                return;
            offsets[i] = *offset;
        }
        for (std::uint64_t i = 0; i < run; ++i) {
            std::uint64_t bytes = 0;
            if (first + i < lengths)
                bytes = readTiffNumber(m_view, m_header, *pieces.bytes, first + i).value_or(0);
            if (bytes == 0 && count == 1 &&
                found.compression == 1)  // left out by old writers of plain pictures
                bytes =
                    mulClamped(mulClamped(found.width, found.height), mulClamped(found.bits, found.samples)) /
                    8;
            if (bytes == 0 || offsets[i] == kNoOffset)
                continue;
            const auto end = addClamped(offsets[i], bytes);
            m_padsPieces = m_padsPieces || (before % 2 != 0 && offsets[i] == before + 1);
            before = end;
            cover(addClamped(m_header.base, offsets[i]), addClamped(m_header.base, end));
        }
    }
}

void TiffWalk::sizes(const Found& found) {
    constexpr std::uint64_t kMostSide = 1 << 20;
    if (found.width == 0 || found.height == 0 || found.width > kMostSide || found.height > kMostSide)
        return;
    if (found.width * found.height <= std::uint64_t{m_facts.width} * m_facts.height)
        return;
    m_facts.width = static_cast<std::uint32_t>(found.width);
    m_facts.height = static_cast<std::uint32_t>(found.height);
}

void TiffWalk::directory(std::uint64_t at) {
    const auto directory = readTiffDirectory(m_view, m_header, at);
    if (!directory) {
        m_broken = m_broken || at < m_view.size();
        if (at >= m_view.size())
            cover(at, addClamped(at, 1));
        return;
    }
    cover(directory->at, directory->end);
    Found found;
    for (std::uint64_t i = 0; i < directory->entries; ++i) {
        const auto one = readTiffEntry(m_view, m_header, *directory, i);
        if (!one)
            return;
        if (one->valueBytes > kMostValueBytes)
            m_broken = true;
        else if (!one->isInline)
            cover(one->valueAt, addClamped(one->valueAt, one->valueBytes));
        entry(*one, found);
        if (m_header.magic == kPanasonicMagic)
            panasonicEntry(*one, found);
    }
    for (const Pieces& each : {found.strips, found.tiles, found.jpeg, found.xr, found.xrAlpha})
        pieces(each, found);
    panasonicRaw(found);
    sizes(found);
    if (const auto next = readTiffNext(m_view, m_header, *directory))
        enqueue(*next);
}

// Files laid out for reading over a network say so behind the header, and then write the last four bytes of
// each piece of the picture twice.
bool TiffWalk::repeatsItsLastBytes() {
    constexpr std::string_view kLayout = "GDAL_STRUCTURAL_METADATA_SIZE=";
    if (!m_view.matches(8, kLayout) && !m_view.matches(16, kLayout))
        return false;
    const auto last = m_view.be32(m_end - kRepeated), again = m_view.be32(m_end);
    return last && last == again;
}

// Some programs append each page as a file of its own that begins at a multiple of sixteen bytes, its
// directory eight behind, and fill the last one too. `m_end` where the pages do not lie so.
std::uint64_t TiffWalk::behindFrameFilling() {
    constexpr std::uint64_t kFrame = 16, kHeader = 8;
    for (std::size_t i = 0; i < m_known; ++i) {
        if (m_directories[i] % kFrame != kHeader || m_directories[i] + kFrame > m_end)
            return m_end;
    }
    const auto end = (m_end + kFrame - 1) / kFrame * kFrame;
    for (auto at = m_end; at < end; ++at) {
        if (m_view.u8(at) != std::uint8_t{0})
            return m_end;
    }
    return m_known > 1 ? end : m_end;
}

Extent TiffWalk::walk() {
    enqueue(m_header.firstDirectory);
    for (std::size_t i = 0; i < m_known; ++i)
        directory(m_directories[i]);
    if (m_known == 0 || m_end == 0)
        return damagedAt(m_view, 8);
    addTiffFacts(m_view, m_header.base, m_facts);
    if (m_broken || coveredEnd() < m_end)
        return inexact(damagedAt(m_view, coveredEnd(), m_facts));
    if (m_padded) {
        const auto padding = (4 - m_end % 4) % 4;
        if (padding != 0 && m_view.number(m_end, static_cast<std::size_t>(padding), Endian::Big) == 0U)
            m_end += padding;
    }
    if (repeatsItsLastBytes())
        m_end += kRepeated;
    else if (const auto filled = behindFrameFilling(); filled != m_end)
        m_end = filled;
    else if ((m_padsPieces || m_hasNotes) && m_end % 2 != 0 && m_view.u8(m_end) == 0)
        ++m_end;
    return inexact(completeAt(m_view, m_end, m_facts));
}

Extent walkTiff(ByteView& view) {
    auto header = readTiffHeader(view, 0);
    if (!header || !isKnownMagic(header->magic))
        return unknownExtent();
    return TiffWalk(view, *header).walk();
}

}  // namespace

extern constexpr Format kTiff = {
    .name = "TIFF",
    .group = Group::Pictures,
    .walk = walkTiff,
    .extensions =
        " TIF TIFF DNG NEF NRW CR2 ARW SR2 SRF PEF ORF RW2 RWL RAW SRW KDC DCR K25 3FR FFF GPR "
        "ERF MEF MOS IIQ CAP EIP JXR WDP HDP DCS PTX ",
    .large = true,
    .mayNotTellEnd = true,
};

}  // namespace vantor
