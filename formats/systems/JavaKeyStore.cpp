// Key stores of Java (JKS): keys with their certificates, certificates, and a sum over all. Source: the Java
// documentation's description of the JKS key store, version 2.
#include "formats/Format.h"

namespace vantor {

namespace {

// Moves `at` behind a row of bytes whose number stands before it.
bool skipCounted(ByteView& view, std::uint64_t& at, std::size_t digits) {
    const auto bytes = view.number(at, digits, Endian::Big);
    if (bytes)
        at = addClamped(at, digits + *bytes);
    return bytes && at <= view.size();
}

Extent walkJavaKeyStore(ByteView& view) {
    constexpr std::uint32_t kMostEntries = 1 << 16;
    constexpr std::uint64_t kSum = 20;
    Cursor in(view, 4);
    const auto version = in.u32(), entries = in.u32();
    if (!view.matches(0, "\xFE\xED\xFE\xED") || !in.ok() || version != 2 || entries > kMostEntries)
        return unknownExtent();
    std::uint64_t at = in.at();
    for (std::uint32_t i = 0; i < entries; ++i) {
        const auto kind = view.be32(at);
        at += 4;
        if (kind && *kind != 1 && *kind != 2)
            return damagedAt(view, at - 4);
        if (!kind || !skipCounted(view, at, 2))
            return cutOffAt(view, view.size());
        at += 8;  // its date
        std::uint32_t certificates = 1;
        if (*kind == 1) {
            const bool key = skipCounted(view, at, 4);
            const auto chain = view.be32(at);
            if (!key || !chain)
                return cutOffAt(view, view.size());
            if (*chain > kMostEntries)
                return damagedAt(view, at);
            certificates = *chain;
            at += 4;
        }
        for (; certificates != 0; --certificates) {
            if (!skipCounted(view, at, 2) || !skipCounted(view, at, 4))
                return cutOffAt(view, view.size());
        }
    }
    return completeAt(view, at + kSum);
}

}  // namespace

extern constexpr Format kJavaKeyStore = {
    .name = "Java key store",
    .group = Group::Systems,
    .walk = walkJavaKeyStore,
    .extensions = " JKS ",
};

}  // namespace vantor
