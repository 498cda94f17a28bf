// Files of COMPRESS.EXE (SZDD): packed until the told length is reached. Source: public
// descriptions of the format.
#include "formats/Format.h"

namespace vantor {

namespace {

using namespace std::string_view_literals;

Extent walkCompressedFile(ByteView& view) {
    std::uint64_t at = 0, wanted = 0;
    if (view.matches(0,
                     "SZDD\x88\xF0\x27\x33"
                     "A"sv)) {
        wanted = view.le32(10).value_or(0);
        at = 14;
    } else if (view.matches(0, "SZ \x88\xF0\x27\x33\xD1"sv)) {
        wanted = view.le32(8).value_or(0);
        at = 12;
    } else {
        return unknownExtent();
    }
    // A byte of flags for eight parts: a byte as it is, or two that tell where and how much to repeat.
    for (std::uint64_t done = 0; done < wanted;) {
        const auto flags = view.u8(at++);
        if (!flags)
            return cutOffAt(view, view.size());
        for (unsigned bit = 0; bit < 8 && done < wanted; ++bit) {
            if ((*flags >> bit & 1U) != 0) {
                ++at;
                ++done;
            } else {
                done += 3 + (view.u8(at + 1).value_or(0) & 15U);
                at += 2;
            }
        }
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return completeAt(view, at);
}

}  // namespace

extern constexpr Format kCompressedFile = {
    .name = "SZDD",
    .group = Group::Archives,
    .walk = walkCompressedFile,
    .extensions = " SZDD ",
};

}  // namespace vantor
