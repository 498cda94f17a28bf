// What a card's directories cost: vantor-directory-bench [GB] [ROUNDS].
//
// The listing of a card of so many gigabytes (64), with and without a look at its directories, alternately in
// one run; the card is made up as it is read and comes as fast as memory gives it, so what it costs more is
// also told as a share of the time that a card takes to be read at 90 MB/s. Then directories of 100,000 and
// of a million files, there, deleted and left by a quick format, each read by the helper as a search would
// have it. Times are of processors, the helper's included.
#include <sys/resource.h>

#include <QCoreApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <random>
#include <vector>

#include "bench/Bench.h"
#include "cli/CliSession.h"
#include "decode/CardHelper.h"
#include "media/WindowedReader.h"
#include "tests/filesystem/CardImage.h"

namespace {

using namespace vantor;

constexpr std::uint64_t kPhotoSectors = 8192;  // from one photo to the next
constexpr std::uint64_t kPatternSectors = 16 * kPhotoSectors;
constexpr double kCardBytesPerSecond = 90e6;

double secondsOf(int who) {
    rusage used{};
    getrusage(who, &used);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

// A helper counts when it has ended.
double processorSeconds(const std::function<void()>& work) {
    const double before = secondsOf(RUSAGE_SELF) + secondsOf(RUSAGE_CHILDREN);
    work();
    return secondsOf(RUSAGE_SELF) + secondsOf(RUSAGE_CHILDREN) - before;
}

// The bytes given, and photos with noise between them behind.
class MadeUpCard final : public BlockSource {
  public:
    MadeUpCard(const Bytes& beginning, const Bytes& pattern, std::uint64_t sectors)
        : m_beginning(beginning), m_pattern(pattern), m_sectors(sectors) {}

    std::int64_t readAt(std::uint64_t sector, std::span<std::uint8_t> into) override {
        if (sector >= m_sectors) {
            return -1;
        }
        const std::uint64_t begun = m_beginning.size() / kSectorBytes;
        const bool isBeginning = sector < begun;
        const Bytes& from = isBeginning ? m_beginning : m_pattern;
        const std::uint64_t at = isBeginning ? sector : (sector - begun) % kPatternSectors;
        const std::uint64_t have =
            std::min(from.size() - at * kSectorBytes, (m_sectors - sector) * kSectorBytes);
        const std::size_t count = std::min<std::uint64_t>(into.size(), have);
        std::memcpy(into.data(), from.data() + at * kSectorBytes, count);
        // The last window of a stretch has its rest from the next one.
        const std::uint64_t next = sector + count / kSectorBytes;
        return count == into.size() || next >= m_sectors
                   ? static_cast<std::int64_t>(count)
                   : static_cast<std::int64_t>(count) +
                         std::max<std::int64_t>(0, readAt(next, into.subspan(count)));
    }
    bool usable() override { return true; }
    std::uint64_t sectors() const override { return m_sectors; }

  private:
    const Bytes& m_beginning;
    const Bytes& m_pattern;
    const std::uint64_t m_sectors;
};

Bytes photosAndNoise() {
    std::mt19937_64 random(5);
    Bytes bytes(kPatternSectors * kSectorBytes);
    for (std::size_t at = 0; at < bytes.size(); at += 8) {
        const std::uint64_t word = random();
        std::memcpy(bytes.data() + at, &word, sizeof word);
    }
    for (std::size_t at = 0; at < bytes.size(); at += kPhotoSectors * kSectorBytes) {
        std::memcpy(bytes.data() + at, "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1", 12);
    }
    return bytes;
}

QString nameOf(std::size_t file) {
    return QStringLiteral("Holiday %1.JPG").arg(file, 7, 10, QLatin1Char('0'));
}

// The entries of so many files, the clusters of which follow each other from `cluster` on.
Bytes fatEntries(std::size_t files, std::uint32_t cluster) {
    Bytes rows;
    for (std::size_t i = 0; i < files; ++i) {
        const QByteArray number = QByteArray::number(static_cast<qulonglong>(i)).rightJustified(7, '0');
        const Bytes one = longFatRows(nameOf(i), fatRow('H' + number.toStdString() + "JPG",
                                                        cluster + static_cast<std::uint32_t>(i), 20'000));
        rows.insert(rows.end(), one.begin(), one.end());
    }
    return rows;
}

Bytes exfatEntries(std::size_t files, std::uint32_t cluster) {
    Bytes rows;
    for (std::size_t i = 0; i < files; ++i) {
        const Bytes one = exfatSet({nameOf(i), cluster + static_cast<std::uint32_t>(i), 20'000});
        rows.insert(rows.end(), one.begin(), one.end());
    }
    return rows;
}

// The listing of a card, of which the first folder has ten thousand files.
void listCards(std::uint64_t gigabytes, int rounds) {
    constexpr std::size_t kFiles = 10'000;
    FatPlaces fat;
    fat.bits = 32;
    fat.clusterSectors = 64;
    const std::uint64_t sectors = gigabytes * 1'000'000'000 / kSectorBytes;
    fat.clusters = (sectors - 64 * 1024) / fat.clusterSectors;
    const Bytes rows = dotRows(3, 0) + fatEntries(kFiles, 1000);
    const std::size_t folderClusters = rows.size() / (fat.clusterSectors * kSectorBytes) + 1;
    MemoryCard beginning(fat.sectorOf(static_cast<std::uint32_t>(3 + folderClusters)));
    formatFat(beginning, fat);
    putBytes(beginning, fat.sectorOf(2), fatRow("DCIM       ", 3, 0, 0x10));
    putBytes(beginning, fat.sectorOf(3), rows);
    std::vector<std::uint32_t> chain(folderClusters);
    for (std::size_t i = 0; i < chain.size(); ++i) {
        chain[i] = static_cast<std::uint32_t>(3 + i);
    }
    chainFat(beginning, fat, chain);
    const Bytes pattern = photosAndNoise();
    for (const auto& [name, mode] : {std::pair{"photo", kPhotoMode}, std::pair{"raw file", kRawFileMode}}) {
        std::vector<double> without, with;
        std::size_t items = 0, told = 0;
        const auto list = [&, m = mode](bool askCard) {
            CliOptions options;
            options.mode = m;
            CliSession session(options, sectors);
            session.setAskCard(askCard);
            session.setMediumOpener([&](const QString&) {
                return std::make_unique<WindowedReader>(
                    std::make_unique<MadeUpCard>(beginning.bytes, pattern, sectors));
            });
            session.loadCatalogues(QStringLiteral(VANTOR_SOURCE_DIR "/resources"));
            if (m != kPhotoMode) {
                session.chooseAllTypes();
            }
            session.run();
            items = session.publishedCount();
            told = session.card() ? session.card()->table().files.size() : 0;
        };
        for (int round = 0; round < rounds; ++round) {
            without.push_back(processorSeconds([&] { list(false); }));
            with.push_back(processorSeconds([&] { list(true); }));
        }
        const double more = bench::median(with) - bench::median(without);
        const double reading = static_cast<double>(sectors * kSectorBytes) / kCardBytesPerSecond;
        std::printf(
            "%-9s %zu items, %zu files in directories: without them %.1f s, with them %.3f times that; "
            "%.2f %% of a reading at 90 MB/s\n",
            name, items, told, bench::median(without), bench::median(with) / bench::median(without),
            100 * more / reading);
        std::fflush(stdout);
    }
}

// As the search hands the card over: what it noted in passing, and nothing found.
void readDirectory(const char* what, MemoryCard& card, std::uint64_t sectors) {
    CardCollector collector;
    const double collecting = processorSeconds([&] { collector.look(0, card.bytes.data(), card.sectors()); });
    static const Bytes kEmpty(kPatternSectors * kSectorBytes);
    WindowedReader reader(std::make_unique<MadeUpCard>(card.bytes, kEmpty, sectors));
    std::size_t files = 0;
    bool answered = false;
    const double reading = processorSeconds([&] {
        const auto table = readCardInHelper(reader, sectors, collector.traces(), {});
        answered = table.has_value();
        files = table ? table->files.size() : 0;
    });
    rusage helper{};
    getrusage(RUSAGE_CHILDREN, &helper);
    std::printf(
        "  %-34s %s, %7zu files, %.2f s (and %.3f s to collect it); most memory of a helper so far %ld MB\n",
        what, answered ? "read" : "GIVEN UP", files, reading, collecting, helper.ru_maxrss / 1024);
    std::fflush(stdout);
}

void readFat(std::size_t files) {
    FatPlaces fat;
    fat.bits = 32;
    fat.clusterSectors = 64;
    const Bytes rows = dotRows(3, 0) + fatEntries(files, 200'000);
    const std::size_t folderClusters = rows.size() / (fat.clusterSectors * kSectorBytes) + 1;
    fat.clusters = 200'000 + files;
    MemoryCard card(fat.sectorOf(static_cast<std::uint32_t>(4 + folderClusters)));
    std::vector<std::uint32_t> chain(folderClusters);
    for (std::size_t i = 0; i < chain.size(); ++i) {
        chain[i] = static_cast<std::uint32_t>(3 + i);
    }
    formatFat(card, fat);
    putBytes(card, fat.sectorOf(2), fatRow("DCIM       ", 3, 0, 0x10));
    putBytes(card, fat.sectorOf(3), rows);
    chainFat(card, fat, chain);
    readDirectory("FAT32, there", card, fat.end());
    putBytes(card, fat.sectorOf(3), dotRows(3, 0) + deletedFat(fatEntries(files, 200'000)));
    readDirectory("FAT32, deleted", card, fat.end());
    putBytes(card, fat.sectorOf(3), rows);
    formatFat(card, fat);
    readDirectory("FAT32, quick format", card, fat.end());
}

void readExfat(std::size_t files) {
    ExfatPlaces exfat;
    exfat.clusterSectors = 64;
    const Bytes rows = exfatEntries(files, 200'000);
    const std::size_t folderClusters = rows.size() / (exfat.clusterSectors * kSectorBytes) + 1;
    exfat.clusters = 200'000 + files;
    MemoryCard card(exfat.sectorOf(static_cast<std::uint32_t>(11 + folderClusters)));
    const Bytes folder = exfatSet(
        {QStringLiteral("DCIM"), 10, folderClusters * exfat.clusterSectors * kSectorBytes, true, true});
    formatExfat(card, exfat);
    putBytes(card, exfat.sectorOf(5), folder);
    putBytes(card, exfat.sectorOf(10), rows);
    readDirectory("exFAT, there", card, exfat.end());
    formatExfat(card, exfat);
    readDirectory("exFAT, quick format", card, exfat.end());
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::uint64_t gigabytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 64;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 1;
    for (const std::size_t files : {std::size_t{100'000}, std::size_t{1'000'000}}) {
        std::printf("directories of %zu files\n", files);
        readFat(files);
        readExfat(files);
    }
    if (gigabytes > 0 && rounds > 0) {
        std::printf("a card of %llu GB, %d rounds, processor time\n",
                    static_cast<unsigned long long>(gigabytes), rounds);
        listCards(gigabytes, rounds);
    }
    return 0;
}
