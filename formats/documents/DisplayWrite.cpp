// DisplayWrite and other documents of IBM's Document Content Architecture. Source: IBM DCA reference.
#include "formats/Format.h"

namespace vantor {

namespace {

// Structured fields, each with its length and class, until what follows is none.
Extent walkDisplayWrite(ByteView& view) {
    constexpr std::uint8_t kFirstClass = 0xE1, kLastClass = 0xE8;
    if (!view.matches(0, std::string_view("\0\5\xE1\3\0\0\x20\xE2", 8)))
        return unknownExtent();
    for (std::uint64_t at = 0;;) {
        const auto bytes = view.be16(at);
        const auto kind = view.u8(at + 2);
        if (!bytes || !kind || *bytes < 5 || *kind < kFirstClass || *kind > kLastClass)
            return inexact(completeAt(view, at));
        at += *bytes;
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
}

}  // namespace

extern constexpr Format kDisplayWrite = {
    .name = "DisplayWrite",
    .group = Group::Documents,
    .walk = walkDisplayWrite,
    .extensions = " FFT DCA ",
};

}  // namespace vantor
