// From the directory to the summary's stream, from there to the bitmap, and the head that makes it a file.
#include "decode/helper/SummaryThumbnail.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "decode/helper/ByteSpan.h"

namespace vantor::decode {

namespace {

constexpr std::uint32_t kEntryBytes = 128;
constexpr std::uint32_t kMostEntries = 4096;
constexpr std::uint32_t kMostSummaryBytes = 1 << 20;

class CompoundFile {
  public:
    // Nothing when the bytes begin none.
    static std::optional<CompoundFile> open(ByteView& view) {
        constexpr std::uint16_t kSmallSectors = 9, kLargeSectors = 12;
        const auto shift = view.le16(30);
        if (!view.matches(0, "\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1") ||
            (shift != kSmallSectors && shift != kLargeSectors)) {
            return std::nullopt;
        }
        return CompoundFile(view, *shift);
    }

    // The first summary with a bitmap in it: a storage within may have one of its own, mostly without.
    QByteArray thumbnail();

  private:
    CompoundFile(ByteView& view, unsigned shift) : m_view(view), m_shift(shift) {}

    std::uint32_t sectorBytes() const { return 1U << m_shift; }
    std::uint64_t placeOf(std::uint32_t sector) const { return (std::uint64_t{sector} + 1) << m_shift; }
    std::optional<std::uint32_t> next(std::uint32_t sector);
    std::optional<std::uint32_t> tableSector(std::uint32_t index);
    QByteArray streamFrom(std::uint32_t sector, std::uint32_t bytes);

    ByteView& m_view;
    unsigned m_shift;
};

// Where the sector of that number in the allocation table lies: the first are named in the header, the rest
// in a chain of sectors whose last entry leads on.
std::optional<std::uint32_t> CompoundFile::tableSector(std::uint32_t index) {
    constexpr std::uint32_t kInHeader = 109;
    if (index < kInHeader) {
        return m_view.le32(76 + std::uint64_t{4} * index);
    }
    index -= kInHeader;
    const std::uint32_t inSector = sectorBytes() / 4 - 1;
    auto sector = m_view.le32(68);
    for (; sector && index >= inSector; index -= inSector) {
        sector = m_view.le32(placeOf(*sector) + sectorBytes() - 4);
    }
    return sector ? m_view.le32(placeOf(*sector) + std::uint64_t{4} * index) : std::nullopt;
}

std::optional<std::uint32_t> CompoundFile::next(std::uint32_t sector) {
    if (placeOf(sector) >= m_view.size()) {
        return std::nullopt;
    }
    const std::uint32_t inSector = sectorBytes() / 4;
    const auto table = tableSector(sector / inSector);
    return table ? m_view.le32(placeOf(*table) + std::uint64_t{4} * (sector % inSector)) : std::nullopt;
}

// Shorter than asked for where the chain ends or breaks.
QByteArray CompoundFile::streamFrom(std::uint32_t sector, std::uint32_t bytes) {
    QByteArray stream;
    for (std::optional<std::uint32_t> at = sector; at && std::cmp_less(stream.size(), bytes);
         at = next(*at)) {
        QByteArray piece(static_cast<qsizetype>(sectorBytes()), '\0');
        if (!m_view.copy(placeOf(*at), {reinterpret_cast<std::uint8_t*>(piece.data()), sectorBytes()})) {
            break;
        }
        stream += piece;
    }
    return stream.first(std::min<qsizetype>(stream.size(), bytes));
}

// A bitmap without the head that it has in a file gets one. Source: BITMAPINFOHEADER.
QByteArray asFile(QByteArrayView bitmap) {
    constexpr std::uint32_t kHead = 14, kUsualHeader = 40, kBitFields = 3;
    SpanSource source(spanOf(bitmap));
    ByteView view(source);
    const std::uint64_t header = view.le32(0).value_or(0);
    const std::uint64_t bits = view.le16(14).value_or(0), used = view.le32(32).value_or(0);
    if (header < kUsualHeader || header > 124 || bits > 32 || used > 256) {
        return {};
    }
    const std::uint64_t colours = bits > 8 ? 0 : used != 0 ? used : std::uint64_t{1} << bits;
    const std::uint64_t masks = header == kUsualHeader && view.le32(16) == kBitFields ? 12 : 0;
    QByteArray file = "BM";
    for (const std::uint64_t number : {kHead + static_cast<std::uint64_t>(bitmap.size()), std::uint64_t{0},
                                       kHead + header + masks + colours * 4}) {
        for (int shift = 0; shift < 32; shift += 8) {
            file += static_cast<char>(number >> shift);
        }
    }
    return file + bitmap.toByteArray();
}

// The bitmap of a property set.
QByteArray bitmapIn(const QByteArray& summary) {
    constexpr std::uint32_t kThumbnail = 17, kClipboardData = 71, kWindowsFormat = 0xffffffff, kBitmap = 8;
    constexpr std::uint32_t kMostProperties = 64;
    SpanSource source(spanOf(summary));
    ByteView view(source);
    const std::uint64_t section = view.le32(44).value_or(0);
    const std::uint32_t count = std::min(view.le32(section + 4).value_or(0), kMostProperties);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint64_t property = section + 8 + std::uint64_t{8} * i;
        if (view.le32(property) != kThumbnail) {
            continue;
        }
        const std::uint64_t value = section + view.le32(property + 4).value_or(0);
        const std::uint64_t data = value + 16, size = view.size();
        if (view.le32(value) != kClipboardData || view.le32(value + 8) != kWindowsFormat ||
            view.le32(value + 12) != kBitmap || data >= size) {
            return {};
        }
        // The length counts the two words before the bitmap.
        const std::uint64_t length = view.le32(value + 4).value_or(0);
        return asFile(QByteArrayView(summary).sliced(
            static_cast<qsizetype>(data),
            static_cast<qsizetype>(std::min(length < 8 ? 0 : length - 8, size - data))));
    }
    return {};
}

QByteArray CompoundFile::thumbnail() {
    constexpr std::string_view kName("\5\0S\0u\0m\0m\0a\0r\0y\0I\0n\0f\0o\0r\0m\0a\0t\0i\0o\0n\0\0\0", 40);
    // Shorter streams lie elsewhere, and no bitmap fits in them.
    const std::uint32_t shortest = m_view.le32(56).value_or(0);
    std::optional<std::uint32_t> sector = m_view.le32(48);
    for (std::uint32_t seen = 0; sector && seen < kMostEntries; sector = next(*sector)) {
        for (std::uint32_t at = 0; at < sectorBytes(); at += kEntryBytes, ++seen) {
            const std::uint64_t entry = placeOf(*sector) + at;
            const std::uint32_t bytes = m_view.le32(entry + 120).value_or(0);
            if (!m_view.matches(entry, kName) || bytes < shortest) {
                continue;
            }
            const std::uint32_t first = m_view.le32(entry + 116).value_or(0);
            const QByteArray picture = bitmapIn(streamFrom(first, std::min(bytes, kMostSummaryBytes)));
            if (!picture.isEmpty()) {
                return picture;
            }
        }
    }
    return {};
}

}  // namespace

QByteArray summaryThumbnail(ByteView& view) {
    auto file = CompoundFile::open(view);
    return file ? file->thumbnail() : QByteArray();
}

}  // namespace vantor::decode
