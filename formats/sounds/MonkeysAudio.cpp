// Monkey's Audio (APE) from version 3.98 on, which tells its length in a header.
#include "formats/AudioTags.h"
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkMonkeysAudio(ByteView& view) {
    constexpr std::uint16_t kFirstWithDescriptor = 3980;
    const auto start = skipLeadingTag(view, 0);
    if (!view.matches(start, "MAC ") || view.le16(start + 4).value_or(0) < kFirstWithDescriptor)
        return unknownExtent();
    Cursor in(view, start + 8, Endian::Little);
    const std::uint64_t descriptor = in.u32(), header = in.u32(), seekTable = in.u32(), headerData = in.u32();
    const std::uint64_t frames = in.u64();
    const std::uint64_t tail = in.u32();
    if (!in.ok() || descriptor < 52 || descriptor > 4096 || header > 4096)
        return unknownExtent();
    const auto end = addClamped(frames, start + descriptor + header + seekTable + headerData + tail);
    if (end > view.size())
        return cutOffAt(view, view.size());
    return completeAt(view, skipTrailingTags(view, end));
}

}  // namespace

extern constexpr Format kMonkeysAudio = {
    .name = "Monkey's Audio",
    .group = Group::Sounds,
    .walk = walkMonkeysAudio,
    .extensions = " APE MAC ",
    .large = true,
};

}  // namespace vantor
