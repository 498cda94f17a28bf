// TIFF directories, entry by entry, and the date of an Exif block.
#include "formats/TiffDirectory.h"

#include <array>

#include "formats/Dates.h"

namespace vantor {

namespace {

constexpr std::uint64_t kTiffDirectoryMostEntries =
    4096;  // a directory of cameras and scanners has some dozens
constexpr std::uint16_t kTagDateTime = 306;
constexpr std::uint16_t kTagDateTimeOriginal = 36867;
constexpr std::uint16_t kTagDateTimeDigitized = 36868;

// Bytes of one element of a type; 0 = no such type.
std::uint64_t tiffTypeBytes(std::uint16_t type) {
    static constexpr std::array<std::uint8_t, 19> kBytes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                            8, 4, 8, 4, 0, 0, 8, 8, 8};
    return type < kBytes.size() ? kBytes[type] : 0;
}

// "2021:07:09 18:30:05" and the like, any separators; nothing unless it is a plausible date.
std::optional<CivilTime> readExifDate(ByteView& view, std::uint64_t at) {
    std::array<std::uint8_t, 19> text{};
    if (!view.copy(at, text))
        return std::nullopt;
    return parseDate({reinterpret_cast<const char*>(text.data()), text.size()});
}

}  // namespace

std::optional<TiffHeader> readTiffHeader(ByteView& view, std::uint64_t base) {
    TiffHeader header;
    header.base = base;
    if (view.matches(base, "II"))
        header.endian = Endian::Little;
    else if (!view.matches(base, "MM"))
        return std::nullopt;
    Cursor in(view, base + 2, header.endian);
    header.magic = in.u16();
    header.big = header.magic == 43;
    if (header.big) {
        const bool wide = in.u16() == 8 && in.u16() == 0;
        header.firstDirectory = in.u64();
        return in.ok() && wide ? std::optional(header) : std::nullopt;
    }
    header.firstDirectory = in.u32();
    return in.ok() ? std::optional(header) : std::nullopt;
}

std::optional<TiffDirectory> readTiffDirectory(ByteView& view, const TiffHeader& header, std::uint64_t at) {
    const std::uint64_t countBytes = header.big ? 8 : 2;
    const auto count = view.number(at, countBytes, header.endian);
    if (!count || *count == 0 || *count > kTiffDirectoryMostEntries)
        return std::nullopt;
    const std::uint64_t entryBytes = header.big ? 20 : 12;
    return TiffDirectory{at, *count, at + countBytes + *count * entryBytes + (header.big ? 8 : 4)};
}

std::optional<TiffEntry> readTiffEntry(ByteView& view, const TiffHeader& header,
                                       const TiffDirectory& directory, std::uint64_t index) {
    const std::uint64_t at = directory.at + (header.big ? 8 + index * 20 : 2 + index * 12);
    Cursor in(view, at, header.endian);
    TiffEntry entry;
    entry.tag = in.u16();
    entry.type = in.u16();
    entry.count = header.big ? in.u64() : in.u32();
    entry.valueBytes = mulClamped(entry.count, tiffTypeBytes(entry.type));
    entry.isInline = entry.valueBytes <= (header.big ? 8 : 4);
    entry.valueAt = in.at();
    const std::uint64_t value = header.big ? in.u64() : in.u32();
    if (!in.ok())
        return std::nullopt;
    if (!entry.isInline)
        entry.valueAt = addClamped(header.base, value);
    return entry;
}

std::optional<std::uint64_t> readTiffNext(ByteView& view, const TiffHeader& header,
                                          const TiffDirectory& directory) {
    const std::size_t bytes = header.big ? 8 : 4;
    return view.number(directory.end - bytes, bytes, header.endian);
}

std::optional<std::uint64_t> readTiffNumber(ByteView& view, const TiffHeader& header, const TiffEntry& entry,
                                            std::uint64_t index) {
    const auto bytes = tiffTypeBytes(entry.type);
    if (index >= entry.count || bytes == 0)
        return std::nullopt;
    return view.number(addClamped(entry.valueAt, mulClamped(index, bytes)), bytes, header.endian);
}

void addTiffFacts(ByteView& view, std::uint64_t base, Facts& facts) {
    const auto header = readTiffHeader(view, base);
    if (!header)
        return;
    std::optional<CivilTime> original, digitized, changed;
    std::uint64_t next = header->firstDirectory;
    Facts size;
    for (int directories = 0; directories < 2 && next != 0; ++directories) {
        const auto directory = readTiffDirectory(view, *header, addClamped(base, next));
        next = 0;
        if (!directory)
            break;
        for (std::uint64_t i = 0; i < directory->entries; ++i) {
            const auto entry = readTiffEntry(view, *header, *directory, i);
            if (!entry)
                break;
            const auto number = [&] { return readTiffNumber(view, *header, *entry, 0).value_or(0); };
            switch (entry->tag) {
                case kTiffWidth:
                    size.width = static_cast<std::uint32_t>(number());
                    break;
                case kTiffHeight:
                    size.height = static_cast<std::uint32_t>(number());
                    break;
                case kTagDateTime:
                    changed = readExifDate(view, entry->valueAt);
                    break;
                case kTagDateTimeOriginal:
                    original = readExifDate(view, entry->valueAt);
                    break;
                case kTagDateTimeDigitized:
                    digitized = readExifDate(view, entry->valueAt);
                    break;
                case kTiffExif:
                    next = number();
                    break;
                default:
                    break;
            }
        }
    }
    if (facts.width == 0 && size.width != 0 && size.height != 0) {
        facts.width = size.width;
        facts.height = size.height;
    }
    if (!facts.taken)
        facts.taken = original ? original : digitized ? digitized : changed;
}

}  // namespace vantor
