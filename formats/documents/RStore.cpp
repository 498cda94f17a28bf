// A row of packed objects, each with its sum, and nothing behind the last.
#include "formats/documents/RStore.h"

#include "formats/Inflate.h"

namespace vantor {

Extent walkRStore(ByteView& view) {
    constexpr std::uint64_t kLength = 4;
    constexpr std::uint32_t kMostBytes = 0x7FFFFFFF;
    constexpr std::uint16_t kZlib = 0x789C;
    std::uint64_t at = 0;
    for (;;) {
        const auto bytes = view.be32(at);
        const auto kind = view.u8(at + kLength);
        if (!bytes || *bytes == 0 || *bytes > kMostBytes || !kind)
            break;
        if (at != 0 && (*kind == 'Z' || *kind == '2'))
            return unknownExtent();  // packed in other ways, which tell no end
        if (view.be16(at + kLength) != kZlib)
            break;
        const auto object = inflateZlib(view, at + kLength, *bytes);
        if (object.outcome == InflateOutcome::Cut)
            return at == 0 ? unknownExtent() : cutOffAt(view, view.size());
        if (object.outcome != InflateOutcome::Done || object.produced != *bytes)
            return at == 0 ? unknownExtent() : damagedAt(view, at);
        at = object.end;
    }
    return at == 0 ? unknownExtent() : inexact(completeAt(view, at));
}

}  // namespace vantor
