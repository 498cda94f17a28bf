// Sound that is nothing but frames one after the other. Nothing marks the end; the file goes on while frames
// of the same kind follow each other.
#pragma once

#include <algorithm>
#include <cstdint>

#include "formats/AudioTags.h"
#include "formats/ByteView.h"

namespace vantor {

// Frames that must follow each other before a stream with a weak sync word is believed.
inline constexpr std::uint64_t kProofFrames = 3;

// Walks frames from `at`, behind a tag or at the first byte; `frameBytes(position)` is the length of the
// frame there, 0 = none. Unknown tells as its end how long the tag is behind which no frames follow.
template <typename FrameBytes>
Extent walkFrames(ByteView& view, std::uint64_t at, std::uint64_t proof, FrameBytes frameBytes) {
    std::uint64_t frames = 0;
    Extent none = unknownExtent();
    none.end = std::min(at, view.size());
    for (;; ++frames) {
        std::uint64_t bytes = frameBytes(at);
        // Sounds that were joined keep their tags.
        if (bytes == 0 && frames >= proof && !isSectorStart(at)) {
            const auto behind = skipLeadingTag(view, at);
            bytes = behind != at ? frameBytes(behind) : 0;
            at = bytes != 0 ? behind : at;
        }
        if (bytes == 0)
            break;
        if (bytes > view.size() - at)
            return frames >= proof ? inexact(cutOffAt(view, view.size())) : none;
        at += bytes;
    }
    if (frames < proof)
        return none;
    const auto end = skipTrailingTags(view, at);
    const bool tornHead = end == at && view.size() - at < 4 && view.size() != at;
    return inexact(tornHead ? cutOffAt(view, at) : completeAt(view, end));
}

}  // namespace vantor
