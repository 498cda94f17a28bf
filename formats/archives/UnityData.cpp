// Unity data. Source: UnityFS header notes.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkUnityData(ByteView& view) {
    constexpr std::uint64_t kLongestVersion = 64;
    if (!view.matches(0, std::string_view("UnityFS\0", 8)))
        return unknownExtent();
    std::uint64_t at = 12;
    for (int version = 0; version < 2; ++version) {
        const auto nul = view.find(0, at, at + kLongestVersion);
        if (nul.stopped())
            return cutOffAt(view, view.size());
        if (!nul.found())
            return unknownExtent();
        at = nul.at + 1;
    }
    const auto bytes = view.be64(at);
    if (!bytes)
        return cutOffAt(view, view.size());
    return *bytes > at + 8 ? completeAt(view, *bytes) : damagedAt(view, at);
}

}  // namespace

extern constexpr Format kUnityData = {
    .name = "Unity data",
    .group = Group::Archives,
    .walk = walkUnityData,
    .extensions = " UNITY3D ",
    .large = true,
};

}  // namespace vantor
