// Any bytes as a card: the readers come to an end, read within bounds and tell nothing that cannot be. The
// harness of one kind brings that kind's boot sector along, so that all that the input changes is behind it.
#include <cstdlib>
#include <cstring>

#include "filesystem/CleanName.h"
#include "tests/filesystem/NtfsImage.h"

namespace {

constexpr std::size_t kSectors = 2048;

void hold(bool promise) {
    if (!promise) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    MemoryCard card(kSectors);
    std::size_t at = 0;
#if defined(VANTOR_FUZZ_FAT)
    FatPlaces fat;
    fat.bits = size > 0 && data[0] % 2 ? 32 : 16;
    fat.clusterSectors = 1;
    fat.clusters = fat.bits == 32 ? 1500 : 1900;
    formatFat(card, fat);
    at = fat.table() * 512;
#elif defined(VANTOR_FUZZ_EXFAT)
    ExfatPlaces exfat;
    exfat.clusterSectors = 1;
    exfat.clusters = 1900;
    formatExfat(card, exfat);
    at = exfat.table() * 512;
#elif defined(VANTOR_FUZZ_NTFS)
    constexpr std::size_t kRecords = 40;
    constexpr std::size_t kFirst = 16;
    putBytes(card, 0, ntfsBoot(1, kFirst, kSectors - 1));
    at = (kFirst + 2) * 512;
#endif
    std::memcpy(card.bytes.data() + at, data, std::min(size, card.bytes.size() - at));
#if defined(VANTOR_FUZZ_NTFS)
    // Records whose heads are whole, so that the input is read.
    putBytes(card, kFirst,
             record(kThere, 1, dataAttribute(kRecords * kRecord, {0x11, 2 * kRecords, kFirst, 0})));
    for (std::size_t i = 1; i < kRecords; ++i) {
        const std::size_t head = kFirst * 512 + i * kRecord;
        put(card.bytes, head, "FILE");
        put(card.bytes, head + 4, 48, 2);
        put(card.bytes, head + 6, 3, 2);
        put(card.bytes, head + 510, card.bytes[head + 48] | card.bytes[head + 49] << 8, 2);
        put(card.bytes, head + 1022, card.bytes[head + 48] | card.bytes[head + 49] << 8, 2);
    }
#endif
    std::vector<FoundStart> found;
    for (std::size_t i = 0; i + 1 < std::min<std::size_t>(size, 32); i += 2) {
        found.push_back({data[i] * 8U, data[i + 1] % 2 ? QStringLiteral("jpg") : QStringLiteral("mp4")});
    }
    const CardTable table = tableOf(card, found);
    hold(card.sectorsRead < 200 * kSectors + 100'000);
    for (const CardFile& file : table.files) {
        hold(cleanName(file.name) == file.name && file.bytes <= kSectors * 512);
        std::uint64_t sectors = 0;
        for (const SectorRun& run : file.runs) {
            hold(run.first < run.end && run.end <= kSectors);
            sectors += run.end - run.first;
        }
        for (std::size_t i = 0; i < file.holes.size(); ++i) {
            hold(file.holes[i].first < file.holes[i].end && file.holes[i].end <= kSectors + 2048);
            hold(i == 0 || file.holes[i - 1].end <= file.holes[i].first);
        }
        hold(sectors <= kSectors && file.unitSectors <= 2048 && file.clusterSectors != 0);
        hold(file.contents.isEmpty() || (static_cast<std::uint64_t>(file.contents.size()) == sectors * 512 &&
                                         file.bytes <= sectors * 512));
    }
    for (std::size_t i = 0; i < table.inUse.size(); ++i) {
        hold(table.inUse[i].first < table.inUse[i].end && table.inUse[i].end <= kSectors);
        hold(i == 0 || table.inUse[i - 1].end < table.inUse[i].first);
    }
    return 0;
}
