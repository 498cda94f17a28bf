// VirtualBox disks (VDI). Source: VDI header notes.
#include "formats/Format.h"

namespace vantor {

namespace {

Extent walkVirtualBoxDisk(ByteView& view) {
    if (!view.matches(64, std::string_view("\x7F\x10\xDA\xBE\1\0\1\0", 8)))
        return unknownExtent();
    const auto data = view.le32(0x158), block = view.le32(0x178), blocks = view.le32(0x184);
    if (!data || !block || !blocks)
        return cutOffAt(view, view.size());
    if (*data < 512 || *block < 512)
        return unknownExtent();
    return completeAt(view, *data + std::uint64_t{*block} * *blocks);
}

}  // namespace

extern constexpr Format kVirtualBoxDisk = {
    .name = "VirtualBox disk",
    .group = Group::Systems,
    .walk = walkVirtualBoxDisk,
    .extensions = " VDI ",
    .large = true,
};

}  // namespace vantor
