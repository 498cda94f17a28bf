// Core Audio files (CAF). Source: Apple Core Audio Format Specification 1.0.
#include <algorithm>
#include <array>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::uint32_t kCoreAudioMostBlocks = 1 << 20;

constexpr std::array<std::string_view, 16> kCoreAudioChunks = {"desc", "data", "kuki", "pakt", "strg", "mark",
                                                               "regn", "inst", "midi", "ovvw", "peak", "edct",
                                                               "info", "uuid", "free", "chan"};

Extent walkCoreAudio(ByteView& view) {
    if (!view.matches(0, std::string_view("caff\0\1", 6)) || !view.matches(8, "desc"))
        return unknownExtent();
    bool data = false;
    std::uint64_t at = 8;
    for (std::uint32_t chunks = 0; chunks < kCoreAudioMostBlocks; ++chunks) {
        const auto isHere = [&](std::string_view name) { return view.matches(at, name); };
        const auto bytes = view.be64(at + 4);
        if (!bytes || std::none_of(kCoreAudioChunks.begin(), kCoreAudioChunks.end(), isHere)) {
            if (data)
                return completeAt(view, at);
            return bytes ? damagedAt(view, at) : cutOffAt(view, view.size());
        }
        if (*bytes == ~std::uint64_t{0})  // "to the end of the file", while it is being recorded
            return unknownExtent();
        data = data || isHere("data");
        at = addClamped(at + 12, *bytes);
        if (at > view.size())
            return cutOffAt(view, view.size());
    }
    return damagedAt(view, at);
}

}  // namespace

extern constexpr Format kCoreAudio = {
    .name = "Core Audio",
    .group = Group::Sounds,
    .walk = walkCoreAudio,
    .extensions = " CAF ",
};

}  // namespace vantor
