// Movies of real cameras, robbed of their index.
#include <fcntl.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <set>
#include <utility>

#include "repair/MovieProof.h"
#include "repair/MovieRepair.h"
#include "repair/ReferenceShelf.h"
#include "tests/formats/Corpus.h"
#include "tests/repair/Movies.h"

namespace vantor {
namespace {

using test::asSpan;

MovieReaderOptions helperOptions() {
    MovieReaderOptions options;
    options.helper = QStringLiteral(VANTOR_MOVIE_HELPER);
    options.startDeadline = options.openDeadline = options.frameDeadline = std::chrono::minutes(5);
    return options;
}

class RealMovies : public testing::Test {
  protected:
    void SetUp() override {
        if (!QFileInfo::exists(helperOptions().helper)) {
            GTEST_SKIP() << "built without the movie helper";
        }
    }

    static QByteArray movie(const char* path) {
        QFile file(QStringLiteral("%1/videos/%2")
                       .arg(QString::fromStdString(test::corpusRoot().string()), QLatin1String(path)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

struct Counts {
    std::set<std::pair<std::uint64_t, std::uint64_t>> pictures;  // position in the data, bytes
    double soundSeconds = 0;
};

// `dataAt`: where the movie's data begins in its file.
Counts countsOf(const QByteArray& bytes, std::uint64_t& dataAt) {
    SpanSource source(asSpan(bytes));
    ByteView view(source);
    Counts counts;
    forIsoBoxes(view, 0, view.size(), [&](const IsoBox& box) {
        if (box.text() == "mdat" && box.end - box.body > 8) {
            dataAt = box.body;
        }
    });
    forIsoBoxes(view, 0, view.size(), [&](const IsoBox& box) {
        if (box.text() != "moov") {
            return;
        }
        forIsoBoxes(view, box.body, box.end, [&](const IsoBox& part) {
            const IsoTrack track = part.text() == "trak" ? readIsoTrack(view, part) : IsoTrack();
            if (track.isVideo()) {
                for (const IsoSample& sample : samplesOf(view, track, 100'000)) {
                    counts.pictures.insert({sample.at - dataAt, sample.bytes});
                }
            } else if (track.isSound()) {
                for (std::uint64_t i = 0; i < track.durations.count; ++i) {
                    const std::uint64_t entry = track.durations.entry(view, i).value_or(0);
                    counts.soundSeconds += static_cast<double>(entry >> 32) *
                                           static_cast<double>(entry & 0xFFFFFFFF) / track.timescale;
                }
            }
        });
    });
    return counts;
}

}  // namespace

TEST_F(RealMovies, WithoutTheirIndex_KeepTheirPicturesAndTheirSound) {
    struct Expected {
        const char* path;
        std::size_t pictures;
    };
    static constexpr Expected kMovies[] = {
        {"mp4/gpmf-parser__samples__max-heromode.mp4", 315},         // notes between pictures and sound
        {"mov/digicam_corpus__Apple__iPhone_XR__IMG_3589.mov", 81},  // H.265
        {"mov/media__libraries__test_data__src__test__assets__media__mp4__bt601.mov", 30},
    };
    int looked = 0;
    for (const Expected& expected : kMovies) {
        const QByteArray whole = movie(expected.path);
        if (whole.isEmpty()) {
            continue;
        }
        ++looked;
        std::uint64_t dataAt = 0;
        const Counts there = countsOf(whole, dataAt);
        ASSERT_EQ(there.pictures.size(), expected.pictures);
        SpanSource wholeSource(asSpan(whole));
        const auto reference = readReference(wholeSource);
        ASSERT_TRUE(reference) << expected.path;
        QByteArray broken = typeBoxOf(wholeSource);
        const qsizetype index = whole.indexOf("moov", static_cast<qsizetype>(dataAt));
        broken += QByteArray("\0\0\0\0mdat", 8) +
                  whole.sliced(static_cast<qsizetype>(dataAt))
                      .first((index < 0 ? whole.size() : index - 4) - static_cast<qsizetype>(dataAt));
        SpanSource source(asSpan(broken));
        const auto data = dataWithoutIndex(source);
        ASSERT_TRUE(data) << expected.path;
        SoundSplitter splitter(helperOptions());
        const auto repaired = repairMovie(source, *data, *reference, splitter);
        ASSERT_TRUE(repaired) << expected.path;
        const QByteArray twin = repaired->head +
                                broken.sliced(static_cast<qsizetype>(repaired->data.from))
                                    .first(static_cast<qsizetype>(repaired->data.to - repaired->data.from)) +
                                repaired->index;
        std::uint64_t twinDataAt = 0;
        const Counts found = countsOf(twin, twinDataAt);
        EXPECT_EQ(found.pictures, there.pictures) << expected.path;
        EXPECT_NEAR(found.soundSeconds, there.soundSeconds, 0.2) << expected.path;
        EXPECT_TRUE(playsWithoutErrors(source, *repaired, helperOptions())) << expected.path;
    }
    if (looked == 0) {
        GTEST_SKIP() << "no corpus";
    }
}

TEST_F(RealMovies, TheReferenceIsTheOneThatFits) {
    const QByteArray action = movie("mp4/gpmf-parser__samples__max-heromode.mp4");
    const QByteArray phone =
        movie("mov/media__libraries__test_data__src__test__assets__media__mp4__bt601.mov");
    if (action.isEmpty() || phone.isEmpty()) {
        GTEST_SKIP() << "no corpus";
    }
    ReferenceShelf shelf(helperOptions());
    for (const QByteArray* each : {&action, &phone}) {
        SpanSource source(asSpan(*each));
        auto reference = readReference(source);
        ASSERT_TRUE(reference);
        shelf.add(
            {each == &action ? QStringLiteral("action") : QStringLiteral("phone"), 0, std::move(*reference)});
    }
    SoundSplitter splitter(helperOptions());
    for (const QByteArray* each : {&action, &phone}) {
        std::uint64_t dataAt = 0;
        countsOf(*each, dataAt);
        SpanSource source(asSpan(*each));
        // No type to go by.
        const auto* const chosen = shelf.choose(source, {dataAt, source.size()}, 0, splitter);
        ASSERT_NE(chosen, nullptr);
        EXPECT_EQ(chosen->name, each == &action ? QStringLiteral("action") : QStringLiteral("phone"));
    }
}

}  // namespace vantor
