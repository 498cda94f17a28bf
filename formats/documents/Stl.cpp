// Models for printing (STL): lines up to the last `endsolid`, or a count of triangles of fixed size. Source:
// public descriptions of both forms.
#include <cmath>
#include <cstring>

#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

constexpr std::uint64_t kStlHead = 84, kTriangle = 50;

bool isModelNumber(ByteView& view, std::uint64_t at) {
    constexpr float kFarthest = 1e12F;
    const std::uint32_t bits = view.le32(at).value_or(0x7FC00000);
    float number;
    std::memcpy(&number, &bits, sizeof number);
    return std::isfinite(number) && std::fabs(number) < kFarthest;
}

// Every triangle is twelve numbers that a model may have; random bytes hold others soon.
Extent walkTriangles(ByteView& view) {
    constexpr std::uint64_t kMostTriangles = 100'000'000, kLooks = 64;
    const std::uint64_t count = view.le32(kStlHead - 4).value_or(0);
    if (count == 0 || count > kMostTriangles)
        return unknownExtent();
    const std::uint64_t end = kStlHead + count * kTriangle;
    for (std::uint64_t look = 0; look < kLooks && look < count; ++look) {
        const std::uint64_t at = kStlHead + (count <= kLooks ? look : count / kLooks * look) * kTriangle;
        if (!view.holds(at, kTriangle))
            return cutOffAt(view, view.size());
        for (std::uint64_t i = 0; i < 12; ++i) {
            if (!isModelNumber(view, at + 4 * i))
                return look == 0 ? unknownExtent() : damagedAt(view, at);
        }
    }
    return completeAt(view, end);
}

// Line by line while they are those of such a model.
Extent walkLines(ByteView& view) {
    const auto reach = textEnd(view, 0);
    std::uint64_t last = 0;
    bool open = false;
    for (std::uint64_t at = 0; at < reach;) {
        std::uint64_t word = at;
        while (word < reach && (view.u8(word) == ' ' || view.u8(word) == '\t'))
            ++word;
        const auto ends = matchesAnyCase(view, word, "endsolid");
        const auto begins = matchesAnyCase(view, word, "solid");
        constexpr std::string_view kInner[] = {"facet", "outer", "vertex", "endloop", "endfacet"};
        bool inner = false;
        for (const auto name : kInner)
            inner = inner || matchesAnyCase(view, word, name);
        const bool empty = isTextSpace(view.u8(word).value_or('\n'));
        if (!ends && !begins && !inner && !empty)
            break;
        if (begins && open)
            break;
        open = begins || (open && !ends);
        while (word < reach && view.u8(word) != '\n' && view.u8(word) != '\r')
            ++word;
        at = behindLineEnd(view, word);
        if (ends)
            last = at;
        // Behind a whole solid another one may follow at once, but not at a sector's start.
        if (!open && isSectorStart(at))
            break;
    }
    if (last != 0 && !open)
        return inexact(completeAt(view, last));
    if (reach >= view.size())
        return cutOffAt(view, view.size());
    return last != 0 ? inexact(completeAt(view, last)) : damagedAt(view, reach);
}

Extent walkStl(ByteView& view) {
    constexpr std::uint64_t kFirstLines = 512;
    if (matchesAnyCase(view, 0, "solid")) {
        for (auto sign = view.find('f', 5, kFirstLines); sign.found();
             sign = view.find('f', sign.at + 1, kFirstLines)) {
            if (view.matches(sign.at, "facet"))
                return walkLines(view);
        }
    }
    return walkTriangles(view);
}

}  // namespace

extern constexpr Format kStl = {
    .name = "STL",
    .group = Group::Documents,
    .walk = walkStl,
    .extensions = " STL ",
    .strongMagic = false,
};

}  // namespace vantor
