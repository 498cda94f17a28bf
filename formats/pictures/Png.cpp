// PNG, APNG, MNG and JNG: chunks by their length, each proved by its checksum, to the end chunk.
// Sources: W3C PNG (third edition), MNG 1.0.
#include "formats/Crc.h"
#include "formats/Format.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

constexpr std::uint64_t kSignatureBytes = 8;
constexpr std::uint64_t kChunkFrame = 12;  // length, type, checksum
constexpr std::uint32_t kMostChunkBytes = 256 * 1024 * 1024;

constexpr std::uint32_t chunkName(const char (&name)[5]) {
    return static_cast<std::uint32_t>(static_cast<std::uint8_t>(name[0])) << 24 |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(name[1])) << 16 |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(name[2])) << 8 |
           static_cast<std::uint8_t>(name[3]);
}

bool isChunkName(std::uint32_t name) {
    for (int shift = 0; shift < 32; shift += 8) {
        const auto letter = name >> shift & 0xDF;  // either case
        if (letter < 'A' || letter > 'Z')
            return false;
    }
    return true;
}

Extent walkPng(ByteView& view) {
    const bool png = view.matches(0, "\x89PNG\r\n\x1A\n");
    const bool mng = view.matches(0, "\x8AMNG\r\n\x1A\n");
    const bool jng = view.matches(0, "\x8BJNG\r\n\x1A\n");
    if (!png && !mng && !jng)
        return unknownExtent();
    const auto last = mng ? chunkName("MEND") : chunkName("IEND");
    Facts facts;
    bool sound = true;
    bool sawData = false;
    std::uint64_t at = kSignatureBytes;
    for (;;) {
        Cursor in(view, at);
        const auto length = in.u32();
        const auto name = in.u32();
        if (!in.ok())
            return cutOffAt(view, at, facts);
        if (length > kMostChunkBytes || !isChunkName(name))
            return damagedAt(view, at, facts);
        const std::uint64_t body = in.at();
        const std::uint64_t end = at + kChunkFrame + length;
        if (at == kSignatureBytes) {
            facts.width = view.be32(body).value_or(0);
            facts.height = view.be32(body + 4).value_or(0);
        }
        if (end > view.size())
            return cutOffAt(view, view.size(), facts);
        bool complete = false;
        const auto crc = crc32(view, at + 4, body + length, complete);
        const auto told = view.be32(body + length);
        if (!complete || !told)
            return cutOffAt(view, at, facts);
        // One bad chunk with a proper one behind it spoils the picture, not its extent.
        if (crc != *told) {
            if (!isChunkName(view.be32(end + 4).value_or(0)) && name != last)
                return damagedAt(view, at, facts);
            sound = false;
        }
        if (name == chunkName("eXIf"))
            addTiffFacts(view, body, facts);
        sawData = sawData || name == chunkName("IDAT") || name == chunkName("JDAT") || mng;
        at = end;
        if (name == last)
            return sound && sawData ? completeAt(view, at, facts) : spoiltUpTo(view, at, facts);
    }
}

}  // namespace

extern constexpr Format kPng = {
    .name = "PNG",
    .group = Group::Pictures,
    .walk = walkPng,
    .extensions = " PNG APNG MNG JNG ",
    .checksContent = true,
};

}  // namespace vantor
