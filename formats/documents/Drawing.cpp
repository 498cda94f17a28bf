// DWG drawings: three generations that each mark their end in their own way.
// Source: Open Design Specification for .dwg files 5.3 (file organisation, second header, preview, R2007
// decompression).
#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t kSentinelBytes = 16;

// ---- R13 to R2000: places of the sections, then a second header and a preview, each between two marks.

constexpr auto kHeaderAgain = "\xD4\x7B\x21\xCE\x28\x93\x9F\xBF\x53\x24\x40\x09\x12\x3C\xAA\x01"sv;
constexpr auto kHeaderAgainEnd = "\x2B\x84\xDE\x31\xD7\x6C\x60\x40\xAC\xDB\xBF\xF6\xED\xC3\x55\xFE"sv;
constexpr auto kPreview = "\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B"sv;
constexpr auto kPreviewEnd = "\xE0\xDA\x92\xF8\x2B\xC9\xD7\xD7\x62\xA8\x35\xC0\x62\xBB\xEF\xD4"sv;

// Where `mark` begins in [from, to).
std::optional<std::uint64_t> findMark(ByteView& view, std::string_view mark, std::uint64_t from,
                                      std::uint64_t to) {
    while (from < to) {
        const Finding hit = view.find(static_cast<std::uint8_t>(mark.front()), from, to);
        if (!hit.found())
            return {};
        if (view.matches(hit.at, mark))
            return hit.at;
        from = hit.at + 1;
    }
    return {};
}

Extent walkPlacedSections(ByteView& view) {
    constexpr std::uint64_t kMostSections = 32, kLocatorBytes = 9;
    constexpr std::uint64_t kMostBetween = 1024 * 1024;    // last section and second header
    constexpr std::uint64_t kMostHeaderAgain = 64 * 1024;  // it takes
    const std::uint64_t preview = view.le32(0x0D).value_or(0);
    const std::uint64_t sections = view.le32(0x15).value_or(0);
    if (sections < 3 || sections > kMostSections)
        return unknownExtent();
    std::uint64_t end = 0x19 + sections * kLocatorBytes;
    for (std::uint64_t i = 0; i < sections; ++i) {
        const std::uint64_t locator = 0x19 + i * kLocatorBytes;
        const std::uint64_t at = view.le32(locator + 1).value_or(0),
                            bytes = view.le32(locator + 5).value_or(0);
        end = std::max(end, at + bytes);
    }
    if (end > view.size())
        return cutOffAt(view, view.size());

    bool marked = false;
    const std::uint64_t reach = std::min(view.size(), end + kMostBetween);
    if (const auto again = findMark(view, kHeaderAgain, end, reach)) {
        const std::uint64_t from = *again + kSentinelBytes;
        const auto last =
            findMark(view, kHeaderAgainEnd, from, std::min(view.size(), from + kMostHeaderAgain));
        if (!last)
            return cutOffAt(view, from);
        end = *last + kSentinelBytes;
        marked = true;
    }
    if (preview != 0) {
        if (preview >= view.size())
            return cutOffAt(view, view.size());
        const auto bytes =
            view.matches(preview, kPreview) ? view.le32(preview + kSentinelBytes) : std::nullopt;
        if (!bytes)
            return damagedAt(view, end);
        const std::uint64_t last = preview + kSentinelBytes + 4 + *bytes;
        if (last + kSentinelBytes > view.size())
            return cutOffAt(view, view.size());
        if (!view.matches(last, kPreviewEnd))
            return damagedAt(view, end);
        marked = marked || last > end;
        end = std::max(end, last + kSentinelBytes);
    }
    return marked ? completeAt(view, end) : inexact(completeAt(view, end));
}

// ---- R2004 and R2010 on: a header masked with a row of pseudo-random bytes, and repeated at the file's end.

constexpr std::uint64_t kMaskedHeader = 0x80, kMaskedBytes = 0x6C, kMaskedBlock = 0x80;

// Bytes [at, at + 8) of the header, a little-endian number, unmasked.
std::uint64_t unmasked64(ByteView& view, std::uint64_t at) {
    std::uint32_t state = 1;
    std::uint64_t mask = 0;
    for (std::uint64_t i = 0; i < at + 8; ++i) {
        state = state * 0x343FD + 0x269EC3;
        mask = mask >> 8 | std::uint64_t{state >> 16 & 0xFF} << 56;
    }
    return view.le64(kMaskedHeader + at).value_or(0) ^ mask;
}

Extent walkMaskedHeader(ByteView& view) {
    constexpr auto kMaskedName = "\x68\x40\xF8\xF7\x92\x2A\xB5\xEF\x18\xDD\x0B\xF1"sv;  // AcFssFcAJMB
    if (!view.matches(kMaskedHeader, kMaskedName))
        return damagedAt(view, kMaskedHeader);
    const std::uint64_t again = unmasked64(view, 0x34);
    if (again < kMaskedHeader + kMaskedBlock)
        return damagedAt(view, kMaskedHeader + kMaskedBlock);
    if (!view.holds(again, kMaskedBytes))
        return cutOffAt(view, view.size());
    if (!view.matches(again, kMaskedName))
        return damagedAt(view, again);
    // Writers repeat the block's last 20 bytes as well, or not.
    std::array<std::uint8_t, kMaskedBlock - kMaskedBytes> rest;
    if (!view.copy(kMaskedHeader + kMaskedBytes, rest))
        return damagedAt(view, again);
    const std::string_view block(reinterpret_cast<const char*>(rest.data()), rest.size());
    if (view.matches(again + kMaskedBytes, block))
        return completeAt(view, again + kMaskedBlock);
    return inexact(completeAt(view, again + kMaskedBytes));
}

// ---- R2007: a packed header of fixed size, in three interleaved blocks with correction bytes.

class PackedHeader {
  public:
    explicit PackedHeader(ByteView& view) : m_view(view) {}

    // The second of its numbers; nothing when it cannot be had.
    std::optional<std::uint64_t> fileBytes();

  private:
    std::uint8_t next() { return byteAt(m_at++); }
    // Byte `at` of the first block without its interleaving.
    std::uint8_t byteAt(std::uint64_t at) { return m_view.u8(kPage + 3 * at).value_or(0); }
    bool copyLiterals(std::size_t count);
    bool copyEarlier(std::size_t count, std::size_t distance);

    static constexpr std::uint64_t kPage = 0x80, kPackedStart = 0x20, kBlockBytes = 239;
    static constexpr std::size_t kWanted = 16;

    ByteView& m_view;
    std::uint64_t m_at = kPackedStart;
    std::array<std::uint8_t, 64> m_out{};
    std::size_t m_fill = 0;
};

// Bytes stored as they are come in an order of their own for each count; the first numbers are small, so that
// longer runs than eight do not occur among them.
bool PackedHeader::copyLiterals(std::size_t count) {
    static constexpr std::array<std::string_view, 9> kOrders = {
        ""sv,           "\0"sv,           "\1\0"sv,           "\2\1\0"sv,           "\0\1\2\3"sv,
        "\4\0\1\2\3"sv, "\5\1\2\3\4\0"sv, "\5\6\1\2\3\4\0"sv, "\0\1\2\3\4\5\6\7"sv,
    };
    if (count >= kOrders.size())
        return false;
    for (const char from : kOrders[count])
        m_out[m_fill++] = byteAt(m_at + static_cast<std::uint8_t>(from));
    m_at += count;
    return true;
}

bool PackedHeader::copyEarlier(std::size_t count, std::size_t distance) {
    if (distance > m_fill)
        return false;
    for (; count != 0 && m_fill < kWanted; --count, ++m_fill)
        m_out[m_fill] = m_out[m_fill - distance];
    return true;
}

std::optional<std::uint64_t> PackedHeader::fileBytes() {
    constexpr std::size_t kNumber = 8;
    const auto told = [](const auto& byte) {
        std::uint64_t value = 0;
        for (std::size_t i = 8; i-- != 0;)
            value = value << 8 | byte(i);
        return value;
    };
    if ((byteAt(0x1B) & 0x80) != 0)  // a negative count of bytes: not packed
        return told([&](std::size_t i) { return byteAt(kPackedStart + kNumber + i); });

    std::uint8_t code = next();
    std::size_t count = 0;
    if (code >> 4 == 2) {
        m_at += 2;
        count = next() & 7U;
    }
    while (m_fill < kWanted && m_at < kBlockBytes) {
        if (!copyLiterals(count != 0 ? count : code + std::size_t{8}))
            return {};
        code = next();
        do {
            std::size_t distance = 0;
            switch (code >> 4) {
                case 0:
                    count = (code & 15U) + 0x13;
                    distance = next() + std::size_t{1};
                    code = next();
                    count += code >> 3 & 0x10U;
                    distance += (code & 0x78U) << 5;
                    break;
                case 1:
                    count = (code & 15U) + 3;
                    distance = next() + std::size_t{1};
                    code = next();
                    distance += (code & 0xF8U) << 5;
                    break;
                case 2:
                    return {};  // reaches farther back than there is anything yet
                default:
                    count = code >> 4;
                    distance = (code & 15U) + std::size_t{1};
                    code = next();
                    distance += (code & 0xF8U) << 1;
            }
            if (!copyEarlier(count, distance))
                return {};
            count = code & 7U;
            if (count != 0)
                break;
            code = next();
            if (code >> 4 == 15)
                code &= 15U;
            else if (code >> 4 == 0)
                break;
        } while (m_fill < kWanted && m_at < kBlockBytes);
    }
    if (m_fill < kWanted)
        return {};
    return told([&](std::size_t i) { return m_out[kNumber + i]; });
}

Extent walkPackedHeader(ByteView& view) {
    constexpr std::uint64_t kFirstPage = 0x480;  // behind the header's
    if (!view.holds(0, kFirstPage))
        return cutOffAt(view, view.size());
    const auto bytes = PackedHeader(view).fileBytes();
    if (!bytes || *bytes < kFirstPage)
        return damagedAt(view, kFirstPage);
    return completeAt(view, *bytes);
}

Extent walkDrawing(ByteView& view) {
    if (!view.matches(0, "AC10") || !view.matches(6, "\0\0\0\0\0"sv))
        return unknownExtent();
    for (const auto version : {"12"sv, "14"sv, "15"sv}) {
        if (view.matches(4, version))
            return walkPlacedSections(view);
    }
    for (const auto version : {"18"sv, "24"sv, "27"sv, "32"sv}) {
        if (view.matches(4, version))
            return walkMaskedHeader(view);
    }
    return view.matches(4, "21") ? walkPackedHeader(view) : unknownExtent();
}

}  // namespace

extern constexpr Format kDrawing = {
    .name = "Drawing",
    .group = Group::Documents,
    .walk = walkDrawing,
    .extensions = " DWG DWT ",
};

}  // namespace vantor
