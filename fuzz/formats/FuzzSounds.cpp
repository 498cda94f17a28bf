// Fuzzes the walkers of sounds.
#include "FuzzWalkers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return vantor::fuzz::walkWith({"MP3", "AAC", "AC3", "AMR", "FLAC", "OGG", "AU", "MID", "APE", "MPC",
                                   "CAF", "VOC", "TTA", "WV", "XM", "SPC", "DTS", "DSF"},
                                  data, size);
}
