// Pictures without compression to speak of: portable any map and float map, SGI, QOI, X pixmap. Sources:
// ppm(5), pgm(5), pbm(5), pfm(5); "The SGI Image File Format" 1.00; qoiformat.org specification 1.0; XPM
// manual 3.4.
#include <algorithm>
#include <array>

#include "formats/TextReader.h"
#include "formats/Walkers.h"

namespace vantor {

namespace {

constexpr std::uint64_t kMostSide = 1 << 20;  // pixels
constexpr std::uint64_t kMostPixels = 1ULL << 30;

// The decimal numbers in the head of a portable any map, with comments between them.
class MapHead {
  public:
    explicit MapHead(ByteView& view) : m_view(view) {}

    // 0 for anything that is no number.
    std::uint64_t number() {
        while (m_at < kLongestHead && isSpace(m_view.u8(m_at).value_or(0))) {
            ++m_at;
            if (m_view.u8(m_at) == '#')
                m_at = m_view.find('\n', m_at, kLongestHead).at;
        }
        std::uint64_t value = 0;
        for (auto digit = m_view.u8(m_at); digit && *digit >= '0' && *digit <= '9' && value < kMostPixels;
             digit = m_view.u8(++m_at))
            value = value * 10 + (*digit - '0');
        return value;
    }
    // Passes over whatever stands up to the next blank.
    void word() {
        while (m_at < kLongestHead && isSpace(m_view.u8(m_at).value_or(0)))
            ++m_at;
        while (m_at < kLongestHead && !isSpace(m_view.u8(m_at).value_or(' ')))
            ++m_at;
    }
    // Behind the one blank that ends the head; nothing when it is not there.
    std::optional<std::uint64_t> end() {
        return isSpace(m_view.u8(m_at).value_or(0)) ? std::optional(m_at + 1) : std::nullopt;
    }

  private:
    static constexpr std::uint64_t kLongestHead = 4096;
    static bool isSpace(std::uint8_t byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

    ByteView& m_view;
    std::uint64_t m_at = 2;
};

}  // namespace

Extent walkAnyMap(ByteView& view) {
    const auto kind = view.u8(1).value_or(0);
    if (view.u8(0) != 'P' || kind < '4' || kind > '6')
        return unknownExtent();  // maps written in digits end where text does
    MapHead head(view);
    const auto width = head.number(), height = head.number();
    const auto most = kind == '4' ? 1 : head.number();
    const auto start = head.end();
    if (!start || width == 0 || height == 0 || width > kMostSide || height > kMostSide || most == 0 ||
        most > 65535)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    const std::uint64_t samples = kind == '6' ? 3 : 1;
    const std::uint64_t row = kind == '4' ? (width + 7) / 8 : width * samples * (most > 255 ? 2 : 1);
    return completeAt(view, *start + mulClamped(row, height), facts);
}

Extent walkFloatMap(ByteView& view) {
    const auto kind = view.u8(1).value_or(0);
    if (view.u8(0) != 'P' || (kind != 'F' && kind != 'f'))
        return unknownExtent();
    MapHead head(view);
    const auto width = head.number(), height = head.number();
    head.word();  // the scale, whose sign tells the order of bytes
    const auto start = head.end();
    if (!start || width == 0 || height == 0 || width > kMostSide || height > kMostSide)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    return completeAt(view, *start + mulClamped(width * height, kind == 'F' ? 12 : 4), facts);
}

Extent walkSgi(ByteView& view) {
    constexpr std::uint64_t kHead = 512;
    Cursor in(view, 0);
    const auto magic = in.u16();
    const auto packed = in.u8(), bytes = in.u8();
    const std::uint64_t dimensions = in.u16(), width = in.u16();
    std::uint64_t height = in.u16(), planes = in.u16();
    if (!in.ok() || magic != 0x01DA || packed > 1 || bytes == 0 || bytes > 2 || dimensions == 0 ||
        dimensions > 3 || width == 0)
        return unknownExtent();
    height = dimensions == 1 ? 1 : height;
    planes = dimensions < 3 ? 1 : planes;
    if (height == 0 || planes == 0 || planes > 16)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    if (packed == 0)
        return completeAt(view, kHead + width * height * planes * bytes, facts);
    // Packed rows lie anywhere behind two tables: their places, their lengths.
    const std::uint64_t rows = height * planes, table = rows * 4;
    std::uint64_t end = kHead + 2 * table;
    // The tables are read in runs, so that the view does not hop between them for each row.
    std::array<std::uint64_t, 512> places{};
    for (std::uint64_t first = 0; first < rows; first += places.size()) {
        const auto run = std::min<std::uint64_t>(rows - first, places.size());
        Cursor starts(view, kHead + first * 4);
        for (std::size_t i = 0; i < run; ++i)
            places[i] = starts.u32();
        Cursor lengths(view, kHead + table + first * 4);
        for (std::size_t i = 0; i < run; ++i) {
            const std::uint64_t length = lengths.u32();
            if (!starts.ok() || !lengths.ok())
                return cutOffAt(view, view.size(), facts);
            if (places[i] < kHead + 2 * table || length > (width + 2) * 4)
                return damagedAt(view, end, facts);
            end = std::max(end, places[i] + length);
        }
    }
    return completeAt(view, end, facts);
}

Extent walkQoi(ByteView& view) {
    constexpr std::uint64_t kHead = 14;
    Cursor in(view, 4);
    const std::uint64_t width = in.u32(), height = in.u32();
    const auto channels = in.u8(), space = in.u8();
    if (!view.matches(0, "qoif") || !in.ok() || width == 0 || height == 0 || width > kMostSide ||
        height > kMostSide || width * height > kMostPixels || (channels != 3 && channels != 4) || space > 1)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    std::uint64_t at = kHead;
    for (std::uint64_t pixels = width * height; pixels > 0;) {
        const auto tag = view.u8(at);
        if (!tag)
            return cutOffAt(view, view.size(), facts);
        const bool run = *tag >= 0xC0 && *tag < 0xFE;
        const std::uint64_t covered = run ? (*tag & 0x3FU) + 1 : 1;
        if (covered > pixels)
            return damagedAt(view, at, facts);
        pixels -= covered;
        at += *tag == 0xFF ? 5 : *tag == 0xFE ? 4 : (*tag & 0xC0) == 0x80 ? 2 : 1;
    }
    constexpr std::string_view kEnd("\0\0\0\0\0\0\0\1", 8);
    if (at + kEnd.size() > view.size())
        return cutOffAt(view, view.size(), facts);
    return view.matches(at, kEnd) ? completeAt(view, at + kEnd.size(), facts) : damagedAt(view, at, facts);
}

// C source: an array of texts that ends with "};".
Extent walkXpm(ByteView& view) {
    if (!view.matches(0, "/* XPM */"))
        return unknownExtent();
    bool quoted = false, closed = false;
    for (std::uint64_t at = 9;; ++at) {
        const auto byte = view.u8(at);
        if (!byte)
            return cutOffAt(view, at);
        if (*byte < '\t' || *byte == 0x7F || *byte == 0xFF)
            return damagedAt(view, at);
        if (*byte == '"')
            quoted = !quoted;
        else if (quoted && *byte == '\\')
            ++at;
        else if (!quoted && *byte == '}')
            closed = true;
        else if (closed && *byte == ';')
            return completeAt(view, behindLineEnd(view, at + 1));
    }
}

}  // namespace vantor
