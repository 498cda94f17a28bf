// Whole scans against dd over the same cached image, alternately in one run: vantor-scan-bench [GIB]
// [ROUNDS].
//
// The image holds a file header every few megabytes, three quarters random bytes and one quarter zeros, as a
// used card does. Every figure is a ratio of the medians of this run.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <random>
#include <vector>

#include "bench/Bench.h"
#include "cli/CliSession.h"
#include "media/RawDevice.h"

namespace {

using vantor::bench::median;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kMegabyte = 1024 * 1024;

bool writeImage(const QString& path, std::size_t megabytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    std::mt19937_64 random(7);
    std::vector<std::uint64_t> words(kMegabyte / 8);
    for (std::size_t mb = 0; mb < megabytes; ++mb) {
        if (mb % 4 == 3) {
            std::fill(words.begin(), words.end(), 0);
        } else {
            std::generate(words.begin(), words.end(), std::ref(random));
        }
        if (mb % 3 == 0) {
            static constexpr unsigned char kJfif[] = {0xFF, 0xD8, 0xFF, 0xE0, 0, 16,
                                                      'J',  'F',  'I',  'F',  0, 1};
            std::memcpy(words.data(), kJfif, sizeof kJfif);
        }
        if (file.write(reinterpret_cast<const char*>(words.data()), kMegabyte) !=
            static_cast<qint64>(kMegabyte)) {
            return false;
        }
    }
    return true;
}

// Runs the work in a child process, so that each has its own memory; seconds, and the child's peak memory in
// MiB.
struct Cost {
    double seconds = 0;
    double mebibytes = 0;
};

Cost inChild(const std::function<void()>& work) {
    int results[2];
    if (::pipe(results) != 0) {
        std::abort();
    }
    const pid_t child = ::fork();
    if (child == 0) {
        const auto begin = Clock::now();
        work();
        const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        [[maybe_unused]] const ssize_t n = ::write(results[1], &seconds, sizeof seconds);
        ::_exit(0);
    }
    Cost cost;
    [[maybe_unused]] const ssize_t n = ::read(results[0], &cost.seconds, sizeof cost.seconds);
    ::close(results[0]);
    ::close(results[1]);
    struct rusage usage {};
    ::wait4(child, nullptr, 0, &usage);
    cost.mebibytes = static_cast<double>(usage.ru_maxrss) / 1024;
    return cost;
}

void runDd(const QString& image) {
    const QByteArray command = "dd if=" + QFile::encodeName(image) + " of=/dev/null bs=1M status=none";
    if (std::system(command.constData()) != 0) {
        std::abort();
    }
}

enum class Passes { One, Both };

void scan(const QString& image, vantor::RecoveryMode mode, int madeUp = 0, Passes passes = Passes::One) {
    vantor::CliOptions options;
    options.mode = mode;
    options.thorough = passes == Passes::Both;
    options.medium = image;
    vantor::CliSession session(options, vantor::probeMedium(image)->sectors);
    session.setMediumOpener([&](const QString&) { return vantor::openMedium(image); });
    if (madeUp > 0) {
        session.RawFile_Array = vantor::bench::madeUpRecords(madeUp);
    } else {
        session.loadCatalogues(QStringLiteral(VANTOR_SOURCE_DIR "/resources"));
        if (passes == Passes::One) {
            session.Adv_RawFile_Array.clear();
        }
    }
    if (mode != vantor::kPhotoMode) {
        session.chooseAllTypes();
    }
    session.run();
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::size_t gibibytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 2;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 7;
    const QTemporaryDir folder;
    const QString image = folder.filePath(QStringLiteral("card.img"));
    if (gibibytes == 0 || rounds < 1 || !writeImage(image, gibibytes * 1024)) {
        std::fprintf(stderr, "The image of %zu GiB could not be made.\n", gibibytes);
        return 1;
    }
    const std::pair<const char*, std::function<void()>> contestants[] = {
        {"raw scan, shipped file catalogue", [&] { scan(image, vantor::kRawFileMode); }},
        {"photo scan without thumbnails", [&] { scan(image, vantor::kPhotoMode); }},
        {"raw scan, 10 signatures", [&] { scan(image, vantor::kRawFileMode, 10); }},
        {"raw scan, 100 signatures", [&] { scan(image, vantor::kRawFileMode, 100); }},
        {"raw scan, 1000 signatures", [&] { scan(image, vantor::kRawFileMode, 1000); }},
        {"raw scan, both passes", [&] { scan(image, vantor::kRawFileMode, 0, Passes::Both); }},
        {"photo scan, both passes", [&] { scan(image, vantor::kPhotoMode, 0, Passes::Both); }},
    };
    runDd(image);
    std::vector<double> dd;
    std::vector<std::vector<double>> times(std::size(contestants));
    std::vector<double> memory(std::size(contestants));
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < std::size(contestants); ++i) {
            dd.push_back(inChild([&] { runDd(image); }).seconds);
            const Cost cost = inChild(contestants[i].second);
            times[i].push_back(cost.seconds);
            memory[i] = std::max(memory[i], cost.mebibytes);
        }
    }
    std::printf("%zu GiB cached, %d rounds, dd bs=1M %.2f GB/s\n", gibibytes, rounds,
                static_cast<double>(gibibytes) * 1.073741824 / median(dd));
    for (std::size_t i = 0; i < std::size(contestants); ++i) {
        std::printf("%-36s %.2f of the dd rate, peak memory %.0f MiB\n", contestants[i].first,
                    median(dd) / median(times[i]), memory[i]);
    }
    std::printf("1000 signatures cost %.2f times as much as 10\n", median(times[4]) / median(times[2]));
    std::printf("Both passes cost %.2f times as much as the general one alone, %.2f times in photo mode\n",
                median(times[5]) / median(times[0]), median(times[6]) / median(times[1]));
    return 0;
}
