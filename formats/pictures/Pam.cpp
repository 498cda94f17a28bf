// Portable arbitrary maps (PAM). Source: pam(5).
#include "formats/Format.h"
#include "formats/TextReader.h"

namespace vantor {

namespace {

Extent walkPam(ByteView& view) {
    constexpr std::uint64_t kLongestHead = 4096;
    if (!view.matches(0, "P7\n"))
        return unknownExtent();
    std::uint64_t width = 0, height = 0, depth = 0, most = 0;
    for (std::uint64_t at = 3; at < kLongestHead; at = view.find('\n', at, kLongestHead).at + 1) {
        if (!view.u8(at))
            return cutOffAt(view, view.size());
        width = numberBehind(view, at, "WIDTH ").value_or(width);
        height = numberBehind(view, at, "HEIGHT ").value_or(height);
        depth = numberBehind(view, at, "DEPTH ").value_or(depth);
        most = numberBehind(view, at, "MAXVAL ").value_or(most);
        if (!view.matches(at, "ENDHDR\n"))
            continue;
        if (width == 0 || height == 0 || depth == 0 || most == 0)
            return unknownExtent();
        Facts facts;
        facts.width = static_cast<std::uint32_t>(width);
        facts.height = static_cast<std::uint32_t>(height);
        const auto samples = mulClamped(mulClamped(width, height), depth);
        return completeAt(view, addClamped(at + 7, mulClamped(samples, most > 255 ? 2 : 1)), facts);
    }
    return unknownExtent();
}

}  // namespace

extern constexpr Format kPam = {
    .name = "PAM",
    .group = Group::Pictures,
    .walk = walkPam,
    .extensions = " PAM ",
    .strongMagic = false,
};

}  // namespace vantor
