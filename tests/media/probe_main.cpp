// media-probe: lists, watches and reads media from a terminal, for trying the media room on real hardware.
//
//   media-probe list                 one row a medium
//   media-probe watch SECONDS        the list again at every change, with the time since the start
//   media-probe read ID|PATH [STOP]  reads every sector as a scan does; asks for a stop after STOP seconds
//   media-probe twice ID             lists once, reads, waits for a line on standard input, reads again
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <thread>

#include "media/MediaList.h"
#include "media/PlatformMedia.h"

namespace {

using namespace vantor;

QElapsedTimer g_clock;

double seconds() {
    return static_cast<double>(g_clock.elapsed()) / 1000.0;
}

void printList(MediaSource& source) {
    MediaList list(source);
    list.rebuild();
    std::printf("[%6.2f s] %lld media\n", seconds(),
                static_cast<long long>(list.nsMutaryOfDataObject.size()));
    for (const auto& row : list.nsMutaryOfDataObject) {
        std::printf("  %s | %s | %s | %s | %s | %s\n", qPrintable(row->nsStrDiskIdentifier),
                    qPrintable(row->nsStrVolName), qPrintable(row->nsStrFileSystem),
                    qPrintable(row->nsStrSize), qPrintable(row->nsStrParentDisk),
                    qPrintable(row->nsStrSectors));
    }
    std::fflush(stdout);
}

struct Failures {
    void add(std::uint64_t sector) {
        if (count++ != 0 && sector == last) {
            return;  // the scan's own second read
        }
        if (count != 1 && sector == last + 1) {
            ++last;
            return;
        }
        flush();
        first = last = sector;
    }
    void flush() {
        if (first != ~std::uint64_t{0} && runs++ < 20) {
            std::printf("  unreadable %llu-%llu\n", static_cast<unsigned long long>(first),
                        static_cast<unsigned long long>(last));
        }
    }
    std::uint64_t count = 0, runs = 0, first = ~std::uint64_t{0}, last = ~std::uint64_t{0};
};

bool readAll(SectorReader& reader, std::uint64_t sectors, const std::atomic<bool>& stop) {
    std::uint64_t good = 0;
    std::uint64_t failedSeeks = 0;
    std::uint64_t sum = 0;
    Failures failures;
    bool last = false;
    std::uint64_t index = 0;
    for (; index < sectors && !stop; ++index) {
        last = reader.read();
        if (last) {
            ++good;
            std::uint64_t word = 0;
            std::memcpy(&word, reader.current(), sizeof(word));
            sum = sum * 31 + word;
        } else {
            if (failedSeeks == 0) {
                failures.add(reader.position());
            }
            failedSeeks += reader.seek(index) ? 0 : 1;
        }
    }
    failures.flush();
    std::printf(
        "[%6.2f s] %s at %llu of %llu: %llu read, %llu failed reads, %llu failed seeks, sum %016llx\n",
        seconds(), index < sectors ? "stopped" : (last ? "completed" : "READ ERROR"),
        static_cast<unsigned long long>(index), static_cast<unsigned long long>(sectors),
        static_cast<unsigned long long>(good), static_cast<unsigned long long>(failures.count),
        static_cast<unsigned long long>(failedSeeks), static_cast<unsigned long long>(sum));
    std::fflush(stdout);
    return last;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    g_clock.start();
    const QStringList arguments = QCoreApplication::arguments();
    const QString command = arguments.value(1);
    const auto source = makePlatformMediaSource();
    if (command == u"list") {
        printList(*source);
        return 0;
    }
    if (command == u"watch") {
        source->changed = [&] { printList(*source); };
        printList(*source);
        QTimer::singleShot(arguments.value(2).toInt() * 1000, &application, &QCoreApplication::quit);
        return QCoreApplication::exec();
    }
    const QString medium = arguments.value(2);
    std::atomic<bool> stop{false};
    const StopRequest stopRequest = [&stop] { return stop.load(); };
    MediaList(*source).rebuild();
    const auto open = makeMediumOpener(*source, stopRequest);
    const std::uint64_t sectors =
        medium.startsWith(u'/')
            ? probeMedium(medium).value_or(MediumFacts()).sectors
            : source->diskInfo(medium).value(QStringLiteral("IOKitSize")).toULongLong() / kSectorBytes;
    if (!arguments.value(3).isEmpty()) {
        std::thread([&stop, after = arguments.value(3).toDouble()] {
            std::this_thread::sleep_for(std::chrono::duration<double>(after));
            stop = true;
        }).detach();
    }
    bool fine = false;
    for (int turn = 0; turn < (command == u"twice" ? 2 : 1); ++turn) {
        if (turn == 1) {
            std::getchar();
        }
        const auto reader = medium.startsWith(u'/') ? openMedium(medium, {stopRequest, {}, {}})
                                                    : open(QStringLiteral("/dev/r") + medium);
        if (!reader) {
            std::printf("[%6.2f s] cannot be opened\n", seconds());
            return 5;
        }
        fine = readAll(*reader, sectors, stop);
    }
    std::fflush(stdout);
    return fine ? 0 : 4;
}
