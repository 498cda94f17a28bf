// The header match alone, per sector, by number of signatures.
#include <benchmark/benchmark.h>

#include <QStringList>
#include <cstring>
#include <random>
#include <vector>

#include "bench/Bench.h"
#include "catalogue/CatalogueFile.h"
#include "media/SectorReader.h"
#include "scan/HeaderMatcher.h"

namespace {

constexpr std::size_t kSectors = 4096;

std::vector<std::uint8_t> randomSectors() {
    std::mt19937_64 random(1);
    std::vector<std::uint8_t> bytes(kSectors * vantor::kSectorBytes);
    for (std::size_t i = 0; i < bytes.size(); i += 8) {
        const std::uint64_t word = random();
        std::memcpy(bytes.data() + i, &word, 8);
    }
    return bytes;
}

void match(benchmark::State& state, const QStringList& records) {
    const vantor::HeaderMatcher matcher(records);
    const auto sectors = randomSectors();
    std::size_t at = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(matcher.firstMatch(sectors.data() + at));
        at = (at + vantor::kSectorBytes) % sectors.size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * vantor::kSectorBytes));
}

void BM_MatchBySignatures(benchmark::State& state) {
    match(state, vantor::bench::madeUpRecords(static_cast<int>(state.range(0))));
}
BENCHMARK(BM_MatchBySignatures)->Arg(10)->Arg(100)->Arg(1000);

void BM_MatchShippedFileCatalogue(benchmark::State& state) {
    QStringList records;
    vantor::appendCatalogueFile(QStringLiteral(VANTOR_SOURCE_DIR "/resources/ZelRaw.dll"), records);
    match(state, records);
}
BENCHMARK(BM_MatchShippedFileCatalogue);

void BM_CompileShippedFileCatalogue(benchmark::State& state) {
    QStringList records;
    vantor::appendCatalogueFile(QStringLiteral(VANTOR_SOURCE_DIR "/resources/ZelRaw.dll"), records);
    for (auto _ : state) {
        benchmark::DoNotOptimize(vantor::HeaderMatcher(records));
    }
}
BENCHMARK(BM_CompileShippedFileCatalogue);

}  // namespace
