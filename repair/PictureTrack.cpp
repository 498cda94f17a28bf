#include "repair/PictureTrack.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vantor {

namespace {

// Places of the pictures in the order of display, counted from 0 over the whole movie. Between two places
// where the order begins anew, pictures are shown by the numbers that they carry; those are only low bits, so
// each is taken as near to the one before as it can be.
std::vector<std::uint32_t> orderOfDisplay(const std::vector<CodedPicture>& pictures,
                                          const PictureSyntax& syntax) {
    std::vector<std::uint32_t> shown(pictures.size());
    std::iota(shown.begin(), shown.end(), 0U);
    if (syntax.orderBits == 0) {
        return shown;
    }
    std::vector<std::pair<std::int64_t, std::uint32_t>> sequence;
    std::size_t first = 0;
    const auto settle = [&](std::size_t end) {
        std::stable_sort(sequence.begin(), sequence.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        for (std::size_t rank = 0; rank < sequence.size(); ++rank) {
            shown[sequence[rank].second] = static_cast<std::uint32_t>(first + rank);
        }
        sequence.clear();
        first = end;
    };
    const std::int64_t range = std::int64_t{1} << syntax.orderBits;
    std::int64_t near = 0;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const CodedPicture& picture = pictures[i];
        if (picture.restartsOrder) {
            settle(i);
            near = 0;
        }
        const std::int64_t step = ((picture.order - near) % range + range) % range;
        const std::int64_t order = near + (step < range / 2 ? step : step - range);
        sequence.emplace_back(order, static_cast<std::uint32_t>(i));
        if (picture.refersOnly && !picture.aside) {
            near = order;
        }
    }
    settle(pictures.size());
    return shown;
}

}  // namespace

IndexedTrack pictureTrack(const std::vector<CodedPicture>& pictures, const ReferenceMovie& reference) {
    IndexedTrack track;
    track.described = &reference.video;
    track.video = true;
    TrackBuilder builder(track);
    for (const CodedPicture& picture : pictures) {
        builder.add(picture.at, picture.end - picture.at, 1);
        track.sizes.push_back(static_cast<std::uint32_t>(picture.end - picture.at));
        if (picture.sync) {
            track.sync.push_back(static_cast<std::uint32_t>(track.sizes.size()));
        }
    }
    track.shown = orderOfDisplay(pictures, reference.syntax);
    return track;
}

}  // namespace vantor
