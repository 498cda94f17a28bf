#include "repair/AviRepair.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "repair/CodedPicture.h"

namespace vantor {

namespace {

constexpr std::uint64_t kAviChunkHead = 8;  // name and length
constexpr std::uint64_t kListName = 4;
constexpr std::uint64_t kMostAviHead = std::uint64_t{1} << 20;
constexpr int kMostAviHeadChunks = 256;
constexpr std::uint64_t kMostAviChunkBytes = std::uint64_t{64} << 20;
constexpr std::uint32_t kSyncFlag = 0x10;

struct AviStream {
    bool pictures = false;
    bool sound = false;
    std::uint64_t lengthAt = 0;  // in the head: how many units there are
    std::uint32_t scale = 0, rate = 0;
    std::uint32_t unitBytes = 0;  // of sound; 0: a chunk is a unit
    std::uint32_t bytesASecond = 0;
    std::uint64_t chunks = 0;
    std::uint64_t bytes = 0;

    std::uint64_t units() const { return unitBytes == 0 ? chunks : bytes / unitBytes; }
};

struct AviHead {
    std::uint64_t data = 0;             // first byte behind the list's name
    std::uint64_t dataSize = 0;         // by the list's own account
    std::vector<std::uint64_t> totals;  // places of the number of all pictures
    std::vector<std::uint64_t> stale;   // names of indexes within the head
    std::vector<AviStream> streams;
};

struct AviChunk {
    std::array<char, 4> name{};
    std::uint64_t at = 0;
    std::uint64_t bytes = 0;  // of its body

    std::uint64_t body() const { return at + kAviChunkHead; }
    std::uint64_t end() const { return body() + bytes + bytes % 2; }
    std::string_view text() const { return {name.data(), name.size()}; }
    // Nothing for chunks of no stream.
    std::optional<std::size_t> stream() const {
        const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
        return isDigit(name[0]) && isDigit(name[1]) ? std::optional<std::size_t>(static_cast<std::size_t>(
                                                          (name[0] - '0') * 10 + (name[1] - '0')))
                                                    : std::nullopt;
    }
};

// The lists of the head, and the place where the data begins.
class AviHeadReader {
  public:
    explicit AviHeadReader(ByteView& view) : m_view(view) {}

    std::optional<AviHead> read() {
        if (!m_view.matches(0, "RIFF") || !m_view.matches(8, "AVI ")) {
            return std::nullopt;
        }
        return chunks(12, kMostAviHead) && !m_head.streams.empty() ? std::optional(m_head) : std::nullopt;
    }

  private:
    // True once the data was found.
    bool chunks(std::uint64_t at, std::uint64_t to) {
        while (m_chunks++ < kMostAviHeadChunks && at + kAviChunkHead <= to) {
            const auto bytes = m_view.le32(at + 4);
            if (!bytes) {
                return false;
            }
            const std::uint64_t body = at + kAviChunkHead;
            if (m_view.matches(at, "LIST") && m_view.matches(body, "movi")) {
                m_head.data = body + kListName;
                m_head.dataSize = *bytes;
                return true;
            }
            const std::uint64_t end = body + *bytes + *bytes % 2;
            if (end > to) {
                return false;
            }
            const bool isNested =
                m_view.matches(at, "LIST") && (m_view.matches(body, "hdrl") || m_view.matches(body, "strl") ||
                                               m_view.matches(body, "odml"));
            if (isNested && chunks(body + kListName, end)) {
                return true;
            }
            note(at, body);
            at = end;
        }
        return false;
    }

    void note(std::uint64_t at, std::uint64_t body) {
        if (m_view.matches(at, "avih")) {
            m_head.totals.push_back(body + 16);
        } else if (m_view.matches(at, "dmlh")) {
            m_head.totals.push_back(body);
        } else if (m_view.matches(at, "indx")) {
            m_head.stale.push_back(at);
        } else if (m_view.matches(at, "strh")) {
            AviStream& stream = m_head.streams.emplace_back();
            stream.pictures = m_view.matches(body, "vids") || m_view.matches(body, "iavs");
            stream.sound = m_view.matches(body, "auds");
            stream.scale = m_view.le32(body + 20).value_or(0);
            stream.rate = m_view.le32(body + 24).value_or(0);
            stream.lengthAt = body + 32;
            stream.unitBytes = m_view.le32(body + 44).value_or(0);
        } else if (m_view.matches(at, "strf") && !m_head.streams.empty() && m_head.streams.back().sound) {
            m_head.streams.back().bytesASecond = m_view.le32(body + 8).value_or(0);
        }
    }

    ByteView& m_view;
    AviHead m_head;
    int m_chunks = 0;
};

class AviWalk {
  public:
    AviWalk(ByteView& view, const AviHead& head) : m_view(view), m_head(head) {}

    // Those of the streams, in order.
    std::vector<AviChunk> walk(const WalkLimits& limits) {
        std::vector<AviChunk> taken;
        m_listEnd = endOf({{}, m_head.data - kListName - kAviChunkHead, m_head.dataSize});
        auto chunk = at(m_head.data);
        while (chunk && taken.size() < kMostAviChunks && (limits.stop == nullptr || *limits.stop == 0)) {
            const bool group = isGroup(*chunk);
            auto next = at(group ? chunk->body() + kListName : chunk->end());
            if (group && m_view.matches(chunk->body(), "movi")) {
                m_listEnd = endOf(*chunk);
            }
            if (!group && chunk->stream()) {
                const bool shows = next || endsHere(*chunk);
                if (!isSound(*chunk) || !shows) {
                    break;
                }
                taken.push_back(*chunk);
            }
            chunk = next;
        }
        return taken;
    }

  private:
    // What is entered: chunks that are to be read together, and beyond the first gigabyte the parts in which
    // the movie goes on.
    bool isGroup(const AviChunk& chunk) {
        return (chunk.text() == "LIST" &&
                (m_view.matches(chunk.body(), "rec ") || m_view.matches(chunk.body(), "movi"))) ||
               (chunk.text() == "RIFF" && m_view.matches(chunk.body(), "AVIX"));
    }

    // Nothing where the length was never written.
    static std::optional<std::uint64_t> endOf(const AviChunk& list) {
        return list.bytes == 0 ? std::nullopt : std::optional(list.body() + list.bytes);
    }

    std::optional<AviChunk> at(std::uint64_t place) {
        AviChunk chunk;
        chunk.at = place;
        const auto bytes = m_view.le32(place + 4);
        if (!bytes || place > kMostAviBytes - kMostAviChunkBytes ||
            !m_view.copy(place, {reinterpret_cast<std::uint8_t*>(chunk.name.data()), chunk.name.size()})) {
            return std::nullopt;
        }
        chunk.bytes = *bytes;
        if (isGroup(chunk)) {
            return chunk;
        }
        if (*bytes > kMostAviChunkBytes) {
            return std::nullopt;
        }
        const std::string_view name = chunk.text();
        const auto stream = chunk.stream();
        const std::string_view kind = name.substr(2);
        const bool known = stream ? *stream < m_head.streams.size() && isKind(kind, m_head.streams[*stream])
                                  : name == "JUNK" || name == "idx1" || name.substr(0, 2) == "ix";
        return known && m_view.holds(place, kAviChunkHead) ? std::optional(chunk) : std::nullopt;
    }

    static bool isKind(std::string_view kind, const AviStream& stream) {
        return stream.sound      ? kind == "wb"
               : stream.pictures ? kind == "dc" || kind == "db" || kind == "pc" || kind == "__"
                                 : true;
    }

    bool isPicture(const AviChunk& chunk) const { return m_head.streams[*chunk.stream()].pictures; }

    // JPEG pictures end within their chunk; of others nothing more is known.
    bool isSound(const AviChunk& chunk) {
        if (!m_view.holds(chunk.body(), chunk.bytes)) {
            return false;
        }
        return !isPicture(chunk) || !m_view.matches(chunk.body(), "\xFF\xD8\xFF") || isWholeJpeg(chunk);
    }

    bool isWholeJpeg(const AviChunk& chunk) {
        PictureSyntax syntax;
        syntax.coding = Coding::Jpeg;
        return pictureAt(m_view, syntax, chunk.body(), chunk.body() + chunk.bytes).has_value();
    }

    // Where no further chunk follows.
    bool endsHere(const AviChunk& chunk) {
        return (m_listEnd && chunk.end() >= *m_listEnd) ||
               (isPicture(chunk) && m_view.matches(chunk.body(), "\xFF\xD8\xFF") && isWholeJpeg(chunk));
    }

    ByteView& m_view;
    const AviHead& m_head;
    std::optional<std::uint64_t> m_listEnd;  // of the chunks that are being walked
};

// Whether an index stands where the list of the data ends, and the movie does not go on behind it.
bool hasIndex(ByteView& view, const AviHead& head) {
    const std::uint64_t end = head.data - kListName + head.dataSize;
    for (const std::uint64_t at : {end + end % 2, end}) {
        if (head.dataSize > kListName && view.matches(at, "idx1")) {
            const std::uint64_t behind = at + kAviChunkHead + view.le32(at + 4).value_or(0);
            return !(view.matches(behind, "RIFF") && view.matches(behind + kAviChunkHead, "AVIX"));
        }
    }
    return false;
}

// Whether reading can begin with the picture: those of MPEG-4 tell, all others are taken for it.
// Source: ISO/IEC 14496-2, 6.2.5.
bool canBeginWith(ByteView& view, const AviChunk& chunk) {
    constexpr std::uint64_t kMostBefore = 64;
    if (!view.matches(chunk.body(), std::string_view("\0\0\1", 3))) {
        return true;
    }
    for (std::uint64_t i = 0; i < std::min(kMostBefore, chunk.bytes); ++i) {
        if (view.matches(chunk.body() + i, std::string_view("\0\0\1\xB6", 4))) {
            return (view.u8(chunk.body() + i + 4).value_or(0) >> 6) == 0;
        }
    }
    return true;
}

void put32(QByteArray& bytes, std::uint64_t at, std::uint64_t value) {
    if (at + 4 <= static_cast<std::uint64_t>(bytes.size())) {
        qToLittleEndian(static_cast<quint32>(value), bytes.data() + at);
    }
}

QByteArray indexOf(ByteView& view, const AviHead& head, const std::vector<AviChunk>& chunks) {
    constexpr qsizetype kEntry = 16;
    QByteArray index("idx1\0\0\0\0", kAviChunkHead);
    index.reserve(static_cast<qsizetype>(kAviChunkHead) + kEntry * static_cast<qsizetype>(chunks.size()));
    for (const AviChunk& chunk : chunks) {
        QByteArray entry(kEntry, '\0');
        std::copy(chunk.name.begin(), chunk.name.end(), entry.begin());
        const bool sync = !head.streams[*chunk.stream()].pictures || canBeginWith(view, chunk);
        put32(entry, 4, sync ? kSyncFlag : 0);
        put32(entry, 8, chunk.at - (head.data - kListName));
        put32(entry, 12, chunk.bytes);
        index += entry;
    }
    put32(index, 4, static_cast<std::uint64_t>(index.size()) - kAviChunkHead);
    return index;
}

double secondsOf(const AviStream& stream) {
    if (stream.sound && stream.bytesASecond != 0) {
        return static_cast<double>(stream.bytes) / stream.bytesASecond;
    }
    return stream.rate == 0 ? 0 : static_cast<double>(stream.units()) * stream.scale / stream.rate;
}

}  // namespace

bool isAviWithoutIndex(ByteSource& movie) {
    ByteView view(movie);
    const auto head = AviHeadReader(view).read();
    return head && !hasIndex(view, *head);
}

std::optional<RepairedMovie> repairAvi(ByteSource& movie, const WalkLimits& limits) {
    ByteView view(movie);
    auto head = AviHeadReader(view).read();
    if (!head || hasIndex(view, *head)) {
        return std::nullopt;
    }
    const std::vector<AviChunk> chunks = AviWalk(view, *head).walk(limits);
    for (const AviChunk& chunk : chunks) {
        AviStream& stream = head->streams[*chunk.stream()];
        ++stream.chunks;
        stream.bytes += chunk.bytes;
    }
    const auto pictures = std::find_if(head->streams.begin(), head->streams.end(),
                                       [](const AviStream& stream) { return stream.pictures; });
    if (pictures == head->streams.end() || pictures->chunks == 0) {
        return std::nullopt;
    }
    RepairedMovie repaired;
    repaired.data = {head->data, chunks.back().end()};
    repaired.head = QByteArray(static_cast<qsizetype>(head->data), '\0');
    if (!view.copy(0, {reinterpret_cast<std::uint8_t*>(repaired.head.data()),
                       static_cast<std::size_t>(repaired.head.size())})) {
        return std::nullopt;
    }
    repaired.pictures = static_cast<std::size_t>(pictures->chunks);
    repaired.pictureSeconds = secondsOf(*pictures);
    for (const std::uint64_t total : head->totals) {
        put32(repaired.head, total, pictures->chunks);
    }
    for (const AviStream& stream : head->streams) {
        put32(repaired.head, stream.lengthAt, stream.units());
        repaired.soundSeconds =
            stream.sound ? std::max(repaired.soundSeconds, secondsOf(stream)) : repaired.soundSeconds;
    }
    for (const std::uint64_t name : head->stale) {
        repaired.head.replace(static_cast<qsizetype>(name), 4, "JUNK");
    }
    repaired.index = indexOf(view, *head, chunks);
    const std::uint64_t list = kListName + (repaired.data.to - repaired.data.from);
    put32(repaired.head, head->data - kListName - 4, list);
    put32(repaired.head, 4, repaired.bytes() - kAviChunkHead);
    return repaired;
}

}  // namespace vantor
