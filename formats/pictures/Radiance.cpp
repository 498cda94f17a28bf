// Radiance pictures: text, then scanlines of four bytes a pixel, with or without run lengths; the ending HDR
// is also that of the texts that describe satellite pictures. Source: "Radiance file formats", the picture
// format with its old and new run lengths.
#include "formats/Format.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

constexpr std::uint64_t kRadianceMostHead = 64 * 1024;  // bytes
constexpr std::uint64_t kRadianceMostSide = 1 << 20;    // pixels
constexpr std::uint64_t kRadianceMostPixels = 1 << 30;
constexpr std::uint64_t kPixelBytes = 4;
constexpr int kChannels = 4;

enum class Step { Whole, Cut, Broken };

struct Lines {
    std::uint64_t count = 0;
    std::uint64_t pixels = 0;  // a line
    std::uint64_t begin = 0;   // offset of the first
};

// Behind the blank line that ends the head; 0 when there is none.
std::uint64_t behindHead(ByteView& view) {
    for (auto line = view.find('\n', 0, kRadianceMostHead); line.found();
         line = view.find('\n', line.at + 1, kRadianceMostHead)) {
        if (view.u8(line.at + 1) == '\n')
            return line.at + 2;
    }
    return 0;
}

// An axis such as "-Y 480"; moves on behind the character that ends it. 0 for anything else.
std::uint64_t axis(ByteView& view, std::uint64_t& at, char end) {
    const auto sign = view.u8(at).value_or(0);
    const auto name = view.u8(at + 1).value_or(0);
    if ((sign != '-' && sign != '+') || (name != 'X' && name != 'Y') || view.u8(at + 2) != ' ')
        return 0;
    std::uint64_t length = 0;
    at += 3;
    for (auto digit = view.u8(at); digit && *digit >= '0' && *digit <= '9' && length <= kRadianceMostSide;
         digit = view.u8(++at))
        length = length * 10 + (*digit - '0');
    return view.u8(at++) == end && length <= kRadianceMostSide ? length : 0;
}

// One channel of a line: runs and literal bytes until the line is full.
Step walkRuns(ByteView& view, std::uint64_t& at, std::uint64_t pixels) {
    for (std::uint64_t done = 0; done < pixels;) {
        const auto count = view.u8(at);
        if (!count)
            return Step::Cut;
        const bool run = *count > 128;
        const std::uint64_t length = run ? *count - 128U : *count;
        if (length == 0 || length > pixels - done)
            return Step::Broken;
        const std::uint64_t next = at + 1 + (run ? 1 : length);
        if (next > view.size())
            return Step::Cut;
        at = next;
        done += length;
    }
    return Step::Whole;
}

// A line of pixels; one of 1, 1, 1, n repeats the pixel before, the next such in the place above.
Step walkPixels(ByteView& view, std::uint64_t& at, std::uint64_t pixels) {
    std::uint64_t done = 0;
    for (int shift = 0; done < pixels;) {
        const auto pixel = view.be32(at);
        if (!pixel)
            return Step::Cut;
        const bool repeats = *pixel >> 8 == 0x010101;
        if (repeats && shift > 16)
            return Step::Broken;
        done += repeats ? std::uint64_t{*pixel & 0xFF} << shift : 1;
        shift = repeats ? shift + 8 : 0;
        at += kPixelBytes;
    }
    return done == pixels ? Step::Whole : Step::Broken;
}

Step walkLine(ByteView& view, std::uint64_t& at, std::uint64_t pixels) {
    const auto mark = view.be32(at);
    if (!mark)
        return Step::Cut;
    if (pixels < 8 || pixels > 32767 || *mark != (0x02020000U | pixels))
        return walkPixels(view, at, pixels);
    at += kPixelBytes;
    for (int channel = 0; channel < kChannels; ++channel) {
        if (const Step step = walkRuns(view, at, pixels); step != Step::Whole)
            return step;
    }
    return Step::Whole;
}

Extent walkRadiance(ByteView& view) {
    if (!view.matches(0, "#?"))
        return walkText(view);
    Lines lines;
    lines.begin = behindHead(view);
    if (lines.begin == 0)
        return unknownExtent();
    const bool linesAreRows = view.u8(lines.begin + 1) == 'Y';
    lines.count = axis(view, lines.begin, ' ');
    lines.pixels = lines.count == 0 ? 0 : axis(view, lines.begin, '\n');
    if (lines.pixels == 0 || lines.count * lines.pixels > kRadianceMostPixels)
        return unknownExtent();
    Facts facts;
    facts.width = static_cast<std::uint32_t>(linesAreRows ? lines.pixels : lines.count);
    facts.height = static_cast<std::uint32_t>(linesAreRows ? lines.count : lines.pixels);
    std::uint64_t at = lines.begin;
    for (std::uint64_t line = 0; line < lines.count; ++line) {
        const Step step = walkLine(view, at, lines.pixels);
        if (step == Step::Cut)
            return cutOffAt(view, at, facts);
        if (step == Step::Broken)
            return damagedAt(view, at, facts);
    }
    return completeAt(view, at, facts);
}

}  // namespace

extern constexpr Format kRadiance = {
    .name = "Radiance",
    .group = Group::Pictures,
    .walk = walkRadiance,
    .extensions = " HDR ",
    .strongMagic = false,
};

}  // namespace vantor
