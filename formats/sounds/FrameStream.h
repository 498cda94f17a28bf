// Sound that is nothing but frames one after the other. Nothing but a tag marks the end; the file goes on
// while frames of the same kind follow each other.
#pragma once

#include <algorithm>
#include <cstdint>

#include "formats/AudioTags.h"
#include "formats/ByteView.h"

namespace vantor {

// Frames that must follow each other before a stream with a weak sync word is believed.
inline constexpr std::uint64_t kProofFrames = 3;

// What was followed.
struct FrameRow {
    std::uint64_t frames = 0;
    std::uint64_t last = 0;        // where the last of them begins
    bool headInEachSector = true;  // a tag's or a frame's: another's sector would have ended the row
    bool tornTag = false;
};

// Walks frames from `at`, behind a tag or at the first byte; `frameBytes(position)` is the length of the
// frame there, 0 = none. Unknown tells as its end how long the tag is behind which no frames follow.
template <typename FrameBytes>
Extent walkFrames(ByteView& view, std::uint64_t at, std::uint64_t proof, FrameBytes frameBytes,
                  FrameRow* row = nullptr) {
    constexpr std::uint64_t kHead = 4;
    FrameRow followed;
    auto& frames = followed.frames;
    std::uint64_t behindHead = 0;
    const auto meetHead = [&](std::uint64_t head) {
        followed.headInEachSector &= (behindHead + 511) / 512 * 512 + 512 > head;
        behindHead = head + kHead;
    };
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
        if (bytes > view.size() - at && row != nullptr)
            *row = followed;
        if (bytes > view.size() - at)
            return frames >= proof ? inexact(cutOffAt(view, view.size())) : none;
        meetHead(at);
        followed.last = at;
        at += bytes;
    }
    if (frames < proof)
        return none;
    const auto end = skipTrailingTags(view, at);
    // Sound that broke off inside a frame may have been given a tag all the same.
    for (auto tag = view.find('T', followed.last + kHead, at); end == at && tag.found();
         tag = view.find('T', tag.at + 1, at)) {
        if (isOldTag(view, tag.at))
            return inexact(completeAt(view, skipTrailingTags(view, tag.at)));
    }
    meetHead(end);
    followed.tornTag = view.matches(end, "TAG") || view.matches(end, "LYRICSBEGIN");
    if (row != nullptr)
        *row = followed;
    const bool tornHead = end == at && view.size() - at < kHead && view.size() != at;
    if (tornHead)
        return inexact(cutOffAt(view, at));
    const Extent whole = completeAt(view, end);
    const bool marked = whole.verdict == Verdict::Complete && end != at && !followed.tornTag;
    return marked && followed.headInEachSector ? withContent(whole) : inexact(whole);
}

}  // namespace vantor
