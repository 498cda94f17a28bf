// PE and DOS programs (EXE, DLL); what their headers refer to ends them. Source: Microsoft PE/COFF
// specification.
#include <algorithm>

#include "formats/Format.h"

namespace vantor {

namespace {

constexpr int kExecutableMostSections = 4096;

// The loadable part of a DOS program, told in pages of 512 bytes.
std::uint64_t dosEnd(ByteView& view) {
    const std::uint64_t last = view.le16(2).value_or(0), pages = view.le16(4).value_or(0);
    if (pages == 0 || last >= 512)
        return 0;
    return last == 0 ? pages * 512 : (pages - 1) * 512 + last;
}

Extent walkExecutable(ByteView& view) {
    if (!view.matches(0, "MZ"))
        return unknownExtent();
    const std::uint64_t pe = view.le32(60).value_or(0);
    if (pe < 64 || !view.matches(pe, std::string_view("PE\0\0", 4))) {
        const auto end = dosEnd(view);
        return end >= 64 ? inexact(completeAt(view, end)) : unknownExtent();
    }
    Cursor in(view, pe + 6, Endian::Little);
    const auto sections = in.u16();
    in.skip(4);
    const std::uint64_t symbols = in.u32(), symbolCount = in.u32(), optionalBytes = in.u16();
    in.skip(2);
    const std::uint64_t optional = in.at();
    const auto wide = in.u16() == 0x20B;
    if (!in.ok())
        return cutOffAt(view, view.size());
    if (sections == 0 || sections > kExecutableMostSections)
        return unknownExtent();
    const std::uint64_t table = optional + optionalBytes;
    std::uint64_t end = table + std::uint64_t{sections} * 40;
    for (std::uint64_t i = 0; i < sections; ++i) {
        Cursor section(view, table + i * 40 + 16, Endian::Little);
        const std::uint64_t bytes = section.u32(), at = section.u32();
        if (!section.ok())
            return cutOffAt(view, view.size());
        if (at != 0 && bytes != 0)
            end = std::max(end, at + bytes);
    }
    if (symbols != 0) {
        const auto strings = symbols + symbolCount * 18;
        end = std::max(end, strings + view.le32(strings).value_or(0));
    }
    // Signatures are the one directory that counts from the file's start.
    const std::uint64_t directory = optional + (wide ? 112 : 96) + 4 * 8;
    if (directory + 8 <= table) {
        const std::uint64_t at = view.le32(directory).value_or(0),
                            bytes = view.le32(directory + 4).value_or(0);
        end = std::max(end, at != 0 ? at + bytes : 0);
    }
    // What installers append is told nowhere.
    return inexact(completeAt(view, end));
}

}  // namespace

extern constexpr Format kExecutable = {
    .name = "Executable",
    .group = Group::Systems,
    .walk = walkExecutable,
    .extensions = " EXE DLL SYS OCX SCR COM ",
    .strongMagic = false,
};

}  // namespace vantor
