// OpenEXR pictures: the table of places behind the headers leads to the last chunk of pixels.
// Source: OpenEXR file layout and technical introduction (openexr.com).
#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kTiled = 0x200, kDeep = 0x800, kMultiPart = 0x1000;
constexpr std::uint32_t kOpenExrMostParts = 1024, kMostAttributes = 4096;
constexpr std::uint64_t kOpenExrMostChunks = 1 << 22;
constexpr std::uint64_t kOpenExrLongestName = 256;

enum class Kind : std::uint8_t { Lines, Tiles, DeepLines, DeepTiles };

// Bytes of a chunk's head before the lengths of what follows.
constexpr std::uint64_t placeBytes(Kind kind) {
    return kind == Kind::Tiles || kind == Kind::DeepTiles ? 16 : 4;
}

class ExrWalk {
  public:
    explicit ExrWalk(ByteView& view) : m_view(view), m_version(view.le32(4).value_or(0)) {}

    Extent walk();

  private:
    enum class Step { Good, None, Cut, Broken };

    bool isMultiPart() const { return (m_version & kMultiPart) != 0; }
    // Behind the NUL that ends the text at m_at; nothing when there is none soon.
    std::optional<std::uint64_t> behindName() const;
    Step header(Kind& kind);
    Step headers();
    Step lastChunk(std::uint64_t& chunk);
    Extent endOf(std::uint64_t chunk);

    ByteView& m_view;
    const std::uint32_t m_version;
    std::uint64_t m_at = 8;
    std::array<Kind, kOpenExrMostParts> m_parts{};
    std::uint32_t m_partCount = 0;
    Facts m_facts;
};

std::optional<std::uint64_t> ExrWalk::behindName() const {
    const auto nul = m_view.find(0, m_at, m_at + kOpenExrLongestName);
    return nul.found() ? std::optional(nul.at + 1) : std::nullopt;
}

// One header: attributes of name, type, size and value until an empty name.
ExrWalk::Step ExrWalk::header(Kind& kind) {
    for (std::uint32_t attributes = 0; attributes < kMostAttributes; ++attributes) {
        if (m_view.u8(m_at) == 0) {
            ++m_at;
            return attributes != 0 ? Step::Good : Step::None;
        }
        const auto name = m_at;
        for (int text = 0; text < 2; ++text) {
            const auto behind = behindName();
            if (!behind)
                return m_view.holds(m_at, kOpenExrLongestName) ? Step::Broken : Step::Cut;
            m_at = *behind;
        }
        const auto bytes = m_view.le32(m_at);
        if (!bytes)
            return Step::Cut;
        const auto value = m_at + 4;
        if (m_view.matches(name, std::string_view("type\0", 5)) && isMultiPart()) {
            const bool tiles = m_view.matches(value, "tile") || m_view.matches(value, "deept");
            const bool deep = m_view.matches(value, "deep");
            kind = deep ? (tiles ? Kind::DeepTiles : Kind::DeepLines) : tiles ? Kind::Tiles : Kind::Lines;
        } else if (m_view.matches(name, std::string_view("dataWindow\0", 11)) && m_facts.width == 0) {
            Cursor in(m_view, value, Endian::Little);
            const auto left = in.u32(), top = in.u32(), right = in.u32(), bottom = in.u32();
            m_facts.width = right - left + 1;
            m_facts.height = bottom - top + 1;
        }
        m_at = value + *bytes;
    }
    return Step::Broken;
}

ExrWalk::Step ExrWalk::headers() {
    const bool deep = (m_version & kDeep) != 0, tiled = (m_version & kTiled) != 0;
    const Kind single = deep ? Kind::DeepLines : tiled ? Kind::Tiles : Kind::Lines;
    for (; m_partCount < (isMultiPart() ? kOpenExrMostParts : 1U); ++m_partCount) {
        Kind kind = single;
        const Step step = header(kind);
        if (step == Step::None && isMultiPart() && m_partCount != 0)
            return Step::Good;
        if (step != Step::Good)
            return step == Step::None ? Step::Broken : step;
        m_parts[m_partCount] = kind;
    }
    return isMultiPart() ? Step::Broken : Step::Good;
}

// The table ends where the first chunk begins, which one of its entries tells.
ExrWalk::Step ExrWalk::lastChunk(std::uint64_t& chunk) {
    std::uint64_t first = ~std::uint64_t{0};
    const auto start = m_at;
    for (std::uint64_t entries = 0; entries < kOpenExrMostChunks && m_at < first; ++entries, m_at += 8) {
        const auto place = m_view.le64(m_at);
        if (!place)
            return Step::Cut;
        if (*place <= start)
            return Step::Broken;  // never written
        first = std::min(first, *place);
        chunk = std::max(chunk, *place);
    }
    return m_at == first ? Step::Good : Step::Broken;
}

Extent ExrWalk::endOf(std::uint64_t chunk) {
    Kind kind = m_parts[0];
    if (isMultiPart()) {
        const auto part = m_view.le32(chunk);
        if (part && *part >= m_partCount)
            return damagedAt(m_view, m_at, m_facts);
        kind = m_parts[part.value_or(0)];
        chunk = addClamped(chunk, 4);
    }
    Cursor in(m_view, addClamped(chunk, placeBytes(kind)), Endian::Little);
    std::uint64_t bytes = 0;
    if (kind == Kind::Lines || kind == Kind::Tiles) {
        bytes = in.u32();
    } else {
        const auto table = in.u64(), samples = in.u64();
        in.skip(8);
        bytes = addClamped(table, samples);
    }
    return in.ok() ? completeAt(m_view, addClamped(in.at(), bytes), m_facts)
                   : cutOffAt(m_view, m_view.size(), m_facts);
}

Extent ExrWalk::walk() {
    constexpr std::uint32_t kVersion2 = 2;
    if (!m_view.matches(0, "\x76\x2F\x31\x01") || (m_version & 0xFF) != kVersion2)
        return unknownExtent();
    std::uint64_t chunk = 0;
    Step step = headers();
    if (step == Step::Good)
        step = lastChunk(chunk);
    if (step == Step::Cut)
        return cutOffAt(m_view, m_view.size(), m_facts);
    return step == Step::Good ? endOf(chunk) : damagedAt(m_view, m_at, m_facts);
}

Extent walkOpenExr(ByteView& view) {
    return ExrWalk(view).walk();
}

}  // namespace

extern constexpr Format kOpenExr = {
    .name = "OpenEXR",
    .group = Group::Pictures,
    .walk = walkOpenExr,
    .extensions = " EXR ",
};

}  // namespace vantor
