// What decoding in helper processes costs against decoding in this process, and how many photos a second it
// makes. Usage: decode_bench [JPEG...]; without arguments a 12-megapixel picture is made up.
#include <time.h>

#include <QCoreApplication>
#include <QFile>
#include <QThreadPool>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include "bench/Bench.h"
#include "bench/MadeUpPhoto.h"
#include "decode/DecodePool.h"
#include "decode/SharedPixels.h"
#include "decode/ThumbnailCodec.h"
#include "decode/ThumbnailQueue.h"
#include "decode/helper/PictureDecoder.h"

using namespace vantor;
using bench::median;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int kRounds = 40;

double milliseconds(Clock::time_point from) {
    return std::chrono::duration<double, std::milli>(Clock::now() - from).count();
}

double processorMilliseconds(clockid_t clock) {
    timespec spent{};
    clock_gettime(clock, &spent);
    return static_cast<double>(spent.tv_sec) * 1e3 + static_cast<double>(spent.tv_nsec) / 1e6;
}

// Time on the clock (median) and of the processor (mean; the helper's included), which a busy machine does
// not blur.
struct Cost {
    double clock = 0;
    double processor = 0;
};

template <typename Work, typename Processor>
Cost costOf(const Work& work, const Processor& processor) {
    std::vector<double> times;
    const double before = processor();
    for (int i = 0; i < kRounds; ++i) {
        const auto from = Clock::now();
        work();
        times.push_back(milliseconds(from));
    }
    return {median(times), (processor() - before) / kRounds};
}

void compare(decode::HelperProcess& helper, const QByteArray& bytes, const char* name) {
    const auto ourProcessor = [] { return processorMilliseconds(CLOCK_PROCESS_CPUTIME_ID); };
    clockid_t helpersClock{};
    clock_getcpuclockid(helper.pid(), &helpersClock);
    const Cost here = costOf(
        [&] {
            const auto picture = decode::decodePicture(bytes, {}, {kThumbnailSide, kThumbnailSide});
            return picture && !encodeThumbnail(picture->image).isEmpty();
        },
        ourProcessor);
    bool shown = true;
    const Cost there = costOf(
        [&] {
            decode::Request request;
            request.maxWidth = request.maxHeight = kThumbnailSide;
            decode::Answer answer;
            shown = shown &&
                    helper.ask(request, bytes, std::chrono::seconds{10}, answer) ==
                        decode::AskOutcome::Answered &&
                    !encodeThumbnail(decode::copyOfPixels(helper, answer)).isEmpty();
        },
        [&] { return ourProcessor() + processorMilliseconds(helpersClock); });
    std::printf(
        "%-40s %5.2f MB%s\n  clock:     in process %6.2f ms, isolated %6.2f ms, cost %+.2f ms\n"
        "  processor: in process %6.2f ms, isolated %6.2f ms, cost %+.2f ms\n",
        name, static_cast<double>(bytes.size()) / 1e6, shown ? "" : " (not decodable)", here.clock,
        there.clock, there.clock - here.clock, here.processor, there.processor,
        there.processor - here.processor);
}

void measureRate(DecodePool& pool, const QByteArray& bytes) {
    constexpr int kPhotos = 100;
    int shown = 0;
    ThumbnailQueue queue(
        [&](const QByteArray& one, const QString& extension) { return pool.thumbnail(one, extension); },
        {.workers = pool.helpers()});
    const auto from = Clock::now();
    for (int i = 0; i < kPhotos; ++i) {
        queue.submit(bytes, [&](const QByteArray& thumbnail) { shown += !thumbnail.isEmpty(); });
    }
    queue.flush();
    const double seconds = milliseconds(from) / 1000;
    std::printf("queue: %d of %d photos in %.2f s = %.1f a second, %.1f a helper\n", shown, kPhotos, seconds,
                kPhotos / seconds, kPhotos / seconds / pool.helpers());
}

void measureStart(const DecodePoolOptions& options) {
    std::vector<double> times;
    for (int i = 0; i < 11; ++i) {
        const auto from = Clock::now();
        const auto helper = decode::HelperProcess::start(options.helper, options.startDeadline);
        times.push_back(milliseconds(from));
        if (!helper) {
            std::printf("the helper does not start\n");
            return;
        }
    }
    std::printf("start of a helper: %.1f ms\n", median(times));
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::addLibraryPath(QStringLiteral(VANTOR_DECODE_HELPER).section(u'/', 0, -2));
    QThreadPool::globalInstance()->setMaxThreadCount(1);
    decode::preparePictureDecoders();
    DecodePoolOptions options;
    options.helper = QStringLiteral(VANTOR_DECODE_HELPER);
    DecodePool pool(options);
    measureStart(options);
    const QByteArray large = madeUpPhoto(4000, 3000);
    const auto helper = decode::HelperProcess::start(options.helper, options.startDeadline);
    if (!helper) {
        return EXIT_FAILURE;
    }
    compare(*helper, large, "made up, 4000 x 3000");
    for (int i = 1; i < argc; ++i) {
        QFile file(QString::fromLocal8Bit(argv[i]));
        if (file.open(QIODevice::ReadOnly)) {
            compare(*helper, file.readAll(), qPrintable(file.fileName().section(u'/', -1).right(40)));
        }
    }
    measureRate(pool, large);
}
