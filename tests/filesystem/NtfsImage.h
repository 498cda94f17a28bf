// Boot sectors and file records of NTFS, written down as its public descriptions have them.
#pragma once

#include "tests/filesystem/CardImage.h"

namespace vantor {

inline constexpr std::size_t kRecord = 1024;

inline Bytes attribute(std::uint32_t type, const Bytes& value) {
    Bytes made(24 + (value.size() + 7) / 8 * 8);
    put(made, 0, type, 4);
    put(made, 4, made.size(), 4);
    put(made, 16, value.size(), 4);
    put(made, 20, 24, 2);
    std::copy(value.begin(), value.end(), made.begin() + 24);
    return made;
}

inline Bytes nameAttribute(const QString& name, std::uint64_t parent, std::uint16_t use) {
    Bytes value(66 + 2 * static_cast<std::size_t>(name.size()));
    put(value, 0, parent, 6);
    put(value, 6, use, 2);
    value[64] = static_cast<std::uint8_t>(name.size());
    value[65] = 1;
    for (qsizetype i = 0; i < name.size(); ++i) {
        put(value, 66 + 2 * static_cast<std::size_t>(i), name[i].unicode(), 2);
    }
    return attribute(0x30, value);
}

inline Bytes timesAttribute() {
    Bytes value(48);
    put(value, 0, (11'644'473'600ULL + 1'700'000'000) * 10'000'000, 8);
    put(value, 8, (11'644'473'600ULL + 1'700'000'100) * 10'000'000, 8);
    return attribute(0x10, value);
}

inline Bytes dataAttribute(std::uint64_t bytes, const Bytes& runs, std::uint64_t firstCluster = 0) {
    Bytes made(64 + (runs.size() + 8) / 8 * 8);
    put(made, 0, 0x80, 4);
    put(made, 4, made.size(), 4);
    made[8] = 1;
    put(made, 16, firstCluster, 8);
    put(made, 32, 64, 2);
    put(made, 48, bytes, 8);
    put(made, 56, bytes, 8);
    std::copy(runs.begin(), runs.end(), made.begin() + 64);
    return made;
}

enum Flags { kGone = 0, kThere = 1, kGoneFolder = 2, kThereFolder = 3 };

inline Bytes record(Flags flags, std::uint16_t use, const Bytes& attributes, std::uint64_t base = 0) {
    Bytes made(kRecord);
    put(made, 0, "FILE");
    put(made, 4, 48, 2);
    put(made, 6, 3, 2);
    put(made, 16, use, 2);
    put(made, 20, 56, 2);
    put(made, 22, flags, 2);
    put(made, 32, base, 6);
    put(made, 38, base != 0 ? 1 : 0, 2);
    std::copy(attributes.begin(), attributes.end(), made.begin() + 56);
    put(made, 56 + attributes.size(), 0xFFFFFFFF, 4);
    // The marks, and what they stand for.
    put(made, 48, 0x1234, 2);
    for (const std::size_t sector : {1, 2}) {
        std::copy_n(made.begin() + static_cast<std::ptrdiff_t>(sector * 512 - 2), 2,
                    made.begin() + static_cast<std::ptrdiff_t>(48 + 2 * sector));
        put(made, sector * 512 - 2, 0x1234, 2);
    }
    return made;
}

// Of records of 1 KiB, the first of which begins in that cluster.
inline Bytes ntfsBoot(std::uint8_t clusterSectors, std::uint64_t records, std::uint64_t sectors) {
    Bytes boot(512);
    put(boot, 0, "\xEB\x52\x90NTFS    ");
    put(boot, 11, 512, 2);
    boot[13] = clusterSectors;
    put(boot, 40, sectors, 8);
    put(boot, 48, records, 8);
    boot[64] = 0xF6;
    put(boot, 510, 0xAA55, 2);
    return boot;
}

}  // namespace vantor
