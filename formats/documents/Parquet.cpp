// Columns of data (PARQUET): the same mark at both ends, and before the last one the length of a footer.
// Source: Apache Parquet file format.
#include "formats/Format.h"

namespace vantor {

namespace {

// A footer begins with its version, a small number (compact protocol: field 1, 32 bits, zigzag).
bool isFooter(ByteView& view, std::uint64_t at) {
    const auto version = view.u8(at + 1).value_or(0);
    return view.u8(at) == 0x15 && (version == 2 || version == 4) && view.u8(at + 2) == 0x19;
}

Extent walkParquet(ByteView& view) {
    constexpr std::uint64_t kMark = 4, kLength = 4, kLeastFooter = 8;
    if (!view.matches(0, "PAR1"))
        return unknownExtent();
    auto mark = view.find('P', kMark + kLength, view.size());
    for (; mark.found(); mark = view.find('P', mark.at + 1, view.size())) {
        if (!view.matches(mark.at, "PAR1"))
            continue;
        const std::uint64_t footer = view.le32(mark.at - kLength).value_or(0);
        if (footer >= kLeastFooter && footer <= mark.at - kLength - kMark &&
            isFooter(view, mark.at - kLength - footer))
            return completeAt(view, mark.at + kMark);
    }
    return cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kParquet = {
    .name = "Parquet",
    .group = Group::Documents,
    .walk = walkParquet,
    .extensions = " PARQUET ",
    .large = true,
};

}  // namespace vantor
