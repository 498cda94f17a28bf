// Writes what stands behind the boot sector of small cards, as the harnesses take it, into the folder named.
#include <cstdio>
#include <string>

#include "tests/filesystem/NtfsImage.h"

namespace {

using namespace vantor;

void write(const std::string& folder, const char* name, const MemoryCard& card, std::size_t from) {
    if (FILE* file = std::fopen((folder + "/" + name).c_str(), "wb")) {
        std::fwrite(card.bytes.data() + from * 512, 1, std::min<std::size_t>(64, card.sectors() - from) * 512,
                    file);
        std::fclose(file);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        return 1;
    }
    for (const unsigned bits : {16U, 32U}) {
        FatPlaces fat;
        fat.bits = bits;
        fat.clusterSectors = 1;
        fat.clusters = bits == 32 ? 1500 : 1900;
        MemoryCard card(2048);
        formatFat(card, fat);
        chainFat(card, fat, {3});
        chainFat(card, fat, {4, 5});
        const Bytes row = fatRow("GRE~1   JPE", 6, 600);
        putBytes(card, bits == 32 ? fat.sectorOf(2) : fat.root(), fatRow("DCIM       ", 3, 0, 0x10));
        putBytes(card, fat.sectorOf(3),
                 dotRows(3, 0) + fatRow("IMG_0001JPG", 4, 1000) +
                     deletedFat(longFatRows("Große Fahrt.jpeg", row)));
        write(argv[1], bits == 32 ? "fat32" : "fat16", card, fat.table());
        write(argv[1], bits == 32 ? "whole32" : "whole16", card, 0);
    }
    ExfatPlaces exfat;
    exfat.clusterSectors = 1;
    exfat.clusters = 1900;
    MemoryCard card(2048);
    formatExfat(card, exfat);
    putBytes(card, exfat.sectorOf(5),
             exfatSet({"DCIM", 6, 512, true, true}) + exfatSet({"IMG_0001.JPG", 8, 900, false, false, true}));
    putBytes(card, exfat.sectorOf(6), exfatSet({"IMG_0002.JPG", 12, 900}));
    chainExfat(card, exfat, {8, 10});
    write(argv[1], "exfat", card, exfat.table());
    write(argv[1], "wholeExfat", card, 0);
    MemoryCard ntfs(2048);
    putBytes(ntfs, 62, record(kThereFolder, 1, nameAttribute("DCIM", 5, 5)));
    putBytes(
        ntfs, 64,
        record(kThere, 1,
               nameAttribute("a.jpg", 23, 1) + timesAttribute() + dataAttribute(900, {0x11, 2, 100, 0})));
    putBytes(ntfs, 66, record(kGone, 1, nameAttribute("b.txt", 23, 1) + attribute(0x80, Bytes(500, 'b'))));
    Bytes packed = dataAttribute(4000, {0x11, 1, 120, 0x01, 7, 0x11, 8, 10, 0});
    put(packed, 12, 1, 2);
    put(packed, 34, 3, 2);
    putBytes(ntfs, 68, record(kThere, 1, nameAttribute("c.txt", 23, 1) + packed));
    write(argv[1], "ntfs", ntfs, 18);
    return 0;
}
