// IVF movies. Source: IVF header notes.
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint64_t kIvfMostFrames = std::uint64_t{1} << 32;

Extent walkIvf(ByteView& view) {
    constexpr std::uint64_t kHead = 32, kFrame = 12, kMostApart = 1 << 24;
    constexpr std::uint32_t kMostBytes = 64 * 1024 * 1024;
    if (!view.matches(0, std::string_view("DKIF\0\0\x20\0", 8)))
        return unknownExtent();
    Facts facts;
    facts.width = view.le16(12).value_or(0);
    facts.height = view.le16(14).value_or(0);
    std::uint64_t at = kHead, last = 0;
    for (std::uint64_t frames = 0; frames < kIvfMostFrames; ++frames) {
        Cursor in(view, at, Endian::Little);
        const auto bytes = in.u32();
        const auto time = in.u64();
        const bool next = frames == 0 || (time > last && time - last < kMostApart);
        if (!in.ok() || bytes == 0 || bytes > kMostBytes || !next)
            break;
        if (at + kFrame + bytes > view.size())
            return cutOffAt(view, view.size(), facts);
        at += kFrame + bytes;
        last = time;
    }
    return at > kHead ? inexact(completeAt(view, at, facts)) : cutOffAt(view, view.size(), facts);
}

}  // namespace

extern constexpr Format kIvf = {
    .name = "IVF",
    .group = Group::Movies,
    .walk = walkIvf,
    .extensions = " IVF ",
    .large = true,
};

}  // namespace vantor
