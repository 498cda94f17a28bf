// KeePass safes (KDBX), version 4. Source: KeePass KDBX 4 description.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkPasswordSafe(ByteView& view) {
    constexpr int kMostFields = 256;
    constexpr std::uint64_t kProofs = 64, kProof = 32;
    if (!view.matches(0, "\x03\xD9\xA2\x9A\x67\xFB\x4B\xB5") || view.le16(10) != 4U)
        return unknownExtent();  // older ones are one encrypted stream without a length
    std::uint64_t at = 12;
    for (int fields = 0;; ++fields) {
        const auto kind = view.u8(at);
        const auto bytes = view.le32(at + 1);
        if (!kind || !bytes)
            return cutOffAt(view, view.size());
        if (fields == kMostFields)
            return damagedAt(view, at);
        at += 5 + std::uint64_t{*bytes};
        if (*kind == 0)
            break;
    }
    at += kProofs;
    for (;;) {
        const auto bytes = view.le32(at + kProof);
        if (!bytes)
            return cutOffAt(view, view.size());
        at += kProof + 4 + *bytes;
        if (*bytes == 0)
            return completeAt(view, at);
    }
}

}  // namespace

extern constexpr Format kKeePass = {
    .name = "KeePass",
    .group = Group::Documents,
    .walk = walkPasswordSafe,
    .extensions = " KDBX ",
    .strongMagic = false,
};

}  // namespace vantor
