// Event logs of Windows: a header and chunks of 64 KiB. Source: public descriptions of the format.
#include "formats/Format.h"

namespace vantor {

namespace {

using namespace std::string_view_literals;

Extent walkEvtx(ByteView& view) {
    constexpr std::uint64_t kHead = 4096, kChunk = 65536;
    if (!view.matches(0, "ElfFile\0"sv) || view.le32(32) != 128U)
        return unknownExtent();
    const auto chunks = view.le16(42);
    if (!chunks)
        return cutOffAt(view, view.size());
    if (*chunks == 0)
        return unknownExtent();
    // A log that was not closed counts fewer than it holds.
    std::uint64_t end = kHead + *chunks * kChunk;
    while (view.matches(end, "ElfChnk\0"sv))
        end += kChunk;
    return completeAt(view, end);
}

}  // namespace

extern constexpr Format kEvtx = {
    .name = "EVTX",
    .group = Group::Systems,
    .walk = walkEvtx,
    .extensions = " EVTX ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
