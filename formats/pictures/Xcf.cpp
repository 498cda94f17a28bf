// XCF (GIMP): the tables of layers, levels and tiles; the file ends behind the packed tile that stands last.
// Source: GIMP developer documentation, "XCF file format".
#include <algorithm>

#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

constexpr std::uint64_t kTileSide = 64;
constexpr std::uint32_t kXcfMostItems = 4096;       // layers and channels
constexpr std::uint64_t kMostTiles = 1 << 20;       // of the whole picture
constexpr std::uint32_t kXcfMostProperties = 4096;  // of one item

enum class Packing : std::uint8_t { None = 0, Runs = 1, Zlib = 2 };

struct Tile {
    std::uint64_t at = 0;
    std::uint64_t pixels = 0;
    std::uint64_t pixelBytes = 0;
};

class XcfWalk {
  public:
    XcfWalk(ByteView& view, unsigned version) : m_view(view), m_pointer(version >= 11 ? 8 : 4) {}

    Extent walk(std::uint64_t at, Facts facts);

  private:
    std::uint64_t pointer(std::uint64_t& at);
    std::uint64_t skipProperties(std::uint64_t at, bool image);
    void item(std::uint64_t at, bool layer);
    void hierarchy(std::uint64_t at);
    Extent lastTileEnd(const Facts& facts);

    ByteView& m_view;
    const std::size_t m_pointer;
    Packing m_packing = Packing::None;
    std::uint64_t m_end = 0;  // behind the tables
    std::uint64_t m_tiles = 0;
    Tile m_last;
    bool m_missing = false;  // something is not there or cannot be
};

std::uint64_t XcfWalk::pointer(std::uint64_t& at) {
    const auto value = m_view.number(at, m_pointer, Endian::Big);
    m_missing = m_missing || !value;
    at += m_pointer;
    return value.value_or(0);
}

std::uint64_t XcfWalk::skipProperties(std::uint64_t at, bool image) {
    constexpr std::uint32_t kEnd = 0, kCompression = 17;
    for (std::uint32_t i = 0; i < kXcfMostProperties; ++i) {
        Cursor in(m_view, at);
        const auto kind = in.u32(), bytes = in.u32();
        if (!in.ok())
            break;
        at = addClamped(in.at(), bytes);
        if (kind == kCompression && image)
            m_packing = static_cast<Packing>(m_view.u8(in.at()).value_or(0));
        if (kind == kEnd)
            return at;
    }
    m_missing = true;
    return at;
}

void XcfWalk::hierarchy(std::uint64_t at) {
    const std::uint64_t pixelBytes = m_view.be32(at + 8).value_or(0);
    at += 12;
    constexpr std::uint64_t kEmptyLevel = 12;  // its closing zero has four bytes in all versions
    std::uint64_t level = pointer(at);         // only the first level holds pixels; the rest are empty tables
    for (auto other = pointer(at); other != 0 && !m_missing && m_tiles < kMostTiles; ++m_tiles) {
        m_end = std::max(m_end, addClamped(other, kEmptyLevel));
        other = pointer(at);
    }
    m_end = std::max(m_end, at);
    const std::uint64_t width = m_view.be32(level).value_or(0), height = m_view.be32(level + 4).value_or(0);
    const auto columns = (width + kTileSide - 1) / kTileSide;
    level = addClamped(level, 8);
    for (std::uint64_t index = 0; !m_missing && m_tiles < kMostTiles && columns != 0; ++index, ++m_tiles) {
        const auto tile = pointer(level);
        if (tile == 0)
            break;
        const auto x = index % columns * kTileSide, y = index / columns * kTileSide;
        if (y >= height || tile <= m_last.at)
            continue;
        m_last = {tile, std::min(kTileSide, width - x) * std::min(kTileSide, height - y), pixelBytes};
    }
    m_end = std::max(m_end, level);
}

// A layer or channel: size, type, name, properties, pixels, mask.
void XcfWalk::item(std::uint64_t at, bool layer) {
    at = addClamped(at, layer ? 12 : 8);
    at = addClamped(at, 4 + std::uint64_t{m_view.be32(at).value_or(0)});
    at = skipProperties(at, false);
    if (m_missing)
        return;
    const auto pixels = pointer(at);
    const auto mask = layer ? pointer(at) : 0;
    m_end = std::max(m_end, at);
    if (pixels != 0)
        hierarchy(pixels);
    if (mask != 0)
        item(mask, false);
}

Extent XcfWalk::lastTileEnd(const Facts& facts) {
    if (m_last.at == 0 || m_last.at < m_end)
        return completeAt(m_view, m_end, facts);
    if (m_packing == Packing::None)
        return completeAt(m_view, addClamped(m_last.at, m_last.pixels * m_last.pixelBytes), facts);
    if (m_packing == Packing::Zlib) {
        const auto result = inflateZlib(m_view, m_last.at, m_last.pixels * m_last.pixelBytes);
        return result.outcome == InflateOutcome::Done  ? completeAt(m_view, result.end, facts)
               : result.outcome == InflateOutcome::Cut ? cutOffAt(m_view, result.end, facts)
                                                       : damagedAt(m_view, result.end, facts);
    }
    // Runs: each byte plane of the pixels by itself.
    std::uint64_t at = m_last.at;
    for (std::uint64_t plane = 0; plane < std::min<std::uint64_t>(m_last.pixelBytes, 32); ++plane) {
        for (std::uint64_t done = 0; done < m_last.pixels;) {
            const auto head = m_view.u8(at++);
            if (!head)
                return cutOffAt(m_view, m_view.size(), facts);
            const bool repeats = *head < 128;
            std::uint64_t count = repeats ? *head + 1U : 256U - *head;
            if (*head == 127 || *head == 128) {
                count = m_view.be16(at).value_or(0);
                at += 2;
                if (count == 0)
                    return damagedAt(m_view, at, facts);
            }
            at += repeats ? 1 : count;
            done += count;
        }
    }
    return completeAt(m_view, at, facts);
}

Extent XcfWalk::walk(std::uint64_t at, Facts facts) {
    at = skipProperties(at, true);
    for (const bool layers : {true, false}) {
        for (std::uint32_t i = 0; i < kXcfMostItems && !m_missing; ++i) {
            const auto where = pointer(at);
            if (where == 0)
                break;
            item(where, layers);
        }
    }
    m_end = std::max(m_end, at);
    return m_missing ? cutOffAt(m_view, m_view.size(), facts) : lastTileEnd(facts);
}

Extent walkXcf(ByteView& view) {
    if (!view.matches(0, "gimp xcf ") || view.u8(13) != 0)
        return unknownExtent();
    unsigned version = 0;
    if (view.matches(9, "v"))
        version =
            static_cast<unsigned>((view.u8(10).value_or('0') - '0') * 100 +
                                  (view.u8(11).value_or('0') - '0') * 10 + (view.u8(12).value_or('0') - '0'));
    Facts facts;
    facts.width = view.be32(14).value_or(0);
    facts.height = view.be32(18).value_or(0);
    return XcfWalk(view, version).walk(version >= 4 ? 30 : 26, facts);
}

}  // namespace

extern constexpr Format kXcf = {
    .name = "XCF",
    .group = Group::Pictures,
    .walk = walkXcf,
    .extensions = " XCF ",
};

}  // namespace vantor
