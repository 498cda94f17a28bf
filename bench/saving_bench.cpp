// Recovering and saving by the command against dd over the same cached card: vantor-saving-bench [ROUNDS].
//
// A card of 2 GiB holds 600 photos of 1 to 6 MB with random bytes between them; the second card has the files
// of the sample card beside them, and is searched for files of all types. Card and destination lie in memory
// (/dev/shm). Where recoverjpeg is installed the card of photos is given to it as well. Every figure is a
// ratio of the medians of this run; processor time is the truer one on a machine that has other work.
#include <sys/resource.h>

#include <QFile>
#include <QGuiApplication>
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
#include "samples/Card.h"

namespace {

using vantor::bench::median;
using Clock = std::chrono::steady_clock;

constexpr qint64 kCardBytes = qint64{2} << 30;
constexpr int kPhotos = 600;
constexpr std::size_t kOtherFiles = 65;
constexpr qint64 kSector = 512;
constexpr int kSavedMegabytes = 1200;  // of photos, about

class Random {
  public:
    explicit Random(std::uint64_t seed) : m_random(seed) {}

    QByteArray bytes(qint64 count) {
        QByteArray text(count, Qt::Uninitialized);
        for (qint64 i = 0; i + 8 <= count; i += 8) {
            const std::uint64_t word = m_random();
            std::memcpy(text.data() + i, &word, sizeof word);
        }
        return text;
    }
    qint64 between(qint64 least, qint64 most) {
        return least + static_cast<qint64>(m_random() % static_cast<std::uint64_t>(most - least));
    }

  private:
    std::mt19937_64 m_random;
};

// A table of one code, of class and number `what`.
QByteArray oneCode(char what) {
    return QByteArray::fromHex("ffc40014") + what + '\1' + QByteArray(16, '\0');
}

// The markers of a photo around entropy-coded bytes as they come: random, each 0xFF stuffed.
QByteArray photo(Random& random, qint64 bytes) {
    static const QByteArray kHead =
        QByteArray::fromHex("ffd8ffe000104a46494600010100000100010000ffdb004300") + QByteArray(64, 1) +
        QByteArray::fromHex("ffc0000b080bb80fa001011100") + oneCode(0) + oneCode(0x10) +
        QByteArray::fromHex("ffda0008010100003f00");
    QByteArray coded = random.bytes(bytes - kHead.size() - 2);
    for (qsizetype at = coded.indexOf('\xFF'); at >= 0 && at + 1 < coded.size();
         at = coded.indexOf('\xFF', at + 1)) {
        coded[at + 1] = '\0';
    }
    coded.back() = '\0';
    return kHead + coded + QByteArray("\xFF\xD9", 2);
}

bool writeAll(QFile& card, const QByteArray& bytes) {
    return card.write(bytes) == bytes.size();
}

bool writePadded(QFile& card, const QByteArray& file) {
    return writeAll(card, file) &&
           writeAll(card, QByteArray((kSector - file.size() % kSector) % kSector, '\0'));
}

// Between 1 and 6 MB, 2 MB in the mean.
qint64 photoBytes(Random& random) {
    const double part = static_cast<double>(random.between(0, 1000)) / 1000;
    return 1'000'000 + static_cast<qint64>(5'000'000 * part * part * part * part);
}

// Files of the sample card that are no photos of its camera, spread over all of them.
std::vector<QByteArray> otherFiles() {
    std::vector<vantor::samples::CardFile> files = vantor::samples::cardContents();
    std::erase_if(files, [](const auto& file) { return file.folder.startsWith("DCIM"); });
    std::vector<QByteArray> others;
    for (std::size_t i = 0; i < kOtherFiles; ++i) {
        others.push_back(files.at(i * files.size() / kOtherFiles).content());
    }
    return others;
}

// Random bytes take up what the files leave, in equal parts between the photos.
bool writeCard(const QString& path, const std::vector<QByteArray>& others) {
    QFile card(path);
    if (!card.open(QIODevice::WriteOnly)) {
        return false;
    }
    Random random(11);
    for (std::size_t i = 0; i < kPhotos; ++i) {
        if (!writePadded(card, photo(random, photoBytes(random)))) {
            return false;
        }
        if (i % 8 == 0 && i / 8 < others.size() && !writePadded(card, others[i / 8])) {
            return false;
        }
        const qint64 even = kCardBytes / kPhotos * static_cast<qint64>(i + 1);
        if (!writeAll(card, random.bytes(std::max<qint64>(0, (even - card.pos()) / kSector * kSector)))) {
            return false;
        }
    }
    return writeAll(card, random.bytes(std::max<qint64>(0, kCardBytes - card.pos()))) && card.flush();
}

double seconds(const std::function<void()>& work) {
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

void runOrEnd(const QByteArray& command) {
    if (std::system(command.constData()) != 0) {
        std::fprintf(stderr, "failed: %s\n", command.constData());
        std::exit(1);
    }
}

// Of all processes that have ended.
double processorSeconds() {
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto secondsOf = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return secondsOf(used.ru_utime) + secondsOf(used.ru_stime);
}

// Of a command in each round.
struct Times {
    std::vector<double> wall, processor;  // seconds

    void add(const QByteArray& command, const QByteArray& untimedBefore, const QByteArray& untimedAfter) {
        runOrEnd(untimedBefore);
        const double before = processorSeconds();
        wall.push_back(seconds([&] { runOrEnd(command); }));
        processor.push_back(processorSeconds() - before);
        runOrEnd(untimedAfter);
    }
};

void print(const char* what, const Times& times, const Times& unit) {
    const double by = median(unit.wall);
    std::printf("  %-20s %5.2f times dd's reading (%.2f to %.2f), processor time %.2f s\n", what,
                median(times.wall) / by, *std::ranges::min_element(times.wall) / by,
                *std::ranges::max_element(times.wall) / by, median(times.processor));
}

}  // namespace

int main(int argc, char** argv) {
    // The other files are painted.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    QTemporaryDir memory(QStringLiteral("/dev/shm/vantor-saving-bench-XXXXXX"));
    const struct {
        const char* name;
        const char* arguments;
        std::vector<QByteArray> others;
    } cards[] = {{"600 photos, photo mode", "--mode photo", {}},
                 {"600 photos and 65 other files, all types", "--mode rawfile", otherFiles()}};
    for (const auto& card : cards) {
        const QString image = memory.filePath(QStringLiteral("card.img"));
        if (!memory.isValid() || !writeCard(image, card.others)) {
            std::fprintf(stderr, "The card could not be made in /dev/shm.\n");
            return 1;
        }
        const QByteArray dd = "dd bs=1M status=none if=" + QFile::encodeName(image);
        const QByteArray out = QFile::encodeName(memory.filePath(QStringLiteral("out")));
        const QByteArray remove = "rm -rf " + out;
        // What finds nothing is done soon.
        const auto removePhotos = [&](const QByteArray& folder) {
            return "test $(ls " + out + folder + " | grep -ci 'jpg$') -ge " + QByteArray::number(kPhotos) +
                   " && " + remove;
        };
        const QByteArray touch =
            "dd bs=1M status=none if=/dev/zero count=" + QByteArray::number(kCardBytes >> 20) + " of=" + out +
            " && " + remove;
        const QByteArray search = QByteArray(VANTOR_CLI " ") + card.arguments;
        const QByteArray log = QFile::encodeName(memory.filePath(QStringLiteral("log")));
        const bool withPeer = card.others.empty() && std::system("command -v recoverjpeg > /dev/null") == 0;
        Times reading, writing, searching, saving, peer;
        for (int round = 0; round < rounds; ++round) {
            reading.add(dd + " of=/dev/null", touch, "true");
            writing.add(dd + " of=" + out + " count=" + QByteArray::number(kSavedMegabytes), touch, remove);
            searching.add(search + ' ' + QFile::encodeName(image) + " > /dev/null", touch, "true");
            saving.add(search + " --save " + out + ' ' + QFile::encodeName(image) + " > " + log, touch,
                       removePhotos("/JPG"));
            if (withPeer) {
                const QByteArray folder = "mkdir " + out;
                peer.add("recoverjpeg -q -o " + out + ' ' + QFile::encodeName(image) + " > /dev/null",
                         touch + " && " + folder, removePhotos(""));
            }
        }
        std::printf("%s: dd %.2f s, processor time %.2f s\n", card.name, median(reading.wall),
                    median(reading.processor));
        print((QByteArray::number(kSavedMegabytes) + " MiB by dd").constData(), writing, reading);
        print("searched", searching, reading);
        print("found and saved", saving, reading);
        if (withPeer) {
            print("recoverjpeg", peer, reading);
            std::printf("  found and saved in %.2f of recoverjpeg's time, %.2f of its processor time\n",
                        median(saving.wall) / median(peer.wall),
                        median(saving.processor) / median(peer.processor));
        }
        std::fflush(stdout);
        runOrEnd("tail -n 3 " + log);
    }
    return 0;
}
