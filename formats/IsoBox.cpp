#include "formats/IsoBox.h"

namespace vantor {

std::optional<IsoBox> readIsoBox(ByteView& view, std::uint64_t at) {
    Cursor in(view, at);
    IsoBox box;
    box.at = at;
    const std::uint64_t small = in.u32();
    for (char& letter : box.name)
        letter = static_cast<char>(in.u8());
    std::uint64_t bytes = small;
    if (small == 1)
        bytes = in.u64();
    if (!in.ok())
        return std::nullopt;
    box.body = in.at();
    box.toEnd = small == 0;
    box.end = box.toEnd ? view.size() : addClamped(at, bytes);
    if (!box.toEnd && bytes < box.body - at)
        return std::nullopt;
    return box;
}

}  // namespace vantor
