// Any catalogue text over any sector: the compiled match must agree with the plain one. The first 512 bytes
// are the sector, the rest is the catalogue.
#include <cstdlib>
#include <cstring>

#include "catalogue/CatalogueFile.h"
#include "scan/HeaderMatcher.h"
#include "tests/scan/PlainScan.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vantor::ScriptedMedium::Sector sector{};
    const std::size_t head = std::min(size, sector.size());
    std::memcpy(sector.data(), data, head);
    QStringList records;
    vantor::appendCatalogueText(
        {reinterpret_cast<const char*>(data + head), static_cast<qsizetype>(size - head)}, records);
    const auto expected = vantor::plain::firstMatch(records, sector);
    const auto got = vantor::HeaderMatcher(records).firstMatch(sector.data());
    if (got.has_value() != expected.has_value() || (got && *got != *expected)) {
        std::abort();
    }
    return 0;
}
