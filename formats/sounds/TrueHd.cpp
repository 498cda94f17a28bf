// MLP and TrueHD sound: pieces that tell their length, each a fixed time after the one before.
// Source: Dolby, "TrueHD (MLP) high-level bitstream description", section 3 (access units).
#include <optional>

#include "formats/Format.h"
#include "formats/sounds/FrameStream.h"

namespace vantor {

namespace {

struct Piece {
    std::uint64_t bytes = 0;
    std::uint16_t time = 0;  // in samples; runs over
};

std::optional<Piece> pieceAt(ByteView& view, std::uint64_t at) {
    constexpr std::uint64_t kLeastPiece = 8;
    const auto length = view.be16(at), time = view.be16(at + 2);
    if (!length || !time)
        return std::nullopt;
    const Piece piece = {.bytes = std::uint64_t{2} * (*length & 0xFFFU), .time = *time};
    return piece.bytes >= kLeastPiece ? std::optional(piece) : std::nullopt;
}

Extent walkTrueHd(ByteView& view) {
    constexpr std::uint64_t kSyncAt = 4;
    if (!view.matches(kSyncAt, "\xF8\x72\x6F\xBA") && !view.matches(kSyncAt, "\xF8\x72\x6F\xBB"))
        return unknownExtent();
    const auto first = pieceAt(view, 0);
    const auto second = first ? pieceAt(view, first->bytes) : std::nullopt;
    if (!second)
        return unknownExtent();
    const auto step = static_cast<std::uint16_t>(second->time - first->time);
    std::uint16_t due = first->time;
    const auto pieceBytes = [&](std::uint64_t at) -> std::uint64_t {
        const auto piece = pieceAt(view, at);
        if (!piece || piece->time != due)
            return 0;
        due = static_cast<std::uint16_t>(due + step);
        return piece->bytes;
    };
    return walkFrames(view, 0, kProofFrames, pieceBytes);
}

}  // namespace

extern constexpr Format kTrueHd = {
    .name = "TrueHD",
    .group = Group::Sounds,
    .walk = walkTrueHd,
    .extensions = " THD MLP ",
    .frameStream = true,
};

}  // namespace vantor
