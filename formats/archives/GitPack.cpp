// Git's packs: the objects told, each unpacked with its sum, and a sum of the whole behind them.
// Source: gitformat-pack(5).
#include <optional>

#include "formats/Format.h"
#include "formats/Inflate.h"

namespace vantor {

namespace {

constexpr std::uint64_t kPackHead = 12;
constexpr std::uint64_t kPackSum = 20;  // SHA-1
constexpr int kOffsetDelta = 6, kNameDelta = 7, kReserved = 5;

struct PackedObject {
    std::uint64_t data = 0;   // where its zlib stream begins
    std::uint64_t bytes = 0;  // unpacked
};

// Behind a number of seven bits a byte at `at`, the last of which is below 128.
std::optional<std::uint64_t> behindSevenBits(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kMostDigits = 10;
    for (std::uint64_t i = 0; i < kMostDigits; ++i) {
        const auto digit = view.u8(at + i);
        if (!digit)
            return std::nullopt;
        if (*digit < 0x80)
            return at + i + 1;
    }
    return std::nullopt;
}

// The object whose head is at `at`; nothing where none can begin or the view ends within the head.
std::optional<PackedObject> packedObject(ByteView& view, std::uint64_t at) {
    const auto first = view.u8(at);
    const int kind = first.value_or(0) >> 4 & 7;
    if (kind == 0 || kind == kReserved)
        return std::nullopt;
    const auto behind = *first < 0x80 ? at + 1 : behindSevenBits(view, at + 1).value_or(0);
    if (behind == 0)
        return std::nullopt;
    PackedObject object = {.data = behind, .bytes = *first & 15U};
    unsigned shift = 4;
    for (auto digit = at + 1; digit < behind && shift < 64; ++digit, shift += 7)
        object.bytes |= (view.u8(digit).value_or(0) & std::uint64_t{0x7F}) << shift;
    if (kind == kOffsetDelta)
        object.data = behindSevenBits(view, behind).value_or(0);
    else if (kind == kNameDelta)
        object.data = addClamped(behind, kPackSum);
    return object.data == 0 ? std::nullopt : std::optional(object);
}

Extent walkGitPack(ByteView& view) {
    const auto version = view.be32(4), objects = view.be32(8);
    if (!view.matches(0, "PACK") || (version != 2 && version != 3) || !objects)
        return unknownExtent();
    std::uint64_t at = kPackHead;
    for (std::uint32_t i = 0; i < *objects; ++i) {
        const auto object = packedObject(view, at);
        if (!object)
            return view.holds(at, 1) ? damagedAt(view, at) : cutOffAt(view, view.size());
        const auto result = inflateZlib(view, object->data, object->bytes);
        if (result.outcome == InflateOutcome::Cut)
            return cutOffAt(view, result.end);
        if (result.outcome == InflateOutcome::TooMuch && result.produced <= object->bytes)
            return unknownExtent();
        if (result.outcome != InflateOutcome::Done || result.produced != object->bytes)
            return damagedAt(view, result.end);
        at = result.end;
    }
    return completeAt(view, at + kPackSum);
}

}  // namespace

extern constexpr Format kGitPack = {
    .name = "Git pack",
    .group = Group::Archives,
    .walk = walkGitPack,
    .extensions = " PACK ",
    .large = true,
    .checksContent = true,
};

}  // namespace vantor
