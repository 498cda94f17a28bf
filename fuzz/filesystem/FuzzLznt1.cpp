// Any bytes as a packed unit: the first two say how much room there is.
#include <vector>

#include "filesystem/Lznt1.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    std::vector<std::uint8_t> into(data[0] | data[1] << 8);
    const std::vector<std::uint8_t> packed(data + 2, data + size);
    vantor::unpackLznt1(packed, into);
    return 0;
}
