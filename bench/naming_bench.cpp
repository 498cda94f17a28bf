// Naming of found items, which a dense card asks for thousands of times a second.
#include <benchmark/benchmark.h>

#include "cli/CliSession.h"

namespace {

void BM_NameByResultRow(benchmark::State& state) {
    vantor::CliSession session({}, 0);
    for (int type = 0; type < 500; ++type) {
        const QString extension = QStringLiteral("T%1").arg(type);
        session.createSignatureListTableRecord(extension, 0, QString(), QString(), extension);
    }
    vantor::Recovery_MODE = vantor::kRawFileMode;
    const QString last = QStringLiteral("T499");
    for (auto _ : state) {
        benchmark::DoNotOptimize(session.Generate_File_Name(1, last, last));
    }
}
BENCHMARK(BM_NameByResultRow);

void BM_Uid(benchmark::State& state) {
    const vantor::CliSession session({}, 0);
    const QString extension = QStringLiteral("JPG");
    std::uint64_t number = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(session.Generate_File_UID_Num(number++, false, extension));
    }
}
BENCHMARK(BM_Uid);

}  // namespace
