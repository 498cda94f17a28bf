// True Audio (TTA). Source: TTA1 format description.
#include "formats/AudioTags.h"
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkTrueAudio(ByteView& view) {
    constexpr std::uint64_t kHead = 22, kMostFrames = 1 << 22;
    const auto start = skipLeadingTag(view, 0);
    if (!view.matches(start, std::string_view("TTA1\1\0", 6)))
        return unknownExtent();
    Cursor in(view, start + 10, Endian::Little);
    const std::uint64_t rate = in.u32(), samples = in.u32();
    if (!in.ok())
        return cutOffAt(view, view.size());
    const std::uint64_t frame = rate * 256 / 245;  // samples
    if (frame == 0 || samples == 0 || samples / frame >= kMostFrames)
        return unknownExtent();
    const auto frames = (samples + frame - 1) / frame;
    auto end = start + kHead + frames * 4 + 4;
    for (std::uint64_t i = 0; i < frames; ++i) {
        const auto bytes = view.le32(start + kHead + i * 4);
        if (!bytes)
            return cutOffAt(view, view.size());
        end += *bytes;
    }
    return end > view.size() ? cutOffAt(view, view.size()) : completeAt(view, skipTrailingTags(view, end));
}

}  // namespace

extern constexpr Format kTrueAudio = {
    .name = "True Audio",
    .group = Group::Sounds,
    .walk = walkTrueAudio,
    .extensions = " TTA ",
};

}  // namespace vantor
