// Searches of a card that gives so many megabytes a second, against one plain reading of it, alternately in
// one run: vantor-card-bench [MIB] [ROUNDS].
//
// A copy is kept in memory (/dev/shm). Every figure is a ratio of the medians of this run. A machine with
// other work wakes readers late, which costs those most that read in small pieces; the processor time that a
// copy takes, beside that of dd for writing as much, is the truer figure there.
#include <sys/resource.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <mutex>
#include <random>
#include <thread>
#include <vector>

#include "bench/Bench.h"
#include "cli/CliSession.h"
#include "media/ImageFile.h"
#include "media/MediumCopy.h"
#include "media/WindowedReader.h"

namespace {

using namespace vantor;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kMegabyte = 1024 * 1024;
constexpr double kBytesPerSecond = 90e6;
constexpr std::size_t kReadSectors = 2048;  // of the plain reading: 1 MiB, as with dd

// A file header every third megabyte, a quarter of them zeros.
QByteArray cardBytes(std::size_t megabytes) {
    std::mt19937_64 random(7);
    QByteArray bytes(static_cast<qsizetype>(megabytes * kMegabyte), 0);
    for (std::size_t mb = 0; mb < megabytes; ++mb) {
        char* const at = bytes.data() + mb * kMegabyte;
        for (std::size_t word = 0; mb % 4 != 3 && word < kMegabyte / 8; ++word) {
            const std::uint64_t value = random();
            std::memcpy(at + word * 8, &value, sizeof value);
        }
        if (mb % 3 == 0) {
            std::memcpy(at, "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1", 12);
        }
    }
    return bytes;
}

// The bytes, at the card's speed for all who read it together.
class SlowCard : public BlockSource {
  public:
    struct Pace {
        std::mutex mutex;
        Clock::time_point free = Clock::now();
    };

    SlowCard(const QByteArray& bytes, std::shared_ptr<Pace> pace) : m_bytes(bytes), m_pace(std::move(pace)) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        const std::uint64_t all = static_cast<std::uint64_t>(m_bytes.size());
        const std::uint64_t from = sector * kSectorBytes;
        if (from >= all) {
            return -1;
        }
        const std::uint64_t got = std::min<std::uint64_t>(into.size(), all - from);
        Clock::time_point until;
        {
            const std::lock_guard lock(m_pace->mutex);
            const auto taken = std::chrono::duration<double>(static_cast<double>(got) / kBytesPerSecond);
            m_pace->free =
                std::max(m_pace->free, Clock::now()) + std::chrono::duration_cast<Clock::duration>(taken);
            until = m_pace->free;
        }
        std::memcpy(into.data(), m_bytes.constData() + from, got);
        std::this_thread::sleep_until(until);
        return static_cast<std::int64_t>(got);
    }
    bool usable() override { return true; }
    std::uint64_t sectors() const override {
        return static_cast<std::uint64_t>(m_bytes.size()) / kSectorBytes;
    }

  private:
    const QByteArray& m_bytes;
    const std::shared_ptr<Pace> m_pace;
};

double processorSeconds() {
    double all = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage used{};
        getrusage(who, &used);
        for (const timeval& time : {used.ru_utime, used.ru_stime}) {
            all += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
        }
    }
    return all;
}

struct Times {
    std::vector<double> wall, processor;  // seconds

    void add(const std::function<void()>& work) {
        const auto begin = Clock::now();
        const double before = processorSeconds();
        work();
        processor.push_back(processorSeconds() - before);
        wall.push_back(std::chrono::duration<double>(Clock::now() - begin).count());
    }
};

void search(RecoveryMode mode, std::uint64_t sectors, const MediumOpener& open) {
    CliOptions options;
    options.mode = mode;
    CliSession session(options, sectors);
    session.setMediumOpener(open);
    session.loadCatalogues(QStringLiteral(VANTOR_SOURCE_DIR "/resources"));
    if (mode != kPhotoMode) {
        session.chooseAllTypes();
    }
    session.run();
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::size_t megabytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 512;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 3;
    if (megabytes == 0 || rounds < 1) {
        std::fprintf(stderr, "Usage: vantor-card-bench [MIB] [ROUNDS]\n");
        return 1;
    }
    const QByteArray bytes = cardBytes(megabytes);
    const std::uint64_t sectors = static_cast<std::uint64_t>(bytes.size()) / kSectorBytes;
    // By a thread of its own, as every device is read.
    const auto card = [&](std::shared_ptr<SlowCard::Pace> pace) {
        return AbandonableSource::start(
            [&bytes, pace = std::move(pace)] { return std::make_unique<SlowCard>(bytes, pace); }, {});
    };
    const auto plain = [&] {
        const auto source = std::make_unique<SlowCard>(bytes, std::make_shared<SlowCard::Pace>());
        std::vector<std::uint8_t> buffer(kReadSectors * kSectorBytes);
        for (std::uint64_t at = 0; at < sectors; at += kReadSectors) {
            source->readAt(at, buffer);
        }
    };
    const auto listed = [&](RecoveryMode mode) {
        const auto pace = std::make_shared<SlowCard::Pace>();
        search(mode, sectors, [&](const QString&) { return std::make_unique<WindowedReader>(card(pace)); });
    };
    const auto copied = [&](RecoveryMode mode) {
        const QTemporaryDir folder(QStringLiteral("/dev/shm/vantor-card-bench-XXXXXX"));
        auto file = CopyFile::open(folder.filePath(QStringLiteral("card.img")), sectors, nullptr);
        if (!file) {
            std::abort();
        }
        const auto copy = MediumCopy::make(
            std::move(file), [&](const StopRequest&) { return card(std::make_shared<SlowCard::Pace>()); });
        copy->copy(copyGoals({0, sectors}, sectors));
        search(mode, sectors, [&](const QString&) { return copy->openReader(); });
    };
    const QTemporaryDir memory(QStringLiteral("/dev/shm/vantor-card-bench-XXXXXX"));
    const QByteArray target = QFile::encodeName(memory.filePath(QStringLiteral("zeros")));
    const QByteArray dd = "dd bs=256K status=none if=/dev/zero of=" + target +
                          " count=" + QByteArray::number(static_cast<qulonglong>(4 * megabytes)) + " && rm " +
                          target;
    const auto write = [&] {
        if (std::system(dd.constData()) != 0) {
            std::abort();
        }
    };
    const std::pair<const char*, RecoveryMode> modes[] = {{"photo", kPhotoMode}, {"raw file", kRawFileMode}};
    std::printf("%zu MiB at %.0f MB/s, %d rounds\n", megabytes, kBytesPerSecond / 1e6, rounds);
    for (const auto& [name, mode] : modes) {
        Times once, both, kept, written;
        for (int round = 0; round < rounds; ++round) {
            once.add(plain);
            both.add([&, m = mode] { listed(m); });
            kept.add([&, m = mode] { copied(m); });
            written.add(write);
        }
        using bench::median;
        std::printf("%-9s both passes %.3f of one reading; with a copy kept %.3f of the time without\n", name,
                    median(both.wall) / median(once.wall), median(kept.wall) / median(both.wall));
        std::printf(
            "          processor time: %.2f s, with a copy %.2f s more; dd writes as much in %.2f s\n",
            median(both.processor), median(kept.processor) - median(both.processor),
            median(written.processor));
        std::fflush(stdout);
    }
    return 0;
}
