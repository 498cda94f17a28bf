// X pixmaps (XPM) of the second and third version. Source: XPM manual 3.4.
#include "formats/Format.h"
#include "formats/TextReader.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

// Behind the remarks that follow a line end at `at`, each with its own, so far as they end within the sector
// in text; else `at`.
std::uint64_t behindRemarks(ByteView& view, std::uint64_t at) {
    for (std::uint64_t end = at; !isSectorStart(end) && view.matches(end, "/*");) {
        for (end += 2; !view.matches(end, "*/"); ++end) {
            const auto byte = view.u8(end);
            if (!byte || isForeign(*byte) || isSectorStart(end))
                return at;
        }
        end += 2;
        at = end = behindLineEnd(view, end);
    }
    return at;
}

// C source: an array of texts that ends with "};".
Extent walkXpm(ByteView& view) {
    if (view.matches(0, "! XPM2\n") || view.matches(0, "! XPM2\r"))
        return walkText(view);  // the second version is lines without an end
    if (!view.matches(0, "/* XPM */"))
        return unknownExtent();
    bool quoted = false, closed = false;
    for (std::uint64_t at = 9;; ++at) {
        const auto byte = view.u8(at);
        if (!byte)
            return cutOffAt(view, at);
        if (*byte < '\t' || *byte == 0x7F || *byte == 0xFF)
            return damagedAt(view, at);
        if (*byte == '"')
            quoted = !quoted;
        else if (quoted && *byte == '\\')
            ++at;
        else if (!quoted && *byte == '}')
            closed = true;
        else if (closed && *byte == ';')
            return completeAt(view, behindRemarks(view, behindEmptyLine(view, at + 1)));
    }
}

}  // namespace

extern constexpr Format kXpm = {
    .name = "XPM",
    .group = Group::Pictures,
    .walk = walkXpm,
    .extensions = " XPM ",
};

}  // namespace vantor
