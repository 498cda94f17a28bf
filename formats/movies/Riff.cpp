// RIFF (AVI, WAV, WebP …) and IFF (AIFF, 8SVX, ILBM …): chunks inside the outer one, and an AVI's further
// RIFFs. Sources: Microsoft RIFF and AVI documentation, OpenDML 1.02, EBU Tech 3306 (RF64), WebP container,
// EA IFF 85.
#include <algorithm>
#include <array>

#include "formats/Among.h"
#include "formats/Format.h"
#include "formats/movies/RiffFacts.h"

namespace vantor {

namespace {

constexpr std::uint64_t kRiffHead = 12;  // outer name, size, form
constexpr std::uint32_t kRiffMostChunks = 1 << 16;
// Of a movie's data up to so much is followed chunk by chunk; of more the first chunks, and so many of its
// index, spread evenly.
constexpr std::uint64_t kRiffSmallMovie = 4 * 1024 * 1024;
constexpr int kFirstChunks = 64;
constexpr std::uint64_t kIndexEntries = 64;
constexpr std::uint32_t kUnsetSize = 0xFFFFFFFF;
constexpr std::uint64_t kMostMiscounted = 64;  // bytes that a writer of sound told too many

bool isChunkName(std::string_view name) {
    return std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c <= '~'; }) &&
           name[0] != ' ';
}

struct Chunk {
    std::array<char, 4> name{};
    std::uint64_t body = 0;
    std::uint64_t bytes = 0;

    std::string_view text() const { return {name.data(), name.size()}; }
    std::uint64_t end() const { return addClamped(body, bytes); }
};

std::optional<Chunk> readChunk(ByteView& view, std::uint64_t at, Endian endian) {
    Cursor in(view, at, endian);
    Chunk chunk;
    for (char& letter : chunk.name)
        letter = static_cast<char>(in.u8());
    chunk.bytes = in.u32();
    chunk.body = in.at();
    return in.ok() && isChunkName(chunk.text()) ? std::optional(chunk) : std::nullopt;
}

class RiffWalk {
  public:
    RiffWalk(ByteView& view, Endian endian) : m_view(view), m_endian(endian) {}

    Extent walk();

  private:
    enum class Step { Done, Cut, Broken, Unbounded };

    Extent ended() const;

    Step outer();
    Step inner(std::uint64_t told);
    Step openMovie();
    void chunksBehind();
    bool isFilled(std::uint64_t told);
    bool isMiscounted(std::uint64_t told);
    void movieData(const Chunk& list);
    void index(const Chunk& index);

    ByteView& m_view;
    const Endian m_endian;
    std::uint64_t m_at = 0;
    std::array<char, 4> m_form{};  // of the outer chunk at hand
    bool m_isMovie = false;
    std::uint64_t m_wideOuter = 0;  // 64-bit sizes of an RF64 file
    std::uint64_t m_wideData = 0;
    bool m_sawPayload = false;
    bool m_sawSamples = false;  // of a sound
    bool m_miscounted = false;  // the outer chunk tells more than there is
    std::uint64_t m_movie = 0;  // where the list of a movie's data has its name
    bool m_sound = true;        // so far as it was looked at
    bool m_looked = false;
    bool m_small = false;                // its data was followed to the end
    std::uint32_t m_bytesPerSecond = 0;  // of a sound
    Facts m_facts;
};

// Whether the chunks of a movie's data fill their list, or its first ones are such.
void RiffWalk::movieData(const Chunk& list) {
    m_movie = m_movie == 0 ? list.body : m_movie;
    const bool all = list.bytes <= kRiffSmallMovie;
    std::uint64_t widest = 0;
    std::uint64_t at = list.body + 4;
    for (int i = 0; (all || i < kFirstChunks) && addClamped(at, 8) <= list.end(); ++i) {
        const auto chunk = readChunk(m_view, at, m_endian);
        if (!chunk || chunk->end() > list.end()) {
            m_sound = false;
            return;
        }
        // Records group chunks that are to be read together.
        const bool record = chunk->text() == "LIST" && m_view.matches(chunk->body, "rec ");
        widest = std::max(widest, record ? 0 : chunk->bytes);
        at = record ? chunk->body + 4 : std::min(addClamped(chunk->end(), chunk->bytes % 2), list.end());
    }
    // One chunk that is most of the movie says little of it.
    m_small = all;
    m_looked = all && widest <= list.bytes / 4;
}

// Whether the index of a movie points at its chunks, from the list's name on or from the file's first byte.
void RiffWalk::index(const Chunk& index) {
    constexpr std::uint64_t kEntry = 16;
    const auto entries = index.bytes / kEntry;
    const auto isThere = [&](std::uint64_t entry, std::uint64_t base) {
        std::array<char, 4> name{};
        const auto at = index.body + entry * kEntry;
        const auto offset = m_view.le32(at + 8), bytes = m_view.le32(at + 12);
        if (!offset || !bytes ||
            !m_view.copy(at, {reinterpret_cast<std::uint8_t*>(name.data()), name.size()}))
            return false;
        const auto chunk = addClamped(base, *offset);
        return m_view.matches(chunk, {name.data(), name.size()}) && m_view.le32(chunk + 4) == *bytes;
    };
    if (m_movie == 0 || entries == 0)
        return;
    const bool fromList = isThere(0, m_movie);
    if (!fromList && !isThere(0, 0))
        return;  // counted in another way
    const auto picks = std::min(entries, kIndexEntries);
    for (std::uint64_t pick = 0; pick < picks; ++pick)
        m_sound = m_sound && isThere(pick * entries / picks, fromList ? m_movie : 0);
    m_looked = m_looked || !m_small;
}

// Whether the rest, up to `told`, is zeros that some editors leave where chunks were.
bool RiffWalk::isFilled(std::uint64_t told) {
    constexpr std::uint64_t kMostFill = 4096;
    if (told - m_at > kMostFill || told > m_view.size())
        return false;
    for (std::uint64_t at = m_at; at < told; ++at) {
        if (m_view.u8(at) != 0)
            return false;
    }
    return true;
}

// Whether a little of what is told up to `told` is missing, and something else lies there.
bool RiffWalk::isMiscounted(std::uint64_t told) {
    return told - m_at <= kMostMiscounted && m_view.holds(m_at, 8) && !isFilled(told);
}

// The chunks of one outer chunk that should end at `told`; m_at moves behind the last.
RiffWalk::Step RiffWalk::inner(std::uint64_t told) {
    for (std::uint32_t chunks = 0; chunks < kRiffMostChunks; ++chunks) {
        // Some recorders count a few bytes too many: what cannot hold a chunk is none of the file.
        if (m_at >= told || told - m_at < 8)
            return Step::Done;
        const auto chunk = readChunk(m_view, m_at, m_endian);
        // Others count the outer chunk's own head as well, or that of an inner one twice.
        if (!chunk && ((m_sawPayload && told - m_at == 8) || (m_sawSamples && isMiscounted(told)))) {
            m_miscounted = true;
            return Step::Done;
        }
        if (!chunk && isFilled(told)) {
            m_at = told;
            return Step::Done;
        }
        if (!chunk)
            return m_view.holds(m_at, 8) ? Step::Broken : Step::Cut;
        std::uint64_t end = chunk->end();
        if (chunk->text() == "ds64") {
            m_wideOuter = m_view.le64(chunk->body).value_or(0);
            m_wideData = m_view.le64(chunk->body + 8).value_or(0);
            told = addClamped(8, m_wideOuter);
        } else if (chunk->text() == "data" && chunk->bytes == kUnsetSize) {
            if (m_wideData == 0)
                return Step::Unbounded;
            end = addClamped(chunk->body, m_wideData);
        }
        addRiffFacts(m_view, {m_form.data(), m_form.size()}, chunk->text(), chunk->body, end - chunk->body,
                     m_bytesPerSecond, m_facts);
        const bool list = chunk->text() == "LIST" && m_view.matches(chunk->body, "movi");
        m_sawSamples = m_sawSamples || chunk->text() == "data" || chunk->text() == "SSND";
        m_sawPayload = m_sawPayload || chunk->text() != "LIST" ||
                       !(m_view.matches(chunk->body, "INFO") || m_view.matches(chunk->body, "hdrl"));
        if (end > m_view.size())
            return Step::Cut;
        if (list)
            movieData(*chunk);
        else if (chunk->text() == "idx1")
            index(*chunk);
        const std::uint64_t padded = end + (end - chunk->body) % 2;
        // The padding byte behind the last odd chunk is often left out of the count, and then of the file;
        // of IFF seldom of the file.
        const bool leftOut = padded > told && (m_endian == Endian::Little || m_view.u8(end) != 0);
        m_at = leftOut ? end : padded;
    }
    return Step::Broken;
}

// The chunks of a movie whose sizes were never written, since its writer could not come back to them: as long
// as they are such as belong into one.
RiffWalk::Step RiffWalk::openMovie() {
    constexpr std::uint32_t kMostOpenChunks = 1 << 22, kFewPieces = 3;
    constexpr std::array<std::string_view, 3> kOthers = {"LIST", "JUNK", "idx1"};
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    std::uint32_t pieces = 0;
    for (std::uint32_t chunks = 0; chunks < kMostOpenChunks; ++chunks) {
        const auto chunk = readChunk(m_view, m_at, m_endian);
        const bool piece = chunk && m_movie != 0 &&
                           ((isDigit(chunk->name[0]) && isDigit(chunk->name[1])) ||
                            (isDigit(chunk->name[2]) && isDigit(chunk->name[3])));
        if (!chunk || (!piece && !isAmong(kOthers, chunk->text())))
            break;
        addRiffFacts(m_view, {m_form.data(), m_form.size()}, chunk->text(), chunk->body, chunk->bytes,
                     m_bytesPerSecond, m_facts);
        const bool list = chunk->text() == "LIST";
        if (list && m_view.matches(chunk->body, "movi") && m_movie == 0)
            m_movie = chunk->body;
        const bool into = list && (m_movie == chunk->body || m_view.matches(chunk->body, "rec "));
        if (!into && chunk->end() > m_view.size())
            return pieces >= kFewPieces ? Step::Cut : Step::Unbounded;
        pieces += piece ? 1 : 0;
        m_at = into ? chunk->body + 4 : chunk->end() + chunk->bytes % 2;
        if (chunk->text() == "idx1")
            break;
    }
    m_miscounted = true;
    m_sawPayload = pieces >= kFewPieces;
    m_at = std::min(m_at, m_view.size());
    return m_sawPayload && !m_view.exhausted() ? Step::Done : Step::Unbounded;
}

RiffWalk::Step RiffWalk::outer() {
    Cursor in(m_view, m_at + 4, m_endian);
    const std::uint64_t size = in.u32();
    if (!in.ok())
        return Step::Cut;
    m_view.copy(m_at + 8, {reinterpret_cast<std::uint8_t*>(m_form.data()), m_form.size()});
    const std::uint64_t start = m_at;
    m_at += kRiffHead;
    const bool open = size == 0 || size == kUnsetSize;
    if (open && std::string_view(m_form.data(), m_form.size()) == "AVI ")
        return openMovie();
    if (open)
        return m_view.matches(start, "RF64") || m_view.matches(start, "BW64") ? inner(m_view.size())
                                                                              : Step::Unbounded;
    return inner(start + 8 + size);
}

// Programs that put tags to a wave do not always count them into the outer chunk. What begins at a sector's
// start is the next file.
void RiffWalk::chunksBehind() {
    constexpr std::array<std::string_view, 7> kTags = {"id3 ", "ID3 ", "LIST", "bext",
                                                       "iXML", "_PMX", "cue "};
    for (std::uint32_t chunks = 0; chunks < kRiffMostChunks && !isSectorStart(m_at); ++chunks) {
        std::array<char, 4> name{};
        if (!m_view.copyWithinSector(m_at, {reinterpret_cast<std::uint8_t*>(name.data()), name.size()}) ||
            !isAmong(kTags, std::string_view(name.data(), name.size())))
            return;
        const auto chunk = readChunk(m_view, m_at, m_endian);
        if (!chunk || chunk->end() > m_view.size())
            return;
        m_at = chunk->end();
        m_at += chunk->bytes % 2 != 0 && m_view.u8(m_at) == 0 ? 1 : 0;
    }
}

// All chunks were passed.
Extent RiffWalk::ended() const {
    if (!m_sawPayload)
        return damagedAt(m_view, m_at, m_facts);
    const Extent whole = completeAt(m_view, m_at, m_facts);
    if (whole.verdict == Verdict::Complete && !m_sound)
        return spoiltUpTo(m_view, m_at, m_facts);
    if (m_miscounted)
        return inexact(whole);
    if (!m_looked)
        return whole;
    return m_isMovie ? withFrames(whole) : withContent(whole);
}

Extent RiffWalk::walk() {
    Step step = outer();
    m_isMovie = std::string_view(m_form.data(), m_form.size()) == "AVI ";
    // An AVI beyond its first gigabyte goes on in further outer chunks.
    for (std::uint32_t more = 0; step == Step::Done && m_isMovie && more < kRiffMostChunks; ++more) {
        if (!m_view.matches(m_at, "RIFF") || !m_view.matches(m_at + 8, "AVIX"))
            break;
        step = outer();
    }
    if (step == Step::Done && std::string_view(m_form.data(), m_form.size()) == "WAVE")
        chunksBehind();
    switch (step) {
        case Step::Done:
            return ended();
        case Step::Cut:
            return cutOffAt(m_view, m_view.exhausted() ? m_at : m_view.size(), m_facts);
        case Step::Broken:
            return damagedAt(m_view, m_at, m_facts);
        case Step::Unbounded:
            break;
    }
    Extent extent = unknownExtent();
    extent.facts = m_facts;
    return extent;
}

Extent walkRiff(ByteView& view) {
    const bool little = view.matches(0, "RIFF") || view.matches(0, "RF64") || view.matches(0, "BW64");
    const bool big = view.matches(0, "FORM") || view.matches(0, "RIFX");
    std::array<std::uint8_t, 4> form{};
    if ((!little && !big) || !view.copy(8, form) ||
        !isChunkName({reinterpret_cast<const char*>(form.data()), form.size()}))
        return unknownExtent();
    return RiffWalk(view, little ? Endian::Little : Endian::Big).walk();
}

}  // namespace

extern constexpr Format kRiff = {
    .name = "RIFF",
    .group = Group::Movies,
    .walk = walkRiff,
    .extensions =
        " AVI WAV WAVE WEBP RF64 BW64 ANI RMI AIF AIFF AIFC 8SVX LBM IFF DIVX CDR DLS SF2 QCP PAL "
        "CMX CPR LWO ",
    .large = true,
};

}  // namespace vantor
