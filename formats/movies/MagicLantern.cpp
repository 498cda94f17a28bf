// Raw movies of a camera's added firmware (MLV): blocks with their length, of frames, sound and settings.
// Source: the public description of the MLV 2.0 video format.
#include "formats/Among.h"
#include "formats/Format.h"

namespace vantor {

namespace {

constexpr std::string_view kMlvBlocks[] = {"VIDF", "AUDF", "RAWI", "RAWC", "WAVI", "EXPO", "LENS",
                                           "RTCI", "IDNT", "XREF", "INFO", "DISO", "MARK", "STYL",
                                           "ELVL", "WBAL", "DEBG", "VERS", "NULL", "BKUP", "ELNS"};

Extent walkMlv(ByteView& view) {
    constexpr std::uint64_t kFileBlock = 52, kLeast = 16;
    if (!view.matches(0, "MLVI") || view.le32(4) != kFileBlock)
        return unknownExtent();
    for (std::uint64_t at = kFileBlock;;) {
        const auto name = view.window(at, 4);
        const std::uint64_t bytes = view.le32(at + 4).value_or(0);
        const bool known =
            name.size() >= 4 &&
            isAmong(kMlvBlocks, std::string_view(reinterpret_cast<const char*>(name.data()), 4));
        if (!view.holds(at, 8) && at < view.size())
            return cutOffAt(view, at);
        // How many frames there are is written into the first block last, or never.
        if (!known || bytes < kLeast)
            return at > kFileBlock ? inexact(completeAt(view, at)) : cutOffAt(view, at);
        if (bytes > view.size() - at)
            return cutOffAt(view, view.size());
        at += bytes;
    }
}

}  // namespace

extern constexpr Format kMlv = {
    .name = "MLV",
    .group = Group::Movies,
    .walk = walkMlv,
    .extensions = " MLV ",
    .large = true,
};

}  // namespace vantor
