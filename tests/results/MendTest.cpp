// Items as they were put together or repaired: who finds them, how they read, and how they are copied.
#include <gtest/gtest.h>

#include <algorithm>

#include "results/MendedItems.h"
#include "results/MyImageObject.h"
#include "results/Soundness.h"
#include "results/TrueCopy.h"
#include "tests/support/SmallFiles.h"

namespace vantor {
namespace {

Mend pieces(MendKind kind, std::vector<SectorRun> runs, std::uint64_t bytes) {
    Mend mend;
    mend.kind = kind;
    mend.assembly = {std::move(runs), bytes, AssemblyProof::Proved, false};
    mend.twin.data = {0, bytes};
    return mend;
}

std::shared_ptr<MyImageObject> itemAt(const QString& type, std::uint64_t first) {
    std::shared_ptr<MyImageObject> made = MyImageObject::initWithImage_data({}, "x." + type, "x");
    made->setOrigin(type, {{{first, first + 4}}, false}, {first, first + 4});
    return made;
}

TEST(MendedItemsTest, TypesOfOneFormatShareWhatWasMade_OthersDoNot) {
    MendedItems mended;
    mended.add(QStringLiteral("JPG"), 40, pieces(MendKind::PutTogether, {{40, 50}, {70, 80}}, 9000));
    EXPECT_NE(mended.of(*itemAt("JPEG", 40)), nullptr);
    EXPECT_EQ(mended.of(*itemAt("JPEG", 41)), nullptr);
    EXPECT_EQ(mended.of(*itemAt("MP4", 40)), nullptr);
    EXPECT_EQ(mended.of(*itemAt("NOSUCH", 40)), nullptr);
    EXPECT_EQ(mended.provedOf(*itemAt("JPG", 40)), nullptr) << "the user has to look";
    EXPECT_TRUE(mended.allProved().empty());
    mended.add(QStringLiteral("JPG"), 40, pieces(MendKind::Completed, {{40, 50}, {60, 70}}, 9000));
    ASSERT_NE(mended.provedOf(*itemAt("JPG", 40)), nullptr) << "in place of what was made before";
    EXPECT_EQ(mended.provedOf(*itemAt("JPG", 40))->assembly.runs[1].first, 60U);
    EXPECT_EQ(mended.counts().all(), 1U);
    EXPECT_EQ(mended.counts().completed, 1U);
    mended.clear();
    EXPECT_EQ(mended.of(*itemAt("JPG", 40)), nullptr);
}

class MendedSound : public ::testing::Test {
  protected:
    // A sound whose second half lies in front of its first.
    MendedSound() {
        medium = ScriptedMedium(200);
        put(50, file.left(kHalf));
        put(20, file.mid(kHalf));
    }
    void put(std::size_t sector, const QByteArray& bytes) {
        for (qsizetype at = 0; at < bytes.size(); at += 512) {
            medium.put(sector++, bytes.mid(at, 512).toStdString());
        }
    }
    ItemHints hintsOf(Mend mend) {
        ItemHints hints;
        hints.mend = std::make_shared<const Mend>(std::move(mend));
        return hints;
    }
    QByteArray copied(const ItemHints& hints) {
        QByteArray written;
        TrueCopy copy(QStringLiteral("WAV"), carved, std::make_unique<ScriptedReader>(medium), watch, hints);
        const auto write = [&](std::uint64_t at, std::span<const std::uint8_t> bytes) {
            const auto end = static_cast<qsizetype>(at + bytes.size());
            written.resize(std::max(written.size(), end), '?');
            std::copy(bytes.begin(), bytes.end(), written.begin() + static_cast<std::ptrdiff_t>(at));
            return true;
        };
        EXPECT_TRUE(copy.measure() && copy.writeEnds(write));
        EXPECT_EQ(copy.bytes(), static_cast<std::uint64_t>(written.size()));
        return written;
    }

    static constexpr qsizetype kHalf = 5120;
    const QByteArray file = wavFile(9000);
    const CarvedRun carved{{{50, 60}}, false};
    ScriptedMedium medium{0};
    ReadWatch watch;
};

TEST_F(MendedSound, ReadsAndCountsAsItWasPutTogether) {
    const ItemHints hints = hintsOf(pieces(MendKind::Completed, {{50, 60}, {20, 28}}, 9000));
    ScriptedReader reader(medium);
    std::vector<std::uint8_t> kept;
    const auto found = examine(QStringLiteral("WAV"), carved, reader, watch, kept);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->pieces, 1U);
    const auto mended =
        examine(QStringLiteral("WAV"), carved, reader, watch, kept, kMostExaminedBytes, hints);
    ASSERT_TRUE(mended);
    EXPECT_EQ(mended->verdict, Verdict::Complete);
    EXPECT_EQ(mended->bytes, 9000U);
    EXPECT_EQ(mended->pieces, 2U);
    EXPECT_NE(copied({}), file);
    EXPECT_EQ(copied(hints), file);
}

TEST_F(MendedSound, OfARepairedOneHeadAndIndexStandAroundItsBytes) {
    Mend mend;
    mend.kind = MendKind::Repaired;
    mend.twin = {QByteArray("HEAD-OF-OUR-OWN"), {100, 4000}, QByteArray("INDEX")};
    EXPECT_EQ(copied(hintsOf(std::move(mend))), "HEAD-OF-OUR-OWN" + file.mid(100, 3900) + "INDEX");
}

}  // namespace
}  // namespace vantor
