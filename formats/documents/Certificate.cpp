// Certificates and signed mail (CER, PFX, P7M). Source: ITU-T X.690 (DER).
#include "formats/Format.h"
#include "formats/documents/Text.h"

namespace vantor {

namespace {

// One sequence that tells its length, in text between two lines, or as it is.
Extent walkCertificate(ByteView& view) {
    if (view.matches(0, "-----BEGIN "))
        return walkText(view);
    const auto form = view.u8(1).value_or(0);
    if (view.u8(0) != 0x30 || form < 0x82 || form > 0x84)
        return unknownExtent();
    const std::size_t digits = form & 0x7FU;
    const auto bytes = view.number(2, digits, Endian::Big);
    if (!bytes)
        return unknownExtent();
    const auto inner = view.u8(2 + digits);
    if (*bytes < 0x80 || (inner != 0x30 && inner != 0x02 && inner != 0x06))
        return unknownExtent();
    // Further certificates may follow it.
    std::uint64_t end = 2 + digits + *bytes;
    while (view.matches(end, "\x30\x82") && view.matches(end + 4, "\x30\x82") &&
           view.matches(end + 8, "\xA0\x03\x02\x01\x02"))
        end += 4 + std::uint64_t{view.be16(end + 2).value_or(0)};
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kCertificate = {
    .name = "Certificate",
    .group = Group::Documents,
    .walk = walkCertificate,
    .extensions = " CER DER PFX P12 P7M P7B P7S P7C ",
    .strongMagic = false,
};

}  // namespace vantor
