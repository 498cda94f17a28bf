// Fuzzes the walkers of documents.
#include "FuzzWalkers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return vantor::fuzz::walkWith(
        {"PDF", "DOC", "MOBI",    "CHM", "DJVU", "LNK", "PS",  "RTF",   "XML", "HTML", "VCF",  "ICS",  "TXT",
         "BDF", "FFT", "TORRENT", "CER", "WK1",  "TTF", "PFB", "BLEND", "GDS", "LAS",  "WOFF", "HDF5", "DWG"},
        data, size);
}
