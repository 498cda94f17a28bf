// Portable any maps in bytes and in digits (PBM, PGM, PPM) and float maps (PFM). Sources: ppm(5), pgm(5),
// pbm(5), pfm(5).
#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

constexpr std::uint64_t kPnmAndPfmMostSide = 1 << 20;  // pixels
constexpr std::uint64_t kPnmAndPfmMostPixels = 1ULL << 30;

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
        for (auto digit = m_view.u8(m_at);
             digit && *digit >= '0' && *digit <= '9' && value < kPnmAndPfmMostPixels;
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

// Behind so many numbers in digits, or so many single digits, and one line end.
Extent behindDigits(ByteView& view, std::uint64_t at, std::uint64_t count, bool single, const Facts& facts) {
    TextReader in(view, at);
    bool within = false;
    for (;;) {
        const int byte = in.next();
        const bool digit = byte >= '0' && byte <= '9';
        if (within && !digit)
            --count;
        if (byte < 0)
            return count == 0 ? completeAt(view, in.at(), facts) : cutOffAt(view, in.at(), facts);
        within = digit && !single;
        if (digit && single && --count == 0)
            return completeAt(view, behindBlanks(view, in.at()), facts);
        if (count == 0)
            return inexact(completeAt(view, behindBlanks(view, in.at() - 1), facts));
        if (byte == '#')
            in.skip(view.find('\n', in.at(), view.size()).at - in.at());
        else if (!digit && !isTextSpace(byte))
            return damagedAt(view, in.at() - 1, facts);
    }
}

Extent walkAnyMap(ByteView& view) {
    const auto kind = view.u8(1).value_or(0);
    if (view.u8(0) != 'P' || kind < '1' || kind > '6')
        return unknownExtent();
    MapHead head(view);
    const auto width = head.number(), height = head.number();
    const auto most = kind == '4' || kind == '1' ? 1 : head.number();
    const auto start = head.end();
    if (!start || width == 0 || height == 0 || width > kPnmAndPfmMostSide || height > kPnmAndPfmMostSide ||
        most == 0 || most > 65535)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    if (kind <= '3')
        return behindDigits(view, *start, width * height * (kind == '3' ? 3 : 1), kind == '1', facts);
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
    if (!start || width == 0 || height == 0 || width > kPnmAndPfmMostSide || height > kPnmAndPfmMostSide)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(width);
    facts.height = static_cast<std::uint32_t>(height);
    return completeAt(view, *start + mulClamped(width * height, kind == 'F' ? 12 : 4), facts);
}

}  // namespace

extern constexpr Format kPnm = {
    .name = "Any map",
    .group = Group::Pictures,
    .walk = walkAnyMap,
    .extensions = " PPM PGM PBM PNM ",
    .strongMagic = false,
};

extern constexpr Format kPfm = {
    .name = "Float map",
    .group = Group::Pictures,
    .walk = walkFloatMap,
    .extensions = " PFM ",
    .strongMagic = false,
};

}  // namespace vantor
