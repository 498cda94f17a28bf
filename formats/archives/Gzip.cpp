// gzip: members unpacked and checked one after the other. Source: RFC 1952.
#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

constexpr std::uint64_t kGzipMostText = 64 * 1024;  // name or comment

// Position of the packed data of the member at `at`; 0 = no member or not wholly there.
std::uint64_t memberData(ByteView& view, std::uint64_t at) {
    const auto flags = view.u8(at + 3).value_or(0xFF);
    if (!view.matches(at, std::string_view("\x1F\x8B\x08", 3)) || (flags & 0xE0) != 0)
        return 0;
    std::uint64_t data = at + 10;
    if ((flags & 4) != 0) {
        const auto bytes = view.le16(data);
        if (!bytes)
            return 0;
        data += std::uint64_t{2} + *bytes;
    }
    for (const int text : {8, 16}) {
        if ((flags & text) == 0)
            continue;
        const auto end = view.find(0, data, data + kGzipMostText);
        if (!end.found())
            return 0;
        data = end.at + 1;
    }
    return data + ((flags & 2) != 0 ? 2 : 0);
}

Extent walkGzip(ByteView& view) {
    std::uint64_t at = 0;
    for (std::uint64_t members = 0;; ++members) {
        // A lone member that ends at a sector's end is a whole file, and the next file may be a gzip too.
        const auto data = members == 1 && isSectorStart(at) ? 0 : memberData(view, at);
        if (data == 0)
            return members != 0 ? completeAt(view, at) : unknownExtent();
        const auto result = inflate(view, data, kAnyOutput);
        if (result.outcome == InflateOutcome::Cut)
            return cutOffAt(view, result.end);
        if (result.outcome == InflateOutcome::TooMuch)
            return unknownExtent();
        if (result.outcome != InflateOutcome::Done)
            return damagedAt(view, result.end);
        const auto crc = view.le32(result.end), bytes = view.le32(result.end + 4);
        if (!crc || !bytes)
            return cutOffAt(view, view.size());
        at = result.end + 8;
        if (*crc != result.crc || *bytes != static_cast<std::uint32_t>(result.produced))
            return damagedAt(view, at);
    }
}

}  // namespace

extern constexpr Format kGzip = {
    .name = "gzip",
    .group = Group::Archives,
    .walk = walkGzip,
    .extensions = " GZ TGZ SVGZ EMZ BAM ",
    .large = true,
    .checksContent = true,
};

}  // namespace vantor
