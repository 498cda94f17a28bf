// Movies whose index was never written.
#include <gtest/gtest.h>

#include "repair/MovieRepair.h"
#include "tests/repair/Movies.h"

namespace vantor {
namespace {

using test::asSpan;
using test::MadeMovie;
using test::makeMovie;
using test::PictureSpec;
using test::plainPictures;

ReferenceMovie referenceOf(const MadeMovie& movie) {
    SpanSource source(asSpan(movie.bytes));
    auto reference = readReference(source);
    EXPECT_TRUE(reference);
    return reference.value_or(ReferenceMovie());
}

std::optional<RepairedMovie> repaired(const QByteArray& broken, const ReferenceMovie& reference,
                                      const PartPlays& plays = {}) {
    SpanSource source(asSpan(broken));
    const auto data = dataWithoutIndex(source);
    EXPECT_TRUE(data);
    SoundSplitter noHelper(MovieReaderOptions{QStringLiteral("/nowhere")});
    return data ? repairMovie(source, *data, reference, noHelper, {}, plays) : std::nullopt;
}

QByteArray twinOf(const QByteArray& broken, const RepairedMovie& movie) {
    return movie.head +
           broken.mid(static_cast<qsizetype>(movie.data.from),
                      static_cast<qsizetype>(movie.data.to - movie.data.from)) +
           movie.index;
}

struct Tracks {
    std::vector<QByteArray> pictures, sound;
};

// What the index of a movie points at.
Tracks tracksOf(const QByteArray& movie) {
    SpanSource source(asSpan(movie));
    ByteView view(source);
    Tracks tracks;
    forIsoBoxes(view, 0, view.size(), [&](const IsoBox& box) {
        if (box.text() != "moov") {
            return;
        }
        forIsoBoxes(view, box.body, box.end, [&](const IsoBox& part) {
            if (part.text() != "trak") {
                return;
            }
            const IsoTrack track = readIsoTrack(view, part);
            for (const IsoSample& sample : samplesOf(view, track, 100'000)) {
                (track.isVideo() ? tracks.pictures : tracks.sound)
                    .push_back(
                        movie.mid(static_cast<qsizetype>(sample.at), static_cast<qsizetype>(sample.bytes)));
            }
        });
    });
    return tracks;
}

// In which order the pictures are shown, by the index: times in units of one picture.
std::vector<std::uint32_t> shownAt(const QByteArray& index) {
    const qsizetype at = index.indexOf("ctts");
    std::vector<std::uint32_t> times;
    if (at < 0) {
        return times;
    }
    const auto number = [&](qsizetype place) {
        std::uint32_t value = 0;
        for (qsizetype i = 0; i < 4; ++i) {
            value = value << 8 | static_cast<std::uint8_t>(index[place + i]);
        }
        return value;
    };
    for (std::uint32_t entry = 0; entry < number(at + 8); ++entry) {
        const qsizetype place = at + 12 + 8 * static_cast<qsizetype>(entry);
        for (std::uint32_t i = 0; i < number(place); ++i) {
            times.push_back(static_cast<std::uint32_t>(times.size()) + number(place + 4) / test::kFrameUnits);
        }
    }
    return times;
}

}  // namespace

TEST(MovieRepair, WithoutIndex_EveryPictureAndAllSoundComeBack) {
    const ReferenceMovie reference = referenceOf(makeMovie(plainPictures(30), true, 1));
    const MadeMovie whole = makeMovie(plainPictures(47), true, 2);
    const QByteArray broken = whole.withoutIndex();
    const auto movie = repaired(broken, reference);
    ASSERT_TRUE(movie);
    EXPECT_EQ(movie->pictures, 47U);
    EXPECT_EQ(movie->unexplainedBytes, 0U);
    const Tracks expected = tracksOf(whole.bytes);
    const Tracks found = tracksOf(twinOf(broken, *movie));
    ASSERT_EQ(expected.pictures.size(), 47U);
    EXPECT_EQ(found.pictures, expected.pictures);
    ASSERT_EQ(expected.sound.size(), 47U);
    EXPECT_EQ(found.sound, expected.sound);
    EXPECT_NEAR(movie->soundSeconds, movie->pictureSeconds, 0.001);
}

TEST(MovieRepair, RecordingStoppedInAPicture_EndsBeforeIt) {
    const ReferenceMovie reference = referenceOf(makeMovie(plainPictures(30), true, 1));
    const MadeMovie whole = makeMovie(plainPictures(40), true, 2);
    const auto cut = static_cast<qsizetype>(whole.pictures[25].at + whole.pictures[25].bytes / 2);
    // As it stands where space was set aside, and where flash memory was erased.
    for (const char rest : {'\0', '\xFF'}) {
        const QByteArray broken = whole.bytes.first(cut) + QByteArray(100'000, rest);
        const auto movie = repaired(broken, reference);
        ASSERT_TRUE(movie);
        EXPECT_EQ(movie->pictures, 25U);
        EXPECT_EQ(movie->data.to, whole.pictures[25].at) << "nothing of the picture that was cut off";
    }
}

// An earlier movie of the same camera may stand where the one was cut off.
TEST(MovieRepair, PicturesBehindUnknownBytes_AreItsOwnOnlyIfTheyPlay) {
    const MadeMovie other = makeMovie(plainPictures(20), true, 1);
    const ReferenceMovie reference = referenceOf(other);
    const MadeMovie whole = makeMovie(plainPictures(40), true, 2);
    const auto end = static_cast<qsizetype>(whole.sound[19].at + whole.sound[19].bytes);
    const QByteArray broken = whole.bytes.first(end) + QByteArray(9000, '\x55') +
                              other.bytes.mid(static_cast<qsizetype>(other.pictures[0].at), 20'000);
    const auto taken = repaired(broken, reference, [](const RepairedMovie&) { return true; });
    ASSERT_TRUE(taken);
    EXPECT_GT(taken->pictures, 20U);
    const auto playsToTheCut = [&](const RepairedMovie& part) {
        EXPECT_EQ(tracksOf(twinOf(broken, part)).pictures.size(), part.pictures);
        return part.data.to <= static_cast<std::uint64_t>(end);
    };
    const auto movie = repaired(broken, reference, playsToTheCut);
    ASSERT_TRUE(movie);
    EXPECT_EQ(movie->pictures, 20U);
    EXPECT_NEAR(movie->soundSeconds, 20 / 30.0, 0.001);
}

TEST(MovieRepair, LastPictureThatDoesNotDecode_IsLeftOut_UnlessNoneDoes) {
    const MadeMovie whole = makeMovie(plainPictures(40), true, 2);
    const QByteArray broken = whole.withoutIndex();
    int asked = 0;
    const auto movie = repaired(broken, referenceOf(whole), [&](const RepairedMovie& part) {
        ++asked;
        return part.data.to <= whole.pictures[39].at;
    });
    ASSERT_TRUE(movie);
    EXPECT_EQ(movie->pictures, 39U);
    EXPECT_EQ(asked, 2);
    const auto all = repaired(broken, referenceOf(whole), [](const RepairedMovie&) { return false; });
    ASSERT_TRUE(all);
    EXPECT_EQ(all->pictures, 40U);
}

TEST(MovieRepair, AnotherMovieBehind_IsNotTakenAlong) {
    const MadeMovie other = makeMovie(plainPictures(20), true, 1);
    const ReferenceMovie reference = referenceOf(other);
    const MadeMovie whole = makeMovie(plainPictures(40), true, 2);
    QByteArray broken = whole.bytes.first(static_cast<qsizetype>(whole.sound[19].at + whole.sound[19].bytes));
    broken += QByteArray(512 - broken.size() % 512, '\0') + other.bytes;
    const auto movie = repaired(broken, reference);
    ASSERT_TRUE(movie);
    EXPECT_EQ(movie->pictures, 20U);
    EXPECT_NEAR(movie->soundSeconds, 20 / 30.0, 0.001);
}

TEST(MovieRepair, PicturesOutOfOrder_AreShownInTheirs) {
    // Shown I B B P B B P, stored I P B B P B B.
    std::vector<PictureSpec> specs;
    for (int group = 0; group < 3; ++group) {
        const PictureSpec stored[] = {{'I', 0, 0},  {'P', 1, 6}, {'B', 2, 2}, {'B', 2, 4},
                                      {'P', 2, 12}, {'B', 3, 8}, {'B', 3, 10}};
        specs.insert(specs.end(), std::begin(stored), std::end(stored));
    }
    const MadeMovie whole = makeMovie(specs, false, 3);
    const auto movie = repaired(whole.withoutIndex(), referenceOf(whole));
    ASSERT_TRUE(movie);
    std::vector<std::uint32_t> expected;
    for (const std::uint32_t group : {0U, 7U, 14U}) {
        for (const std::uint32_t place : {0U, 3U, 1U, 2U, 6U, 4U, 5U}) {
            expected.push_back(group + place + 1);  // later by what the order of storing needs
        }
    }
    EXPECT_EQ(shownAt(movie->index), expected);
}

TEST(MovieRepair, PictureInTheSound_IsKnownByWhatIsLeftOver) {
    const MadeMovie whole = makeMovie(plainPictures(12), false, 4);
    ReferenceMovie reference = referenceOf(whole);
    reference.sound = test::soundTrack();
    reference.widestGap = 4096;
    reference.mostSoundBytes = 100;
    std::mt19937 random(5);
    // Packets of 100 bytes; in the fourth something that looks like the next picture.
    const QByteArray lie = test::pictureBytes({'P', 5, 10, 20}, random);
    QByteArray data;
    std::uint64_t second = 0;
    for (unsigned i = 0; i < 10; ++i) {
        const PictureSpec spec{i == 0 ? 'I' : 'P', i, 2 * i, 300};
        data += test::pictureBytes(spec, random);
        QByteArray sound(700, '\xAA');
        sound.replace(340, lie.size(), i == 4 ? lie : QByteArray(lie.size(), '\xAA'));
        second = i == 1 ? static_cast<std::uint64_t>(data.size()) : second;
        data += sound;
    }
    SpanSource source(asSpan(data));
    ByteView view(source);
    const SplitSound split = [](const DataPlace& place) {
        return std::vector<std::uint32_t>((place.to - place.from) / 100, 100);
    };
    const MovieWalk walk = walkMovie(view, reference, {0, view.size()}, split, {});
    ASSERT_EQ(walk.pictures.size(), 10U);
    for (const CodedPicture& picture : walk.pictures) {
        EXPECT_EQ(picture.end - picture.at, 304U);
    }
    ASSERT_EQ(walk.gaps.size(), 10U);
    EXPECT_EQ(walk.gaps[1].place.from, second);
    EXPECT_EQ(walk.gaps[1].packets.size(), 7U);
}

TEST(MovieRepair, StopIsSeenAtEachPicture) {
    const MadeMovie whole = makeMovie(plainPictures(30), true, 1);
    SpanSource source(asSpan(whole.bytes));
    ByteView view(source);
    const std::atomic<int> stop{1};
    WalkLimits limits;
    limits.stop = &stop;
    EXPECT_TRUE(walkMovie(view, referenceOf(whole), {32, view.size()}, {}, limits).pictures.empty());
}

TEST(DataWithoutIndex, OnlyOfMoviesThatHaveNone) {
    const auto dataOf = [](const QByteArray& bytes) {
        SpanSource source(asSpan(bytes));
        return dataWithoutIndex(source);
    };
    const MadeMovie whole = makeMovie(plainPictures(5), false, 1);
    EXPECT_FALSE(dataOf(whole.bytes));
    EXPECT_FALSE(dataOf(QByteArray("RIFF....AVI LIST and so on, all of it text").repeated(4)));
    EXPECT_FALSE(dataOf({}));
    const auto cut = dataOf(whole.withoutIndex().chopped(40));
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->from, 32U);
    EXPECT_EQ(cut->to, static_cast<std::uint64_t>(whole.indexAt - 40));
    // A length that was never filled in.
    QByteArray open = whole.withoutIndex();
    open.replace(24, 4, QByteArray(4, '\0'));
    ASSERT_TRUE(dataOf(open));
    EXPECT_EQ(dataOf(open)->to, static_cast<std::uint64_t>(open.size()));
    // A picture, not a movie.
    EXPECT_FALSE(
        dataOf(whole.bytes.first(24) + QByteArray("\0\0\0\x08meta", 8) + whole.withoutIndex().mid(24)));
}

TEST(DataBehindIndex, OfAMovieThatWasCutOff_IsRepairedByItsOwn) {
    const MadeMovie movie = makeMovie(plainPictures(40), true, 1);
    const auto shift = static_cast<std::uint64_t>(movie.bytes.size() - movie.indexAt);
    const QByteArray whole = test::withIndexInFront(movie);
    const auto& last = movie.pictures[30];
    const QByteArray broken = whole.left(static_cast<qsizetype>(last.at + shift) + 20);
    SpanSource source(asSpan(broken));
    EXPECT_FALSE(dataWithoutIndex(source));
    const auto data = dataBehindIndex(source);
    ASSERT_TRUE(data);
    EXPECT_EQ(data->from, 24 + shift + 8);
    EXPECT_EQ(data->to, static_cast<std::uint64_t>(broken.size()));
    const auto guide = readReference(source);
    ASSERT_TRUE(guide);
    SoundSplitter noHelper(MovieReaderOptions{QStringLiteral("/nowhere")});
    const auto twin = repairMovie(source, *data, *guide, noHelper);
    ASSERT_TRUE(twin);
    EXPECT_EQ(twin->pictures, 30U);
    const Tracks tracks = tracksOf(twinOf(broken, *twin));
    EXPECT_EQ(tracks.pictures.size(), 30U);
    EXPECT_EQ(tracks.pictures.back(), movie.bytes.mid(static_cast<qsizetype>(movie.pictures[29].at),
                                                      static_cast<qsizetype>(movie.pictures[29].bytes)));
    SpanSource behind(asSpan(movie.bytes));
    EXPECT_FALSE(dataBehindIndex(behind));
}

TEST(ReferenceMovie, TellsWhatTheOthersLack) {
    const ReferenceMovie reference = referenceOf(makeMovie(plainPictures(30), true, 1));
    EXPECT_EQ(reference.video.timescale, 30000U);
    EXPECT_EQ(reference.video.duration, test::kFrameUnits);
    EXPECT_EQ(reference.video.description, test::avcDescription());
    EXPECT_EQ(reference.syntax.orderBits, 4U);
    EXPECT_EQ(reference.plainSoundBytes, test::kSoundFrameBytes);
    EXPECT_EQ(reference.widestGap, test::kSoundFramesAPicture * test::kSoundFrameBytes);
    ASSERT_TRUE(reference.sound);
    EXPECT_EQ(reference.sound->timescale, 48000U);
}

TEST(ReferenceMovie, PicturesThatAreNotAsTheIndexSays_AreNoReference) {
    MadeMovie whole = makeMovie(plainPictures(30), false, 1);
    for (std::size_t i = 0; i < 4; ++i) {
        whole.bytes[static_cast<qsizetype>(whole.pictures[i].at) + 40] = '\0';
        whole.bytes[static_cast<qsizetype>(whole.pictures[i].at) + 41] = '\0';
        whole.bytes[static_cast<qsizetype>(whole.pictures[i].at) + 42] = '\0';
    }
    SpanSource source(asSpan(whole.bytes));
    EXPECT_FALSE(readReference(source));
    const QByteArray withoutIndex = whole.bytes.first(whole.indexAt);
    SpanSource none(asSpan(withoutIndex));
    EXPECT_FALSE(readReference(none));
}

}  // namespace vantor
