// SPC, music of a console. Source: SPC file notes.
#include "formats/Format.h"

namespace vantor {

namespace {

// The memory of a console's sound processor, and notes that may follow.
Extent walkConsoleSound(ByteView& view) {
    constexpr std::uint64_t kMemory = 66048;
    if (!view.matches(0, "SNES-SPC700 Sound File Data v0"))
        return unknownExtent();
    if (!view.matches(kMemory, "xid6"))
        return completeAt(view, kMemory);
    const auto notes = view.le32(kMemory + 4);
    return notes ? completeAt(view, kMemory + 8 + *notes) : cutOffAt(view, view.size());
}

}  // namespace

extern constexpr Format kSpc = {
    .name = "SPC",
    .group = Group::Sounds,
    .walk = walkConsoleSound,
    .extensions = " SPC ",
};

}  // namespace vantor
