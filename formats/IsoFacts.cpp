// Date, pixel size and length from the index boxes of movies and HEIF pictures. Sources: ISO/IEC 14496-12,
// 23008-12.
#include <algorithm>
#include <cstring>
#include <limits>

#include "formats/Dates.h"
#include "formats/IsoItemPlaces.h"
#include "formats/PlayingTime.h"
#include "formats/TiffDirectory.h"

namespace vantor {

namespace {

constexpr int kMostFactBoxes = 256;
constexpr int kMostItems = 4096;  // of a picture, which may be cut into many tiles

// Canon's raw files keep their Exif directories in boxes CMT1 (picture) and CMT2 (exposure) of this one.
constexpr std::string_view kCanonUuid = "\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48";

template <typename Visit>
void forChildren(ByteView& view, std::uint64_t from, std::uint64_t to, Visit visit,
                 int most = kMostFactBoxes) {
    for (int i = 0; i < most && from < to; ++i) {
        const auto box = readIsoBox(view, from);
        if (!box || box->toEnd || box->end > to)
            return;
        visit(*box);
        from = box->end;
    }
}

void largest(Facts& facts, std::uint32_t width, std::uint32_t height) {
    if (std::uint64_t{width} * height <= std::uint64_t{facts.width} * facts.height)
        return;
    facts.width = width;
    facts.height = height;
}

// Of a length that nobody filled in all bits are set.
std::uint64_t lengthMs(std::uint64_t units, bool wide, std::uint32_t perSecond) {
    const std::uint64_t unset = wide ? ~std::uint64_t{0} : ~std::uint32_t{0};
    return units == unset ? 0 : playingTimeMs(units, perSecond);
}

// Gives the units in a second, in which lengths are told.
std::uint32_t movieHeader(ByteView& view, const IsoBox& box, Facts& facts) {
    Cursor in(view, box.body);
    const bool wide = in.u8() == 1;
    in.skip(3);
    const std::uint64_t created = wide ? in.u64() : in.u32();
    if (in.ok() && !facts.taken)
        facts.taken = dateFromSecondsSince1904(created);
    in.skip(wide ? 8 : 4);
    const auto perSecond = in.u32();
    const std::uint64_t units = wide ? in.u64() : in.u32();
    if (in.ok())
        facts.durationMs = lengthMs(units, wide, perSecond);
    return perSecond;
}

// A movie in fragments tells its length here, if at all.
void fragmentsHeader(ByteView& view, const IsoBox& box, std::uint32_t perSecond, Facts& facts) {
    Cursor in(view, box.body);
    const bool wide = in.u8() == 1;
    in.skip(3);
    const std::uint64_t units = wide ? in.u64() : in.u32();
    if (in.ok())
        facts.durationMs = std::max(facts.durationMs, lengthMs(units, wide, perSecond));
}

void trackHeader(ByteView& view, const IsoBox& box, Facts& facts) {
    const bool wide = view.u8(box.body) == 1;
    Cursor in(view, box.body + (wide ? 88 : 76));
    const auto width = in.u32() >> 16, height = in.u32() >> 16;  // 16.16 fixed point
    if (in.ok())
        largest(facts, width, height);
}

void canonBoxes(ByteView& view, const IsoBox& box, Facts& facts) {
    if (!view.matches(box.body, kCanonUuid))
        return;
    forChildren(view, box.body + kCanonUuid.size(), box.end, [&](const IsoBox& child) {
        if (child.text() == "CMT1" || child.text() == "CMT2") {
            Facts exif;
            addTiffFacts(view, child.body, exif);
            largest(facts, exif.width, exif.height);
            if (exif.taken && (!facts.taken || facts.taken->utc))
                facts.taken = exif.taken;
        }
    });
}

// Item number of the Exif block among a HEIF picture's items; 0 = none.
std::uint32_t exifItem(ByteView& view, const IsoBox& infoBox) {
    const bool wide = view.u8(infoBox.body) != 0;
    std::uint32_t found = 0;
    const auto visit = [&](const IsoBox& entry) {
        const auto version = view.u8(entry.body).value_or(0);
        if (entry.text() != "infe" || version < 2)
            return;
        Cursor in(view, entry.body + 4);
        const std::uint32_t item = version == 2 ? in.u16() : in.u32();
        in.skip(2);
        if (in.ok() && view.matches(in.at(), "Exif"))
            found = item;
    };
    forChildren(view, infoBox.body + (wide ? 8 : 6), infoBox.end, visit, kMostItems);
    return found;
}

struct ItemPlace {
    std::uint64_t wanted = 0;  // where the wanted item's first extent begins; 0 = not found
    std::uint64_t end = 0;     // behind the last byte of all items
};

// Where items lie in the file, as the location box tells.
ItemPlace readLocations(ByteView& view, const IsoBox& locations, std::uint32_t wanted) {
    ItemPlace place;
    forItemPieces(view, locations, std::numeric_limits<std::uint32_t>::max(), [&](const IsoItemPiece& piece) {
        place.end = std::max(place.end, addClamped(piece.at, piece.bytes));
        if (piece.item == wanted && place.wanted == 0)
            place.wanted = piece.at;
        return true;
    });
    return place;
}

std::uint64_t heifMeta(ByteView& view, const IsoBox& meta, Facts& facts) {
    std::uint32_t exif = 0;
    std::optional<IsoBox> locations;
    forChildren(view, meta.body + 4, meta.end, [&](const IsoBox& child) {
        if (child.text() == "iinf")
            exif = exifItem(view, child);
        if (child.text() == "iloc")
            locations = child;
        if (child.text() != "iprp")
            return;
        forChildren(view, child.body, child.end, [&](const IsoBox& container) {
            if (container.text() != "ipco")
                return;
            forChildren(view, container.body, container.end, [&](const IsoBox& property) {
                if (property.text() == "ispe")
                    largest(facts, view.be32(property.body + 4).value_or(0),
                            view.be32(property.body + 8).value_or(0));
            });
        });
    });
    if (!locations)
        return 0;
    const ItemPlace place = readLocations(view, *locations, exif);
    const bool told = exif != 0 && place.wanted != 0;
    const auto skip = told ? view.be32(place.wanted) : std::nullopt;  // to the TIFF header behind "Exif\0\0"
    if (skip) {
        Facts inside;
        addTiffFacts(view, addClamped(place.wanted, std::uint64_t{4} + *skip), inside);
        if (inside.taken)
            facts.taken = inside.taken;
    }
    return place.end;
}

}  // namespace

std::uint64_t addIsoFacts(ByteView& view, const IsoBox& box, Facts& facts) {
    if (box.text() == "meta")
        return heifMeta(view, box, facts);
    std::uint32_t perSecond = 0;
    forChildren(view, box.body, box.end, [&](const IsoBox& child) {
        if (child.text() == "mvhd")
            perSecond = movieHeader(view, child, facts);
        if (child.text() == "uuid")
            canonBoxes(view, child, facts);
        if (child.text() != "trak" && child.text() != "mvex")
            return;
        forChildren(view, child.body, child.end, [&](const IsoBox& part) {
            if (part.text() == "tkhd")
                trackHeader(view, part, facts);
            if (part.text() == "mehd")
                fragmentsHeader(view, part, perSecond, facts);
        });
    });
    return 0;
}

}  // namespace vantor
