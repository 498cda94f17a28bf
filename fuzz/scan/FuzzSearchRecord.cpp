// Any bytes as the file of a kept search, past its checksum: what is read comes back as it was.
#include <cstdint>
#include <cstdlib>

#include "scan/SearchRecord.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    vantor::recordOf(bytes);
    const auto record = vantor::uncheckedRecordOf(bytes);
    if (!record) {
        return 0;
    }
    const auto again = vantor::recordOf(vantor::recordBytes(*record));
    if (!again || again->read != record->read || again->refused != record->refused ||
        again->samples != record->samples || again->notes != record->notes ||
        again->worthALook.count() != record->worthALook.count()) {
        std::abort();
    }
    return 0;
}
