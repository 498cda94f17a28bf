// Ogg: pages, each proved by its checksum, until every logical stream has ended; chained streams follow at
// once. Sources: RFC 3533, RFC 7845 (Opus), Vorbis I specification.
#include <algorithm>
#include <array>

#include "formats/Crc.h"
#include "formats/Format.h"
#include "formats/PlayingTime.h"

namespace vantor {

namespace {

constexpr std::size_t kPageHead = 27;
constexpr std::size_t kCrcAt = 22;
constexpr std::size_t kMostStreams = 64;

struct Page {
    bool begins = false;
    bool ends = false;
    std::uint32_t stream = 0;
    std::uint64_t position = 0;  // of the stream, in samples of sound
    std::uint64_t body = 0;
    std::uint64_t end = 0;
};

// How long the first stream of sound is, by the position that its last page tells.
class SoundClock {
  public:
    void pass(ByteView& view, const Page& page) {
        if (page.begins && m_perSecond == 0)
            begin(view, page);
        else if (m_perSecond != 0 && page.stream == m_stream && page.position != kNone)
            m_position = page.position;
    }
    Facts facts() const {
        Facts facts;
        facts.durationMs = playingTimeMs(m_position - std::min(m_position, m_skipped), m_perSecond);
        return facts;
    }

  private:
    static constexpr std::uint64_t kNone = ~std::uint64_t{0};  // no packet ends on the page

    void begin(ByteView& view, const Page& page) {
        constexpr std::uint64_t kOpusRate = 48000;
        m_stream = page.stream;
        if (view.matches(page.body, "\x01vorbis")) {
            m_perSecond = view.le32(page.body + 12).value_or(0);
        } else if (view.matches(page.body, "OpusHead")) {
            m_perSecond = kOpusRate;
            m_skipped = view.le16(page.body + 10).value_or(0);
        }
    }

    std::uint32_t m_stream = 0;
    std::uint64_t m_perSecond = 0;  // 0: no stream of sound yet
    std::uint64_t m_skipped = 0;    // samples in front that are not played
    std::uint64_t m_position = 0;
};

class Streams {
  public:
    void begin(std::uint32_t stream) {
        if (m_open < kMostStreams)
            m_streams[m_open++] = stream;
    }
    void end(std::uint32_t stream) {
        const auto last = m_streams.begin() + static_cast<std::ptrdiff_t>(m_open);
        const auto hit = std::find(m_streams.begin(), last, stream);
        if (hit != last)
            *hit = m_streams[--m_open];
    }
    bool none() const { return m_open == 0; }

  private:
    std::array<std::uint32_t, kMostStreams> m_streams{};
    std::size_t m_open = 0;
};

enum class PageState { Good, None, Cut, Broken };

PageState readPage(ByteView& view, std::uint64_t at, Page& page) {
    const auto head = view.window(at, kPageHead + 255);
    if (head.size() < kPageHead)
        return PageState::Cut;
    if (!view.matches(at, std::string_view("OggS\0", 5)))
        return PageState::None;
    const std::size_t segments = head[26];
    if (head.size() < kPageHead + segments)
        return PageState::Cut;
    std::uint64_t bytes = kPageHead + segments;
    for (std::size_t i = 0; i < segments; ++i)
        bytes += head[kPageHead + i];
    page.begins = (head[5] & 2) != 0;
    page.ends = (head[5] & 4) != 0;
    page.stream = view.le32(at + 14).value_or(0);
    page.position = view.le64(at + 6).value_or(0);
    page.body = at + kPageHead + segments;
    page.end = at + bytes;
    if (page.end > view.size())
        return PageState::Cut;
    const auto told = view.le32(at + kCrcAt).value_or(0);
    static constexpr std::array<std::uint8_t, 4> kNoCrc{};
    std::uint32_t crc = crcOgg(0, view.window(at, kCrcAt).first(kCrcAt));
    crc = crcOgg(crc, kNoCrc);
    for (std::uint64_t from = at + kCrcAt + 4; from < page.end;) {
        auto part = view.window(from);
        if (part.empty())
            return PageState::Cut;
        part = part.first(static_cast<std::size_t>(std::min<std::uint64_t>(part.size(), page.end - from)));
        crc = crcOgg(crc, part);
        from += part.size();
    }
    return crc == told ? PageState::Good : PageState::Broken;
}

Extent walkOgg(ByteView& view) {
    if (!view.matches(0, std::string_view("OggS\0", 5)))
        return unknownExtent();
    Streams open;
    SoundClock sound;
    std::uint64_t at = 0;
    for (;;) {
        Page page;
        const PageState state = readPage(view, at, page);
        if (open.none() && at != 0 && (state != PageState::Good || !page.begins))
            return completeAt(view, at, sound.facts());
        switch (state) {
            case PageState::Good:
                break;
            // Streams cut while recording never say that they end; their pages just stop.
            case PageState::None:
                return inexact(completeAt(view, at, sound.facts()));
            case PageState::Cut:
                return at == view.size() ? inexact(completeAt(view, at, sound.facts()))
                                         : cutOffAt(view, at, sound.facts());
            case PageState::Broken:
                return damagedAt(view, at, sound.facts());
        }
        sound.pass(view, page);
        if (page.begins)
            open.begin(page.stream);
        if (page.ends)
            open.end(page.stream);
        at = page.end;
    }
}

}  // namespace

extern constexpr Format kOgg = {
    .name = "Ogg",
    .group = Group::Sounds,
    .walk = walkOgg,
    .extensions = " OGG OGA OGV OGX OPUS SPX OGM ",
    .large = true,
    .checksContent = true,
};

}  // namespace vantor
