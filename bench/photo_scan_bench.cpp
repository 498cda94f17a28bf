// What the thumbnails cost a photo scan: whole scans of one cached card of twelve-megapixel photos, with and
// without them, alternately in one run: vantor-photo-scan-bench [MIB] [ROUNDS] [MB/S].
//
// With a speed, the card gives its bytes no faster than that, as a real one does.
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <vector>

#include "bench/Bench.h"
#include "bench/MadeUpPhoto.h"
#include "cli/CliSession.h"
#include "decode/DecodePool.h"
#include "decode/ThumbnailQueue.h"
#include "media/RawDevice.h"

namespace {

using namespace vantor;
using bench::median;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kMegabyte = 1024 * 1024;

// Photos one behind the other, each from a sector of its own; how many.
int writeCard(const QString& path, std::size_t mebibytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return 0;
    }
    QByteArray photo = madeUpPhoto(4000, 3000);
    photo.append((512 - photo.size() % 512) % 512, '\0');
    int photos = 0;
    while (file.pos() < static_cast<qint64>(mebibytes * kMegabyte) && file.write(photo) == photo.size()) {
        ++photos;
    }
    return photos;
}

// Hands photos to the thumbnail queue as the window does.
class PhotoSession : public CliSession {
  public:
    PhotoSession(const CliOptions& options, std::uint64_t sectors, DecodePool* pool)
        : CliSession(options, sectors) {
        if (pool) {
            m_queue = std::make_unique<ThumbnailQueue>(
                [pool](const QByteArray& bytes, const QString& type) { return pool->thumbnail(bytes, type); },
                ThumbnailQueueOptions{.workers = pool->helpers(), .maxItems = 16});
        }
    }
    // Until the last thumbnail is there; how many there are.
    int scan() {
        run();
        if (m_queue) {
            m_queue->flush();
        }
        return m_shown;
    }
    double secondsBlocked() const { return m_blocked; }

  private:
    void addImageWithData(const QByteArray& data, const QString&, const QString&) override {
        if (!m_queue) {
            return;
        }
        const auto from = Clock::now();
        m_queue->submit(QByteArray(data.constData(), data.size()),
                        [this](const QByteArray& thumbnail) { m_shown += !thumbnail.isEmpty(); });
        m_blocked += std::chrono::duration<double>(Clock::now() - from).count();
    }

    int m_shown = 0;
    double m_blocked = 0;
    std::unique_ptr<ThumbnailQueue> m_queue;  // last: it delivers into the fields above
};

// Reads the image no faster than a card of this speed is read.
class CardReader : public SectorReader {
  public:
    CardReader(const QString& image, double megabytesASecond)
        : m_file(image), m_bytesASecond(megabytesASecond * 1e6), m_window(kWindowBytes) {
        m_opened = m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isOpen() const { return m_opened; }
    std::uint64_t mediumSectors() const override {
        return static_cast<std::uint64_t>(m_file.size()) / kSectorBytes;
    }

  protected:
    bool fetch() override {
        const qint64 got = m_file.seek(static_cast<qint64>(position() * kSectorBytes))
                               ? m_file.read(m_window.data(), kWindowBytes)
                               : 0;
        if (got < static_cast<qint64>(kSectorBytes)) {
            return false;
        }
        m_given += static_cast<double>(got);
        std::this_thread::sleep_until(m_begun + std::chrono::duration_cast<Clock::duration>(
                                                    std::chrono::duration<double>(m_given / m_bytesASecond)));
        handOver(reinterpret_cast<const std::uint8_t*>(m_window.data()),
                 static_cast<std::size_t>(got) / kSectorBytes);
        return true;
    }
    bool moveTo(std::uint64_t) override { return true; }

  private:
    static constexpr qint64 kWindowBytes = kMegabyte;

    QFile m_file;
    const double m_bytesASecond;
    std::vector<char> m_window;
    bool m_opened = false;
    const Clock::time_point m_begun = Clock::now();
    double m_given = 0;
};

struct Run {
    double seconds = 0;
    double blocked = 0;
    int shown = 0;
};

Run scan(const QString& image, DecodePool* pool, double megabytesASecond) {
    CliOptions options;
    options.mode = kPhotoMode;
    options.thorough = false;
    options.medium = image;
    PhotoSession session(options, probeMedium(image)->sectors, pool);
    session.setMediumOpener([&](const QString&) -> std::unique_ptr<SectorReader> {
        if (megabytesASecond <= 0) {
            return openMedium(image);
        }
        auto reader = std::make_unique<CardReader>(image, megabytesASecond);
        return reader->isOpen() ? std::move(reader) : nullptr;
    });
    session.loadCatalogues(QStringLiteral(VANTOR_SOURCE_DIR "/resources"));
    const auto from = Clock::now();
    Run run;
    run.shown = session.scan();
    run.seconds = std::chrono::duration<double>(Clock::now() - from).count();
    run.blocked = session.secondsBlocked();
    return run;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::size_t mebibytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 512;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 3;
    const double speed = argc > 3 ? std::atof(argv[3]) : 0;
    const QTemporaryDir folder;
    const QString image = folder.filePath(QStringLiteral("card.img"));
    const int photos = mebibytes > 0 && rounds > 0 ? writeCard(image, mebibytes) : 0;
    if (photos == 0) {
        std::fprintf(stderr, "The card of %zu MiB could not be made.\n", mebibytes);
        return 1;
    }
    DecodePoolOptions options;
    options.helper = QStringLiteral(VANTOR_DECODE_HELPER);
    DecodePool pool(options);
    scan(image, nullptr, 0);
    std::vector<double> without, with;
    Run last;
    for (int round = 0; round < rounds; ++round) {
        without.push_back(scan(image, nullptr, speed).seconds);
        last = scan(image, &pool, speed);
        with.push_back(last.seconds);
    }
    const double seconds = median(with);
    const double megabytes = static_cast<double>(QFile(image).size()) / 1e6;
    std::printf("%d photos of %.1f MB, %d rounds, %d helpers", photos, megabytes / photos, rounds,
                pool.helpers());
    std::printf(speed > 0 ? ", a card of %.0f MB/s\n" : ", cached\n", speed);
    std::printf("without thumbnails %.2f s (%.0f MB/s), with %.2f s (%.0f MB/s): %.2f times as long\n",
                median(without), megabytes / median(without), seconds, megabytes / seconds,
                seconds / median(without));
    std::printf("%d thumbnails, %.1f photos a second, %.1f a helper; the scan waited %.2f s for room\n",
                last.shown, photos / seconds, photos / seconds / pool.helpers(), last.blocked);
    return 0;
}
