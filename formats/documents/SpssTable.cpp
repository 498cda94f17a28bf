// Tables of SPSS (SAV), plain, in its own short codes, or deflated. Source: PSPP developer's guide, "System
// File Format".
#include "formats/Format.h"

namespace vantor {

namespace {

struct SpssTable {
    ByteView& view;
    Endian endian = Endian::Little;
    std::uint64_t at = 176;
    std::uint64_t columns = 0;  // of eight bytes each
    bool cut = false;

    std::uint32_t number() {
        const auto value = view.number(at, 4, endian);
        cut = cut || !value;
        at += 4;
        return static_cast<std::uint32_t>(value.value_or(0));
    }
    // A column's head, its label and the values it leaves out.
    void column() {
        ++columns;
        at += 4;
        const auto labelled = number();
        const auto missing = static_cast<std::int32_t>(number());
        at += 16;
        if (labelled == 1) {
            const std::uint64_t label = number();
            at += (label + 3) / 4 * 4;
        }
        at += 8ULL * static_cast<std::uint64_t>(missing < 0 ? -std::int64_t{missing} : missing);
    }
    void labels() {
        for (auto left = number(); left != 0 && !cut; --left) {
            const std::uint64_t length = view.u8(at + 8).value_or(0);
            cut = !view.holds(at, 8);
            at += 8 + (length + 8) / 8 * 8;
        }
    }
    // Moves behind the description of the columns; false where it is none.
    bool description() {
        while (!cut) {
            switch (number()) {
                case 2:
                    column();
                    break;
                case 3:
                    labels();
                    break;
                case 4: {
                    const std::uint64_t named = number();
                    at += named * 4;
                    break;
                }
                case 6: {
                    const std::uint64_t lines = number();
                    at += lines * 80;
                    break;
                }
                case 7: {
                    at += 4;
                    const std::uint64_t size = number(), count = number();
                    at = addClamped(at, mulClamped(size, count));
                    break;
                }
                case 999:
                    at += 4;
                    return true;
                default:
                    return cut;
            }
        }
        return true;
    }
    // Behind the groups of eight codes, some of which have eight bytes behind the group.
    Extent coded(std::uint64_t values) {
        constexpr std::uint8_t kEnd = 252, kLong = 253;
        for (std::uint64_t done = 0;;) {
            const auto group = at;
            bool ends = false;
            std::uint64_t told = 0;
            if (!view.holds(group, 8))
                return done >= values ? completeAt(view, at) : cutOffAt(view, view.size());
            if (done >= values && view.u8(group) != kEnd)
                return completeAt(view, at);
            at += 8;
            for (std::uint64_t i = 0; i < 8 && !ends; ++i) {
                const auto code = view.u8(group + i).value_or(0);
                ends = code == kEnd;
                told += code != 0 && !ends ? 1 : 0;
                at += code == kLong ? 8 : 0;
            }
            done += told;
            if (ends)
                return completeAt(view, at);
            if (done < values && told == 0)
                return damagedAt(view, group);
        }
    }
};

Extent walkSpssTable(ByteView& view) {
    const bool deflated = view.matches(0, "$FL3");
    if (!deflated && !view.matches(0, "$FL2"))
        return unknownExtent();
    SpssTable table{view};
    const auto layout = view.le32(64);
    if (layout != 2U && layout != 3U)
        table.endian = Endian::Big;
    const auto packing = view.number(72, 4, table.endian), rows = view.number(80, 4, table.endian);
    if (!packing || !rows)
        return cutOffAt(view, view.size());
    if (!table.description())
        return damagedAt(view, table.at);
    if (table.cut || table.at > view.size())
        return cutOffAt(view, view.size());
    const bool counted = *rows != 0xFFFFFFFF;
    const auto values = mulClamped(*rows, table.columns);
    if (deflated) {
        const auto last = view.number(table.at + 8, 8, table.endian),
                   bytes = view.number(table.at + 16, 8, table.endian);
        return last && bytes ? completeAt(view, addClamped(*last, *bytes)) : cutOffAt(view, view.size());
    }
    if (*packing == 1)
        return table.coded(counted ? values : ~0ULL);
    return counted ? completeAt(view, addClamped(table.at, mulClamped(values, 8))) : unknownExtent();
}

}  // namespace

extern constexpr Format kSpssTable = {
    .name = "SPSS table",
    .group = Group::Documents,
    .walk = walkSpssTable,
    .extensions = " SAV ",
    .mayNotTellEnd = true,
};

}  // namespace vantor
