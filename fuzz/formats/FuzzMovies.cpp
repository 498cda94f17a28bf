// Fuzzes the walkers of movies and picture containers.
#include "FuzzWalkers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return vantor::fuzz::walkWith({"MP4", "AVI", "MKV", "WMV", "FLV", "SWF", "MXF", "RM", "TS", "MPG", "M2V",
                                   "IVF", "Y4M", "DV", "GXF", "SMK", "AMV"},
                                  data, size);
}
