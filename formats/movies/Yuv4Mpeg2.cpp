// YUV4MPEG2 movies (Y4M). Source: yuv4mpeg(5).
#include "formats/Format.h"

namespace vantor {

namespace {

struct Yuv {
    Facts facts;
    std::uint64_t frames = 0;  // where the first begins
    std::uint64_t bytes = 0;   // of each
};

// What the line at the beginning says.
std::optional<Yuv> readYuvHead(ByteView& view) {
    constexpr std::uint64_t kLongestHead = 512, kMostSide = 1 << 16;
    const auto line = view.find('\n', 0, kLongestHead);
    if (!line.found())
        return std::nullopt;
    const auto end = line.at;
    std::uint64_t width = 0, height = 0, sample = 1, numerator = 3;
    bool alpha = false;
    for (auto blank = view.find(' ', 0, end); blank.found(); blank = view.find(' ', blank.at + 1, end)) {
        const auto at = blank.at;
        const auto name = view.u8(at + 1).value_or(0);
        std::uint64_t value = 0;
        for (auto digit = at + 2; digit < end && view.u8(digit).value_or(0) >= '0' &&
                                  view.u8(digit).value_or(0) <= '9' && value < kMostSide;
             ++digit)
            value = value * 10 + (*view.u8(digit) - '0');
        if (name == 'W')
            width = value;
        else if (name == 'H')
            height = value;
        else if (name == 'C') {
            numerator = view.matches(at + 2, "mono")  ? 0
                        : view.matches(at + 2, "444") ? 8
                        : view.matches(at + 2, "422") ? 4
                        : view.matches(at + 2, "411") ? 2
                                                      : 3;
            alpha = view.matches(at + 2, "444alpha");
            // Depths of more than eight bits follow a "p", or "mono" itself.
            const auto depth = at + (numerator == 0 ? 6 : 5);
            const bool deep = view.matches(depth, "p1") || view.matches(depth, "p9") ||
                              (numerator == 0 && (view.u8(depth) == '1' || view.u8(depth) == '9'));
            sample = deep ? 2 : 1;
        }
    }
    if (width == 0 || height == 0 || width > kMostSide || height > kMostSide)
        return std::nullopt;
    const auto half = [](std::uint64_t side) { return (side + 1) / 2; };
    const std::uint64_t chroma = numerator == 0   ? 0
                                 : numerator == 8 ? width * height * 2
                                 : numerator == 4 ? half(width) * height * 2
                                 : numerator == 2 ? (width + 3) / 4 * height * 2
                                                  : half(width) * half(height) * 2;
    Yuv yuv;
    yuv.facts.width = static_cast<std::uint32_t>(width);
    yuv.facts.height = static_cast<std::uint32_t>(height);
    yuv.frames = end + 1;
    yuv.bytes = (width * height * (alpha ? 2 : 1) + chroma) * sample;
    return yuv;
}

Extent walkYuv4Mpeg(ByteView& view) {
    constexpr std::uint64_t kLongestFrameHead = 256;
    if (!view.matches(0, "YUV4MPEG2 "))
        return unknownExtent();
    const auto head = readYuvHead(view);
    if (!head)
        return view.holds(0, kLongestFrameHead) ? unknownExtent() : cutOffAt(view, view.size());
    std::uint64_t at = head->frames;
    while (view.matches(at, "FRAME")) {
        const auto limit = at + kLongestFrameHead;
        const auto line = view.find('\n', at, limit);
        if (!line.found() && !line.stopped())
            return damagedAt(view, at, head->facts);
        if (line.stopped() || line.at + 1 + head->bytes > view.size())
            return cutOffAt(view, view.size(), head->facts);
        at = line.at + 1 + head->bytes;
    }
    return at > head->frames ? inexact(completeAt(view, at, head->facts))
                             : cutOffAt(view, view.size(), head->facts);
}

}  // namespace

extern constexpr Format kYuv4Mpeg2 = {
    .name = "YUV4MPEG2",
    .group = Group::Movies,
    .walk = walkYuv4Mpeg,
    .extensions = " Y4M ",
    .large = true,
};

}  // namespace vantor
