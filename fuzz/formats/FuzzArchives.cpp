// Fuzzes the walkers of archives, databases and programs.
#include "FuzzWalkers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return vantor::fuzz::walkWith(
        {"ZIP", "GZ",    "BZ2",    "XZ",    "RAR", "7Z",   "TAR",    "AR",   "CPIO", "CAB",
         "ARJ", "LZH",   "SQLITE", "PST",   "MDB", "EXE",  "ELF",    "LZ4",  "ZST",  "LZ",
         "LZO", "RPM",   "PAR2",   "ISO",   "DMG", "WIM",  "SIMG",   "E01",  "CSO",  "VDI",
         "VHD", "MACHO", "WASM",   "CLASS", "MO",  "PCAP", "PCAPNG", "GRIB", "KDBX", "UNITY3D"},
        data, size);
}
