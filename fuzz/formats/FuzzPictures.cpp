// Fuzzes the walkers of pictures.
#include "FuzzWalkers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return vantor::fuzz::walkWith(
        {"JPG", "PNG", "GIF",  "BMP", "TIF", "PSD", "JP2",  "JXL", "ICO", "ICNS", "PCX", "TGA", "DDS",
         "XCF", "RAF", "MRW",  "CRW", "X3F", "PPM", "PFM",  "SGI", "HDR", "QOI",  "XPM", "EXR", "DPX",
         "CIN", "KTX", "ASTC", "PSP", "RAS", "PAM", "FITS", "NII", "MRC", "DCM",  "NTF"},
        data, size);
}
