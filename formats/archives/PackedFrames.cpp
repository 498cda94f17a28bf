#include "formats/archives/PackedFrames.h"

namespace vantor {

PackedFrame cutFrame(const ByteView& view) {
    return {PackedFrame::State::Cut, view.size()};
}

std::optional<PackedFrame> skippableFrame(ByteView& view, std::uint64_t at) {
    if ((view.le32(at).value_or(0) & 0xFFFFFFF0) != 0x184D2A50)
        return std::nullopt;
    const auto bytes = view.le32(at + 4);
    return bytes ? PackedFrame{PackedFrame::State::Whole, at + 8 + *bytes} : cutFrame(view);
}

Extent walkPackedFrames(ByteView& view, std::optional<PackedFrame> (*frameAt)(ByteView&, std::uint64_t)) {
    constexpr std::uint32_t kMostFrames = 1 << 24;
    std::uint64_t at = 0;
    for (std::uint32_t frames = 0; frames < kMostFrames; ++frames) {
        const auto frame = frameAt(view, at);
        if (!frame)
            return frames == 0 ? unknownExtent() : completeAt(view, at);
        if (frame->state == PackedFrame::State::Broken)
            return damagedAt(view, frame->end);
        if (frame->state == PackedFrame::State::Cut || frame->end > view.size())
            return cutOffAt(view, view.size());
        at = frame->end;
    }
    return damagedAt(view, at);
}

}  // namespace vantor
